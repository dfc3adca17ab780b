// The background's schedule and its collection.
#include "acquisition/background.h"

#include <algorithm>

#include "platform/run_time_error.h"
#include "shell/state/messages.h"

namespace veritane::acquisition {

using platform::MessageIcon;
using state::Text;
using state::TextId;

namespace {

// Every point against its wavenumber; the smallest and largest value become the y limits.
void DrawBackground(Bench& bench) {
  const state::SpectrumBuffer& back = bench.state.Back;
  if (back.Data.Empty())
    throw platform::RunTimeError(platform::ErrorNumber::kSubscript, "the background is empty");
  const platform::ChartBatch batch(bench.panel.chart);
  platform::Chart& chart = bench.panel.chart;
  for (std::size_t i = 0; i < state::kOwnSeries; ++i) chart.SetSeries(i, {});
  platform::ChartSeries series;
  series.y = back.Data.values;
  for (std::int32_t i = back.Data.lower; i <= back.Data.Upper(); ++i) series.x.push_back(i * back.Res);
  const auto [low, high] = std::minmax_element(series.y.begin(), series.y.end());
  bench.state.backminm = *low;
  bench.state.backmaxm = *high;
  chart.SetX({back.Data.lower * back.Res, back.Data.Upper() * back.Res});
  chart.SetY({bench.state.backminm, bench.state.backmaxm});
  chart.SetSeries(state::kStandardSeries, std::move(series));
}

}  // namespace

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
  if (is_demonstration) {
    session.Open(bench.state.folders.InStandards("back.bsp"));
  } else {
    session.Create(bench.state.BackGroundName);
  }
  // A demonstration measures nothing, so a method that is not there does not stop it.
  if (!is_demonstration || bench.machine.files.FileExists(bench.state.clmFile)) {
    PrepareScan(bench, bench.state.clmFile, "");
  }
  const CollectOutcome outcome = CollectIntoDocument(bench);
  if (outcome != CollectOutcome::kCollected) return outcome;

  bench.state.Back = session.ReadSpectrum();
  DrawBackground(bench);
  session.CurrentDocument->CloseDocument(true);
  bench.panel.fraSpectrum.SetCaption(Text(TextId::kBackgroundCaption));
  state::Notice(bench.desktop, TextId::kBackgroundDone, MessageIcon::kExclamation);
  return outcome;
}

}  // namespace veritane::acquisition
