// The options of a program's command line: "--name value" pairs, flags, and what stands beside them.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace veritane::apps {

// A command line that cannot be understood; the text says why.
struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class CommandLine {
public:
  // `options` are the names that take a value, `most_words` how many words may stand beside them. UsageError
  // otherwise.
  CommandLine(int argument_count, char** arguments, const std::set<std::string>& options,
              std::size_t most_words);

  // The value of an option; the last one where it was given several times.
  std::optional<std::string> Option(const std::string& name) const;
  // All values of an option, in the order given.
  std::vector<std::string> Values(const std::string& name) const;
  const std::vector<std::string>& Words() const { return words_; }

private:
  std::map<std::string, std::vector<std::string>> options_;
  std::vector<std::string> words_;
};

}  // namespace veritane::apps
