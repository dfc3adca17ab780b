// The program's texts by number: 16 to 96 captions, 200 to 255 messages. Leading blanks are part of a text,
// "&" marks the access key.
#pragma once

#include <string>

namespace veritane::state {

// The numbers of the messages, for the code that shows them.
enum class TextId : int {
  kSelectRegionToDelete = 200,
  kDefaultSamplePrompt = 202,
  kDefaultBackgroundPrompt = 203,
  kSelectClmFile = 204,
  kScanning = 205,
  kSpectrometerError = 206,
  kWarningTitle = 207,
  kBackgroundCaption = 208,
  kBackgroundDone = 209,
  kNoticeTitle = 210,
  kStandardExists = 212,
  kNewBackgroundRequired = 213,
  kClickToCollectBackground = 214,
  kStandardCaption = 215,
  kStandardDone = 216,
  kSelectMethodToDelete = 217,
  kSelectMethod = 218,
  kSpectraLimit = 219,
  kProductNotFound = 220,
  kReadyForSample = 221,
  kClickToScanSample = 222,
  kLoadingStandard = 223,
  kCalculating = 224,
  kPass = 225,
  kFail = 226,
  kMatchQualityCaption = 227,
  kMatchQuality = 229,
  kSelectStandardSpectrum = 232,
  kSelectSampleSpectrum = 233,
  kSelectBothSpectra = 234,
  kResolutionsDiffer = 235,
  kPointsDiffer = 236,
  kCannotReprocess = 237,
  kReprocessStandard = 238,
  kReprocessSample = 239,
  kPercentAlgorithm = 240,
  kEnterPassword = 241,
  kAccessDenied = 242,
  kProductIdHeader = 243,
  kCollectMethodHeader = 244,
  kAlgorithmHeader = 245,
  kCalibrating = 247,
  kVerifyPassword = 248,
  kIncorrectPassword = 249,
  kThresholdRange = 250,
  kWrongAccessory = 252,
  kOperatorName = 253,
  kEnterOperatorName = 254,
  kStandardStatus = 255,
};

// The text of this number; error 5 for a number that has none.
const std::string& Text(int id);
inline const std::string& Text(TextId id) {
  return Text(static_cast<int>(id));
}

}  // namespace veritane::state
