// Splitting a script line into words.
#include "platform/scripted/script_line.h"

#include "platform/number_text.h"
#include "platform/utf8.h"

#include <limits>

namespace veritane::platform {

namespace {

constexpr std::string_view kBlanks = " \t\r";

bool IsBlank(char character) {
  return kBlanks.find(character) != std::string_view::npos;
}

// Takes the quoted word at the front of `rest`, quotes included, and leaves what follows it.
std::string TakeQuoted(std::string_view& rest) {
  std::string text;
  for (std::size_t i = 1; i < rest.size(); ++i) {
    const bool quote_follows = i + 1 < rest.size() && rest[i + 1] == '"';
    const bool ends_line = i + 2 >= rest.size();
    if (rest[i] == '\\' && quote_follows && !ends_line) {
      text += '"';
      ++i;
    } else if (rest[i] == '"' && quote_follows) {
      text += '"';
      ++i;
    } else if (rest[i] == '"') {
      rest.remove_prefix(i + 1);
      if (!rest.empty() && !IsBlank(rest.front())) {
        throw RefusedLine("A blank must follow a closing quote.");
      }
      return text;
    } else {
      text += rest[i];
    }
  }
  throw RefusedLine("A quote is not closed.");
}

std::string TakePlain(std::string_view& rest) {
  const std::string_view word = rest.substr(0, rest.find_first_of(kBlanks));
  rest.remove_prefix(word.size());
  return std::string(word);
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace

std::string_view FirstWord(std::string_view line) {
  const std::string_view trimmed = Trimmed(line);
  return trimmed.substr(0, trimmed.find_first_of(kBlanks));
}

ScriptLine ParseScriptLine(std::string_view line) {
  if (!IsUtf8(line)) throw RefusedLine("The line is not UTF-8 text.");
  if (line.find('\0') != std::string_view::npos) throw RefusedLine("The line holds a NUL character.");
  std::string_view rest = Trimmed(line);
  ScriptLine parsed{.command = TakePlain(rest), .words = {}};
  for (rest = Trimmed(rest); !rest.empty(); rest = Trimmed(rest)) {
    const bool is_quoted = rest.front() == '"';
    parsed.words.push_back({.text = is_quoted ? TakeQuoted(rest) : TakePlain(rest), .isQuoted = is_quoted});
  }
  return parsed;
}

int ParseWholeNumber(std::string_view word, std::string_view what) {
  const auto number = ParseWholeNumber(word, 0, std::numeric_limits<int>::max());
  if (!number) throw RefusedLine("\"" + std::string(word) + "\" is not " + std::string(what) + ".");
  return static_cast<int>(*number);
}

}  // namespace veritane::platform
