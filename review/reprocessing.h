// Reprocessing: a Standard and a sample that are on disk are compared again, by an algorithm chosen on the
// spot. Nothing is collected, filed or recorded.
#pragma once

#include "acquisition/bench.h"
#include "acquisition/opened_documents.h"
#include "review/frm_select_spectrum.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace veritane::review {

// Where the chosen files are shown.
struct ChosenNames {
  platform::Label& lblStdName;
  platform::Label& lblSampleName;
};

class Reprocessing {
public:
  Reprocessing(acquisition::Bench& bench, FrmSelectSpectrum& frm_select_spectrum, ChosenNames names);

  // Asks for the Standard's file. Until one is chosen the state's StandardSelected is 0.
  void ChooseStandard();
  // Asks for the sample's file and, where it holds several spectra, for one of them. Until a spectrum is
  // chosen the state's SampSelected is 0.
  void ChooseSample();
  // Compares the two by this algorithm and shows the result, or tells why there is none. Both stay chosen.
  void Run(const std::string& algorithm);

private:
  // The number of the spectrum that is to be taken from the current document; nothing when the user took
  // none.
  std::optional<std::int16_t> ChooseSpectrum();
  std::string EntryOf(std::int16_t index);
  bool IsChosen(const std::string& algorithm);
  bool AskForExtraFile(const std::string& algorithm);
  bool LoadStandard();
  // A prediction alone has none.
  void ForgetStandard();
  bool FindCollectMethod();
  void LoadSample(acquisition::OpenedDocuments& opened);
  bool IsComparable();
  void ShowResult();
  std::vector<std::string> HeaderLines() const;
  void ClearNames();

  acquisition::Bench& bench_;
  state::ProgramState& state_;
  acquisition::SpectrometerSession& session_;
  FrmSelectSpectrum& frm_select_spectrum_;
  ChosenNames names_;
  std::string standard_name_;
  std::string sample_name_;
};

}  // namespace veritane::review
