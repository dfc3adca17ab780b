// The collection that background, Standard and sample share.
#include "acquisition/collection.h"

#include "platform/run_time_error.h"
#include "shell/state/messages.h"

namespace veritane::acquisition {

using platform::MessageIcon;
using state::Text;
using state::TextId;

void PrepareScan(Bench& bench, const std::string& clm_path, const std::string& background_path) {
  SpectrometerSession& session = bench.session;
  session.SpectrometerApp->Interactive(false);
  session.scan = session.SpectrometerApp->LoadCollectMethod(clm_path);
  if (!background_path.empty()) session.scan->SetBackgroundFile(background_path + "(1)");
  if (bench.state.isVantor == state::kFalse) session.scan->SetCollectOption("NI");
}

void PrepareMeasurement(Bench& bench, const std::string& clm_path, const std::string& background_path) {
  if (bench.state.options.demoMode != 0 && !bench.machine.files.FileExists(clm_path)) return;
  PrepareScan(bench, clm_path, background_path);
}

std::string DemonstrationFile(const std::string& algorithm) {
  if (algorithm == state::kPls) return "poly pls test.bsp";
  if (algorithm == state::kMarkPeaks) return "polys.bsp";
  return "aspirin.bsp";
}

void AnnounceSample(platform::Desktop& desktop, const std::string& prompt) {
  desktop.ShowMessage({.text = Text(TextId::kReadyForSample) + prompt + Text(TextId::kClickToScanSample),
                       .title = Text(TextId::kNoticeTitle),
                       .icon = MessageIcon::kExclamation});
}

void ShowInstrumentError(platform::Desktop& desktop, int error_number) {
  desktop.ShowMessage({.text = Text(TextId::kSpectrometerError) + std::to_string(error_number),
                       .title = Text(TextId::kWarningTitle),
                       .icon = MessageIcon::kCritical});
}

namespace {

// The instrument's number says nothing of files to who reads it. The program looks for itself: the
// application, which has just failed, is asked for nothing.
void ExplainBackground(Bench& bench, const std::string& path) {
  try {
    bench.machine.files.ReadBytes(path);
  } catch (const platform::RunTimeError& error) {
    bench.desktop.ShowMessage({.text = Text(TextId::kBackgroundUnreadable, {error.what(), path}),
                               .title = Text(TextId::kWarningTitle),
                               .icon = MessageIcon::kCritical});
  }
}

}  // namespace

CollectOutcome CollectIntoDocument(Bench& bench, const std::string& background_path) {
  SpectrometerSession& session = bench.session;
  for (;;) {
    std::int16_t error_number = kNoInstrumentError;
    {
      const StatusShown status(bench, Text(TextId::kScanning));
      if (bench.state.options.demoMode == 0) {
        error_number = platform::ToInt16(session.CurrentDocument->CollectInto(*session.scan));
      }
    }
    if (error_number == kNoInstrumentError) return CollectOutcome::kCollected;
    if (error_number != kWrongAccessory) {
      ShowInstrumentError(bench.desktop, error_number);
      if (!background_path.empty()) ExplainBackground(bench, background_path);
      session.SpectrometerApp->Interactive(true);
      return CollectOutcome::kInstrumentError;
    }
    const auto answer = bench.desktop.ShowMessage({.text = Text(TextId::kWrongAccessory),
                                                   .title = Text(TextId::kNoticeTitle),
                                                   .icon = MessageIcon::kExclamation,
                                                   .buttons = platform::MessageButtons::kOkCancel});
    if (answer == platform::MessageAnswer::kCancel) {
      session.CurrentDocument->CloseDocument(false);
      return CollectOutcome::kCancelled;
    }
  }
}

}  // namespace veritane::acquisition
