// Documents of the simulated Spectrometer application as the program uses them, and the log of what was
// called.
#include "simulator/call_log.h"
#include "simulator/simulated_spectrometer.h"
#include "simulator/spectrum_file.h"
#include "simulator/transform.h"
#include "tests/simulator/queued_device.h"
#include "tests/support/automation_connection.h"
#include "tests/support/errors.h"
#include "tests/support/memory_file_system.h"
#include "tests/support/standing_clock.h"

#include <gmock/gmock.h>

#include <cmath>

namespace veritane::simulator {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using tests::ErrorOf;
using tests::MemoryFileSystem;

class Documents : public ::testing::Test {
protected:
  Documents() { files.WriteBytes(kMethod, "scans 4"); }

  // A stored document with one spectrum for each of `names`.
  void Store(const std::string& path, const std::vector<std::string>& names) {
    const auto document = app.NewDocument(path);
    const auto method = app.LoadCollectMethod(kMethod);
    for (const std::string& name : names) {
      device.Queue({1, 2, 3}, name);
      ASSERT_EQ(document->CollectInto(*method), 0);
    }
    document->CloseDocument(true);
  }

  std::string NameAt(const std::string& path, std::int16_t index) {
    const auto document = app.OpenDocument(path);
    const auto value = document->GetSpectrumAt(index)->GetParameter("SpectName")->Value();
    document->CloseDocument(false);
    return std::get<std::string>(value);
  }

  static constexpr const char* kMethod = "C:\\m.clm";
  static constexpr const char* kFile = "C:\\s\\a.bsp";
  MemoryFileSystem files;
  tests::StandingClock clock;
  QueuedDevice device;
  SimulatedSpectrometer simulated{files, clock, device};
  tests::ConnectionUnderTest connection{simulated};
  acquisition::SpectrometerApp& app = connection.App();
};

TEST_F(Documents, ACollectedSpectrumReachesTheDiskWhenTheDocumentIsClosedWithSaving) {
  const auto document = app.NewDocument(kFile);
  const auto method = app.LoadCollectMethod(kMethod);
  device.Queue({0.5, -0.0, 1e-300});
  EXPECT_EQ(document->CollectInto(*method), 0);
  EXPECT_FALSE(files.FileExists(kFile));
  const auto spectrum = document->GetSpectrum();
  spectrum->GetParameter("SpectName")->SetValue(std::string("Lot 4711"));
  document->CloseDocument(true);

  const auto again = app.OpenDocument(kFile);
  EXPECT_EQ(again->GetSpectrumCount(), 1);
  const auto data = again->GetSpectrum()->SpectrumData();
  EXPECT_EQ(data->Spacing(), 2);
  EXPECT_EQ(data->NumberOfPoints(), 3);
  EXPECT_EQ(data->Values().lower, 400);
  EXPECT_THAT(data->Values().values, ElementsAre(0.5, -0.0, 1e-300));
  EXPECT_EQ(again->GetSpectrum()->GetParameter("SpectName")->Value(),
            acquisition::ParameterValue("Lot 4711"));
  EXPECT_EQ(again->GetSpectrum()->GetParameter("Time")->Value(),
            acquisition::ParameterValue("2026/11/21 10:59:07"));
}

TEST_F(Documents, InstrumentErrorsAreReturnedAndAppendNothing) {
  const auto document = app.NewDocument(kFile);
  const auto method = app.LoadCollectMethod(kMethod);
  device.QueueError(11079);
  device.QueueError(5);
  device.Queue({1});
  EXPECT_EQ(document->CollectInto(*method), 11079);
  EXPECT_EQ(document->CollectInto(*method), 5);
  EXPECT_EQ(document->GetSpectrumCount(), 0);
  EXPECT_EQ(ErrorOf([&] { document->GetSpectrum(); }), 9);
  EXPECT_EQ(document->CollectInto(*method), 0);
  EXPECT_EQ(document->GetSpectrumCount(), 1);
  device.alignments = {7, 0};
  EXPECT_EQ(document->AutoAlign(*method), 7);
  EXPECT_EQ(document->AutoAlign(*method), 0);
}

TEST_F(Documents, ASpectrumOfNoNumbersIsADeviceFault) {
  const auto document = app.NewDocument(kFile);
  const auto method = app.LoadCollectMethod(kMethod);
  device.Queue({1, std::nan(""), 3});
  device.Queue({});
  EXPECT_EQ(ErrorOf([&] { document->CollectInto(*method); }), 57);
  EXPECT_EQ(ErrorOf([&] { document->CollectInto(*method); }), 57);
  EXPECT_EQ(document->GetSpectrumCount(), 0);
}

TEST_F(Documents, TheDeviceIsHandedTheMethodAndTheBackground) {
  Store("C:\\s\\back.bsp", {"background"});
  const auto document = app.NewDocument(kFile);
  const auto method = app.LoadCollectMethod(kMethod);
  method->SetBackgroundFile("C:\\s\\back.bsp(1)");
  device.Queue({1});
  document->CollectInto(*method);
  const CollectRequest& request = device.requests.back();
  EXPECT_EQ(request.methodText, "scans 4");
  ASSERT_TRUE(request.background);
  EXPECT_EQ(request.background->name, "background");

  for (const char* missing : {"C:\\s\\back.bsp(2)", "C:\\s\\none.bsp(1)", "C:\\m.clm(1)"}) {
    method->SetBackgroundFile(missing);
    device.Queue({1});
    document->CollectInto(*method);
    EXPECT_FALSE(device.requests.back().background) << missing;
    EXPECT_NE(device.requests.back().backgroundFault, "") << missing;
  }
}

TEST_F(Documents, ClosingWithoutSavingOrWithoutChangesLeavesTheFileAsItWas) {
  Store(kFile, {"first"});
  const std::string before = files.ReadBytes(kFile);
  const int writes = files.writes;
  auto document = app.OpenDocument(kFile);
  document->GetSpectrum()->GetParameter("SpectName")->SetValue(std::string("changed"));
  document->CloseDocument(false);
  document = app.OpenDocument(kFile);
  document->SelectSpectrum(1);
  document->CloseDocument(true);
  app.OpenDocument(kFile)->CloseDocument();
  EXPECT_EQ(files.ReadBytes(kFile), before);
  EXPECT_EQ(files.writes, writes);
}

TEST_F(Documents, ARefusedSaveLeavesDocumentAndFileAsTheyWere) {
  Store(kFile, {"first"});
  const std::string before = files.ReadBytes(kFile);
  const auto document = app.OpenDocument(kFile);
  device.Queue({4, 5, 6}, "second");
  document->CollectInto(*app.LoadCollectMethod(kMethod));
  files.writeFault = 61;
  EXPECT_EQ(ErrorOf([&] { document->CloseDocument(true); }), 61);
  EXPECT_EQ(ErrorOf([&] { document->SaveDocumentAs("C:\\s\\b.bsp"); }), 61);
  EXPECT_EQ(files.ReadBytes(kFile), before);
  EXPECT_FALSE(files.FileExists("C:\\s\\b.bsp"));
  files.writeFault = 0;
  EXPECT_EQ(document->GetSpectrumCount(), 2);
  document->CloseDocument(true);
  EXPECT_EQ(NameAt(kFile, 2), "second") << "the path was still the old one";
}

TEST_F(Documents, SaveAsMovesTheDocumentToItsNewPath) {
  Store(kFile, {"first"});
  const std::string before = files.ReadBytes(kFile);
  const auto document = app.OpenDocument(kFile);
  document->SaveDocumentAs("C:\\s\\full.bsp");
  device.Queue({4}, "second");
  document->CollectInto(*app.LoadCollectMethod(kMethod));
  document->CloseDocument(true);
  EXPECT_EQ(files.ReadBytes(kFile), before);
  EXPECT_EQ(NameAt("C:\\s\\full.bsp", 2), "second");
}

TEST_F(Documents, AnEmptyDocumentNeverReplacesAFile) {
  Store(kFile, {"first"});
  const auto document = app.NewDocument(kFile);
  EXPECT_EQ(ErrorOf([&] { document->CloseDocument(true); }), 5);
  document->CloseDocument(false);
  EXPECT_EQ(NameAt(kFile, 1), "first");
}

TEST_F(Documents, TwoDocumentsOnOnePathCannotOverwriteEachOther) {
  Store(kFile, {"first"});
  const auto method = app.LoadCollectMethod(kMethod);
  const auto one = app.OpenDocument(kFile);
  const auto other = app.OpenDocument("c:\\S\\A.bsp");
  device.Queue({4}, "of one");
  device.Queue({5}, "of the other");
  one->CollectInto(*method);
  other->CollectInto(*method);
  one->CloseDocument(true);
  EXPECT_EQ(ErrorOf([&] { other->CloseDocument(true); }), 55);
  EXPECT_EQ(ErrorOf([&] { other->SaveDocumentAs(kFile); }), 55);
  other->SaveDocumentAs("C:\\s\\other.bsp");
  EXPECT_EQ(NameAt(kFile, 2), "of one");
  EXPECT_EQ(NameAt("C:\\s\\other.bsp", 2), "of the other");
}

TEST_F(Documents, AFileThatCouldNotBeOpenedWholeIsNotSavedOver) {
  const std::string peaks = "##TITLE= p\n##PEAK TABLE= (XY..XY)\n1,2\n##END=\n";
  Store(kFile, {"first"});
  const std::string mixed =
      "##TITLE= l\n##DATA TYPE= LINK\n##BLOCKS= 2\n" + peaks + files.ReadBytes(kFile) + "##END=\n";
  files.WriteBytes(kFile, mixed);
  const auto document = app.OpenDocument(kFile);
  document->GetSpectrum()->GetParameter("SpectName")->SetValue(std::string("changed"));
  EXPECT_EQ(ErrorOf([&] { document->CloseDocument(true); }), 5);
  EXPECT_EQ(files.ReadBytes(kFile), mixed);
  document->SaveDocumentAs("C:\\s\\new.bsp");
  EXPECT_EQ(NameAt("C:\\s\\new.bsp", 1), "changed");
}

TEST_F(Documents, WhatCannotBeOpenedSaysWhichFileAndWhy) {
  EXPECT_EQ(ErrorOf([&] { app.OpenDocument("C:\\none.bsp"); }), 53);
  EXPECT_EQ(ErrorOf([&] { app.LoadCollectMethod("C:\\none.clm"); }), 53);
  try {
    app.OpenDocument(kMethod);
    FAIL();
  } catch (const platform::RunTimeError& error) {
    EXPECT_EQ(error.Number(), kInvalidFileFormat);
    EXPECT_THAT(error.what(), HasSubstr("C:\\m.clm: "));
  }
}

TEST_F(Documents, SpectraAreNumberedFromOneAndSelectionStopsAtTheLast) {
  Store(kFile, {"first", "second"});
  const auto document = app.OpenDocument(kFile);
  const auto current = [&] {
    return std::get<std::string>(document->GetSpectrum()->GetParameter("SpectName")->Value());
  };
  EXPECT_EQ(current(), "first");
  document->SelectSpectrum(2);
  EXPECT_EQ(current(), "second");
  document->SelectSpectrum(1);
  document->SelectSpectrum(99);
  EXPECT_EQ(current(), "second");
  EXPECT_EQ(ErrorOf([&] { document->SelectSpectrum(0); }), 9);
  EXPECT_EQ(ErrorOf([&] { document->GetSpectrumAt(0); }), 9);
  EXPECT_EQ(ErrorOf([&] { document->GetSpectrumAt(3); }), 9);
}

TEST_F(Documents, ParametersExistOnceAddedAndKeepTheirValues) {
  Store(kFile, {"first"});
  auto document = app.OpenDocument(kFile);
  auto spectrum = document->GetSpectrum();
  EXPECT_EQ(ErrorOf([&] { spectrum->GetParameter("Comparison"); }), 5);
  spectrum->GetParameterList()->AddParameter("Comparison", 1);
  spectrum->GetParameter("Comparison")->SetValue(97.35);
  spectrum->GetParameterList()->AddParameter("Comparison", 1);
  EXPECT_EQ(spectrum->GetParameter("Comparison")->Value(), acquisition::ParameterValue(97.35));
  EXPECT_EQ(ErrorOf([&] { spectrum->GetParameter("Time")->SetValue(1.0); }), 13);
  document->CloseDocument(true);
  document = app.OpenDocument(kFile);
  EXPECT_EQ(document->GetSpectrum()->GetParameter("Comparison")->Value(), acquisition::ParameterValue(97.35));
}

TEST_F(Documents, TheTransformReplacesTheCurrentSpectrumAndHeldOnesStayReadable) {
  Store(kFile, {"first"});
  const auto document = app.OpenDocument(kFile);
  const auto held = document->GetSpectrum();
  const auto operation = document->CreateOperation("Unary");
  EXPECT_EQ(ErrorOf([&] { document->ApplyOperation(*operation); }), 5) << "no operation was chosen";
  operation->SetOperation(6);
  document->ApplyOperation(*operation);
  const auto transformed = document->GetSpectrum()->SpectrumData()->Values();
  EXPECT_EQ(transformed.lower, 0);
  EXPECT_EQ(transformed.values, RealFourierTransform({1, 2, 3}));
  EXPECT_EQ(ErrorOf([&] { document->CreateOperation("Binary"); }), 5);
  document->CloseDocument(false);
  EXPECT_THAT(held->SpectrumData()->Values().values, ElementsAre(1, 2, 3));
  EXPECT_EQ(ErrorOf([&] { held->GetParameter("SpectName")->SetValue(std::string("late")); }), 5);
}

TEST_F(Documents, AClosedDocumentAndAnApplicationThatQuitRefuseEveryUse) {
  Store(kFile, {"first"});
  const auto closed = app.OpenDocument(kFile);
  closed->CloseDocument(false);
  EXPECT_EQ(ErrorOf([&] { closed->CloseDocument(true); }), 5);
  EXPECT_EQ(ErrorOf([&] { closed->GetSpectrum(); }), 5);
  EXPECT_EQ(ErrorOf([&] { closed->GetSpectrumCount(); }), 5);
  const auto open = app.OpenDocument(kFile);
  app.QuitApplication();
  EXPECT_EQ(ErrorOf([&] { open->GetSpectrum(); }), 5);
  EXPECT_EQ(ErrorOf([&] { app.OpenDocument(kFile); }), kServerGone);
  EXPECT_EQ(ErrorOf([&] { app.Interactive(true); }), kServerGone);
}

TEST_F(Documents, TheActiveDocumentIsTheLastOneStillOpen) {
  EXPECT_EQ(ErrorOf([&] { app.ActiveDocument(); }), 5);
  Store(kFile, {"first"});
  const auto first = app.OpenDocument(kFile);
  const auto second = app.NewDocument("C:\\s\\b.bsp");
  EXPECT_EQ(app.ActiveDocument()->GetSpectrumCount(), 0);
  second->CloseDocument(false);
  EXPECT_EQ(app.ActiveDocument()->GetSpectrumCount(), 1);
}

TEST_F(Documents, MarkersAreKeptAsAskedFor) {
  Store(kFile, {"first"});
  const auto document = app.OpenDocument(kFile);
  const auto kept = std::dynamic_pointer_cast<SimulatedDocument>(simulated.ActiveDocument());
  ASSERT_TRUE(kept);
  const auto marker = document->GetSpectrum()->GetMarkerList()->AddMarker(1700);
  marker->SetKind(2);
  marker->SetStyle(0);
  marker->SetDefinition(2, 2, 1650.5);
  const StoredMarker& stored = kept->Spectra().at(0)->markers.at(0);
  EXPECT_EQ(stored.x, 1700);
  EXPECT_EQ(stored.kind, 2);
  EXPECT_EQ(stored.lowerBound, 1650.5);
  document->GetSpectrum()->GetMarkerList()->ClearMarkers();
  EXPECT_EQ(ErrorOf([&] { marker->SetKind(1); }), 5);
  EXPECT_EQ(ErrorOf([&] { document->OpenPrintTemplate("C:\\none.bpt"); }), 53);
  EXPECT_EQ(ErrorOf([&] { document->OpenPrintTemplate(kMethod); }), kInvalidFileFormat);
}

TEST(CallLog, KeepsTheLastCallsUntilTheyAreTaken) {
  CallLog calls;
  for (std::size_t call = 0; call <= CallLog::kMostCalls; ++call) calls.Note("SelectSpectrum", call);
  const auto taken = calls.Take();
  ASSERT_EQ(taken.size(), CallLog::kMostCalls);
  EXPECT_EQ(taken.front(), "SelectSpectrum(1)");
  EXPECT_THAT(calls.Take(), ::testing::IsEmpty());
}

}  // namespace
}  // namespace veritane::simulator
