// The background's schedule and its collection.
#include "acquisition/background.h"

#include "acquisition/opened_documents.h"
#include "acquisition/spectrum_drawing.h"
#include "platform/run_time_error.h"
#include "shell/state/messages.h"

namespace veritane::acquisition {

using platform::MessageIcon;
using state::Text;
using state::TextId;

std::string BackgroundPath(const state::DataFolders& folders, const std::string& short_name) {
  return folders.InStandards("back" + short_name + ".bsp");
}

bool IsBackgroundDue(const BackgroundSchedule& schedule,
                     const std::optional<platform::DateTime>& last_background,
                     const platform::DateTime& now) {
  if (schedule.beforeEverySample || !last_background) return true;
  if (!schedule.byInterval) return false;
  return static_cast<double>(platform::HourBoundaries(*last_background, now)) > schedule.intervalHours;
}

void AnnounceBackground(platform::Desktop& desktop, const std::string& prompt) {
  desktop.ShowMessage(
      {.text = Text(TextId::kNewBackgroundRequired) + prompt + Text(TextId::kClickToCollectBackground),
       .title = Text(TextId::kNoticeTitle),
       .icon = MessageIcon::kInformation});
}

CollectOutcome CollectBackground(Bench& bench) {
  SpectrometerSession& session = bench.session;
  const bool is_demonstration = bench.state.options.demoMode != 0;
  OpenedDocuments opened;
  if (is_demonstration) {
    opened.Open(session, bench.state.folders.InStandards("back.bsp"));
  } else {
    opened.Create(session, bench.state.BackGroundName);
  }
  PrepareMeasurement(bench, bench.state.clmFile, "");
  const CollectOutcome outcome = CollectIntoDocument(bench, "");
  if (outcome != CollectOutcome::kCollected) {
    opened.ReleaseLast();
    return outcome;
  }

  bench.state.Back = session.ReadSpectrum();
  const OrdinateRange range = DrawSpectrum(bench.panel.chart, bench.state.Back, "");
  bench.state.backminm = range.low;
  bench.state.backmaxm = range.high;
  try {
    opened.ReleaseLast()->CloseDocument(true);
  } catch (const platform::RunTimeError& error) {
    throw platform::RunTimeError(error.Number(), Text(TextId::kBackgroundNotFiled, {error.what()}));
  }
  bench.panel.fraSpectrum.SetCaption(Text(TextId::kBackgroundCaption));
  state::Notice(bench.desktop, TextId::kBackgroundDone, MessageIcon::kExclamation);
  return outcome;
}

}  // namespace veritane::acquisition
