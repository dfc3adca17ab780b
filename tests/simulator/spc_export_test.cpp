// The "Export" operation: what stands in the SPC file, read by a reader of this test's own, and what happens
// to the file and the document when it fails.
#include "platform/system/disk_file_system.h"
#include "plslibrary/spc_reader.h"
#include "simulator/simulated_spectrometer.h"
#include "simulator/spc_writer.h"
#include "tests/simulator/queued_device.h"
#include "tests/support/automation_connection.h"
#include "tests/support/errors.h"
#include "tests/support/memory_file_system.h"
#include "tests/support/standing_clock.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace veritane::simulator {
namespace {

using ::testing::ElementsAre;
using tests::ErrorOf;
using tests::MemoryFileSystem;
using tests::StandingClock;

template <typename Number>
Number NumberAt(const std::string& bytes, std::size_t offset) {
  Number number{};
  if (offset + sizeof(Number) > bytes.size()) throw std::out_of_range("the file is too short");
  std::memcpy(&number, bytes.data() + offset, sizeof(Number));  // both are little-endian
  return number;
}

// A new-form SPC file with one evenly spaced spectrum of IEEE numbers, as its published layout says.
struct ReadBack {
  explicit ReadBack(const std::string& bytes) {
    EXPECT_EQ(NumberAt<std::uint8_t>(bytes, 0), 0) << "flags";
    EXPECT_EQ(NumberAt<std::uint8_t>(bytes, 1), 0x4B) << "version";
    EXPECT_EQ(NumberAt<std::uint8_t>(bytes, 2), 4) << "experiment";
    EXPECT_EQ(NumberAt<std::uint8_t>(bytes, 3), 0x80) << "exponent";
    EXPECT_EQ(NumberAt<std::uint32_t>(bytes, 24), 1U) << "spectra";
    EXPECT_EQ(NumberAt<std::uint32_t>(bytes, 248), 0U) << "log";
    EXPECT_EQ(NumberAt<std::uint8_t>(bytes, 513), 0x80) << "subheader's exponent";
    const auto points = NumberAt<std::uint32_t>(bytes, 4);
    EXPECT_EQ(bytes.size(), 544 + 4 * std::size_t{points});
    const auto first = NumberAt<double>(bytes, 8);
    const auto last = NumberAt<double>(bytes, 16);
    for (std::uint32_t i = 0; i < points; ++i) {
      x.push_back(points == 1 ? first : first + i * (last - first) / (points - 1));
      y.push_back(NumberAt<float>(bytes, 544 + 4 * std::size_t{i}));
    }
    xType = NumberAt<std::uint8_t>(bytes, 28);
    yType = NumberAt<std::uint8_t>(bytes, 29);
    date = NumberAt<std::uint32_t>(bytes, 32);
    EXPECT_EQ(bytes.at(88 + 129), '\0') << "the memo's end";
    memo = bytes.substr(88, 130).c_str();
  }

  std::vector<double> x;
  std::vector<float> y;
  int xType = -1;
  int yType = -1;
  std::uint32_t date = 0;
  std::string memo;
};

// A document with two spectra of three points.
std::shared_ptr<acquisition::Document> TwoSpectra(acquisition::SpectrometerApp& app, QueuedDevice& device) {
  const auto document = app.NewDocument("C:\\s\\a.bsp");
  const auto method = app.LoadCollectMethod("C:\\m.clm");
  device.Queue({1, 2, 3}, "first");
  device.Queue({0.1, -1e-9, 1e30}, "second");
  document->CollectInto(*method);
  document->CollectInto(*method);
  return document;
}

void Export(acquisition::Document& document, const std::string& path) {
  const auto operation = document.CreateOperation("Export");
  operation->SetFileName(path);
  document.ApplyOperation(*operation);
}

class SpcExport : public ::testing::Test {
protected:
  SpcExport() { files.WriteBytes("C:\\m.clm", "scans 4"); }

  MemoryFileSystem files;
  StandingClock clock;
  QueuedDevice device;
  SimulatedSpectrometer simulated{files, clock, device};
  tests::ConnectionUnderTest connection{simulated};
  acquisition::SpectrometerApp& app = connection.App();
};

StoredSpectrum Spectrum(std::vector<double> values) {
  StoredSpectrum spectrum;
  spectrum.name = "s";
  spectrum.spacing = 2;
  spectrum.ordinates = {200, std::move(values)};
  return spectrum;
}

TEST_F(SpcExport, TheCurrentSpectrumIsWrittenWithItsPointsNameAndDate) {
  const auto document = TwoSpectra(app, device);
  document->SelectSpectrum(1);
  Export(*document, "c:\\temp.spc");
  const ReadBack first(files.ReadBytes("C:\\temp.spc"));
  EXPECT_THAT(first.y, ElementsAre(1, 2, 3));
  EXPECT_EQ(first.memo, "first");

  document->SelectSpectrum(2);
  Export(*document, "C:\\TEMP.SPC");
  const ReadBack second(files.ReadBytes("c:\\temp.spc"));
  EXPECT_THAT(second.x, ElementsAre(800, 802, 804));
  EXPECT_THAT(second.y, ElementsAre(0.1F, -1e-9F, 1e30F));
  EXPECT_EQ(second.memo, "second");
  EXPECT_EQ(second.xType, 1);
  EXPECT_EQ(second.date & 63, 59U);
  EXPECT_EQ(second.date >> 6 & 31, 10U);
  EXPECT_EQ(second.date >> 11 & 31, 21U);
  EXPECT_EQ(second.date >> 16 & 15, 11U);
  EXPECT_EQ(second.date >> 20, 2026U);
}

TEST(SpcWriter, ThePredictionLibraryReadsWhatWasExported) {
  StoredSpectrum spectrum = Spectrum({});
  spectrum.spacing = 0.9642;
  spectrum.yUnits = "ABSORBANCE";
  for (int i = 0; i < 3601; ++i) {
    spectrum.ordinates.values.push_back(std::sin(i * 0.01) * std::exp2(-i % 40));
  }
  const auto read = plslibrary::ReadSpc(WriteSpc(spectrum));
  ASSERT_THAT(read, ::testing::SizeIs(1));
  EXPECT_EQ(read[0].firstX, 200 * spectrum.spacing);
  EXPECT_EQ(read[0].lastX, 3800 * spectrum.spacing);
  EXPECT_EQ(read[0].xType, 1);
  EXPECT_EQ(read[0].yType, 2);
  ASSERT_THAT(read[0].y, ::testing::SizeIs(3601));
  for (std::size_t i = 0; i < 3601; ++i) {
    EXPECT_EQ(read[0].y[i], static_cast<double>(static_cast<float>(spectrum.ordinates.values[i]))) << i;
  }
}

TEST_F(SpcExport, TheDocumentStaysAsItWas) {
  TwoSpectra(app, device)->CloseDocument(true);
  const auto document = app.OpenDocument("C:\\s\\a.bsp");
  const int writes = files.writes;
  Export(*document, "C:\\temp.spc");
  EXPECT_THAT(document->GetSpectrum()->SpectrumData()->Values().values, ElementsAre(1, 2, 3));
  document->CloseDocument(true);
  EXPECT_EQ(files.writes, writes + 1) << "an export is no change of the document";
}

TEST_F(SpcExport, AFailureIsRaisedAndLeavesTheFileThatWasThere) {
  files.WriteBytes("C:\\temp.spc", "old");
  const auto document = TwoSpectra(app, device);
  for (const int fault : {61, 70, 75, 76}) {
    files.writeFault = fault;
    EXPECT_EQ(ErrorOf([&] { Export(*document, "C:\\temp.spc"); }), fault);
  }
  files.writeFault = 0;
  device.Queue({1, 1e39, 3});
  document->CollectInto(*app.LoadCollectMethod("C:\\m.clm"));
  EXPECT_EQ(ErrorOf([&] { Export(*document, "C:\\temp.spc"); }), 6);
  EXPECT_EQ(files.ReadBytes("C:\\temp.spc"), "old");
  EXPECT_EQ(ErrorOf([&] { Export(*document, "c:\\S\\A.bsp"); }), 55) << "the document's own file";
  document->CloseDocument(false);
  EXPECT_EQ(ErrorOf([&] { document->CreateOperation("Export"); }), 5);
  EXPECT_EQ(ErrorOf([&] { Export(*app.NewDocument("C:\\empty.bsp"), "C:\\temp.spc"); }), 9);
}

TEST_F(SpcExport, EachKindOfOperationHasItsOwnPropertyAlone) {
  const auto document = TwoSpectra(app, device);
  simulated.TakeCalls();
  const auto exporting = document->CreateOperation("Export");
  const auto unary = document->CreateOperation("Unary");
  EXPECT_EQ(ErrorOf([&] { exporting->SetOperation(6); }), 5);
  EXPECT_EQ(ErrorOf([&] { unary->SetFileName("C:\\temp.spc"); }), 5);
  exporting->SetFileName("c:\\temp.spc");
  unary->SetOperation(6);
  document->ApplyOperation(*exporting);
  document->ApplyOperation(*unary);
  EXPECT_THAT(simulated.TakeCalls(), ElementsAre("CreateOperation(Export)", "CreateOperation(Unary)",
                                                 "ApplyOperation(c:\\temp.spc)", "ApplyOperation(6)"));
}

TEST(SpcExportOnDisk, FoldersAndCaseOfTheDriveAreThoseOfSaving) {
  const tests::TemporaryFolder folder;
  std::filesystem::create_directories(folder.Path() / "drive_c" / "s");
  const platform::PathMap paths(folder.Path());
  const StandingClock clock;
  platform::DiskFileSystem files(paths, clock);
  files.WriteBytes("C:\\m.clm", "scans 4");
  StandingClock own_clock;
  QueuedDevice device;
  SimulatedSpectrometer app(files, own_clock, device);
  const auto document = TwoSpectra(app, device);
  Export(*document, "c:\\temp.spc");
  document->SelectSpectrum(1);
  Export(*document, "C:\\Temp.SPC");
  EXPECT_THAT(files.ListFiles("C:\\"), ElementsAre("m.clm", "temp.spc"))
      << "replaced, and no temporary file left";
  EXPECT_THAT(ReadBack(files.ReadBytes("C:\\temp.spc")).y, ElementsAre(1, 2, 3));
  EXPECT_EQ(ErrorOf([&] { Export(*document, "C:\\none\\temp.spc"); }), 76);
  EXPECT_EQ(ErrorOf([&] { Export(*document, "C:\\s"); }), 75);
  const auto unnamed = document->CreateOperation("Export");
  EXPECT_EQ(ErrorOf([&] { document->ApplyOperation(*unnamed); }), 52);
}

TEST(SpcWriter, UnitsAreCodedHoweverTheyAreSpelled) {
  EXPECT_EQ(SpcXType("1/CM"), 1);
  EXPECT_EQ(SpcXType("cm-1"), 1);
  EXPECT_EQ(SpcXType("Nanometers"), 3);
  EXPECT_EQ(SpcXType("CM"), 0) << "the transform's axis";
  for (const auto& [units, code] : std::vector<std::pair<std::string, int>>{{"ABSORBANCE", 2},
                                                                            {"A", 2},
                                                                            {"PERCENT TRANSMITTANCE", 128},
                                                                            {"Transmittance", 128},
                                                                            {"%T", 128},
                                                                            {"REFLECTANCE", 129},
                                                                            {"SINGLE BEAM", 130},
                                                                            {"ARBITRARY UNITS", 0},
                                                                            {"", 0}}) {
    StoredSpectrum spectrum = Spectrum({1});
    spectrum.yUnits = units;
    EXPECT_EQ(ReadBack(WriteSpc(spectrum)).yType, code) << units;
  }
}

TEST(SpcWriter, TextThatDoesNotFitIsCutAndADateThatIsNoneLeftOut) {
  StoredSpectrum spectrum = Spectrum({1, 2});
  spectrum.name = "Größe\n5 µm → 7" + std::string(200, 'x');
  spectrum.time = "yesterday";
  const ReadBack read(WriteSpc(spectrum));
  EXPECT_EQ(read.memo,
            "Gr\xF6\xDF"
            "e 5 \xB5m ? 7" +
                std::string(129 - 14, 'x'));
  EXPECT_EQ(read.date, 0U);
}

TEST(SpcWriter, WhatIsNoSpectrumIsRefused) {
  EXPECT_EQ(ErrorOf([&] { WriteSpc(Spectrum({})); }), 5);
  EXPECT_EQ(ErrorOf([&] { WriteSpc(Spectrum({1, std::nan("")})); }), 5);
  EXPECT_EQ(ErrorOf([&] { WriteSpc(Spectrum({1, -INFINITY})); }), 5);
  StoredSpectrum spectrum = Spectrum({1, 2});
  spectrum.spacing = 0;
  EXPECT_EQ(ErrorOf([&] { WriteSpc(spectrum); }), 5);
  spectrum.spacing = 1e308;
  EXPECT_EQ(ErrorOf([&] { WriteSpc(spectrum); }), 5);
}

}  // namespace
}  // namespace veritane::simulator
