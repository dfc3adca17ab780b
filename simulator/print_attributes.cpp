// Taking a template's line apart.
#include "simulator/print_attributes.h"

#include "platform/number_text.h"
#include "platform/text_file.h"

#include <charconv>
#include <sstream>

namespace veritane::simulator {

namespace {

std::vector<std::string> WordsOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

}  // namespace

PrintAttributes::PrintAttributes(const KeyValueLine& line) : line_(line) {
  const std::size_t colon = line.value.find(':');
  if (colon != std::string::npos)
    text_ = platform::TrimBlanks(std::string_view(line.value).substr(colon + 1));
  std::istringstream attributes(line.value.substr(0, colon));
  for (std::string attribute; std::getline(attributes, attribute, ',');) {
    std::vector<std::string> words = WordsOf(attribute);
    if (words.empty()) Refuse("there is nothing between two commas");
    const std::string name = words.front();
    words.erase(words.begin());
    if (!attributes_.emplace(name, std::move(words)).second) Refuse("\"" + name + "\" stands there twice");
  }
}

std::optional<std::vector<std::string>> PrintAttributes::Take(const std::string& name) {
  auto found = attributes_.extract(name);
  if (found.empty()) return std::nullopt;
  return std::move(found.mapped());
}

bool PrintAttributes::TakeWord(const std::string& name) {
  const auto words = Take(name);
  if (words && !words->empty()) Refuse("nothing may follow \"" + name + "\"");
  return words.has_value();
}

double PrintAttributes::ToNumber(const std::string& name, const std::string& word, double least,
                                 double most) const {
  const auto number = platform::ParseNumber(word);
  if (!number) Refuse("\"" + word + "\" behind \"" + name + "\" is no number");
  if (!(*number >= least && *number <= most)) {
    Refuse("\"" + name + "\" lies from " + platform::PlainNumberText(least) + " to " +
           platform::PlainNumberText(most));
  }
  return *number;
}

std::optional<std::vector<double>> PrintAttributes::TakeNumbers(const std::string& name, std::size_t count,
                                                                double least, double most) {
  if (!attributes_.contains(name)) return std::nullopt;
  return RequireNumbers(name, count, least, most);
}

std::vector<double> PrintAttributes::RequireNumbers(const std::string& name, double least, double most) {
  const auto words = Take(name);
  if (!words) Refuse("\"" + name + "\" is missing");
  std::vector<double> numbers;
  for (const std::string& word : *words) numbers.push_back(ToNumber(name, word, least, most));
  return numbers;
}

std::vector<double> PrintAttributes::RequireNumbers(const std::string& name, std::size_t count, double least,
                                                    double most) {
  std::vector<double> numbers = RequireNumbers(name, least, most);
  if (numbers.size() != count) {
    Refuse("\"" + name + "\" has " + std::to_string(count) + (count == 1 ? " number" : " numbers"));
  }
  return numbers;
}

double PrintAttributes::TakeNumber(const std::string& name, double otherwise, double least, double most) {
  const auto numbers = TakeNumbers(name, 1, least, most);
  return numbers ? numbers->front() : otherwise;
}

platform::Colour PrintAttributes::TakeColour() {
  const auto words = Take("colour");
  if (!words) return {};
  const std::string text = words->size() == 1 ? words->front() : "";
  unsigned int value = 0;
  const char* const end = text.data() + text.size();
  const bool has_form = text.size() == 7 && text.front() == '#';
  if (!has_form || std::from_chars(text.data() + 1, end, value, 16).ptr != end) {
    Refuse("a colour is written #RRGGBB");
  }
  const auto byte = [value](unsigned int shift) {
    return static_cast<std::uint8_t>((value >> shift) & 0xff);
  };
  return {byte(16), byte(8), byte(0)};
}

void PrintAttributes::RefuseRest() const {
  if (!attributes_.empty()) Refuse("\"" + attributes_.begin()->first + "\" is not known here");
}

}  // namespace veritane::simulator
