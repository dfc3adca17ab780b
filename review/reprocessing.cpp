// Reprocessing step by step.
#include "review/reprocessing.h"

#include "acquisition/additional_file.h"
#include "acquisition/opened_documents.h"
#include "acquisition/product_table.h"
#include "identification/judgement.h"
#include "identification/pls_prediction.h"
#include "identification/result_records.h"
#include "identification/spectrum_preparation.h"
#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "platform/windows_path.h"
#include "shell/state/messages.h"

namespace veritane::review {

using acquisition::StatusShown;
using platform::MessageIcon;
using platform::Pointer;
using state::Text;
using state::TextId;

namespace {

constexpr const char* kSpectrumFilter = "(*.bsp)|*.bsp";
// The sample of a file with a single spectrum; a number beyond the last spectrum stands for the last one.
constexpr std::int16_t kIndexInSingleSpectrumFile = 2;
// The caption of the spectrum panel over a reprocessed result.
constexpr int kReprocessedCaption = 88;

std::string TextOf(acquisition::Spectrum& spectrum, const char* parameter) {
  const acquisition::ParameterValue value = spectrum.GetParameter(parameter)->Value();
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  return platform::PlainNumberText(std::get<double>(value));
}

// Why the two cannot be compared point by point; "" when they can. The last reason found is the one told.
std::string WhyNotComparable(const state::SpectrumBuffer& standard, const state::SpectrumBuffer& sample) {
  std::string reason;
  if (standard.Res != sample.Res) reason = Text(TextId::kResolutionsDiffer);
  if (standard.NumPts != sample.NumPts) reason = Text(TextId::kPointsDiffer);
  // As many points as far apart may still lie elsewhere, and would then be compared at other wavenumbers.
  if (reason.empty() && standard.FirstWavenumber() != sample.FirstWavenumber()) {
    reason = Text(TextId::kFirstWavenumbersDiffer);
  }
  return reason;
}

}  // namespace

Reprocessing::Reprocessing(acquisition::Bench& bench, FrmSelectSpectrum& frm_select_spectrum,
                           ChosenNames names)
    : bench_(bench),
      state_(bench.state),
      session_(bench.session),
      frm_select_spectrum_(frm_select_spectrum),
      names_(names) {}

void Reprocessing::ChooseStandard() {
  state_.StandardSelected = 0;
  const auto path = bench_.desktop.ChooseFile({.title = Text(TextId::kSelectStandardSpectrum),
                                               .filter = kSpectrumFilter,
                                               .folder = state_.folders.stdsDir});
  if (!path) return;
  state_.reprocessStdName = *path;
  names_.lblStdName.SetCaption(*path);
  state_.StandardSelected = 1;
}

void Reprocessing::ChooseSample() {
  state_.SampSelected = 0;
  const auto path = bench_.desktop.ChooseFile({.title = Text(TextId::kSelectSampleSpectrum),
                                               .filter = kSpectrumFilter,
                                               .folder = state_.folders.sampDir});
  if (!path) return;
  state_.reprocesssampname = *path;
  names_.lblSampleName.SetCaption(*path);

  const acquisition::DrivenApplication driven(bench_);
  bench_.desktop.SetMousePointer(Pointer::kHourglass);
  acquisition::OpenedDocuments opened;
  opened.Open(session_, *path);
  session_.SpectrometerApp->Interactive(false);
  session_.CurrentDocument->SetDocumentShown(0);
  bench_.desktop.SetMousePointer(Pointer::kDefault);
  const auto index = ChooseSpectrum();
  opened.ReleaseLast()->CloseDocument();
  if (!index) {
    names_.lblSampleName.SetCaption("");
    return;
  }
  state_.reprocesssampindex = *index;
  state_.SampSelected = 1;
  state_.spectrumName = state_.reprocesssampname;
  state_.SpectrumIndex = state_.reprocesssampindex;
}

std::optional<std::int16_t> Reprocessing::ChooseSpectrum() {
  platform::ListBox& list = frm_select_spectrum_.lstSpectrum;
  list.Clear();
  const std::int16_t count = platform::ToInt16(session_.CurrentDocument->GetSpectrumCount());
  if (count < 2) return kIndexInSingleSpectrumFile;
  std::vector<std::string> entries;
  for (int index = 1; index <= count; ++index) entries.push_back(EntryOf(static_cast<std::int16_t>(index)));
  list.AddAll(entries);
  frm_select_spectrum_.ShowModal();
  if (list.Selected() < 0) return std::nullopt;
  return static_cast<std::int16_t>(list.Selected() + 1);
}

std::string Reprocessing::EntryOf(std::int16_t index) {
  const auto spectrum = session_.CurrentDocument->GetSpectrumAt(index);
  return Text(TextId::kSpectrumEntry, {TextOf(*spectrum, "SpectName"), TextOf(*spectrum, "Time")});
}

void Reprocessing::Run(const std::string& algorithm) {
  identification::ClearResult(bench_);
  if (!IsChosen(algorithm) || !AskForExtraFile(algorithm)) return;
  state_.reprocessing = 1;
  state_.algorithm = algorithm;
  const acquisition::DrivenApplication driven(bench_);
  if (algorithm == state::kPls) {
    ForgetStandard();
  } else if (!LoadStandard()) {
    return;
  }
  acquisition::OpenedDocuments opened;
  opened.Open(session_, state_.reprocesssampname);
  LoadSample(opened);
  if (algorithm != state::kPls && !IsComparable()) return;
  ShowResult();
  if (identification::LeavesDocumentOpen(algorithm)) opened.ReleaseLast()->CloseDocument(false);
}

void Reprocessing::ForgetStandard() {
  state_.Ref = {};
  state_.ChartRefData = {};
  standard_name_.clear();
}

bool Reprocessing::IsChosen(const std::string& algorithm) {
  const bool needs_standard = algorithm != state::kPls;
  if (state_.SampSelected == 1 && (state_.StandardSelected == 1 || !needs_standard)) return true;
  state::Notice(bench_.desktop, TextId::kSelectBothSpectra, MessageIcon::kExclamation);
  return false;
}

bool Reprocessing::AskForExtraFile(const std::string& algorithm) {
  if (!acquisition::NeedsAdditionalFile(algorithm)) return true;
  const auto path = acquisition::ChooseAdditionalFile(bench_.desktop, state_.folders, algorithm);
  if (!path) return false;
  state_.calfilename = *path;
  return true;
}

bool Reprocessing::LoadStandard() {
  std::optional<StatusShown> status(std::in_place, bench_, Text(TextId::kLoadingStandard));
  acquisition::OpenedDocuments opened;
  opened.Open(session_, state_.reprocessStdName);
  state_.tmpRefName = state_.reprocessStdName;
  session_.CurrentDocument->SetDocumentShown(0);
  session_.CurrentDocument->SelectSpectrum(1);
  state_.Ref = session_.ReadSpectrum();
  standard_name_ = platform::LeafWithoutExtension(state_.reprocessStdName);
  if (!FindCollectMethod()) {
    status.reset();
    state::Notice(bench_.desktop, TextId::kProductNotFound, MessageIcon::kCritical);
    ClearNames();
    opened.ReleaseLast()->CloseDocument(false);
    return false;
  }
  identification::PrepareSpectrum(bench_, opened, state_.Ref, state_.ChartRefData, state_.RefFFTData);
  return true;
}

bool Reprocessing::FindCollectMethod() {
  const std::string table = acquisition::ProductTablePath(state_);
  const auto product = acquisition::FindProduct(bench_.machine.files.ReadBytes(table), standard_name_, table);
  if (product) state_.clmName = product->collectMethod;
  return product.has_value();
}

void Reprocessing::LoadSample(acquisition::OpenedDocuments& opened) {
  const StatusShown status(bench_, Text(TextId::kCalculating));
  acquisition::Document& document = *session_.CurrentDocument;
  document.SetDocumentShown(0);
  document.SelectSpectrum(state_.reprocesssampindex);
  document.PrepareSampleView();
  sample_name_ = TextOf(*document.GetSpectrum(), "SpectName");
  state_.Samp = session_.ReadSpectrum();
  state_.SpectrumIndex = state_.reprocesssampindex;
  identification::PrepareSpectrum(bench_, opened, state_.Samp, state_.ChartSampData, state_.SampFFTData);
}

bool Reprocessing::IsComparable() {
  const std::string reason = WhyNotComparable(state_.Ref, state_.Samp);
  if (reason.empty()) return true;
  bench_.desktop.ShowMessage({.text = Text(TextId::kCannotReprocess) + reason,
                              .title = Text(TextId::kNoticeTitle),
                              .icon = MessageIcon::kCritical});
  return false;
}

void Reprocessing::ShowResult() {
  platform::Chart& chart = bench_.panel.chart;
  const platform::ChartBatch batch(chart);
  identification::PlotTraces(state_, chart);
  identification::Judge(bench_);
  identification::ShowVerdict(state_, chart);
  chart.SetHeader(HeaderLines());
  ClearNames();
  bench_.panel.fraSpectrum.SetCaption(Text(kReprocessedCaption));
  state::ShowPanel(bench_.panel, bench_.panel.fraSpectrum);
}

std::vector<std::string> Reprocessing::HeaderLines() const {
  std::string result = Text(TextId::kReprocessedSample, {sample_name_});
  if (identification::HasMatchQuality(state_.algorithm)) {
    result += Text(TextId::kMatchQuality) + platform::NumberText(state_.comparison) +
              Text(TextId::kPercentAlgorithm) + state_.algorithm;
  } else {
    result += Text(TextId::kAlgorithmHeader) + "=" + state_.algorithm;
  }
  std::vector<std::string> lines{Text(TextId::kReprocessStandard) + standard_name_,
                                 Text(TextId::kReprocessSample) + sample_name_, result};
  if (state_.algorithm == state::kPls) {
    for (const std::string& line : identification::PredictionLines(state_)) lines.push_back(line);
  }
  return lines;
}

void Reprocessing::ClearNames() {
  names_.lblStdName.SetCaption("");
  names_.lblSampleName.SetCaption("");
}

}  // namespace veritane::review
