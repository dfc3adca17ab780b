// Reading command lines.
#include "apps/command_line.h"

#include "platform/number_text.h"

#include <algorithm>
#include <iostream>
#include <string_view>

namespace veritane::apps {

std::int64_t WholeNumberOf(const std::string& option, const std::string& text, std::int64_t least,
                           std::int64_t most) {
  if (const auto number = platform::ParseWholeNumber(text, least, most)) return *number;
  throw UsageError(option + " \"" + text + "\": a whole number from " + std::to_string(least) + " to " +
                   std::to_string(most) + " is needed");
}

CommandLine::CommandLine(int argument_count, char** arguments, const std::set<std::string>& options,
                         std::size_t most_words) {
  for (int i = 1; i < argument_count; ++i) {
    const std::string argument = arguments[i];
    if (!argument.starts_with("--")) {
      words_.push_back(argument);
      continue;
    }
    if (!options.contains(argument)) throw UsageError("there is no option " + argument);
    if (i + 1 == argument_count) throw UsageError(argument + " needs a value");
    options_[argument].push_back(arguments[++i]);
  }
  if (words_.size() > most_words) throw UsageError("\"" + words_[most_words] + "\" is one word too many");
}

std::optional<std::string> CommandLine::Option(const std::string& name) const {
  const auto found = options_.find(name);
  return found == options_.end() ? std::nullopt : std::optional(found->second.back());
}

std::int64_t CommandLine::WholeNumber(const std::string& name, std::int64_t fallback, std::int64_t least,
                                      std::int64_t most) const {
  const auto text = Option(name);
  return text ? WholeNumberOf(name, *text, least, most) : fallback;
}

std::vector<std::string> CommandLine::Values(const std::string& name) const {
  const auto found = options_.find(name);
  return found == options_.end() ? std::vector<std::string>() : found->second;
}

int RunProgram(const Program& program, int argument_count, char** arguments,
               const std::function<int(const CommandLine&)>& run) {
  const auto say = [&](std::ostream& output, const std::string& text) {
    output << text << std::flush;
    if (program.alsoShow) program.alsoShow(text);
  };
  if (std::any_of(arguments + 1, arguments + argument_count,
                  [](std::string_view argument) { return argument == "--help"; })) {
    say(std::cout, program.usage);
    return 0;
  }
  try {
    return run(CommandLine(argument_count, arguments, program.options, program.mostWords));
  } catch (const UsageError& error) {
    say(std::cerr,
        program.name + ": " + error.what() + '\n' + program.name + " --help tells how it is used.\n");
    return 2;
  } catch (const std::exception& error) {
    say(std::cerr, program.name + ": " + error.what() + '\n');
    return 1;
  }
}

}  // namespace veritane::apps
