// Labels and table of a block become a spectrum.
#include "simulator/jcamp_block.h"

#include "platform/text_file.h"
#include "simulator/jcamp_abscissas.h"
#include "simulator/jcamp_value.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace veritane::simulator {

namespace {

using Kind = JcampFault::Kind;

// Labels that the spectrum's own members stand for, or that describe the table and are written anew.
constexpr std::array kOwnLabels = {
    "TITLE",    "JCAMPDX", "DATATYPE", "DATACLASS", "BLOCKS",  "BLOCKID", "DATE",  "TIME",
    "LONGDATE", "XUNITS",  "YUNITS",   "XFACTOR",   "YFACTOR", "FIRSTX",  "LASTX", "DELTAX",
    "FIRSTY",   "MAXX",    "MINX",     "MAXY",      "MINY",    "NPOINTS", "",
};

// Labels whose numbers show which decimal mark a file is written with.
constexpr std::array kNumberLabels = {"FIRSTX",  "LASTX",  "DELTAX", "XFACTOR",
                                      "YFACTOR", "FIRSTY", "MAXY",   "MINY"};

bool IsPairForm(std::string_view table_label, std::string_view form) {
  const std::string plain = NormalizedLabel(form);
  if (plain.find("X++") != plain.npos) return false;
  return plain.find("XY..XY") != plain.npos || (table_label == "XYPOINTS" && plain.find('X') == plain.npos) ||
         plain.find("XYXY") != plain.npos;
}

bool IsContinuousForm(std::string_view form) {
  const std::string plain = NormalizedLabel(form);
  return plain.empty() || plain.find("X++(Y..Y)") != plain.npos || plain == "X++Y..Y" || plain == "(X++Y..Y)";
}

}  // namespace

void JcampBlock::AddLabel(const JcampLabel& label, std::string value) {
  labels_.push_back({label.name, label.normalized, std::move(value), label.position});
}

void JcampBlock::AddOtherTable(const JcampLabel& label) {
  unusable_ = "line " + std::to_string(LineNumberAt(text_, label.position)) + ": ##" + label.name +
              "= is not a table of evenly spaced points";
}

void JcampBlock::ReadTable(const JcampLabel& label, JcampScanner& scanner, std::size_t most_points) {
  const std::string form(WithoutComment(label.value));
  const bool pairs = IsPairForm(label.normalized, form);
  if (HasTable() || !(pairs || IsContinuousForm(form))) {
    AddOtherTable(label);
    return;
  }
  TableHints hints;
  hints.decimalComma = UsesDecimalComma();
  hints.decimalPoint = !hints.decimalComma && UsesDecimalPoint();
  hints.mostPoints = most_points;
  const auto declared = ReadLabelNumber(Value("NPOINTS"), false);
  if (declared && declared->value > 0 && declared->value <= static_cast<double>(most_points)) {
    hints.expectedPoints = static_cast<std::size_t>(declared->value);
  }
  table_position_ = label.position;
  std::size_t position = scanner.Position();
  try {
    if (pairs) {
      pairs_ = DecodePairTable(text_, position, hints);
    } else {
      continuous_ = DecodeContinuousTable(text_, position, hints);
    }
    scanner.MoveTo(position);
  } catch (const JcampFault& fault) {
    if (fault.FaultKind() != Kind::kNotSpectrum) throw;
    unusable_ = fault.what();
  }
}

bool JcampBlock::IsContainer() const {
  return !HasTable() && (NormalizedLabel(Value("DATATYPE")) == "LINK" || Find("BLOCKS") != nullptr);
}

std::optional<double> JcampBlock::DeclaredBlocks() const {
  const auto number = ReadLabelNumber(Value("BLOCKS"), false);
  return number ? std::optional(number->value) : std::nullopt;
}

std::size_t JcampBlock::PointCount() const {
  if (continuous_) return continuous_->values.size();
  return pairs_ ? pairs_->y.size() : 0;
}

const JcampBlock::Label* JcampBlock::Find(std::string_view normalized) const {
  const auto found = std::ranges::find(labels_, normalized, &Label::normalized);
  return found == labels_.end() ? nullptr : &*found;
}

std::string JcampBlock::Value(std::string_view normalized) const {
  const Label* const label = Find(normalized);
  return label ? label->value : "";
}

bool JcampBlock::UsesDecimalComma() const {
  return std::ranges::any_of(kNumberLabels, [&](const char* name) {
    const std::string value = Value(name);
    return value.find(',') != value.npos && value.find('.') == value.npos;
  });
}

bool JcampBlock::UsesDecimalPoint() const {
  return std::ranges::any_of(kNumberLabels,
                             [&](const char* name) { return Value(name).find('.') != std::string::npos; });
}

void JcampBlock::Refuse(const Label* label, Kind kind, const std::string& reason) const {
  throw FaultAt(kind, text_, label ? label->position : table_position_, reason);
}

std::optional<LabelNumber> JcampBlock::NeededNumber(std::string_view normalized) const {
  const Label* const label = Find(normalized);
  if (!label || label->value.empty()) return std::nullopt;
  const auto number = ReadLabelNumber(label->value, UsesDecimalComma());
  if (!number) Refuse(label, Kind::kDamaged, "a number was expected");
  return number;
}

std::optional<LabelNumber> JcampBlock::CheckingNumber(std::string_view normalized) {
  const Label* const label = Find(normalized);
  if (!label || label->value.empty()) return std::nullopt;
  const auto number = ReadLabelNumber(label->value, UsesDecimalComma());
  if (!number) {
    spectrum_.warnings.push_back("line " + std::to_string(LineNumberAt(text_, label->position)) + ": " +
                                 label->name + " is not a number and was not checked");
  }
  return number;
}

void JcampBlock::CheckEnd(bool ended, std::size_t points) {
  const bool cut_off = continuous_ ? continuous_->cutOff : pairs_->cutOff;
  const auto declared = CheckingNumber("NPOINTS");
  const bool counts_agree = declared && declared->value == static_cast<double>(points);
  if (cut_off && !counts_agree) {
    throw FaultAt(Kind::kDamaged, text_, text_.size(), "the file ends in the middle of the data");
  }
  if (!ended) {
    spectrum_.warnings.push_back("##END= is missing behind the data; the file may have been cut off");
  }
  if (!declared) {
    spectrum_.warnings.push_back("NPOINTS is missing; nothing tells whether all points are there");
  } else if (!counts_agree) {
    spectrum_.warnings.push_back("NPOINTS declares " + ExactNumber(declared->value) + " points, " +
                                 std::to_string(points) + " are there");
  }
}

void JcampBlock::ScaleOrdinates() {
  const auto factor = NeededNumber("YFACTOR");
  if (!factor) {
    spectrum_.warnings.push_back("YFACTOR is missing; 1 was assumed");
  } else if (factor->value == 0) {
    Refuse(Find("YFACTOR"), Kind::kDamaged, "YFACTOR is 0");
  }
  spectrum_.ordinates = std::move(continuous_ ? continuous_->values : pairs_->y);
  for (double& ordinate : spectrum_.ordinates) {
    ordinate *= factor ? factor->value : 1;
    if (!std::isfinite(ordinate)) {
      Refuse(Find("YFACTOR"), Kind::kDamaged, "ordinates leave the range of numbers");
    }
  }
}

void JcampBlock::FindAbscissas() {
  const std::size_t points = spectrum_.ordinates.size();
  const double x_factor = NeededNumber("XFACTOR").value_or(LabelNumber{1, 1}).value;
  const LineStart& start = continuous_->lines.front();
  const auto delta = CheckingNumber("DELTAX");
  const auto first = NeededNumber("FIRSTX");
  const auto last = NeededNumber("LASTX");
  if (delta) spectrum_.deltaX = delta->value;
  if (!first) spectrum_.warnings.push_back("FIRSTX is missing; the table's first x was used");
  spectrum_.firstX = first ? first->value : start.x * x_factor;
  if (!last && !delta && points > 1) {
    Refuse(Find("TITLE"), Kind::kDamaged, "LASTX is missing, and DELTAX too");
  }
  if (!last && points > 1) spectrum_.warnings.push_back("LASTX is missing; DELTAX was used");
  const double steps = static_cast<double>(points - 1);
  spectrum_.lastX = last ? last->value : spectrum_.firstX + steps * (delta ? delta->value : 0);
  if (points == 1) {
    return;
  }
  if (spectrum_.firstX == spectrum_.lastX) {
    Refuse(Find("LASTX"), Kind::kDamaged, "FIRSTX and LASTX are equal");
  }
  DeclaredAbscissas declared;
  declared.firstX = spectrum_.firstX;
  declared.lastX = spectrum_.lastX;
  declared.xFactor = x_factor;
  declared.points = points;
  declared.deltaX = spectrum_.deltaX;
  const auto declared_points = ReadLabelNumber(Value("NPOINTS"), false);
  if (declared_points && declared_points->value >= 0 && declared_points->value < 1e15) {
    declared.declaredPoints = static_cast<std::size_t>(declared_points->value);
  }
  const AbscissaFinding finding = CheckLineStarts(continuous_->lines, declared);
  if (finding.badLine) {
    throw FaultAt(Kind::kDamaged, text_, continuous_->lines[*finding.badLine].position, finding.reason);
  }
  if (!finding.warning.empty()) spectrum_.warnings.push_back(finding.warning);
}

void JcampBlock::FindPairAbscissas() {
  const double x_factor = NeededNumber("XFACTOR").value_or(LabelNumber{1, 1}).value;
  for (double& x : pairs_->x) {
    x *= x_factor;
  }
  if (!AreEvenlySpaced(pairs_->x)) {
    Refuse(nullptr, Kind::kNotSpectrum,
           "the points are not evenly spaced, and a spectrum is compared point by point");
  }
  if (const auto delta = CheckingNumber("DELTAX")) spectrum_.deltaX = delta->value;
  spectrum_.firstX = pairs_->x.front();
  spectrum_.lastX = pairs_->x.back();
  const double half_step =
      0.5 * std::abs(spectrum_.lastX - spectrum_.firstX) / static_cast<double>(pairs_->x.size());
  const auto take = [&](std::string_view name, double& x) {
    const auto declared = NeededNumber(name);
    if (!declared) return;
    if (!(std::abs(declared->value - x) <= half_step)) {
      Refuse(Find(name), Kind::kDamaged, "the table begins or ends at another x, data are lost or damaged");
    }
    x = declared->value;
  };
  take("FIRSTX", spectrum_.firstX);
  take("LASTX", spectrum_.lastX);
}

void JcampBlock::CheckOrdinate(std::string_view label, double actual) {
  const auto declared = CheckingNumber(label);
  if (!declared) return;
  const double tolerance = 1e-3 * std::abs(declared->value) + 0.5 * declared->unit;
  if (!(std::abs(declared->value - actual) <= tolerance)) {
    spectrum_.warnings.push_back(std::string(label) + " declares " + ExactNumber(declared->value) +
                                 ", the data give " + ExactNumber(actual));
  }
}

void JcampBlock::CopyLabels() {
  spectrum_.dataType = Value("DATATYPE");
  spectrum_.xUnits = Value("XUNITS");
  spectrum_.yUnits = Value("YUNITS");
  spectrum_.title = Value("TITLE");
  spectrum_.time = Find("LONGDATE") ? TimeFromLongDate(Value("LONGDATE"))
                                    : TimeFromDateAndTime(Value("DATE"), Value("TIME"));
  for (const Label& label : labels_) {
    if (!label.normalized.starts_with('$')) {
      if (std::ranges::find(kOwnLabels, label.normalized) == kOwnLabels.end()) {
        spectrum_.labels.push_back({label.name, label.value});
      }
      continue;
    }
    const auto value = ReadValue(label.value);
    const std::string* const text = std::get_if<std::string>(&value);
    if (label.normalized == kExactNameLabel && text) {
      // Another program may have renamed the spectrum since.
      if (platform::DecodeText(PlainLine(*text)) == spectrum_.title) spectrum_.title = *text;
    } else if (label.normalized == kExactTimeLabel && text) {
      if (spectrum_.time.empty()) spectrum_.time = *text;
    } else {
      spectrum_.parameters.push_back(
          {ReadParameterName(Trimmed(std::string_view(label.name).substr(1))), value});
    }
  }
}

JcampSpectrum JcampBlock::ToSpectrum(bool ended) {
  if (PointCount() == 0) {
    Refuse(nullptr, Kind::kDamaged, "the table is empty");
  }
  CheckEnd(ended, PointCount());
  ScaleOrdinates();
  if (continuous_) {
    FindAbscissas();
  } else {
    FindPairAbscissas();
  }
  const auto [smallest, largest] = std::ranges::minmax(spectrum_.ordinates);
  CheckOrdinate("FIRSTY", spectrum_.ordinates.front());
  CheckOrdinate("MAXY", largest);
  CheckOrdinate("MINY", smallest);
  CopyLabels();
  return std::move(spectrum_);
}

}  // namespace veritane::simulator
