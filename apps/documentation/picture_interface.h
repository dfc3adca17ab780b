// The program's window for taking pictures of it: dialogs, boxes and file choosers are answered as the
// picture maker has planned, and photographed where it wants them.
#pragma once

#include "platform/wx/wx_user_interface.h"

#include <wx/timer.h>

#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <string>

namespace veritane::documentation {

class PictureInterface : public platform::WxUserInterface {
public:
  // `folder` takes the pictures.
  explicit PictureInterface(std::filesystem::path folder);

  // What is done each time this dialog is on screen; it closes afterwards where that has not closed it.
  using Act = std::function<void()>;
  void OnDialog(const std::string& form_name, Act act) { acts_[form_name] = std::move(act); }

  // The next message box that comes: a part of its text, the name of its picture ("" for none), what is done
  // before it is answered, and the answer. Boxes that nobody expects are faults.
  struct Box {
    std::string text;
    std::string picture = {};
    Act act = {};
    platform::MessageAnswer answer = platform::MessageAnswer::kOk;
  };
  void Expect(Box box) { boxes_.push_back(std::move(box)); }
  void ExpectFile(const std::string& windows_path) { files_.push_back(windows_path); }

  // Saves what the screen shows in the windows of these names as FOLDER/NAME.png.
  void TakePicture(const std::string& name, std::initializer_list<const char*> windows);

  // Lets everything that is under way arrive on the screen.
  static void Settle(int milliseconds = 500);

  // Whether something came that was not planned, or that was planned and did not come.
  bool HasFailed() const { return has_failed_ || !boxes_.empty() || !files_.empty(); }

  void RunModal(platform::Form& form) override;
  platform::MessageAnswer ShowMessage(const platform::Message& message) override;
  std::optional<std::string> ChooseFile(const platform::FileChoice& choice) override;
  void NoteError(const platform::RunTimeError& error) override;

private:
  void Fail(const std::string& what);
  // Runs `act` once the dialog that is about to open has been drawn.
  void Later(Act act);

  std::filesystem::path folder_;
  std::map<std::string, Act> acts_;
  std::deque<Box> boxes_;
  std::deque<std::string> files_;
  std::deque<wxTimer> timers_;
  bool has_failed_ = false;
};

}  // namespace veritane::documentation
