// PLSPred: one calibration of the prediction library at a time, with its state flags, its items and their
// texts.
#pragma once

#include "pls/prediction_library.h"

#include <cstdint>
#include <string>
#include <vector>

namespace veritane::platform {
class Desktop;
}

namespace veritane::pls {

// Result codes of PLSPred beside the library's own, which are positive.
inline constexpr std::int32_t kNoError = 0;
inline constexpr std::int32_t kNoCalibration = -1;
inline constexpr std::int32_t kNoPrediction = -2;
inline constexpr std::int32_t kNoValue = -3;
inline constexpr std::int32_t kNoSpectrum = -5;

// An array that counts from 1: element k is at [k - 1].
using Array = std::vector<double>;

// Methods stand in the order of the interface, under its names. Each returns a result code (GetErrorString
// has the text), except LoadCalFile. A method that needs a calibration and has none returns -1 and does
// nothing else. An item that needs a prediction returns -2 without one, and -3 when the library has no such
// item; the size is then 0, a text empty, an array or value as it was.
//
// Several habits look like slips and are kept, because stored results and other callers lean on them: a new
// calibration leaves "predicted" and "spectrum loaded" as they were; a new spectrum leaves the earlier
// prediction readable; most items return 0 even when the library reports that it could not copy them.
//
// RunTimeErrors: what PredictionLibrary raises; 9 for a negative size or an element that is not there; 7 for
// an item of more than 16,777,216 values; 6 for a number that does not fit; 5 for a text's character beyond
// 0 to 255; the F-test's own (f_test.h).
class PLSPred {
public:
  PLSPred(PredictionLibrary& library, platform::Desktop& desktop) : library_(library), desktop_(desktop) {}
  // Unloads the calibration.
  ~PLSPred();
  PLSPred(const PLSPred&) = delete;
  PLSPred& operator=(const PLSPred&) = delete;

  // Unloads what is loaded, then loads. Returns the handle; 0, after a message box, when that failed.
  std::int32_t LoadCalFile(const std::string& szCal);
  // 0 when nothing is loaded.
  std::int32_t UnLoadCalFile();
  // The memo of a calibration (from 1), padded with blanks to 256 characters.
  std::int32_t GetCalMemo(std::string& szMemo, std::int16_t calnum);
  std::int32_t LoadSpcDiskFile(const std::string& szSPC);
  // -5 when no spectrum is loaded. Any failure ends the earlier prediction.
  std::int32_t PlsIqPredic(std::int32_t calnum);

  // These need a prediction.
  std::int32_t GetResidual(Array& Values, std::int32_t& Size);
  std::int32_t GetConcentration(Array& Values, std::int32_t& Size);
  std::int32_t GetScores(Array& Values, std::int32_t& Size);
  std::int32_t GetDistance(Array& Values, std::int32_t& Size);
  std::int32_t GetResid_Spectrum(Array& Values, std::int32_t& Size);
  std::int32_t GetSource(Array& Values, std::int32_t& Size);

  // These need a prediction or a calibration that was read. Names are parted by tabs.
  std::int32_t GetMemo(std::string& szMemo);
  std::int32_t GetConstituent_Names(std::string& szConNames);
  std::int32_t GetFsets(double& Value);

  // These need a prediction. First and last frequency, points, units of the axes.
  std::int32_t GetFfp(double& Value);
  std::int32_t GetFlp(double& Value);
  std::int32_t GetNpts(double& Value);
  std::int32_t GetXtype(std::int16_t& Value);
  std::int32_t GetYtype(std::int16_t& Value);
  std::int32_t GetConc_Limits(Array& Values, std::int32_t& Size);
  std::int32_t GetScore_Limits(Array& Values, std::int32_t& Size);
  std::int32_t GetResid_Limits(Array& Values, std::int32_t& Size);
  std::int32_t GetDist_Limits(Array& Values, std::int32_t& Size);
  std::int32_t GetFratioRaw(Array& Values, std::int32_t& Size);

  // These need a prediction or a calibration that was read. Size is how many values the library says that it
  // copied; a band has five.
  std::int32_t GetCalfac(Array& Values, std::int32_t& Size);
  std::int32_t GetNcomp(std::int16_t& Value);
  std::int32_t GetBands(Array& Values, std::int32_t& Size);

  // Needs a prediction.
  std::int32_t GetProc_Spectrum(Array& Values, std::int32_t& Size);

  std::int32_t LoadAsciiDiskFile(const std::string& szAscii);
  std::int32_t LoadClipboardText();
  std::int32_t LoadMemDouble(const std::string& szFloat);
  // How many calibrations the loaded file has.
  std::int32_t GetCalTotal(std::int16_t& Value);
  // The text of a result code; returns 0.
  static std::int32_t GetErrorString(std::int16_t ErrorNumber, std::string& szErrorString);
  // F ratio and probability (-1 without degrees of freedom) of each factor set, in turn; returns 0.
  std::int32_t GetFtest(Array& Values, std::int32_t& Size);
  // Makes the items of a calibration (from 1) available without a prediction.
  std::int32_t ReadCalFile(std::int32_t calnum);

  // As GetCalfac.
  std::int32_t GetFlags(Array& Values, std::int32_t& Size);
  std::int32_t GetPrep(Array& Values, std::int32_t& Size);
  std::int32_t GetBsln(Array& Values, std::int32_t& Size);
  std::int32_t GetThick(Array& Values, std::int32_t& Size);

private:
  bool PredictedOrRead() const { return predicted_ || calRead_; }
  std::int32_t NoteSpectrum(std::int32_t code);
  void RefreshComponents();
  std::int32_t ReadArray(const char* item, Array& Values, std::int32_t& Size);
  std::int32_t ReadCounted(const char* item, Array& Values, std::int32_t& Size);
  std::int32_t ReadToBuffer(const char* item, bool is_available, std::int32_t& copy_code);
  std::int32_t ReadTextToBuffer(const char* item);
  std::int32_t ReadNumber(const char* item, bool is_available, double& Value);
  std::int32_t ReadInteger(const char* item, bool is_available, std::int16_t& Value);

  PredictionLibrary& library_;
  platform::Desktop& desktop_;

  // 0 while no calibration is loaded.
  std::int32_t calHandle_ = 0;
  // Items that are handed on as one value or a text.
  Array itemBuffer_;
  std::int32_t itemSize_ = 0;
  std::string memoBuffer_;
  double numComponents_ = 0;
  bool predicted_ = false;
  bool spectrumLoaded_ = false;
  bool calRead_ = false;
  // The result of the last unloading that another calibration, or the end, made necessary.
  std::int32_t lastError_ = 0;
};

}  // namespace veritane::pls
