// The settings between their file, the state and the supervisor's controls.
#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "shell/frm_veritane.h"
#include "shell/state/settings_file.h"

#include <algorithm>
#include <array>

namespace veritane::shell {

namespace {

// Whether the disk kept the file from being read. What it holds is then unknown, not damaged.
bool IsDiskFault(const platform::RunTimeError& error) {
  using platform::ErrorNumber;
  constexpr std::array kFaults{ErrorNumber::kDeviceError, ErrorNumber::kPermissionDenied,
                               ErrorNumber::kDiskNotReady, ErrorNumber::kPathFileAccess};
  return std::ranges::any_of(kFaults,
                             [&](ErrorNumber fault) { return error.Number() == static_cast<int>(fault); });
}

}  // namespace

void FrmVeritane::LoadSettings() {
  try {
    state_.options = state::ReadSettings(machine_.files.ReadBytes(state_.folders.appDir + "settings.ini"));
  } catch (const platform::RunTimeError& error) {
    // Defaults written over a good file would cost the laboratory its threshold and its password.
    if (IsDiskFault(error)) throw;
    // No file, or one that cannot be trusted in any line: begin with the defaults, and a file that can be
    // read. A program that runs already goes on to measure or to demonstrate as it began.
    const std::int16_t demo_mode = state_.formStartup == 1 ? std::int16_t{0} : state_.options.demoMode;
    state_.options = {};
    state_.options.demoMode = demo_mode;
    SaveSettings();
  }
  ApplySettings();
}

void FrmVeritane::SaveSettings() {
  const state::ShownOptions shown{.backInterval = txtbackInterval.Text(),
                                  .threshold = txtThreshold.Text(),
                                  .printPassFail = chkPrintPassFail.Value()};
  machine_.files.WriteBytes(state_.folders.appDir + "settings.ini",
                            state::SettingsText(state_.options, shown));
}

void FrmVeritane::ApplySettings() {
  // The controls' own events write into the state, so what was read is kept apart from it.
  const state::Options options = state_.options;
  (options.PasswordRequired == 1 ? optPassword : optNoPassword).Check();
  const std::string interval = std::to_string(options.backInterval);
  switch (options.backOption) {
    case state::kManualBackground:
    case state::kBackgroundBeforeSample:
      txtbackInterval.SetText(interval);
      txtbackInterval.SetEnabled(false);
      (options.backOption == state::kManualBackground ? optManualBackground : optBackBeforeSample).Check();
      break;
    case state::kBackgroundByInterval:
      txtbackInterval.SetEnabled(true);
      txtbackInterval.SetText(interval);
      optBackInterval.Check();
      break;
    default:
      break;
  }
  txtThreshold.SetText(platform::PlainNumberText(options.passThreshold));
  if (options.printOption != 0) {
    optPrintTemplate.Check();
    lblPrintTemplate.SetCaption(options.printTemplate);
  } else {
    optDefaultPrint.Check();
  }
  chkPrintPassFail.SetChecked(options.addPassFail != 0);
}

}  // namespace veritane::shell
