// Supervisor mode: its password, its options, and the way back to the operator.
#include "acquisition/background.h"
#include "acquisition/method_list.h"
#include "platform/desktop.h"
#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "platform/windows_path.h"
#include "shell/frm_veritane.h"
#include "shell/state/messages.h"
#include "shell/state/settings_file.h"

#include <limits>

namespace veritane::shell {

using platform::MessageIcon;
using platform::Pointer;
using state::Text;
using state::TextId;

void FrmVeritane::ConnectSupervisorHandlers() {
  cmdMainMenu.OnClick = [this] { cmdMainMenu_Click(); };
  SSTab1.OnChange = [this](int previous) { SSTab1_Change(previous); };
  optNoPassword.OnClick = [this] { optNoPassword_Click(); };
  optPassword.OnClick = [this] { optPassword_Click(); };
  optManualBackground.OnClick = [this] { optManualBackground_Click(); };
  optBackInterval.OnClick = [this] { optBackInterval_Click(); };
  txtbackInterval.OnKeyPress = [this](int key) { return txtbackInterval_KeyPress(key); };
  optBackBeforeSample.OnClick = [this] { optBackBeforeSample_Click(); };
  cmdBack.OnClick = [this] { cmdBack_Click(); };
  txtThreshold.OnChange = [this] { txtThreshold_Change(); };
  optDefaultPrint.OnClick = [this] { optDefaultPrint_Click(); };
  optPrintTemplate.OnClick = [this] { optPrintTemplate_Click(); };
  cmdSelTemplate.OnClick = [this] { cmdSelTemplate_Click(); };
  chkPrintPassFail.OnClick = [this] { chkPrintPassFail_Click(); };
  cmdStandard.OnClick = [this] { cmdStandard_Click(); };
  cmdSamp.OnClick = [this] { cmdSamp_Click(); };
  cmdNow.OnClick = [this] { cmdNow_Click(); };
  cmdExpertMode.OnClick = [this] { cmdExpertMode_Click(); };
}

std::optional<std::string> FrmVeritane::AskPassword(TextId prompt) {
  FrmPassword& dialog = dialogs_.frmPassword;
  dialog.lblPassword.SetCaption(Text(prompt));
  dialog.txtPassword.SetText("");
  dialog.ShowModal();
  if (dialog.cancelled) return std::nullopt;
  return platform::UpperCase(dialog.txtPassword.Text());
}

bool FrmVeritane::SupervisorMayEnter() {
  if (state_.options.PasswordRequired != 1) return true;
  if (AskPassword(TextId::kEnterPassword) == platform::UpperCase(state_.options.Password)) return true;
  state::Notice(Screen(), TextId::kAccessDenied, MessageIcon::kCritical);
  return false;
}

void FrmVeritane::cmdSupervisor_Click() {
  if (!SupervisorMayEnter()) return;
  const platform::DateTime now = machine_.clock.LocalNow();
  Log().Append(("Supervisor Mode accessed on " + machine_.regional.ShortDate(now) + " at " +
                machine_.regional.ShortTime(now))
                   .append(platform::kLineEnd));
  Screen().SetMousePointer(Pointer::kHourglass);
  products_.Load();
  SSTab1.SetTab(kSecurityTab);
  Screen().SetMousePointer(Pointer::kDefault);
  state::ShowPanel(bench_.panel, fraSupervisorMode);
  // What fails here keeps nobody out.
  Screen().Perform([this] { SettlePendingProduct(); });
}

void FrmVeritane::optNoPassword_Click() {
  state_.options.PasswordRequired = 0;
}

void FrmVeritane::optPassword_Click() {
  if (state_.formStartup == 1) return;
  const std::optional<std::string> password = NewPassword();
  dialogs_.frmPassword.txtPassword.SetText("");
  if (!password) {
    optNoPassword.Check();
    return;
  }
  state_.options.Password = *password;
  state_.options.PasswordRequired = 1;
}

// Nothing when there is to be none: a dialog was closed, or the user has been told what is wrong.
std::optional<std::string> FrmVeritane::NewPassword() {
  const std::optional<std::string> first = AskPassword(TextId::kEnterPassword);
  if (!first) return std::nullopt;
  if (!state::SettingsKeep(*first)) {
    state::Notice(Screen(), TextId::kPasswordCannotBeKept, MessageIcon::kCritical);
    return std::nullopt;
  }
  const std::optional<std::string> second = AskPassword(TextId::kVerifyPassword);
  if (second && first != second) state::Notice(Screen(), TextId::kIncorrectPassword, MessageIcon::kCritical);
  return first == second ? second : std::nullopt;
}

void FrmVeritane::optManualBackground_Click() {
  state_.options.backOption = state::kManualBackground;
  txtbackInterval.SetText("0");
  txtbackInterval.SetEnabled(false);
}

void FrmVeritane::optBackInterval_Click() {
  state_.options.backOption = state::kBackgroundByInterval;
  txtbackInterval.SetEnabled(true);
  state_.options.backInterval = platform::ToInt16(platform::LeadingNumber(txtbackInterval.Text()));
}

void FrmVeritane::optBackBeforeSample_Click() {
  state_.options.backOption = state::kBackgroundBeforeSample;
  txtbackInterval.SetText("0");
  txtbackInterval.SetEnabled(false);
}

// Collects a background of a method that the supervisor chooses.
void FrmVeritane::cmdBack_Click() {
  LoadMethods();
  acquisition::FrmSelectMethod& chooser = dialogs_.frmSelectMethod;
  chooser.ShowModal();
  const int chosen = chooser.cmbSelectMethod.Selected();
  if (chooser.cancelled != 0 || chosen < 0) return;
  const auto method = static_cast<std::size_t>(chosen);
  state_.BackGroundName = acquisition::BackgroundPath(state_.folders, state_.methodShortNames[method]);
  state_.clmFile = state_.methodPaths[method];
  if (state_.clmFile.empty()) {
    chooser.cmbSelectMethod.Select(0);
    state_.clmFile = state_.methodPaths.front();
  }
  acquisition::CollectBackground(bench_);
  Screen().SetMousePointer(Pointer::kDefault);
}

bool FrmVeritane::txtbackInterval_KeyPress(int key) {
  return (key >= '0' && key <= '9') || key == platform::kBackspaceKey;
}

bool FrmVeritane::ThresholdIsRight() {
  const std::optional<double> value = platform::ParseNumber(txtThreshold.Text());
  if (value && state::IsThreshold(*value)) return true;
  state::Notice(Screen(), TextId::kThresholdRange, MessageIcon::kInformation);
  txtThreshold.SetFocus();
  return false;
}

void FrmVeritane::txtThreshold_Change() {
  ThresholdIsRight();
}

// Pasted text is not filtered key by key, so the hours are looked at once more.
bool FrmVeritane::IntervalIsRight() {
  constexpr double kMostHours = std::numeric_limits<std::int16_t>::max();
  const std::optional<double> hours = platform::ParseNumber(txtbackInterval.Text());
  if (hours && *hours >= 0 && *hours <= kMostHours) return true;
  state::PlainNotice(Screen(), Text(TextId::kIntervalRange));
  txtbackInterval.SetFocus();
  return false;
}

void FrmVeritane::optDefaultPrint_Click() {
  lblPrintTemplate.SetCaption("");
  state_.options.printOption = 0;
}

void FrmVeritane::optPrintTemplate_Click() {
  state_.options.printOption = 1;
}

void FrmVeritane::cmdSelTemplate_Click() {
  const auto path = Screen().ChooseFile({.title = Text(TextId::kSelectPrintTemplate),
                                         .filter = "(*.bpt)|*.bpt",
                                         .folder = state_.folders.appDir});
  if (!path) return;
  if (!state::SettingsKeep(*path)) {
    state::PlainNotice(Screen(), Text(TextId::kTemplateCannotBeKept, {*path}));
    return;
  }
  state_.options.printTemplate = *path;
  lblPrintTemplate.SetCaption(*path);
  optPrintTemplate.Check();
}

void FrmVeritane::chkPrintPassFail_Click() {
  state_.options.addPassFail = static_cast<std::int16_t>(chkPrintPassFail.Value());
}

void FrmVeritane::TurnBackTo(TabPage page) {
  is_turning_back_ = true;
  SSTab1.SetTab(page);
  is_turning_back_ = false;
}

void FrmVeritane::SSTab1_Change(int previous) {
  if (is_turning_back_) return;
  if (previous == kOptionsTab && optPrintTemplate.Checked() && lblPrintTemplate.Caption().empty()) {
    Screen().ShowMessage(
        {.text = Text(TextId::kTemplateOrDefaultPrinting), .title = Text(TextId::kProgramName)});
    TurnBackTo(kOptionsTab);
    return;
  }
  if (previous == kStandardsTab && !products_.Save()) {
    TurnBackTo(kStandardsTab);
    return;
  }
  if (SSTab1.Tab() == kMethodsTab && lstMeths.Selected() >= 0) lstMeths.Select(0);
}

bool FrmVeritane::PrintOptionsAreComplete() {
  const std::string& path = lblPrintTemplate.Caption();
  std::string problem;
  if (optPrintTemplate.Checked() && path.empty()) {
    problem = Text(TextId::kPrintTemplateRequired);
  } else if (!path.empty() && !machine_.files.FileExists(path)) {
    problem = Text(TextId::kPrintTemplateMissing);
  }
  if (problem.empty()) return true;
  state::PlainNotice(Screen(), problem);
  return false;
}

void FrmVeritane::cmdMainMenu_Click() {
  // A value that cannot be read back would cost all settings, the password among them.
  if (!PrintOptionsAreComplete() || !ThresholdIsRight() || !IntervalIsRight()) return;
  if (!optDefaultPrint.Checked()) {
    state_.options.printOption = 1;
    state_.options.printTemplate = lblPrintTemplate.Caption();
  } else {
    state_.options.printOption = 0;
  }
  state_.options.addPassFail = static_cast<std::int16_t>(chkPrintPassFail.Value());
  SaveSettings();
  LoadSettings();
  if (!products_.Save()) {
    TurnBackTo(kStandardsTab);
    return;
  }
  Screen().SetMousePointer(Pointer::kHourglass);
  acquisition::SaveMethodList(machine_.files, state_, state_.methodPaths);
  state::ShowPanel(bench_.panel, fraMainMenu);
  Screen().SetMousePointer(Pointer::kDefault);
}

void FrmVeritane::cmdExpertMode_Click() {
  session_.SpectrometerApp->Interactive(true);
  state_.going_to_expert = state::kTrue;
  cmdExit_Click();
  // Back here the program may have stayed, and its next ending is an ordinary one again.
  if (!Screen().Ended()) state_.going_to_expert = state::kFalse;
}

}  // namespace veritane::shell
