// The samples that the calibration tools work on, whatever files they come from.
#pragma once

#include "apps/veritane_calibrate/csv_table.h"
#include "plslibrary/calibration.h"
#include "plslibrary/calibration_file.h"
#include "plslibrary/measured_spectrum.h"

#include <string>
#include <vector>

namespace veritane::calibrate {

struct Sample {
  std::string name;
  std::string place;  // where it was read: "gas.csv, line 3", "blend.bsp"
  plslibrary::MeasuredSpectrum spectrum;
  std::string remark;  // what its reader had to change or to doubt; "" for nothing
};

// The bytes of a native path. SampleError when it cannot be read.
std::string FileBytes(const std::string& path);
// Replaces the file whole: the old one or the new one is there, never a mixture. SampleError.
void WriteFile(const std::string& path, std::string_view bytes);

// The calibration of this number, from 1, in a ".cal" file; all of them. SampleError names the file.
plslibrary::Calibration ReadCalibration(const std::string& path, int number);
std::vector<plslibrary::Calibration> ReadCalibrations(const std::string& path);

bool IsCsv(const std::string& path);

// The spectra of a document, a JCAMP-DX file or an SPC file. A file of one spectrum gives it the file's name
// without extension, a file of several their own names. SampleError.
std::vector<Sample> ReadSpectrumSamples(const std::string& path);

// Rows of a CSV matrix.
std::vector<Sample> MatrixSamples(const CsvTable& table, const std::vector<std::size_t>& rows);

// The data files of a command line: one CSV matrix, or spectrum files; of all their samples in order those
// that `rows` names. SampleError and apps::UsageError as in CsvTable and ParseRows.
std::vector<Sample> ReadSamples(const std::vector<std::string>& paths,
                                const std::optional<std::string>& rows);

// The sample's points in the order of the axis; SampleError naming the sample where it does not fit.
Eigen::VectorXd PointsOnAxis(const plslibrary::Axis& axis, const Sample& sample);

}  // namespace veritane::calibrate
