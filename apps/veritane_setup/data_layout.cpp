// What ships, and how it gets onto the disk.
#include "apps/veritane_setup/data_layout.h"

#include "apps/veritane_setup/blend_calibration.h"
#include "apps/veritane_setup/measurement.h"
#include "apps/veritane_setup/shipped_files.h"
#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "platform/windows_path.h"
#include "shell/state/data_folders.h"
#include "shell/state/settings_file.h"
#include "simulator/collect_method.h"
#include "simulator/jcamp_value.h"
#include "simulator/jcamp_writer.h"
#include "simulator/stored_spectrum.h"

namespace veritane::setup {

namespace {

using simulator::StoredSpectrum;

// The seeds of the shipped measurements: a Standard and a demonstration sample of one material differ by
// their noise.
constexpr std::uint64_t kStandardSeed = 20261;
constexpr std::uint64_t kDemonstrationSeed = 20262;

// Where the files of data/ lie that go into the folder of Standards.
constexpr std::string_view kShippedStandards = "Standards/";

std::string ShippedText(const std::string& name) {
  for (const ShippedFile& file : ShippedFiles()) {
    if (file.name == name) return file.bytes;
  }
  throw platform::RunTimeError(platform::ErrorNumber::kFileNotFound, name);
}

// One spectrum that ships, as it is measured.
struct ShippedSpectrum {
  const char* leaf;
  const char* method;
  const char* sample;
  std::uint64_t seed;
};

constexpr ShippedSpectrum kSpectra[] = {
    {"ASA-100.bsp", "Pressed disc", "acetylsalicylic acid", kStandardSeed},
    {"ASA-100-FT.bsp", "Pressed disc", "acetylsalicylic acid", kStandardSeed},
    {"PARACETAMOL.bsp", "Pressed disc", "paracetamol", kStandardSeed},
    {"CAFFEINE.bsp", "Pressed disc", "caffeine", kStandardSeed},
    {"LACTOSE.bsp", "Pressed disc", "lactose", kStandardSeed},
    {"POLYSTYRENE.bsp", "ATR crystal", "polystyrene", kStandardSeed},
    {"POLYETHYLENE.bsp", "ATR crystal", "polyethylene", kStandardSeed},
    {"PET.bsp", "ATR crystal", "pet", kStandardSeed},
    {"POLYSTYRENE-PEAKS.bsp", "ATR crystal", "polystyrene", kStandardSeed},
    {"ASA-100-BANDS.bsp", "Pressed disc", "acetylsalicylic acid", kStandardSeed},
    {"PS-PE-BLEND.bsp", "ATR crystal", "polystyrene 0.5 + polyethylene 0.5", kStandardSeed},
    {"aspirin.bsp", "Pressed disc", "acetylsalicylic acid", kDemonstrationSeed},
    {"polys.bsp", "ATR crystal", "polystyrene", kDemonstrationSeed},
    {"poly pls test.bsp", "ATR crystal", "polystyrene 0.6 + polyethylene 0.4", kDemonstrationSeed},
};

simulator::CollectMethodSettings ShippedMethod(const std::string& name) {
  return simulator::ParseCollectMethod(ShippedText(std::string(kShippedStandards) + name + ".clm"));
}

class Layout {
public:
  Layout(const platform::Machine& machine, const state::FolderSet& set, const state::DataFolders& folders)
      : machine_(machine), set_(set), folders_(folders) {}

  std::vector<std::string> Make() {
    for (const ShippedFile& file : ShippedFiles()) WriteText(file);
    for (const ShippedSpectrum& spectrum : kSpectra) WriteMeasurement(spectrum);
    WriteSingleBeam("back.bsp", "Pressed disc");
    WriteSingleBeam("Autoalign.bsp", "Initial");
    WriteCalibration("polymer blend.cal", "ATR crystal");
    return std::move(made_);
  }

private:
  void Write(const std::string& path, const std::string& bytes) {
    machine_.files.WriteBytes(path, bytes);
    made_.push_back(path);
  }

  // The shipped tables name the plain folders; an instrument series with folders of its own has them under
  // its names.
  void WriteText(const ShippedFile& file) {
    std::string path = folders_.appDir + file.name;
    if (file.name == "Meth.tbl") path = folders_.appDir + set_.methTable;
    if (file.name == "Meths.tbl") path = folders_.appDir + set_.methsTable;
    if (file.name.starts_with(kShippedStandards))
      path = folders_.InStandards(file.name.substr(kShippedStandards.size()));
    if (machine_.files.FileExists(path)) return;
    const std::string marker(state::kInstallerMarker);
    const std::string plain_standards = marker + state::FolderSet{}.stdsFolder + "\\";
    Write(path, state::ReplaceAll(file.bytes, plain_standards, marker + set_.stdsFolder + "\\"));
  }

  void WriteSpectrum(const std::string& path, const std::string& name,
                     const simulator::CollectMethodSettings& method, const char* y_units,
                     state::Ordinates ordinates) {
    StoredSpectrum spectrum;
    spectrum.name = name;
    spectrum.time = simulator::LongDate(machine_.clock.LocalNow());
    spectrum.yUnits = y_units;
    spectrum.spacing = simulator::GridOf(method).spacing;
    spectrum.ordinates = std::move(ordinates);
    const StoredSpectrum* const only = &spectrum;
    Write(path, simulator::WriteJcamp({&only, 1}));
  }

  void WriteMeasurement(const ShippedSpectrum& shipped) {
    const std::string path = folders_.InStandards(shipped.leaf);
    if (machine_.files.FileExists(path)) return;
    const auto method = ShippedMethod(shipped.method);
    WriteSpectrum(path, shipped.sample, method, "ABSORBANCE",
                  MeasureAbsorbance(shipped.sample, method, shipped.seed));
  }

  void WriteSingleBeam(const std::string& leaf, const std::string& method_name) {
    const std::string path = folders_.InStandards(leaf);
    if (machine_.files.FileExists(path)) return;
    const auto method = ShippedMethod(method_name);
    WriteSpectrum(path, "Background", method, "ARBITRARY UNITS",
                  MeasureSingleBeam("empty", method, kDemonstrationSeed));
  }

  void WriteCalibration(const std::string& leaf, const std::string& method_name) {
    const std::string path = folders_.InStandards(leaf);
    if (!machine_.files.FileExists(path)) Write(path, BlendCalibration(ShippedMethod(method_name)));
  }

  const platform::Machine& machine_;
  const state::FolderSet& set_;
  const state::DataFolders& folders_;
  std::vector<std::string> made_;
};

// Makes the folder and those above it, up to the drive.
void CreateFolders(platform::FileSystem& files, const std::string& folder) {
  if (files.FolderExists(folder)) return;
  const std::string above = platform::FolderOf(folder);
  if (above.size() > 2) CreateFolders(files, above);
  files.CreateFolder(folder);
}

// Empty where there is no such file.
std::string FirstLineOf(const platform::FileSystem& files, const std::string& path) {
  if (!files.FileExists(path)) return "";
  const std::string bytes = files.ReadBytes(path);
  return bytes.substr(0, bytes.find_first_of("\r\n"));
}

}  // namespace

std::vector<std::string> LayOutData(const platform::Machine& machine) {
  const state::FolderSet set = state::ChooseFolderSet(machine.registry);
  const std::string data_folder = state::DataFolderBelow(machine.folders.CommonApplicationData(true));
  CreateFolders(machine.files, platform::FolderOf(data_folder));
  const state::DataFolders folders = state::SetUpFolders(machine.folders, machine.files, set);
  return Layout(machine, set, folders).Make();
}

void SetDemonstrationMode(const platform::Machine& machine, bool demonstration) {
  const std::string data_folder = state::DataFolderBelow(machine.folders.CommonApplicationData(true));
  const std::string path = data_folder + "settings.ini";
  const std::string first_line = demonstration ? "1" : "0";
  if (FirstLineOf(machine.files, path) == first_line) return;
  const auto lock = machine.files.TakeFile(data_folder + state::kDataFolderLock);
  if (lock == nullptr) {
    throw ProgramIsRunning("Veritane is running on " + data_folder +
                           " and would undo the change when it ends; end it first");
  }
  if (!machine.files.FileExists(path)) {
    state::Options options;
    options.demoMode = demonstration ? 1 : 0;
    machine.files.WriteBytes(path, state::SettingsText(options, state::ShownOf(options)));
    return;
  }
  const std::string bytes = machine.files.ReadBytes(path);
  const std::size_t end = bytes.find_first_of("\r\n");
  const std::string rest = end == std::string::npos ? std::string(platform::kLineEnd) : bytes.substr(end);
  machine.files.WriteBytes(path, first_line + rest);
}

}  // namespace veritane::setup
