// The sample run step by step.
#include "identification/sample_run.h"

#include "acquisition/collection.h"
#include "acquisition/product_key.h"
#include "acquisition/product_table.h"
#include "acquisition/prompts.h"
#include "identification/full_files.h"
#include "identification/judgement.h"
#include "identification/mark_peaks.h"
#include "identification/pls_prediction.h"
#include "identification/result_records.h"
#include "identification/spectrum_preparation.h"
#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "platform/windows_path.h"
#include "shell/state/messages.h"

#include <cmath>
#include <optional>

namespace veritane::identification {

using acquisition::CollectOutcome;
using acquisition::ParameterValue;
using acquisition::StatusShown;
using platform::MessageIcon;
using state::Text;
using state::TextId;

SampleRun::SampleRun(acquisition::Bench& bench, FrmSamp& frm_samp, platform::AppendingFile& log)
    : bench_(bench),
      state_(bench.state),
      session_(bench.session),
      frm_samp_(frm_samp),
      log_(log),
      driven_(bench) {}

void SampleRun::Run(const acquisition::BackgroundSchedule& schedule) {
  ClearResult(bench_);
  frm_samp_.ShowModal();
  if (frm_samp_.cancelled || bench_.desktop.Ended()) return;
  if (FindProduct()) RunForProduct(schedule);
}

bool SampleRun::Refuse(const std::string& text) {
  bench_.desktop.SetMousePointer(platform::Pointer::kDefault);
  state::PlainNotice(bench_.desktop, text, MessageIcon::kCritical);
  return false;
}

bool SampleRun::FindProduct() {
  const platform::FileSystem& files = bench_.machine.files;
  const std::string table = acquisition::ProductTablePath(state_);
  state_.prod = acquisition::ProductKey(files, state_.folders, frm_samp_.cmbStandards.Text());
  state_.tmpRefName = state_.folders.InStandards(state_.prod);
  state_.tmpSampName = state_.folders.InSamples(state_.prod + ".bsp");
  const auto product = acquisition::FindProduct(files.ReadBytes(table), state_.prod, table);
  if (!product) {
    bench_.desktop.SetMousePointer(platform::Pointer::kDefault);
    state::Notice(bench_.desktop, TextId::kProductNotFound, MessageIcon::kCritical);
    return false;
  }
  for (const std::string& name : {state_.prod, product->collectMethod}) {
    if (const std::string why = platform::WhyNotAFileName(name); !why.empty()) {
      return Refuse(Text(TextId::kCannotNameTheProduct, {name, why}));
    }
  }
  state_.clmName = product->collectMethod;
  state_.algorithm = product->algorithm;
  state_.calfilename = product->additionalFile;
  frm_samp_.previousProduct = product->productId;
  if (!CanJudge(state_.algorithm)) {
    return Refuse(Text(TextId::kAlgorithmNotAvailable, {state_.algorithm}));
  }
  return true;
}

void SampleRun::RunForProduct(const acquisition::BackgroundSchedule& schedule) {
  // A peak file that is of no use is told before anybody measures.
  if (state_.algorithm == state::kMarkPeaks) PeaksOfProduct(bench_);
  LoadStandard();
  const auto prompts = acquisition::LoadPrompts(bench_.machine.files, state_.folders, state_.clmName);
  if (!CollectBackgroundIfDue(schedule, prompts.background)) return;
  acquisition::AnnounceSample(bench_.desktop, prompts.sample);
  if (!OpenSampleDocument() || !CollectSample() || !IsConsistent()) return;
  FileSample();
  BehindFiling(TextId::kFiledNotCompared, [this] {
    const StatusShown status(bench_, Text(TextId::kCalculating));
    PrepareSpectrum(bench_, opened_, state_.Samp, state_.ChartSampData, state_.SampFFTData);
    Judge(bench_);
  });
  ShowResult();
  // What fails from here on is told over the result, which the operator must not lose.
  bench_.desktop.Perform([this] { RecordResult(); });
  bench_.desktop.Perform([this] {
    BehindFiling(TextId::kFiledNotNamed, [this] { NameResultInSampleFile(); });
    if (state_.options.printOption != 0) bench_.PrintByTemplate();
  });
}

// Whoever reads of a fault behind the filing has to know that the spectrum is not lost.
void SampleRun::BehindFiling(TextId what_failed, const std::function<void()>& step) const {
  try {
    step();
  } catch (const platform::RunTimeError& error) {
    throw platform::RunTimeError(error.Number(), Text(what_failed, {error.what(), state_.tmpSampName}));
  }
}

void SampleRun::RecordResult() {
  BehindFiling(TextId::kFiledNotRecorded, [this] {
    AppendHistogramLine(bench_.machine.files, state_.tmpSampName,
                        {.sampleName = frm_samp_.txtSampName.Text(),
                         .productId = frm_samp_.cmbStandards.Text(),
                         .algorithm = state_.algorithm,
                         .comparison = state_.comparison,
                         .passThreshold = state_.options.passThreshold,
                         .operatorName = frm_samp_.txtOperatorName.Text()},
                        bench_.machine.regional, bench_.machine.clock.LocalNow());
  });
}

void SampleRun::LoadStandard() {
  const StatusShown status(bench_, Text(TextId::kLoadingStandard));
  opened_.Open(session_, state_.tmpRefName + ".bsp");
  session_.CurrentDocument->SetDocumentShown(0);
  session_.CurrentDocument->SelectSpectrum(1);
  state_.Ref = session_.ReadSpectrum();
  PrepareSpectrum(bench_, opened_, state_.Ref, state_.ChartRefData, state_.RefFFTData);
}

bool SampleRun::CollectBackgroundIfDue(const acquisition::BackgroundSchedule& schedule,
                                       const std::string& prompt) {
  const platform::FileSystem& files = bench_.machine.files;
  state_.BackGroundName = acquisition::BackgroundPath(state_.folders, state_.clmName);
  state_.clmFile = state_.folders.InStandards(state_.clmName + ".clm");
  std::optional<platform::DateTime> last_background;
  if (files.FileExists(state_.BackGroundName)) last_background = files.LastModified(state_.BackGroundName);
  if (!acquisition::IsBackgroundDue(schedule, last_background, bench_.machine.clock.LocalNow())) return true;
  acquisition::AnnounceBackground(bench_.desktop, prompt);
  return acquisition::CollectBackground(bench_) == CollectOutcome::kCollected;
}

bool SampleRun::OpenSampleDocument() {
  const bool exists = bench_.machine.files.FileExists(state_.tmpSampName);
  roll_over_name_.clear();
  if (state_.options.demoMode != 0) {
    // The stored spectrum is filed in place of the sample file, so what was filed before has to make room for
    // it.
    return !exists || MayRollOverTo(FirstFreeNumberedFile(bench_.machine.files, state_));
  }
  if (!exists) {
    opened_.Create(session_, state_.tmpSampName);
    return true;
  }
  constexpr int kSpectraPerFile = 50;
  opened_.Open(session_, state_.tmpSampName);
  session_.CurrentDocument->SetDocumentShown(0);
  return session_.CurrentDocument->GetSpectrumCount() < kSpectraPerFile || RollOver();
}

bool SampleRun::MayRollOverTo(const std::string& path) {
  roll_over_name_ = path;
  if (!path.empty()) return true;
  bench_.desktop.ShowMessage({.text = Text(TextId::kSpectraLimit),
                              .title = Text(TextId::kWarningTitle),
                              .icon = MessageIcon::kCritical});
  return false;
}

// The full file's copy under its number is on disk before the file itself goes: whatever happens in between,
// no spectrum is lost, and the next run knows the copy by the note and goes on from there.
bool SampleRun::RollOver() {
  platform::FileSystem& files = bench_.machine.files;
  acquisition::Document& full = *session_.CurrentDocument;
  const std::string note = MoveNotePath(state_);
  const std::string copy = MoveUnderWay(files, state_);
  if (copy.empty() || !IsCopyOf(full, *session_.SpectrometerApp, copy)) {
    if (!MayRollOverTo(FirstFreeNumberedFile(files, state_))) return false;
    files.WriteBytes(note, platform::LeafName(roll_over_name_));
    full.SaveDocumentAs(roll_over_name_);
  }
  opened_.ReleaseLast()->CloseDocument(false);
  files.DeleteFile(state_.tmpSampName);
  files.DeleteFile(note);
  opened_.Create(session_, state_.tmpSampName);
  return true;
}

bool SampleRun::CollectSample() {
  if (state_.options.demoMode != 0) {
    opened_.Open(session_, state_.folders.InStandards(acquisition::DemonstrationFile(state_.algorithm)));
    session_.CurrentDocument->SetDocumentShown(0);
    session_.CurrentDocument->SelectSpectrum(1);
  } else {
    acquisition::PrepareScan(bench_, state_.clmFile, state_.BackGroundName);
  }
  if (acquisition::CollectIntoDocument(bench_, state_.BackGroundName) != CollectOutcome::kCollected) {
    // Closed already, or left to the user with the application that reported the error.
    opened_.ReleaseLast();
    return false;
  }
  state_.Samp = session_.ReadSpectrum();
  if (state_.algorithm == state::kPls) {
    state_.SpectrumIndex = platform::ToInt16(session_.CurrentDocument->GetSpectrumCount());
  }
  session_.spect->GetParameter("SpectName")->SetValue(frm_samp_.txtSampName.Text());
  return true;
}

bool SampleRun::IsConsistent() {
  const state::SpectrumBuffer& standard = state_.Ref;
  const state::SpectrumBuffer& sample = state_.Samp;
  std::string reason;
  if (standard.Res != sample.Res) {
    reason = Text(TextId::kCollectedOtherwise);
  } else if (standard.FirstWavenumber() != sample.FirstWavenumber()) {
    reason = Text(TextId::kStartsElsewhere);
  }
  if (reason.empty()) return true;
  opened_.ReleaseLast()->CloseDocument(false);
  return Refuse(reason);
}

void SampleRun::FileSample() {
  if (!roll_over_name_.empty() && state_.options.demoMode != 0) {
    bench_.machine.files.MoveFile(state_.tmpSampName, roll_over_name_);
  }
  session_.CurrentDocument->SaveDocumentAs(state_.tmpSampName);
  BehindFiling(TextId::kFiledNotLogged, [this] {
    log_.Append(RunLogLine(frm_samp_.txtOperatorName.Text(), state_.tmpSampName, bench_.machine.regional,
                           bench_.machine.clock.LocalNow()));
  });
}

void SampleRun::ShowResult() {
  const platform::ChartBatch batch(bench_.panel.chart);
  platform::Chart& chart = bench_.panel.chart;
  PlotTraces(state_, chart);
  ShowVerdict(state_, chart);

  const platform::DateTime now = bench_.machine.clock.LocalNow();
  const platform::RegionalFormat& regional = bench_.machine.regional;
  const std::string& sample = frm_samp_.txtSampName.Text();
  const std::string& operator_name = frm_samp_.txtOperatorName.Text();
  const std::string date = regional.LongDate(now);
  const std::string time = regional.ShortTime(now);
  bench_.panel.lblResult.SetCaption(
      HasMatchQuality(state_.algorithm)
          ? Text(TextId::kResultLine,
                 {sample, platform::NumberText(state_.comparison), date, time, operator_name})
          : Text(TextId::kResultLineWithoutQuality, {sample, date, time, operator_name}));
  bench_.panel.fraSpectrum.SetCaption(Text(TextId::kMatchQualityCaption));
  state::ShowPanel(bench_.panel, bench_.panel.fraSpectrum);
}

// A print template shows these; the sample is the last spectrum of its file.
void SampleRun::NameResultInSampleFile() {
  // The application need not open again what it has open.
  if (LeavesDocumentOpen(state_.algorithm)) opened_.ReleaseLast()->CloseDocument(false);
  opened_.Open(session_, state_.tmpSampName);
  session_.CurrentDocument->SelectSpectrum(platform::ToInt16(session_.CurrentDocument->GetSpectrumCount()));
  session_.spect = session_.CurrentDocument->GetSpectrum();
  const auto parameters = session_.spect->GetParameterList();
  for (const char* name : {"Comparison", "Sample Name"}) parameters->AddParameter(name, 1);
  // Nothing was compared where the comparison is no number.
  session_.spect->GetParameter("Comparison")
      ->SetValue(std::isnan(state_.comparison) ? ParameterValue("") : ParameterValue(state_.comparison));
  session_.spect->GetParameter("Sample Name")->SetValue(frm_samp_.txtSampName.Text());
  if (state_.algorithm == state::kPls) {
    for (const PredictedValue& predicted : PredictedValues(state_)) {
      parameters->AddParameter(predicted.name, 1);
      session_.spect->GetParameter(predicted.name)->SetValue(predicted.value);
    }
  }
  opened_.ReleaseLast()->CloseDocument(true);
}

}  // namespace veritane::identification
