// The options of a program's command line: "--name value" pairs, and the words that stand beside them. What
// follows a name is its value, whatever it begins with.
#pragma once

#include <cstdint>
#include <functional>
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

// The text of an option's value as a whole number from `least` to `most`; UsageError for anything else.
std::int64_t WholeNumberOf(const std::string& option, const std::string& text, std::int64_t least,
                           std::int64_t most);

class CommandLine {
public:
  // `options` are the names that take a value, `most_words` how many words may stand beside them. UsageError
  // otherwise.
  CommandLine(int argument_count, char** arguments, const std::set<std::string>& options,
              std::size_t most_words);

  // The value of an option; the last one where it was given several times.
  std::optional<std::string> Option(const std::string& name) const;
  // The option's value as WholeNumberOf reads it, `fallback` where it was not given.
  std::int64_t WholeNumber(const std::string& name, std::int64_t fallback, std::int64_t least,
                           std::int64_t most) const;
  // All values of an option, in the order given.
  std::vector<std::string> Values(const std::string& name) const;
  const std::vector<std::string>& Words() const { return words_; }

private:
  std::map<std::string, std::vector<std::string>> options_;
  std::vector<std::string> words_;
};

// A program as its command line sees it.
struct Program {
  std::string name;
  // How it is used, as --help tells.
  std::string usage;
  // The options that take a value, and how many words may stand beside them.
  std::set<std::string> options = {};
  std::size_t mostWords = 0;
  // Shows what the program says instead of running, once it is written to the standard outputs: on some
  // systems a program with a window has none.
  std::function<void(const std::string& text)> alsoShow = {};
};

// What a program's main does: runs `run` on the command line and returns the exit status, which is what `run`
// returned, 0 after --help, 2 for a command line that cannot be understood and 1 for any other exception. The
// reason goes to the standard error output.
int RunProgram(const Program& program, int argument_count, char** arguments,
               const std::function<int(const CommandLine&)>& run);

}  // namespace veritane::apps
