// The two ways to print.
#include "review/printing.h"

#include <memory>
#include <utility>
#include <vector>

#include "platform/run_time_error.h"
#include "platform/windows_path.h"
#include "review/chart_printout.h"

namespace veritane::review {

using platform::RunTimeError;

namespace {

// What the contract asks of a peak's marker.
constexpr std::int32_t kMarkerKind = 2;
constexpr std::int32_t kMarkerStyle = 0;
constexpr std::int32_t kMarkerArgument = 2;
constexpr std::int32_t kDefinedByPosition = 2;

constexpr std::int32_t kShown = -1;

// Closes without saving what was opened for a print, however that ends.
class OpenedDocuments {
public:
  OpenedDocuments() = default;
  ~OpenedDocuments() {
    for (const auto& document : documents_) {
      try {
        document->CloseDocument(false);
      } catch (const RunTimeError&) {
        // What cannot be closed is the application's to keep; how the print ended is what the user has to
        // hear of.
        continue;
      }
    }
  }
  OpenedDocuments(const OpenedDocuments&) = delete;
  OpenedDocuments& operator=(const OpenedDocuments&) = delete;

  void Add(std::shared_ptr<acquisition::Document> document) { documents_.push_back(std::move(document)); }
  // The application may hand out another object for the document opened last.
  void ReplaceLast(std::shared_ptr<acquisition::Document> document) {
    documents_.back() = std::move(document);
  }
  void CloseLast() {
    const auto document = documents_.back();
    documents_.pop_back();
    document->CloseDocument(false);
  }

private:
  std::vector<std::shared_ptr<acquisition::Document>> documents_;
};

std::string LeafWithoutExtension(const std::string& path) {
  const std::string leaf = platform::LeafName(path);
  return leaf.substr(0, leaf.rfind('.'));
}

}  // namespace

Printing::Printing(acquisition::Bench& bench) : bench_(bench), state_(bench.state), session_(bench.session) {}

void Printing::Print() {
  if (state_.options.printOption == 0) return PrintChart();
  const acquisition::DrivenApplication driven(bench_);
  bench_.desktop.SetMousePointer(platform::Pointer::kHourglass);
  PrintByTemplate();
}

void Printing::PrintChart() {
  ChartPrintout printout("Spectrum " + LeafWithoutExtension(SampleFile()), bench_.panel.chart,
                         bench_.panel.lblResult.Caption());
  bench_.desktop.Print(printout);
}

void Printing::PrintByTemplate() {
  try {
    PrintDocuments();
  } catch (const RunTimeError& error) {
    throw RunTimeError(error.Number(), std::string(error.what()) + "\r\nPrinting through the template " +
                                           state_.options.printTemplate + " was not completed.");
  }
}

void Printing::PrintDocuments() {
  const bool has_standard = state_.algorithm != state::kPls;
  OpenedDocuments opened;
  session_.Open(SampleFile());
  opened.Add(session_.CurrentDocument);
  session_.CurrentDocument->SelectSpectrum(SpectrumToPrint());
  session_.CurrentDocument->PrepareSampleView();
  if (has_standard) {
    session_.Open(StandardFile());
    opened.Add(session_.CurrentDocument);
  }
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
  opened.CloseLast();
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
