// The program's working state: one object, owned by the main form and handed down by reference.
#pragma once

#include "shell/state/data_folders.h"
#include "shell/state/null_region.h"
#include "shell/state/spectrum_buffer.h"

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace veritane::state {

// 16-bit flags as the program keeps them.
inline constexpr std::int16_t kTrue = -1;
inline constexpr std::int16_t kFalse = 0;

// Background policies.
inline constexpr std::int16_t kManualBackground = 1;
inline constexpr std::int16_t kBackgroundByInterval = 2;
inline constexpr std::int16_t kBackgroundBeforeSample = 3;

// The algorithms' names as files and lists hold them.
inline constexpr const char* kEuclidean = "Euclidean";
inline constexpr const char* kFourier = "Fourier";
inline constexpr const char* kLumivar = "Lumivar";
inline constexpr const char* kPls = "PLS";
inline constexpr const char* kMarkPeaks = "Mark Peaks";

// Whether a number can be a Pass/Fail threshold in percent.
inline bool IsThreshold(double percent) {
  return percent >= 0 && percent <= 100;
}

// What settings.ini keeps; the supervisor sets all but demoMode.
struct Options {
  std::int16_t demoMode = 0;          // 0 measures, all else demonstrates
  std::int16_t PasswordRequired = 0;  // 1 asks for the password
  std::string Password;               // in upper case
  std::int16_t backOption = kManualBackground;
  std::int16_t backInterval = 0;  // hours
  double passThreshold = 90;      // percent
  std::int16_t printOption = 0;   // 0 prints the chart, all else through printTemplate
  std::string printTemplate;      // a whole path
  std::int16_t addPassFail = 1;   // 0 keeps the verdict off the chart
};

struct ProgramState {
  FolderSet folderSet;
  DataFolders folders;
  Options options;

  std::int16_t isVantor = kFalse;
  std::int16_t formStartup = 0;
  std::int16_t going_to_expert = kFalse;

  // The product of the current run.
  std::string prod;
  std::string algorithm;
  std::string clmName;  // short name of the collect method
  std::string clmFile;  // the rest are whole paths
  std::string calfilename;
  std::string tmpRefName;  // without ".bsp" after a sample run, with it after reprocessing
  std::string tmpSampName;
  std::string BackGroundName;

  // What the supervisor chose to compare again. The flags are 0 or 1; the index counts from 1.
  std::int16_t StandardSelected = 0;
  std::int16_t SampSelected = 0;
  std::string reprocessStdName;
  std::string reprocesssampname;
  std::int16_t reprocesssampindex = 0;
  // The sample file and the spectrum in it that the comparison is made of.
  std::string spectrumName;
  std::int16_t SpectrumIndex = 0;
  // 1 from a reprocessing on until the next sample run: the spectra on screen come from chosen files.
  std::int16_t reprocessing = 0;

  // The collect methods: full paths and short names, in the order of the list.
  std::vector<std::string> methodPaths;
  std::vector<std::string> methodShortNames;

  // The null regions of clmName, in file order.
  std::vector<NullRegion> nullRegions;

  SpectrumBuffer Ref;
  SpectrumBuffer Samp;
  SpectrumBuffer Back;
  Ordinates ChartRefData;
  Ordinates ChartSampData;
  Ordinates RefFFTData;
  Ordinates SampFFTData;

  // Ordinates that the chart's y axis reaches from and to: of the traces, and of the last background.
  double minm = 0;
  double maxm = 1;
  double backminm = 0;
  double backmaxm = 1;

  // Match quality in percent. Not a number while nothing has been compared, so that no value of an earlier
  // run can pass a later sample.
  double comparison = std::numeric_limits<double>::quiet_NaN();

  // The bands of the last Lumivar comparison, from low to high, and how many they are (cm⁻¹; the score as it
  // was reported).
  std::vector<double> LumivarBandHigh;
  std::vector<double> LumivarBandLow;
  std::vector<double> LumivarBandScore;
  std::int16_t ctr = 0;

  // The positions that "Mark Peaks" marked last (cm⁻¹), in the order of the peak file.
  std::vector<double> peakPositions;

  // The last PLS prediction. Element k of the arrays is constituent k, from 1; the first element is not used.
  // The count is that of the prediction before (see pls/main_form.h).
  std::vector<double> PLSConcentrations;
  std::vector<std::string> PLSConstituentNames;
  std::int16_t PLSConstituentCount = 0;
  // Whether that prediction gave values. Without that, what the arrays hold is no result.
  bool predictionSucceeded = false;
};

}  // namespace veritane::state
