// One block of a JCAMP-DX file (TITLE to END): its labels and its table, and the checks that turn them into a
// spectrum or say why they are none.
#pragma once

#include "simulator/jcamp_table.h"
#include "simulator/jcamp_text.h"
#include "simulator/stored_spectrum.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veritane::simulator {

// A spectrum as its file gives it: ordinates in the file's order, the first at firstX, the last at lastX.
struct JcampSpectrum {
  std::string title;
  std::string time;
  std::string dataType;
  std::string xUnits;
  std::string yUnits;
  std::vector<FileLabel> labels;
  std::vector<NamedValue> parameters;
  double firstX = 0;
  double lastX = 0;
  std::optional<double> deltaX;  // as written: a rounded hint, its sign may be wrong
  std::vector<double> ordinates;
  std::vector<std::string> warnings;
};

class JcampBlock {
public:
  // `text` is the whole file's, for quoting lines.
  JcampBlock(std::string_view text, std::size_t position) : text_(text), position_(position) {}

  // Takes a label that is neither END nor a table.
  void AddLabel(const JcampLabel& label, std::string value);
  // Decodes the table that begins at the scanner's place and moves the scanner behind it. A table that is no
  // spectrum is remembered as such.
  void ReadTable(const JcampLabel& label, JcampScanner& scanner, std::size_t most_points);
  // Notes a table of another kind.
  void AddOtherTable(const JcampLabel& label);

  bool HasTable() const { return continuous_ || pairs_; }
  // Whether the block does nothing but hold others.
  bool IsContainer() const;
  std::optional<double> DeclaredBlocks() const;
  std::string Title() const { return Value("TITLE"); }
  int LineNumber() const { return LineNumberAt(text_, position_); }
  std::size_t PointCount() const;
  // Why the block, or a further table in it, cannot be shown; "" if there is nothing of that kind.
  const std::string& Unusable() const { return unusable_; }

  // The spectrum. `ended` tells whether the block's END was there. A JcampFault when labels and table
  // contradict each other.
  JcampSpectrum ToSpectrum(bool ended);

private:
  struct Label {
    std::string name;
    std::string normalized;
    std::string value;
    std::size_t position = 0;
  };

  const Label* Find(std::string_view normalized) const;
  std::string Value(std::string_view normalized) const;
  bool UsesDecimalComma() const;
  bool UsesDecimalPoint() const;
  // A number that the spectrum rests on: damaged where it cannot be read.
  std::optional<LabelNumber> NeededNumber(std::string_view normalized) const;
  // A number that only checks: a warning where it cannot be read.
  std::optional<LabelNumber> CheckingNumber(std::string_view normalized);

  void CheckEnd(bool ended, std::size_t points);
  void ScaleOrdinates();
  void FindAbscissas();
  void FindPairAbscissas();
  void CheckOrdinate(std::string_view label, double actual);
  void CopyLabels();
  [[noreturn]] void Refuse(const Label* label, JcampFault::Kind kind, const std::string& reason) const;

  std::string_view text_;
  std::size_t position_;
  std::vector<Label> labels_;
  std::optional<ContinuousTable> continuous_;
  std::optional<PairTable> pairs_;
  std::size_t table_position_ = 0;
  std::string unusable_;
  JcampSpectrum spectrum_;
};

}  // namespace veritane::simulator
