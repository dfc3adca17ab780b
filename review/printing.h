// Printing the spectra on display: the chart as it stands on the printer, or the documents through the
// Spectrometer application and a print template.
#pragma once

#include "acquisition/bench.h"

#include <cstdint>
#include <string>

namespace veritane::review {

class Printing {
public:
  explicit Printing(acquisition::Bench& bench);

  // Prints in the way that the options say. Errors as the printer's and the Spectrometer application's.
  void Print();
  // The application must be the program's already. After a sample run the sample file's first spectrum is
  // printed, after reprocessing the one that was chosen.
  void PrintByTemplate();

private:
  void PrintChart();
  void PrintDocuments();
  // Marks the peaks of "Mark Peaks" on the Standard, which is the application's active document.
  std::shared_ptr<acquisition::MarkerList> MarkPeaks();
  void RunTemplate();
  std::string SampleFile() const;
  std::string StandardFile() const;
  std::int16_t SpectrumToPrint() const;

  acquisition::Bench& bench_;
  const state::ProgramState& state_;
  acquisition::SpectrometerSession& session_;
};

}  // namespace veritane::review
