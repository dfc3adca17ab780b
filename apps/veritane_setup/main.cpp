// veritane-setup: lays out the data folder as the installer does.
#include "apps/command_line.h"
#include "apps/machine_options.h"
#include "apps/veritane_setup/data_layout.h"
#include "platform/system/system_machine.h"

#include <iostream>

namespace {

constexpr const char* kUsage =
    "usage: veritane-setup [--root DIR] [--mode measure|demo]\n"
    "  --root DIR  the data root; drive C is its folder drive_c\n"
    "  --mode      whether the program measures or shows stored spectra (unchanged without this option)\n";

int SetUp(const veritane::apps::CommandLine& line) {
  const std::string mode = line.Option("--mode").value_or("");
  if (!mode.empty() && mode != "measure" && mode != "demo")
    throw veritane::apps::UsageError("no mode \"" + mode + "\"");
  const std::filesystem::path root = veritane::apps::RootOption(line);
  if (!root.empty()) std::filesystem::create_directories(root / "drive_c");
  veritane::platform::SystemMachine machine(root, "");
  const auto made = veritane::setup::LayOutData(machine.Facilities());
  if (!made.empty())
    std::cout << "Laid out " << made.size() << " files in "
              << (root.empty() ? "the data folder" : root.string()) << '\n';
  if (!mode.empty()) veritane::setup::SetDemonstrationMode(machine.Facilities(), mode == "demo");
  return 0;
}

}  // namespace

int main(int argument_count, char** arguments) {
  return veritane::apps::RunProgram(
      {.name = "veritane-setup", .usage = kUsage, .options = {veritane::apps::kRootOption, "--mode"}},
      argument_count, arguments, SetUp);
}
