// Reading print templates.
#include "simulator/print_template.h"

#include "platform/run_time_error.h"
#include "simulator/invalid_file_format.h"
#include "simulator/print_attributes.h"
#include "simulator/print_fields.h"

#include <functional>
#include <map>
#include <set>
#include <utility>

namespace veritane::simulator {

namespace {

using platform::Point;
using platform::RunTimeError;

constexpr double kSmallestPage = 50;
constexpr double kLargestPage = 1200;
constexpr double kSmallestText = 4;
constexpr double kLargestText = 72;
constexpr double kThickest = 10;
constexpr int kMostTextLines = 100;
constexpr double kHighestRange = 100000;
// A page that a person could have designed; more is a damaged file.
constexpr std::size_t kMostTemplateLines = 2000;

class Reader {
public:
  PrintTemplate Read(std::string_view bytes) {
    const std::vector<KeyValueLine> lines = ReadKeyValueLines(bytes);
    if (lines.empty()) throw RunTimeError(kInvalidFileFormat, "the file is empty");
    if (lines.front().key != "TEMPLATE") RefuseLine(lines.front(), "a template begins with \"Template = 1\"");
    if (lines.front().value != "1") RefuseLine(lines.front(), "there is only version 1 of templates");
    if (lines.size() > kMostTemplateLines)
      RefuseLine(lines[kMostTemplateLines], "a template has at most 2000 lines");
    for (std::size_t i = 1; i < lines.size(); ++i) ReadLine(lines[i]);
    if (read_.items.empty()) RefuseLine(lines.back(), "the template puts nothing onto the page");
    return std::move(read_);
  }

private:
  void ReadLine(const KeyValueLine& line) {
    static const std::map<std::string, void (Reader::*)(const KeyValueLine&), std::less<>> readers{
        {"PAGE", &Reader::ReadPage},
        {"TITLE", &Reader::ReadTitle},
        {"TEXT", &Reader::ReadText},
        {"LINE", &Reader::ReadLinePoints},
        {"BOX", &Reader::ReadBox},
        {"SPECTRUM", &Reader::ReadSpectrum},
        {"PARAMETERS", &Reader::ReadParameters}};
    const auto reader = readers.find(line.key);
    if (reader == readers.end()) RefuseLine(line, "a template has no key \"" + line.key + "\"");
    (this->*reader->second)(line);
  }

  void ReadPage(const KeyValueLine& line) {
    // Places were checked against the page before.
    if (!read_.items.empty()) RefuseLine(line, "Page stands before everything that is on the page");
    if (!seen_.insert(line.key).second) RefuseLine(line, "Page stands there twice");
    PrintAttributes attributes(line);
    const bool is_a4 = attributes.TakeWord("A4");
    const bool is_letter = attributes.TakeWord("Letter");
    const auto size = attributes.TakeNumbers("size", 2, kSmallestPage, kLargestPage);
    const bool is_landscape = attributes.TakeWord("landscape");
    attributes.RefuseRest();
    if (is_a4 + is_letter + size.has_value() != 1) {
      attributes.Refuse("Page is A4, Letter or \"size WIDTH HEIGHT\", with or without \"landscape\"");
    }
    if (is_letter) read_.pageWidth = 215.9, read_.pageHeight = 279.4;
    if (size) read_.pageWidth = size->at(0), read_.pageHeight = size->at(1);
    if (is_landscape) std::swap(read_.pageWidth, read_.pageHeight);
  }

  void ReadTitle(const KeyValueLine& line) {
    if (!seen_.insert(line.key).second) RefuseLine(line, "Title stands there twice");
    CheckFields(line, line.value);
    read_.title = line.value;
  }

  void ReadText(const KeyValueLine& line) {
    PrintAttributes attributes(line);
    PrintText text;
    text.at = PointFrom(attributes);
    const double room = read_.pageWidth - text.at.x;
    text.width = attributes.TakeNumber("width", room, 1, room);
    text.size = TextSizeFrom(attributes, text.size);
    text.lines = static_cast<int>(attributes.TakeNumber("lines", 1, 1, kMostTextLines));
    text.bold = attributes.TakeWord("bold");
    const bool is_centred = attributes.TakeWord("centre");
    const bool is_right = attributes.TakeWord("right");
    if (is_centred && is_right) attributes.Refuse("a text cannot be at the centre and at the right");
    if (is_centred) text.alignment = TextAlignment::kCentre;
    if (is_right) text.alignment = TextAlignment::kRight;
    text.colour = attributes.TakeColour();
    attributes.RefuseRest();
    if (attributes.Text().value_or("").empty())
      attributes.Refuse("the text is missing; it stands behind \":\"");
    text.text = *attributes.Text();
    CheckFields(line, text.text);
    read_.items.emplace_back(std::move(text));
  }

  void ReadLinePoints(const KeyValueLine& line) {
    PrintAttributes attributes(line);
    RefuseText(attributes);
    PrintLine drawn;
    const std::vector<double> numbers = attributes.RequireNumbers("through", 0, kLargestPage);
    if (numbers.size() < 4 || numbers.size() % 2 != 0)
      attributes.Refuse("a line goes through two or more points");
    for (std::size_t i = 0; i < numbers.size(); i += 2) {
      drawn.points.push_back({numbers[i], numbers[i + 1]});
      RequireOnPage(attributes, drawn.points.back());
    }
    drawn.thickness = attributes.TakeNumber("thickness", drawn.thickness, 0.01, kThickest);
    drawn.colour = attributes.TakeColour();
    attributes.RefuseRest();
    read_.items.emplace_back(std::move(drawn));
  }

  void ReadBox(const KeyValueLine& line) {
    PrintAttributes attributes(line);
    RefuseText(attributes);
    const PrintArea area = AreaFrom(attributes);
    const platform::Colour colour = attributes.TakeColour();
    attributes.RefuseRest();
    read_.items.emplace_back(PrintBox{area, colour});
  }

  void ReadSpectrum(const KeyValueLine& line) {
    PrintAttributes attributes(line);
    RefuseText(attributes);
    PrintSpectrum spectrum;
    spectrum.area = AreaFrom(attributes);
    spectrum.size = TextSizeFrom(attributes, spectrum.size);
    spectrum.sample = attributes.TakeWord("sample");
    spectrum.standard = attributes.TakeWord("standard");
    spectrum.markers = attributes.TakeWord("markers");
    if (const auto range = attributes.TakeNumbers("range", 2, 0, kHighestRange)) {
      if (range->at(0) == range->at(1)) attributes.Refuse("the range has two different wavenumbers");
      spectrum.range = {std::min(range->at(0), range->at(1)), std::max(range->at(0), range->at(1))};
    }
    attributes.RefuseRest();
    if (!spectrum.sample && !spectrum.standard)
      attributes.Refuse("a spectrum shows sample, standard or both");
    read_.items.emplace_back(spectrum);
  }

  void ReadParameters(const KeyValueLine& line) {
    PrintAttributes attributes(line);
    RefuseText(attributes);
    PrintParameters parameters;
    parameters.area = AreaFrom(attributes);
    parameters.size = TextSizeFrom(attributes, parameters.size);
    attributes.RefuseRest();
    read_.items.emplace_back(parameters);
  }

  static void RefuseText(const PrintAttributes& attributes) {
    if (attributes.Text()) attributes.Refuse("only Text has a text behind \":\"");
  }

  static void CheckFields(const KeyValueLine& line, const std::string& text) {
    const std::string fault = WhyNotFields(text);
    if (!fault.empty()) RefuseLine(line, fault);
  }

  static double TextSizeFrom(PrintAttributes& attributes, double otherwise) {
    return attributes.TakeNumber("size", otherwise, kSmallestText, kLargestText);
  }

  Point PointFrom(PrintAttributes& attributes) const {
    const std::vector<double> numbers = attributes.RequireNumbers("at", 2, 0, kLargestPage);
    const Point point{numbers[0], numbers[1]};
    RequireOnPage(attributes, point);
    return point;
  }

  PrintArea AreaFrom(PrintAttributes& attributes) const {
    const Point at = PointFrom(attributes);
    const double width = attributes.RequireNumbers("width", 1, 0.1, kLargestPage).front();
    const double height = attributes.RequireNumbers("height", 1, 0.1, kLargestPage).front();
    RequireOnPage(attributes, {at.x + width, at.y + height});
    return {at.x, at.y, width, height};
  }

  void RequireOnPage(const PrintAttributes& attributes, Point point) const {
    if (point.x > read_.pageWidth || point.y > read_.pageHeight) {
      attributes.Refuse("this lies beside the page");
    }
  }

  PrintTemplate read_;
  std::set<std::string> seen_;
};

}  // namespace

PrintTemplate ReadPrintTemplate(const std::string& path, std::string_view bytes) {
  try {
    return Reader().Read(bytes);
  } catch (const RunTimeError& error) {
    throw RunTimeError(kInvalidFileFormat, path + " is no print template: " + error.what());
  }
}

}  // namespace veritane::simulator
