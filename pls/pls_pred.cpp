// State, preconditions and items of a loaded calibration.
#include "pls/pls_pred.h"

#include "platform/desktop.h"
#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "platform/utf8.h"
#include "pls/array_item.h"
#include "pls/f_test.h"
#include "shell/state/string_table.h"

#include <exception>

namespace veritane::pls {

using state::Text;
using state::TextId;

namespace {

constexpr std::size_t kMemoLength = 256;
constexpr std::int32_t kNameLength = 32;
constexpr std::int32_t kBandLength = 5;

// The byte that a value of a text item stands for.
char ByteOf(double value) {
  constexpr std::int32_t kLargestByte = 255;
  const std::int32_t code = platform::ToInt32(value);
  if (code < 0 || code > kLargestByte) {
    throw platform::RunTimeError(platform::ErrorNumber::kInvalidCall,
                                 Text(TextId::kCharacterCode, {std::to_string(code)}));
  }
  return static_cast<char>(code);
}

std::int32_t TimesBandLength(std::int32_t bands) {
  return platform::ToInt32(static_cast<double>(bands) * kBandLength);
}

// Cut or filled with blanks to a number of characters.
std::string PaddedTo(std::size_t length, const std::string& text) {
  const std::string cut = platform::Characters(text, 0, length);
  return cut + std::string(length - platform::CharacterCount(cut), ' ');
}

}  // namespace

PLSPred::~PLSPred() {
  if (calHandle_ == 0) return;
  try {
    lastError_ = library_.UnLoadCalFile(calHandle_);
    if (lastError_ == 0) calHandle_ = 0;
  } catch (const std::exception&) {
    // The library failed to let the calibration go. Nobody uses it any more, and a destructor cannot raise.
  }
}

std::int32_t PLSPred::LoadCalFile(const std::string& szCal) {
  if (calHandle_ != 0) {
    lastError_ = library_.UnLoadCalFile(calHandle_);
    calHandle_ = 0;
  }
  const std::int32_t handle = library_.LoadCalFile(szCal);
  if (handle == 0) {
    desktop_.ShowMessage({.text = Text(TextId::kCalibrationNotLoaded),
                          .title = Text(TextId::kCalibrationErrorTitle),
                          .icon = platform::MessageIcon::kCritical});
  }
  calHandle_ = handle;
  calRead_ = false;
  return handle;
}

std::int32_t PLSPred::UnLoadCalFile() {
  if (calHandle_ == 0) return kNoError;
  const std::int32_t code = library_.UnLoadCalFile(calHandle_);
  calHandle_ = 0;
  predicted_ = false;
  spectrumLoaded_ = false;
  calRead_ = false;
  return code;
}

std::int32_t PLSPred::GetCalMemo(std::string& szMemo, std::int16_t calnum) {
  if (calHandle_ == 0) return kNoCalibration;
  std::string memo;
  const std::int32_t code = library_.GetCalMemo(calHandle_, calnum, memo);
  memoBuffer_ = PaddedTo(kMemoLength, platform::DecodeText(memo));
  szMemo = memoBuffer_;
  return code;
}

// A spectrum that fails to load leaves the earlier one, if any, in the library.
std::int32_t PLSPred::NoteSpectrum(std::int32_t code) {
  if (code == kNoError) spectrumLoaded_ = true;
  return code;
}

std::int32_t PLSPred::LoadSpcDiskFile(const std::string& szSPC) {
  if (calHandle_ == 0) return kNoCalibration;
  return NoteSpectrum(library_.LoadSpcDiskFile(calHandle_, szSPC));
}

std::int32_t PLSPred::LoadAsciiDiskFile(const std::string& szAscii) {
  if (calHandle_ == 0) return kNoCalibration;
  return NoteSpectrum(library_.LoadAsciiDiskFile(calHandle_, szAscii));
}

std::int32_t PLSPred::LoadClipboardText() {
  if (calHandle_ == 0) return kNoCalibration;
  return NoteSpectrum(library_.LoadClipboardText(calHandle_));
}

std::int32_t PLSPred::LoadMemDouble(const std::string& szFloat) {
  if (calHandle_ == 0) return kNoCalibration;
  return NoteSpectrum(library_.LoadMemDouble(calHandle_, szFloat));
}

std::int32_t PLSPred::PlsIqPredic(std::int32_t calnum) {
  const bool can_predict = calHandle_ != 0 && spectrumLoaded_;
  predicted_ = predicted_ && can_predict;
  if (calHandle_ == 0) return kNoCalibration;
  if (!spectrumLoaded_) return kNoSpectrum;
  const std::int32_t code = library_.PlsIqPredic(calHandle_, calnum);
  predicted_ = code == kNoError;
  if (predicted_) RefreshComponents();
  return code;
}

std::int32_t PLSPred::ReadCalFile(std::int32_t calnum) {
  if (calHandle_ == 0) {
    calRead_ = false;
    return kNoCalibration;
  }
  const std::int32_t code = library_.ReadCalFile(calHandle_, calnum);
  calRead_ = code == kNoError;
  if (calRead_) RefreshComponents();
  return code;
}

void PLSPred::RefreshComponents() {
  std::int16_t components = 0;
  GetNcomp(components);
  numComponents_ = components;
}

std::int32_t PLSPred::GetCalTotal(std::int16_t& Value) {
  if (calHandle_ == 0) return kNoCalibration;
  Value = platform::ToInt16(library_.GetCalTotal(calHandle_));
  return kNoError;
}

std::int32_t PLSPred::GetErrorString(std::int16_t ErrorNumber, std::string& szErrorString) {
  // The texts of the codes stand in their order.
  const auto text = static_cast<TextId>(static_cast<int>(TextId::kPlsNoError) + ErrorNumber);
  const bool has_text = text >= TextId::kPlsNoSpectrum && text <= TextId::kPlsItemCopy;
  szErrorString = Text(has_text ? text : TextId::kPlsNoErrorNumber);
  return kNoError;
}

// The library's code of the copy is not passed on: an item that has a size counts as delivered.
std::int32_t PLSPred::ReadArray(const char* item, Array& Values, std::int32_t& Size) {
  Size = 0;
  if (!predicted_) return kNoPrediction;
  Size = library_.GetItemSize(calHandle_, item);
  if (Size == 0) return kNoValue;
  Redimension(Values, Size);
  library_.CopyItem(calHandle_, Values, item);
  return kNoError;
}

std::int32_t PLSPred::ReadCounted(const char* item, Array& Values, std::int32_t& Size) {
  Size = 0;
  if (!PredictedOrRead()) return kNoPrediction;
  Size = library_.GetItemSize(calHandle_, item);
  if (Size == 0) return kNoValue;
  Redimension(Values, Size);
  Size = library_.CopyItem(calHandle_, Values, item);
  return kNoError;
}

std::int32_t PLSPred::GetBands(Array& Values, std::int32_t& Size) {
  constexpr const char* kItem = "bands";
  Size = 0;
  if (!PredictedOrRead()) return kNoPrediction;
  Size = TimesBandLength(library_.GetItemSize(calHandle_, kItem));
  if (Size == 0) return kNoValue;
  Redimension(Values, Size);
  Size = TimesBandLength(library_.CopyItem(calHandle_, Values, kItem));
  return kNoError;
}

// Puts the library's code of the copy, where there is something to copy, into `copy_code`.
std::int32_t PLSPred::ReadToBuffer(const char* item, bool is_available, std::int32_t& copy_code) {
  if (!is_available) return kNoPrediction;
  itemSize_ = library_.GetItemSize(calHandle_, item);
  if (itemSize_ == 0) return kNoValue;
  Redimension(itemBuffer_, itemSize_);
  copy_code = library_.CopyItem(calHandle_, itemBuffer_, item);
  return kNoError;
}

// A text that could not be copied is no text: here the code of the copy counts.
std::int32_t PLSPred::ReadTextToBuffer(const char* item) {
  std::int32_t copy_code = kNoError;
  const std::int32_t code = ReadToBuffer(item, PredictedOrRead(), copy_code);
  return code == kNoError ? copy_code : code;
}

std::int32_t PLSPred::ReadNumber(const char* item, bool is_available, double& Value) {
  std::int32_t ignored_copy_code = kNoError;
  const std::int32_t code = ReadToBuffer(item, is_available, ignored_copy_code);
  if (code == kNoError) Value = ElementOf(itemBuffer_, 1);
  return code;
}

std::int32_t PLSPred::ReadInteger(const char* item, bool is_available, std::int16_t& Value) {
  double number = 0;
  const std::int32_t code = ReadNumber(item, is_available, number);
  if (code == kNoError) Value = platform::ToInt16(number);
  return code;
}

std::int32_t PLSPred::GetMemo(std::string& szMemo) {
  szMemo.clear();
  if (const std::int32_t code = ReadTextToBuffer("memo"); code != kNoError) return code;
  std::string bytes;
  for (const double value : itemBuffer_) bytes += ByteOf(value);
  szMemo = platform::DecodeText(bytes);
  return kNoError;
}

std::int32_t PLSPred::GetConstituent_Names(std::string& szConNames) {
  szConNames.clear();
  if (const std::int32_t code = ReadTextToBuffer("constituent_names"); code != kNoError) return code;
  for (std::int32_t component = 0; component < numComponents_; ++component) {
    if (component > 0) szConNames += '\t';
    std::string name;
    for (std::int32_t place = 1; place <= kNameLength; ++place) {
      const double value = ElementOf(itemBuffer_, component * kNameLength + place);
      if (value != 0) name += ByteOf(value);
    }
    szConNames += platform::DecodeText(name);
  }
  return kNoError;
}

std::int32_t PLSPred::GetFtest(Array& Values, std::int32_t& Size) {
  Array ratios;
  Array factors;
  Array residuals;
  double sets = 0;
  std::int32_t ignored_size = 0;
  GetFratioRaw(ratios, ignored_size);
  GetCalfac(factors, ignored_size);
  GetResidual(residuals, ignored_size);
  GetFsets(sets);

  Size = platform::ToInt32(2 * sets);
  Redimension(Values, Size);
  const std::int16_t last = platform::ToInt16(2 * sets);
  for (std::int32_t j = 1; j <= last; j += 2) {
    const std::int32_t set = (j + 1) / 2;
    const double first = ElementOf(ratios, j);
    const double ratio = FRatio(ElementOf(residuals, set), first, ElementOf(ratios, j + 1));
    ElementOf(Values, j) = ratio;
    const double degrees = first - ElementOf(factors, set) - 2;
    ElementOf(Values, j + 1) = degrees == 0 ? -1 : FProbability(ratio, degrees);
  }
  return kNoError;
}

}  // namespace veritane::pls
