// A screen that notes what it is shown and answers every message box with OK.
#pragma once

#include "platform/desktop.h"

#include <optional>
#include <string>
#include <vector>

namespace veritane::tests {

class NotingScreen : public platform::UserInterface {
public:
  std::vector<platform::Message> messages;

  void Attach(platform::Form&) override {}
  void RunModal(platform::Form&) override {}
  platform::MessageAnswer ShowMessage(const platform::Message& message) override {
    messages.push_back(message);
    return platform::MessageAnswer::kOk;
  }
  std::optional<std::string> ChooseFile(const platform::FileChoice&) override { return std::nullopt; }
  void ShowPointer(platform::Pointer) override {}
  void ProcessPendingEvents() override {}
  void NotePrint(platform::PrintKind, const std::string&) override {}
  void CopyPicture(const platform::Control&) override {}
  std::optional<std::string> ClipboardText() override { return std::nullopt; }
  void NoteError(const platform::RunTimeError&) override {}
  void End(int) override {}
};

}  // namespace veritane::tests
