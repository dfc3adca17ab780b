// Filling in the fields of a template's texts.
#include "simulator/print_fields.h"

#include "platform/date_time.h"
#include "platform/number_text.h"
#include "platform/windows_path.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <functional>

namespace veritane::simulator {

namespace {

constexpr std::string_view kMissing = "–";
constexpr std::string_view kStandardPrefix = "STANDARD.";

// "{Name|pattern}" without its braces.
struct Field {
  std::string name;
  std::string pattern;
};

Field FieldFrom(std::string_view inside) {
  const std::size_t bar = inside.find('|');
  Field field{platform::UpperCase(inside.substr(0, bar)), {}};
  if (bar != inside.npos) field.pattern = inside.substr(bar + 1);
  return field;
}

bool IsPattern(std::string_view pattern) {
  return !pattern.empty() && pattern.size() <= 20 && pattern.find_first_not_of("#0.") == pattern.npos &&
         std::ranges::count(pattern, '.') == 1;
}

// Hands the pieces of the text on in their order. Returns what is wrong with it, "" for nothing.
std::string Walk(const std::string& text, const std::function<void(std::string_view)>& plain,
                 const std::function<void(const Field&)>& field) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t brace = text.find('{', at);
    plain(std::string_view(text).substr(at, brace - at));
    if (brace == text.npos) break;
    if (text.compare(brace, 2, "{{") == 0) {
      plain("{");
      at = brace + 2;
      continue;
    }
    const std::size_t end = text.find('}', brace);
    if (end == text.npos) return "a field is not closed by \"}\"";
    const std::string_view inside = std::string_view(text).substr(brace + 1, end - brace - 1);
    const Field found = FieldFrom(inside);
    if (found.name.empty()) return "a field has no name";
    if (inside.find('|') != inside.npos && !IsPattern(found.pattern)) {
      return "\"" + found.pattern + "\" is no pattern of a number, such as 0.00";
    }
    field(found);
    at = end + 1;
  }
  return {};
}

std::string NumberAs(double number, const std::string& pattern) {
  if (!std::isfinite(number)) return {};
  if (!pattern.empty()) return platform::FormatPattern(number, pattern);
  std::array<char, 32> text{};
  const auto written =
      std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::general, 6);
  return {text.data(), written.ptr};
}

// "12." is what the pattern of a whole number gives.
std::string WithoutLastPoint(std::string text) {
  if (text.ends_with('.')) text.pop_back();
  return text;
}

std::string ParameterText(const PrintedSpectrum& printed, const std::string& name,
                          const std::string& pattern) {
  if (!printed.spectrum) return {};
  const StoredSpectrum& stored = printed.spectrum->stored;
  if (name == "SPECTNAME") return stored.name;
  if (name == "TIME") return stored.time;
  if (name == "FILE") return platform::LeafName(printed.path);
  for (const NamedValue& parameter : stored.parameters) {
    if (platform::UpperCase(parameter.name) != name) continue;
    if (const double* const number = std::get_if<double>(&parameter.value)) {
      return WithoutLastPoint(NumberAs(*number, pattern));
    }
    return std::get<std::string>(parameter.value);
  }
  return {};
}

std::string MarkersText(const PrintSubject& subject) {
  std::string text;
  for (const double place : MarkerPlaces(subject)) {
    text += (text.empty() ? "" : ", ") + WavenumberText(place);
  }
  return text;
}

std::string FieldText(const Field& field, const PrintSubject& subject) {
  if (field.name == "PRINTED") return platform::MomentText(subject.printed, '-', ' ', ':');
  if (field.name == "MARKERS") return MarkersText(subject);
  if (field.name.starts_with(kStandardPrefix)) {
    return ParameterText(subject.standard, field.name.substr(kStandardPrefix.size()), field.pattern);
  }
  return ParameterText(subject.sample, field.name, field.pattern);
}

}  // namespace

std::string WhyNotFields(const std::string& text) {
  return Walk(
      text, [](std::string_view) {}, [](const Field&) {});
}

std::string FilledIn(const std::string& text, const PrintSubject& subject) {
  std::string filled;
  Walk(
      text, [&](std::string_view plain) { filled += plain; },
      [&](const Field& field) {
        const std::string value = FieldText(field, subject);
        filled += value.find_first_not_of(' ') == value.npos ? kMissing : std::string_view(value);
      });
  return filled;
}

std::set<std::string> FieldNames(const std::string& text) {
  std::set<std::string> names;
  Walk(
      text, [](std::string_view) {}, [&](const Field& field) { names.insert(field.name); });
  return names;
}

std::vector<double> MarkerPlaces(const PrintSubject& subject) {
  std::vector<double> places;
  for (const PrintedSpectrum* const printed : {&subject.sample, &subject.standard}) {
    if (!printed->spectrum) continue;
    for (const StoredMarker& marker : printed->spectrum->markers) {
      const double place = PlaceOf(marker);
      if (std::isfinite(place)) places.push_back(place);
    }
  }
  std::ranges::sort(places, std::greater());
  places.erase(std::unique(places.begin(), places.end()), places.end());
  return places;
}

std::string WavenumberText(double wavenumber) {
  return WithoutLastPoint(platform::FormatPattern(wavenumber, "0.#"));
}

std::string ValueText(const acquisition::ParameterValue& value) {
  if (const auto* const text = std::get_if<std::string>(&value)) return *text;
  return WithoutLastPoint(NumberAs(std::get<double>(value), ""));
}

}  // namespace veritane::simulator
