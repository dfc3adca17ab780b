// The operator's sample run, from the entry dialog to the filed spectrum and its records.
#pragma once

#include "acquisition/background.h"
#include "acquisition/bench.h"
#include "acquisition/opened_documents.h"
#include "identification/frm_samp.h"
#include "shell/state/string_table.h"

#include <functional>
#include <string>

namespace veritane::identification {

// One run; the application is the user's again, with nothing of the run left open, when the object goes.
class SampleRun {
public:
  // `log` is the run log that stays open for the whole run of the program.
  SampleRun(acquisition::Bench& bench, FrmSamp& frm_samp, platform::AppendingFile& log);

  // To the end or to an early end that the operator has been told of. An early end before the sample was
  // filed records nothing; whatever fails behind that is told with what was filed. Either leaves the spectrum
  // panel hidden until there is a verdict to show.
  void Run(const acquisition::BackgroundSchedule& schedule);

private:
  bool FindProduct();
  void RunForProduct(const acquisition::BackgroundSchedule& schedule);
  void LoadStandard();
  bool CollectBackgroundIfDue(const acquisition::BackgroundSchedule& schedule, const std::string& prompt);
  bool OpenSampleDocument();
  bool RollOver();
  bool MayRollOverTo(const std::string& path);
  bool CollectSample();
  bool IsConsistent();
  void FileSample();
  void BehindFiling(state::TextId what_failed, const std::function<void()>& step) const;
  void ShowResult();
  void RecordResult();
  void NameResultInSampleFile();
  bool Refuse(const std::string& text);

  acquisition::Bench& bench_;
  state::ProgramState& state_;
  acquisition::SpectrometerSession& session_;
  FrmSamp& frm_samp_;
  platform::AppendingFile& log_;
  const acquisition::DrivenApplication driven_;
  // Documents that stay open until the run is over.
  acquisition::OpenedDocuments opened_;
  // Where a file that has to make room goes.
  std::string roll_over_name_;
};

}  // namespace veritane::identification
