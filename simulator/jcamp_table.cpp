// The data tables of JCAMP-DX, decoded in one pass over the text.
#include "simulator/jcamp_table.h"

#include "simulator/jcamp_table_reader.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace veritane::simulator {

namespace {

// Sums of differences stay whole numbers up to here.
constexpr double kLargestWholeNumber = 9007199254740992.0;

// The ordinates of "(X++(Y..Y))" as they unfold.
class ContinuousDecoder {
public:
  ContinuousDecoder(std::string_view text, std::size_t position, const TableHints& hints)
      : reader_(text, position, hints), most_points_(hints.mostPoints) {
    table_.values.reserve(std::min({hints.expectedPoints, hints.mostPoints, reader_.Remaining()}));
  }

  ContinuousTable Decode(std::size_t& position) {
    while (reader_.ToNextLine()) {
      DecodeLine();
      table_.cutOff = reader_.AtTextEnd();
    }
    position = reader_.Position();
    return std::move(table_);
  }

private:
  // How the ordinate before came about; DUP repeats that.
  enum class Form { kNone, kValue, kDifference, kRepeated };

  void DecodeLine() {
    check_pending_ = ended_in_difference_;
    form_ = Form::kNone;
    ended_in_difference_ = false;
    const char* const start = reader_.At();
    if (!reader_.StartsNumber()) {
      reader_.RefuseItem();
    }
    LineStart line;
    line.x = reader_.Number();
    line.unit = reader_.UnitOf(start);
    line.position = reader_.LinePosition();
    line.index = table_.values.size() - (check_pending_ ? 1 : 0);
    while (reader_.ToNextItem()) {
      DecodeItem();
    }
    if (form_ == Form::kNone) {
      reader_.Refuse("a line without ordinates");
    }
    table_.lines.push_back(line);
  }

  void DecodeItem() {
    const char c = reader_.Current();
    if (reader_.StartsNumber()) {
      TakeValue(reader_.Number());
    } else if (const auto squeezed = SqueezedDigit(c)) {
      TakeValue(reader_.SqueezedNumber(*squeezed));
    } else if (const auto first = DifferenceDigit(c)) {
      if (form_ == Form::kNone) reader_.Refuse("a difference without a value before it");
      difference_ = reader_.SqueezedNumber(*first);
      TakeDifference();
      form_ = Form::kDifference;
      ended_in_difference_ = true;
    } else if (const auto count = DuplicateDigit(c)) {
      Repeat(reader_.DuplicateCount(*count));
    } else {
      reader_.RefuseItem();
    }
  }

  void TakeValue(double value) {
    if (check_pending_) {
      CheckRepeatedValue(value);
      check_pending_ = false;
    } else {
      Append(value);
    }
    last_ = value;
    form_ = Form::kValue;
    ended_in_difference_ = false;
  }

  // The first ordinate behind a line that ended in a difference stands there to catch lost and damaged lines.
  void CheckRepeatedValue(double value) const {
    const bool whole = value == std::floor(value) && last_ == std::floor(last_);
    const double tolerance = whole ? 0 : 1e-9 * std::abs(last_);
    if (!(std::abs(value - last_) <= tolerance)) {
      reader_.Refuse(
          "the line does not repeat the last ordinate of the line before, data are lost or damaged");
    }
  }

  void TakeDifference() {
    last_ += difference_;
    if (!(std::abs(last_) <= kLargestWholeNumber)) {
      reader_.Refuse("differences add up beyond any spectrum");
    }
    Append(last_);
  }

  void Repeat(std::size_t count) {
    if (form_ == Form::kNone || form_ == Form::kRepeated) {
      reader_.Refuse("a repetition without anything to repeat");
    }
    for (std::size_t i = 1; i < count; ++i) {
      if (form_ == Form::kDifference) {
        TakeDifference();
      } else {
        Append(last_);
      }
    }
    form_ = Form::kRepeated;
  }

  void Append(double value) {
    if (table_.values.size() >= most_points_) {
      reader_.Refuse("more points than the largest spectrum has");
    }
    table_.values.push_back(value);
  }

  JcampTableReader reader_;
  std::size_t most_points_;
  ContinuousTable table_;
  double last_ = 0;
  double difference_ = 0;
  Form form_ = Form::kNone;
  bool ended_in_difference_ = false;
  bool check_pending_ = false;
};

}  // namespace

ContinuousTable DecodeContinuousTable(std::string_view text, std::size_t& position, const TableHints& hints) {
  return ContinuousDecoder(text, position, hints).Decode(position);
}

PairTable DecodePairTable(std::string_view text, std::size_t& position, const TableHints& hints) {
  // Here a comma stands between an x and its y unless the labels are written with decimal commas.
  TableHints pair_hints = hints;
  pair_hints.decimalPoint = !hints.decimalComma;
  JcampTableReader reader(text, position, pair_hints);
  PairTable table;
  while (reader.ToNextLine()) {
    while (reader.ToNextItem()) {
      if (!reader.StartsNumber()) {
        reader.RefuseItem();
      }
      const bool is_x = table.x.size() == table.y.size();
      if (is_x && table.x.size() >= hints.mostPoints) {
        reader.Refuse("more points than the largest spectrum has");
      }
      (is_x ? table.x : table.y).push_back(reader.Number());
    }
    if (table.x.size() != table.y.size()) {
      reader.Refuse("an x without a y");
    }
    table.cutOff = reader.AtTextEnd();
  }
  position = reader.Position();
  return table;
}

}  // namespace veritane::simulator
