// The two ways to print.
#include "review/printing.h"

#include "acquisition/opened_documents.h"
#include "platform/run_time_error.h"
#include "platform/windows_path.h"
#include "review/chart_printout.h"
#include "shell/state/string_table.h"

#include <memory>

namespace veritane::review {

using platform::RunTimeError;
using state::Text;
using state::TextId;

namespace {

// What the contract asks of a peak's marker.
constexpr std::int32_t kMarkerKind = 2;
constexpr std::int32_t kMarkerStyle = 0;
constexpr std::int32_t kMarkerArgument = 2;
constexpr std::int32_t kDefinedByPosition = 2;

constexpr std::int32_t kShown = -1;

}  // namespace

Printing::Printing(acquisition::Bench& bench) : bench_(bench), state_(bench.state), session_(bench.session) {}

void Printing::Print() {
  if (state_.options.printOption == 0) return PrintChart();
  const acquisition::DrivenApplication driven(bench_);
  bench_.desktop.SetMousePointer(platform::Pointer::kHourglass);
  PrintByTemplate();
}

void Printing::PrintChart() {
  ChartPrintout printout(Text(TextId::kChartPrintTitle, {platform::LeafWithoutExtension(SampleFile())}),
                         bench_.panel.chart, bench_.panel.lblResult.Caption());
  bench_.desktop.Print(printout);
}

void Printing::PrintByTemplate() {
  try {
    PrintDocuments();
  } catch (const RunTimeError& error) {
    throw RunTimeError(error.Number(),
                       Text(TextId::kTemplateNotCompleted, {error.what(), state_.options.printTemplate}));
  }
}

void Printing::PrintDocuments() {
  const bool has_standard = state_.algorithm != state::kPls;
  acquisition::OpenedDocuments opened;
  opened.Open(session_, SampleFile());
  session_.CurrentDocument->SelectSpectrum(SpectrumToPrint());
  session_.CurrentDocument->PrepareSampleView();
  if (has_standard) opened.Open(session_, StandardFile());
  std::shared_ptr<acquisition::MarkerList> markers;
  if (state_.algorithm == state::kMarkPeaks) {
    session_.CurrentDocument = session_.SpectrometerApp->ActiveDocument();
    opened.ReplaceLast(session_.CurrentDocument);
    markers = MarkPeaks();
  }
  session_.CurrentDocument->PrepareStandardView();
  if (has_standard) session_.CurrentDocument->SetDocumentShown(kShown);
  RunTemplate();
  if (markers != nullptr) markers->ClearMarkers();
  markers.reset();
  session_.SpectrometerApp->Interactive(false);
  opened.ReleaseLast()->CloseDocument(false);
  if (has_standard) {
    session_.CurrentDocument = session_.SpectrometerApp->OpenDocument(StandardFile());
    opened.Add(session_.CurrentDocument);
  }
  session_.SpectrometerApp->Interactive(false);
  bench_.desktop.ProcessPendingEvents();
}

std::shared_ptr<acquisition::MarkerList> Printing::MarkPeaks() {
  auto markers = session_.CurrentDocument->GetSpectrumAt(1)->GetMarkerList();
  for (const double peak : state_.peakPositions) {
    const auto marker = markers->AddMarker(peak);
    marker->SetKind(kMarkerKind);
    marker->SetStyle(kMarkerStyle);
    marker->SetDefinition(kMarkerArgument, kDefinedByPosition, peak);
  }
  return markers;
}

void Printing::RunTemplate() {
  acquisition::SpectrometerApp& application = *session_.SpectrometerApp;
  application.BeginPrint();
  const auto print = session_.CurrentDocument->OpenPrintTemplate(state_.options.printTemplate);
  application.Interactive(false);
  print->PrintDoc();
  application.Interactive(false);
  print->CloseDoc();
}

std::string Printing::SampleFile() const {
  return state_.reprocessing == 1 ? state_.reprocesssampname : state_.tmpSampName;
}

// A sample run keeps the Standard's path without its extension, reprocessing keeps the whole path.
std::string Printing::StandardFile() const {
  return state_.reprocessing == 1 ? state_.tmpRefName : state_.tmpRefName + ".bsp";
}

std::int16_t Printing::SpectrumToPrint() const {
  return state_.reprocessing == 1 ? state_.reprocesssampindex : std::int16_t{1};
}

}  // namespace veritane::review
