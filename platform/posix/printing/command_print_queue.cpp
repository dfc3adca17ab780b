// Running lpstat and lp.
#include "platform/posix/printing/command_print_queue.h"

#include "platform/run_time_error.h"
#include "platform/texts.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace veritane::platform {

namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

// Input and output of a command are files without a name: whatever the command reads or writes, neither side
// can wait for the other.
File NamelessFile(std::string_view bytes) {
  File file(std::tmpfile());
  const bool written = file != nullptr &&
                       std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size() &&
                       std::fflush(file.get()) == 0 && std::fseek(file.get(), 0, SEEK_SET) == 0;
  if (!written) throw RunTimeError(ErrorNumber::kDeviceError, Text(TextId::kNoPrintFile));
  return file;
}

std::string ReadAll(std::FILE* file) {
  std::string text;
  std::rewind(file);
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) text += static_cast<char>(c);
  return text;
}

struct Outcome {
  int status = 0;
  // Both what it tells and what it complains about.
  std::string output;
};

// The environment with answers in English.
std::vector<std::string> PlainEnvironment() {
  std::vector<std::string> variables;
  for (char** variable = environ; *variable != nullptr; ++variable) {
    if (!std::string_view(*variable).starts_with("LC_ALL=")) variables.emplace_back(*variable);
  }
  variables.emplace_back("LC_ALL=C.UTF-8");
  return variables;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

// Nothing when the command cannot be started.
std::optional<Outcome> RunCommand(std::vector<std::string> words, std::string_view input) {
  const File in = NamelessFile(input);
  const File out = NamelessFile("");
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, fileno(in.get()), STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, fileno(out.get()), STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, fileno(out.get()), STDERR_FILENO);
  std::vector<std::string> environment = PlainEnvironment();
  pid_t process = 0;
  const int failed = posix_spawnp(&process, words.front().c_str(), &actions, nullptr, Pointers(words).data(),
                                  Pointers(environment).data());
  posix_spawn_file_actions_destroy(&actions);
  if (failed != 0) return std::nullopt;
  int status = 0;
  while (waitpid(process, &status, 0) < 0) {
    if (errno != EINTR) return std::nullopt;
  }
  return Outcome{.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1, .output = ReadAll(out.get())};
}

}  // namespace

CommandPrintQueue::CommandPrintQueue(std::string lp, std::string lpstat)
    : lp_(std::move(lp)), lpstat_(std::move(lpstat)) {}

bool CommandPrintQueue::HasPrinter() const {
  const std::optional<Outcome> outcome = RunCommand({lpstat_, "-d"}, "");
  return outcome && outcome->status == 0 &&
         outcome->output.find("system default destination: ") != std::string::npos;
}

void CommandPrintQueue::Submit(const std::string& pdf, const std::string& title) {
  // The queue's own paper may be another than ours.
  const std::optional<Outcome> outcome = RunCommand({lp_, "-t", title, "-o", "fit-to-page", "-"}, pdf);
  if (!outcome) throw RunTimeError(ErrorNumber::kDeviceError, Text(TextId::kNoPrintCommand, {lp_}));
  if (outcome->status == 0) return;
  throw RunTimeError(ErrorNumber::kDeviceError, Text(TextId::kPrintCommandRefuses, {outcome->output}));
}

}  // namespace veritane::platform
