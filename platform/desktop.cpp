// The dispatcher of what the user does, and the way to everything that is drawn.
#include "platform/desktop.h"

#include "platform/form.h"
#include "platform/run_time_error.h"
#include "platform/texts.h"
#include "platform/windows_path.h"

namespace veritane::platform {

std::vector<MessageAnswer> ButtonsOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::kOkCancel:
      return {MessageAnswer::kOk, MessageAnswer::kCancel};
    case MessageButtons::kYesNo:
      return {MessageAnswer::kYes, MessageAnswer::kNo};
    case MessageButtons::kOk:
      break;
  }
  return {MessageAnswer::kOk};
}

MessageAnswer QuietAnswer(MessageButtons buttons) {
  return ButtonsOf(buttons).back();
}

void Desktop::Perform(const std::function<void()>& action) {
  if (ended_) return;
  const Restore restore = snapshot_ ? snapshot_() : Restore();
  try {
    action();
  } catch (const RunTimeError& error) {
    SetMousePointer(Pointer::kDefault);
    if (restore) restore();
    user_interface_.NoteError(error);
    ShowMessage({.text = Text(TextId::kErrorMessage, {std::to_string(error.Number()), error.what()}),
                 .title = Text(TextId::kProgramName),
                 .icon = MessageIcon::kCritical});
  }
}

MessageAnswer Desktop::ShowMessage(const Message& message) {
  return user_interface_.ShowMessage(message);
}

std::optional<std::string> Desktop::ChooseFile(const FileChoice& choice) {
  return user_interface_.ChooseFile(choice);
}

void Desktop::Print(Printout& printout) {
  if (printer_ == nullptr) throw RunTimeError(ErrorNumber::kDeviceError, Text(TextId::kNoPrinter));
  const auto file = printer_->Print(printout);
  if (file) user_interface_.NotePrint(printout.Kind(), *file);
}

void Desktop::SetMousePointer(Pointer pointer) {
  if (pointer == pointer_) return;
  pointer_ = pointer;
  user_interface_.ShowPointer(pointer);
}

void Desktop::End(int exit_status) {
  if (ended_) return;
  ended_ = true;
  user_interface_.End(exit_status);
}

void Desktop::AttachForms() {
  for (Form* form : forms_) user_interface_.Attach(*form);
}

Form* Desktop::Find(const std::string& form_name) const {
  const std::string wanted = UpperCase(form_name);
  for (Form* form : forms_) {
    if (UpperCase(form->Name()) == wanted) return form;
  }
  return nullptr;
}

Form* Desktop::FrontModalForm() const {
  return modal_forms_.empty() || !modal_forms_.back()->Shown() ? nullptr : modal_forms_.back();
}

bool Desktop::IsBlocked(const Form& form) const {
  return !modal_forms_.empty() && modal_forms_.back() != &form;
}

}  // namespace veritane::platform
