// Printing through templates, in the order in which the program asks for it.
#include "platform/pdf/pdf_document.h"
#include "platform/system/system_machine.h"
#include "simulator/simulated_spectrometer.h"
#include "tests/simulator/queued_device.h"
#include "tests/support/automation_connection.h"
#include "tests/support/errors.h"
#include "tests/support/memory_file_system.h"
#include "tests/support/pdf_text.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_data.h"

#include <gmock/gmock.h>

namespace veritane::simulator {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using tests::AboutPdf;
using tests::ErrorOf;
using tests::MemoryFileSystem;
using tests::TextOfPdf;

// Bands on a curved baseline, so that the page has something to show.
std::vector<double> Bands(double shift) {
  std::vector<double> values;
  for (int i = 0; i < 1800; ++i) {
    const double x = (i + 400) * 2.0;
    const auto band = [x](double at, double height) { return height / (1 + (x - at) * (x - at) / 144); };
    values.push_back(0.05 + shift + band(906, 1.2) + band(1028, 0.4) + band(1601, 0.5) + band(2924, 0.7));
  }
  return values;
}

class Prints : public ::testing::Test {
protected:
  Prints() {
    std::filesystem::create_directories(root.Path() / "drive_c");
    machine.clock.Set({2026, 11, 21, 10, 59, 7});
    for (const char* name : {"Certificate of identity.bpt", "Overlay.bpt"}) {
      machine.files.WriteBytes("C:\\" + std::string(name), tests::ShippedBytes(name));
    }
    machine.files.WriteBytes("C:\\m.clm", "scans 4");
    PrintInto("C:\\Prints");
    Store(kStandard, {"Polystyrene"}, 0);
    Store(kSample, {"PS 1", "PS 2", "PS 3"}, 0.1);
  }

  void PrintInto(const std::string& folder) {
    simulated.PrintInto({.folder = folder,
                         .makePdf = platform::MakePdf,
                         .printed = [this](const std::string& path) { printed.push_back(path); }});
  }

  void Store(const std::string& path, const std::vector<std::string>& names, double shift) {
    const auto document = app.NewDocument(path);
    const auto method = app.LoadCollectMethod("C:\\m.clm");
    for (const std::string& name : names) {
      device.Queue(Bands(shift), name);
      document->CollectInto(*method);
      const auto spectrum = document->GetSpectrum();
      for (const char* parameter : {"Comparison", "Sample Name"}) {
        spectrum->GetParameterList()->AddParameter(parameter, 1);
      }
      spectrum->GetParameter("Comparison")->SetValue(97.3456);
      spectrum->GetParameter("Sample Name")->SetValue("Lot 4711: " + name);
    }
    document->CloseDocument(true);
  }

  std::shared_ptr<acquisition::Document> ShowSample(std::int16_t index) {
    auto document = app.OpenDocument(kSample);
    document->SelectSpectrum(index);
    document->PrepareSampleView();
    return document;
  }

  std::shared_ptr<acquisition::Document> ShowStandard(const std::vector<double>& peaks) {
    auto document = app.OpenDocument(kStandard);
    if (!peaks.empty()) {
      document = app.ActiveDocument();
      const auto markers = document->GetSpectrumAt(1)->GetMarkerList();
      for (const double peak : peaks) {
        const auto marker = markers->AddMarker(peak);
        marker->SetKind(2);
        marker->SetStyle(0);
        marker->SetDefinition(2, 2, peak);
      }
    }
    document->PrepareStandardView();
    document->SetDocumentShown(-1);
    return document;
  }

  void Print(acquisition::Document& document, const std::string& print_template) {
    app.BeginPrint();
    const auto print = document.OpenPrintTemplate(print_template);
    print->PrintDoc();
    print->CloseDoc();
  }

  std::filesystem::path LastPrint() { return machine.paths.ToNative(printed.at(printed.size() - 1)); }

  static constexpr const char* kSample = "C:\\sample.bsp";
  static constexpr const char* kStandard = "C:\\standard.bsp";
  static constexpr const char* kCertificate = "C:\\Certificate of identity.bpt";
  static constexpr const char* kOverlay = "C:\\Overlay.bpt";
  tests::TemporaryFolder root;
  platform::SystemMachine machine{root.Path(), "C"};
  QueuedDevice device;
  SimulatedSpectrometer simulated{machine.files, machine.clock, device};
  tests::ConnectionUnderTest connection{simulated};
  acquisition::SpectrometerApp& app = connection.App();
  std::vector<std::string> printed;
};

TEST_F(Prints, TheCertificateIsOnePageOfVectorsWithSampleStandardAndMarkers) {
  ShowSample(3);
  Print(*ShowStandard({906, 1028, 1601, 2924}), kCertificate);
  ASSERT_THAT(printed, ElementsAre("C:\\Prints\\Lot 4711_ PS 3 2026-11-21 10-59-07.pdf"));
  const std::string text = TextOfPdf(LastPrint());
  for (const char* part : {"Certificate of identity", "Lot 4711: PS 3", "2026/11/21 10:59:07", "97.35",
                           "Polystyrene", "standard.bsp", "2924, 1601, 1028, 906", "Wavenumber / cm⁻¹",
                           "Sample: PS 3", "Standard: Polystyrene", "Printed 2026-11-21 10:59:07"}) {
    EXPECT_THAT(text, HasSubstr(part));
  }
  const std::string about = AboutPdf("pdfinfo", LastPrint());
  EXPECT_THAT(about, HasSubstr("Pages:           1"));
  EXPECT_THAT(about, HasSubstr("(A4)"));
  EXPECT_THAT(about, HasSubstr("Title:           Certificate of identity – Lot 4711: PS 3"));
  EXPECT_THAT(AboutPdf("pdfimages -list", LastPrint()), Not(HasSubstr("image ")));
  EXPECT_THAT(AboutPdf("pdffonts", LastPrint()), HasSubstr("DejaVuSans"));
}

TEST_F(Prints, ASamplePrintedByItselfShowsNoStandardThatWasLeftOpen) {
  ShowStandard({});
  Print(*ShowSample(2), kOverlay);
  const std::string text = TextOfPdf(LastPrint());
  EXPECT_THAT(text, HasSubstr("Sample: PS 2"));
  EXPECT_THAT(text, HasSubstr("Standard –"));
  EXPECT_THAT(text, Not(HasSubstr("Polystyrene")));
}

TEST_F(Prints, ADocumentWithoutSpectraLeavesTheSampleInViewAndIsNone) {
  ShowSample(1);
  const auto standard = app.NewDocument("C:\\new standard.bsp");
  EXPECT_EQ(ErrorOf([&] { standard->PrepareSampleView(); }), 9);
  device.Queue(Bands(0), "Polystyrene");
  standard->CollectInto(*app.LoadCollectMethod("C:\\m.clm"));
  Print(*standard, kOverlay);
  EXPECT_THAT(printed, ElementsAre("C:\\Prints\\Lot 4711_ PS 1 2026-11-21 10-59-07.pdf"));
}

TEST_F(Prints, APrintOutOfOrderIsRefusedAndMakesNothing) {
  const auto standard = ShowStandard({});
  const auto early = standard->OpenPrintTemplate(kOverlay);
  EXPECT_EQ(ErrorOf([&] { early->PrintDoc(); }), 5);  // not begun
  app.BeginPrint();
  EXPECT_EQ(ErrorOf([&] { early->PrintDoc(); }), 5);  // no sample in view
  Print(*ShowSample(1), kOverlay);
  // The sample in view was printed: the next print needs one of its own.
  app.BeginPrint();
  const auto late = standard->OpenPrintTemplate(kOverlay);
  EXPECT_EQ(ErrorOf([&] { late->PrintDoc(); }), 5);
  late->CloseDoc();
  EXPECT_EQ(ErrorOf([&] { late->PrintDoc(); }), 5);
  EXPECT_EQ(ErrorOf([&] { late->CloseDoc(); }), 5);
  EXPECT_THAT(printed, SizeIs(1));
}

TEST_F(Prints, AfterATemplateThatCannotBeReadThenOneThatCanPrints) {
  const auto sample = ShowSample(1);
  app.BeginPrint();
  EXPECT_EQ(ErrorOf([&] { sample->OpenPrintTemplate("C:\\none.bpt"); }), 53);
  EXPECT_EQ(ErrorOf([&] { sample->OpenPrintTemplate(kSample); }), 321);
  EXPECT_THAT(printed, IsEmpty());
  Print(*sample, kOverlay);
  EXPECT_THAT(printed, SizeIs(1));
}

TEST_F(Prints, AMissingFolderIsToldAndThePrintCanBeRepeated) {
  PrintInto("C:\\gone\\Prints");
  const auto sample = ShowSample(1);
  EXPECT_EQ(ErrorOf([&] { Print(*sample, kOverlay); }), 76);
  PrintInto("C:\\Prints");
  Print(*sample, kOverlay);
  EXPECT_THAT(printed, ElementsAre("C:\\Prints\\Lot 4711_ PS 1 2026-11-21 10-59-07.pdf"));
}

TEST(PrintFaults, AFullDiskAndAReadOnlyFolderAreErrorsThatLeaveNoPrint) {
  MemoryFileSystem files;
  tests::TemporaryFolder root;
  platform::SystemMachine machine(root.Path(), "C");
  QueuedDevice device;
  SimulatedSpectrometer app(files, machine.clock, device);
  std::vector<std::string> printed;
  app.PrintInto({.folder = "C:\\Prints",
                 .makePdf = platform::MakePdf,
                 .printed = [&](const std::string& path) { printed.push_back(path); }});
  files.WriteBytes("C:\\m.clm", "scans 4");
  files.WriteBytes("C:\\t.bpt", "Template = 1\nText = at 10 10 : {SpectName}");
  const auto document = app.NewDocument("C:\\a.bsp");
  device.Queue({1, 2, 3}, "Lot 7");
  document->CollectInto(*app.LoadCollectMethod("C:\\m.clm"));
  document->PrepareSampleView();
  app.BeginPrint();
  const auto print = document->OpenPrintTemplate("C:\\t.bpt");
  for (const int fault : {61, 70, 75}) {
    files.writeFault = fault;
    EXPECT_EQ(ErrorOf([&] { print->PrintDoc(); }), fault);
  }
  EXPECT_THAT(printed, IsEmpty());
  files.writeFault = 0;
  print->PrintDoc();
  ASSERT_THAT(printed, SizeIs(1));
  EXPECT_TRUE(files.ReadBytes(printed[0]).starts_with("%PDF-"));
}

}  // namespace
}  // namespace veritane::simulator
