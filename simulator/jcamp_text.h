// The outer form of JCAMP-DX text: lines, labels "##LABEL= value", comments "$$ …" and the faults that quote
// a line. McDonald and Wilks, Appl. Spectrosc. 42 (1988) 151.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace veritane::simulator {

// Why a JCAMP-DX text gives no spectrum. The text names the line and quotes it; the path is added by the
// caller.
class JcampFault : public std::runtime_error {
public:
  enum class Kind {
    kDamaged,      // the text contradicts itself or the format: nothing of the file is to be trusted
    kNotSpectrum,  // sound, but nothing that can be shown on evenly spaced points (a peak table, missing
                   // points)
  };
  JcampFault(Kind kind, const std::string& text) : std::runtime_error(text), kind_(kind) {}
  Kind FaultKind() const { return kind_; }

private:
  Kind kind_;
};

// A fault at `position` of `text`: "line 12: reason: "the line"".
JcampFault FaultAt(JcampFault::Kind kind, std::string_view text, std::size_t position,
                   const std::string& reason);

// The number of the line (from 1) that holds `position`; lines end CR LF, LF or CR.
int LineNumberAt(std::string_view text, std::size_t position);

// A label with what follows it.
struct JcampLabel {
  std::string name;        // as written, blanks around it dropped: "DATA TYPE", "$Sample Name"
  std::string normalized;  // upper case without blanks, "-", "/" and "_": "DATATYPE", "$SAMPLENAME"
  std::string_view value;  // the rest of the label's own line
  std::size_t position = 0;
};

// "DATA TYPE", "Data_Type" and "datatype" are one label.
std::string NormalizedLabel(std::string_view name);

// Whether units of x are wavenumbers in any spelling: "1/CM", "cm-1", "Wavenumbers (cm^-1)".
bool IsWavenumber(std::string_view units);

// Walks over the labels of a text.
class JcampScanner {
public:
  explicit JcampScanner(std::string_view text) : text_(text) {}

  // The next label; lines in between belong to nobody and are passed over. Nothing at the end of the text.
  std::optional<JcampLabel> NextLabel();
  // The label's value with the lines that follow it, comments dropped, as UTF-8, lines joined by "\n".
  std::string FullValue(const JcampLabel& label);

  std::size_t Position() const { return position_; }
  void MoveTo(std::size_t position) { position_ = position; }

private:
  std::string_view TakeLine();

  std::string_view text_;
  std::size_t position_ = 0;
};

// Whether a line begins a label; blanks may stand before the "##".
bool IsLabelLine(std::string_view line);

inline bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}
inline bool IsLineEnd(char c) {
  return c == '\n' || c == '\r';
}

// The value without a comment and without blanks around it.
std::string_view WithoutComment(std::string_view value);
std::string_view Trimmed(std::string_view text);

// The number that a label's value begins with, as files write them: "4400.", ".19", "+5", "399,264" with
// `decimal_comma`, text may follow after a blank. Nothing when it begins with none or with one out of range.
struct LabelNumber {
  double value = 0;
  double unit = 1;  // weight of the last digit written: 0.01 for "0.19"
};
std::optional<LabelNumber> ReadLabelNumber(std::string_view value, bool decimal_comma);

}  // namespace veritane::simulator
