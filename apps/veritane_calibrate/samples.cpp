// Reading samples from spectrum files and tables.
#include "apps/veritane_calibrate/samples.h"

#include "apps/command_line.h"
#include "platform/run_time_error.h"
#include "platform/system/system_machine.h"
#include "platform/windows_path.h"
#include "plslibrary/pls_error.h"
#include "plslibrary/spc_reader.h"
#include "simulator/spectrum_file.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace veritane::calibrate {

namespace {

namespace fs = std::filesystem;

// In upper case.
std::string Extension(const std::string& path) {
  return platform::UpperCase(fs::path(path).extension().string());
}

// Letters alone, in upper case: units are written "1/CM", "cm-1", "Nanometers".
std::string Letters(const std::string& text) {
  std::string letters;
  for (const char character : platform::UpperCase(text)) {
    if (character >= 'A' && character <= 'Z') letters.push_back(character);
  }
  return letters;
}

int XTypeOf(const std::string& units) {
  const std::string letters = Letters(units);
  if (letters == "CM" || letters.starts_with("WAVENUMBER")) return 1;
  return letters == "NM" || letters.starts_with("NANOMET") ? 3 : 0;
}

int YTypeOf(const std::string& units) {
  const std::string letters = Letters(units);
  if (letters == "A" || letters.starts_with("ABSORB")) return 2;
  return letters == "T" || letters.find("TRANSMI") != std::string::npos ? 128 : 0;
}

std::string RemarkOf(const simulator::StoredSpectrum& stored) {
  std::string remark;
  for (const simulator::NamedValue& parameter : stored.parameters) {
    if (parameter.name != simulator::kInterpolatedParameter &&
        parameter.name != simulator::kWarningsParameter) {
      continue;
    }
    if (const auto* text = std::get_if<std::string>(&parameter.value)) {
      remark += (remark.empty() ? "" : "; ") + *text;
    }
  }
  return remark;
}

std::vector<Sample> ReadDocument(const std::string& path) {
  std::vector<Sample> samples;
  try {
    for (simulator::StoredSpectrum& stored : simulator::ReadSpectrumFile(path, FileBytes(path)).spectra) {
      const state::Ordinates& ordinates = stored.ordinates;
      samples.push_back({stored.name,
                         path,
                         {ordinates.lower * stored.spacing, ordinates.Upper() * stored.spacing,
                          ordinates.values, XTypeOf(stored.xUnits), YTypeOf(stored.yUnits)},
                         RemarkOf(stored)});
    }
  } catch (const platform::RunTimeError& error) {
    throw SampleError(error.what());
  }
  return samples;
}

std::vector<Sample> ReadSpcSamples(const std::string& path) {
  std::vector<Sample> samples;
  try {
    for (plslibrary::MeasuredSpectrum& spectrum : plslibrary::ReadSpc(FileBytes(path))) {
      samples.push_back({std::to_string(samples.size() + 1), path, std::move(spectrum), ""});
    }
  } catch (const plslibrary::SpectrumReadError& error) {
    throw SampleError(path + ": " + error.what());
  }
  return samples;
}

template <typename Take>
auto FromCalibrationFile(const std::string& path, Take take) {
  const std::string bytes = FileBytes(path);
  try {
    return take(plslibrary::CalibrationFile(bytes));
  } catch (const plslibrary::PlsError& error) {
    throw SampleError(path + ": " + error.what());
  }
}

}  // namespace

std::string FileBytes(const std::string& path) {
  std::error_code error;
  std::ifstream stream(path, std::ios::binary);
  if (!stream || fs::is_directory(path, error)) throw SampleError(path + ": the file cannot be opened");
  std::string bytes{std::istreambuf_iterator<char>(stream), {}};
  if (stream.bad()) throw SampleError(path + ": the file cannot be read");
  return bytes;
}

void WriteFile(const std::string& path, std::string_view bytes) {
  const platform::PathMap paths(platform::DefaultRoot());
  const platform::SystemClock clock;
  platform::DiskFileSystem files(paths, clock);
  try {
    files.WriteBytes(paths.ToWindows(path), bytes);
  } catch (const platform::RunTimeError& error) {
    throw SampleError(path + ": " + platform::ErrorText(static_cast<platform::ErrorNumber>(error.Number())));
  }
}

plslibrary::Calibration ReadCalibration(const std::string& path, int number) {
  return FromCalibrationFile(path,
                             [number](const plslibrary::CalibrationFile& file) { return file.Read(number); });
}

std::vector<plslibrary::Calibration> ReadCalibrations(const std::string& path) {
  return FromCalibrationFile(path, [](const plslibrary::CalibrationFile& file) {
    std::vector<plslibrary::Calibration> calibrations;
    for (int number = 1; number <= file.Total(); ++number) calibrations.push_back(file.Read(number));
    return calibrations;
  });
}

bool IsCsv(const std::string& path) {
  return Extension(path) == ".CSV";
}

std::vector<Sample> ReadSpectrumSamples(const std::string& path) {
  std::vector<Sample> samples = Extension(path) == ".SPC" ? ReadSpcSamples(path) : ReadDocument(path);
  if (samples.size() == 1) {
    samples.front().name = fs::path(path).stem().string();
    return samples;
  }
  for (Sample& sample : samples) sample.place += ", \"" + sample.name + "\"";
  return samples;
}

std::vector<Sample> MatrixSamples(const CsvTable& table, const std::vector<std::size_t>& rows) {
  std::vector<Sample> samples;
  samples.reserve(rows.size());
  for (const std::size_t row : rows) {
    samples.push_back({table.SampleName(row), table.Place(row), table.Spectrum(row), ""});
  }
  return samples;
}

std::vector<Sample> ReadSamples(const std::vector<std::string>& paths,
                                const std::optional<std::string>& rows) {
  if (std::ranges::any_of(paths, IsCsv)) {
    if (paths.size() > 1) throw apps::UsageError("a CSV matrix has to be the only file of samples");
    const CsvTable table(paths.front(), FileBytes(paths.front()));
    return MatrixSamples(table, ParseRows(rows, table.RowCount()));
  }
  std::vector<Sample> all;
  for (const std::string& path : paths) {
    std::ranges::move(ReadSpectrumSamples(path), std::back_inserter(all));
  }
  std::vector<Sample> samples;
  for (const std::size_t row : ParseRows(rows, all.size())) samples.push_back(std::move(all[row]));
  return samples;
}

Eigen::VectorXd PointsOnAxis(const plslibrary::Axis& axis, const Sample& sample) {
  try {
    return plslibrary::OnAxis(axis, sample.spectrum);
  } catch (const plslibrary::PlsError& error) {
    throw SampleError(sample.place + ": " + error.what());
  }
}

}  // namespace veritane::calibrate
