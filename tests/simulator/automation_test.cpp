// The contract through automation: what travels, under which names, and what becomes of damage and misuse.
// The contract's own tests run through automation too (tests/support/automation_connection.h).
#include "acquisition/spectrometer_session.h"
#include "platform/number_text.h"
#include "simulator/simulated_spectrometer.h"
#include "tests/support/automation_connection.h"
#include "tests/support/errors.h"
#include "tests/support/memory_file_system.h"

#include <gmock/gmock.h>

#include <cmath>
#include <map>

namespace veritane::simulator {
namespace {

using acquisition::AutomationMembers;
using platform::AutomationValue;
using platform::MemberUse;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using tests::ErrorOf;

// Writes down how it is used and answers as it was told.
class RecordingObject : public platform::AutomationObject,
                        public std::enable_shared_from_this<RecordingObject> {
public:
  AutomationValue Use(MemberUse use, std::string_view member,
                      std::span<const AutomationValue> arguments) override {
    constexpr std::array<const char*, 4> kUses{"call ", "callref ", "get ", "put "};
    std::string line = kUses.at(static_cast<std::size_t>(use)) + std::string(member);
    for (const AutomationValue& argument : arguments) line += " " + Text(argument);
    lines.push_back(line);
    const auto answer = answers.find(std::string(member));
    return answer == answers.end() ? AutomationValue(shared_from_this()) : answer->second;
  }

  std::vector<std::string> lines;
  std::map<std::string, AutomationValue> answers;

private:
  static std::string Text(const AutomationValue& value) {
    switch (value.index()) {
      case 1:
        return std::get<bool>(value) ? "true" : "false";
      case 2:
        return "i2:" + std::to_string(std::get<std::int16_t>(value));
      case 3:
        return "i4:" + std::to_string(std::get<std::int32_t>(value));
      case 4:
        return "r8:" + platform::PlainNumberText(std::get<double>(value));
      case 5:
        return std::get<std::string>(value);
      case 7:
        return "object";
      default:
        return "?";
    }
  }
};

class AutomationClient : public ::testing::Test {
protected:
  std::shared_ptr<RecordingObject> server = std::make_shared<RecordingObject>();
  tests::InMemoryAutomation automation{server};
  std::unique_ptr<acquisition::SpectrometerApp> app =
      acquisition::ConnectSpectrometerApp(automation, tests::kProgId, {});
};

TEST_F(AutomationClient, EveryOperationUsesItsMemberWithArgumentsOfTheContractsTypes) {
  server->answers = {{"CollectInto", std::int16_t{0}}, {"AutoAlign", std::int16_t{0}}};
  app->Interactive(false);
  const auto method = app->LoadCollectMethod("m.clm");
  method->SetCollectOption("NI");
  method->SetBackgroundFile("b.bsp(1)");
  method->SetScanParameter(1);
  method->SetSubParameter(0);
  const auto document = app->OpenDocument("a.bsp");
  document->AutoAlign(*method);
  document->CollectInto(*method);
  document->CloseDocument(true);
  document->CloseDocument();
  document->SelectSpectrum(2);
  document->SetDocumentShown(-1);
  document->GetSpectrumAt(3)->GetParameterList()->AddParameter("Water", 1);
  document->GetSpectrum()->GetParameter("Water")->SetValue(0.5);
  document->GetSpectrum()->GetMarkerList()->AddMarker(1700)->SetDefinition(2, 2, 1650);
  const auto operation = document->CreateOperation("Unary");
  operation->SetOperation(6);
  document->ApplyOperation(*operation);
  document->OpenPrintTemplate("t.bpt")->PrintDoc();
  app->QuitApplication();
  EXPECT_THAT(server->lines,
              ElementsAre("put Interactive false", "call LoadCollectMethod m.clm", "put CollectOption NI",
                          "put BackgroundFile b.bsp(1)", "put ScanParameter r8:1", "get ScanSettings",
                          "put SubParameter r8:0", "get Documents", "call Open a.bsp",
                          "call AutoAlign object", "call CollectInto object", "call CloseDocument true",
                          "call CloseDocument", "call SelectSpectrum i2:2", "call SetDocumentShown i4:-1",
                          "get GetSpectrumAt i2:3", "get GetParameterList", "call AddParameter Water i4:1",
                          "get GetSpectrum", "get GetParameter Water", "put Value r8:.5", "get GetSpectrum",
                          "get GetMarkerList", "call AddMarker r8:1700", "get Definition i4:2",
                          "put DefiningMethod i4:2", "put LowerBound r8:1650", "call CreateOperation Unary",
                          "put Operation i2:6", "call ApplyOperation object",
                          "callref OpenPrintTemplate t.bpt", "call PrintDoc", "call QuitApplication"));
}

TEST_F(AutomationClient, AnswersAreTakenInWhateverTypeTheyComeButNothingIsInvented) {
  const auto document = app->NewDocument("a.bsp");
  const auto method = app->LoadCollectMethod("m.clm");
  for (const AutomationValue& answer : {AutomationValue(std::int16_t{11079}), AutomationValue(11079.0)}) {
    server->answers["CollectInto"] = answer;
    EXPECT_EQ(document->CollectInto(*method), 11079);
  }
  // None of these may pass for 0, which is success.
  for (const AutomationValue& answer :
       {AutomationValue(), AutomationValue("11079"), AutomationValue(platform::AutomationArray())}) {
    server->answers["CollectInto"] = server->answers["AutoAlign"] = answer;
    EXPECT_EQ(ErrorOf([&] { document->CollectInto(*method); }), 13);
    EXPECT_EQ(ErrorOf([&] { document->AutoAlign(*method); }), 13);
  }
  server->answers["CollectInto"] = 3e9;
  EXPECT_EQ(ErrorOf([&] { document->CollectInto(*method); }), 6);
  server->answers["GetSpectrum"] = std::shared_ptr<platform::AutomationObject>();
  EXPECT_EQ(ErrorOf([&] { document->GetSpectrum(); }), platform::kObjectRequired);
  server->answers["GetSpectrum"] = {};
  EXPECT_EQ(ErrorOf([&] { document->GetSpectrum(); }), platform::kObjectRequired);
  server->answers["Values"] = 1.0;
  const auto data = document->GetSpectrumAt(1)->SpectrumData();
  EXPECT_EQ(ErrorOf([&] { data->Values(); }), 13);
}

TEST_F(AutomationClient, ASpectrumWithoutASpacingIsRefusedAndATransformNeedsNone) {
  acquisition::SpectrometerSession session;
  session.SpectrometerApp = std::move(app);
  session.Open("a.bsp");
  server->answers["Values"] = platform::AutomationArray{.values = {3.0, 4.0}};
  server->answers["NumberOfPoints"] = 2.0;
  for (const double spacing : {0.0, -2.0, std::nan("")}) {
    server->answers["Spacing"] = spacing;
    EXPECT_EQ(ErrorOf([&] { session.ReadSpectrum(); }), 5) << spacing;
    EXPECT_THAT(session.ReadTransform().values, ElementsAre(3, 4));
  }
  server->answers["Spacing"] = 2.0;
  EXPECT_EQ(session.ReadSpectrum().Res, 2);
}

TEST_F(AutomationClient, TheWaitingBehaviourReachesTheSystem) {
  app->SetWaiting({.busyServerRaisesError = false,
                   .pendingText = "Wait",
                   .pendingMilliseconds = 1234,
                   .busyMilliseconds = 567});
  EXPECT_FALSE(automation.waiting.busyServerRaisesError);
  EXPECT_EQ(automation.waiting.pendingText, "Wait");
  EXPECT_EQ(automation.waiting.pendingMilliseconds, 1234);
  EXPECT_EQ(automation.waiting.busyMilliseconds, 567);
}

TEST_F(AutomationClient, AMethodOfAnotherApplicationIsRefused) {
  class OtherMethod : public acquisition::CollectMethod {
    void SetCollectOption(const std::string&) override {}
    void SetBackgroundFile(const std::string&) override {}
    void SetScanParameter(double) override {}
    void SetSubParameter(double) override {}
  } other;
  EXPECT_EQ(ErrorOf([&] { app->NewDocument("a.bsp")->CollectInto(other); }), 13);
}

TEST(AutomationMembers, AFileOfASiteRenamesMembersAndTheirUse) {
  const auto server = std::make_shared<RecordingObject>();
  tests::InMemoryAutomation automation(server);
  const AutomationMembers members(
      "# Site 4\r\n\r\n opendocument = OpenFile\r\nSetBackgroundFile=call UseBackground\r\n"
      "GetSpectrumAt = get  Spectrum\n",
      "automation.ini");
  const auto app = acquisition::ConnectSpectrometerApp(automation, tests::kProgId, members);
  app->OpenDocument("a.bsp")->GetSpectrumAt(1);
  app->LoadCollectMethod("m.clm")->SetBackgroundFile("b.bsp(1)");
  EXPECT_THAT(server->lines, ElementsAre("get Documents", "call OpenFile a.bsp", "get Spectrum i2:1",
                                         "call LoadCollectMethod m.clm", "call UseBackground b.bsp(1)"));
}

TEST(AutomationMembers, ADamagedLineIsNamedAndAMissingFileMeansTheDefaults) {
  const std::map<std::string, std::string> damaged{
      {"OpenDocument", "\"contract name = server name\""},
      {"# fine\r\nOpenDocuments = Open", "line 2: the contract has no \"OpenDocuments\""},
      {"OpenDocument = ", "a member's name"},
      {"OpenDocument = invoke Open", "a member's name"},
      {"OpenDocument = get Open File", "a member's name"},
      {"OpenDocument = \"Open\"", "a member's name"},
      {"OpenDocument = A\r\nOPENDOCUMENT = B", "line 2: \"OPENDOCUMENT\" stands there twice"}};
  for (const auto& [text, complaint] : damaged) {
    try {
      AutomationMembers(text, "C:\\automation.ini");
      ADD_FAILURE() << text;
    } catch (const platform::RunTimeError& error) {
      EXPECT_EQ(error.Number(), 13);
      EXPECT_THAT(error.what(), HasSubstr("C:\\automation.ini, line "));
      EXPECT_THAT(error.what(), HasSubstr(complaint));
    }
  }
  tests::MemoryFileSystem files;
  EXPECT_EQ(
      acquisition::ReadAutomationMembers(files, "C:\\automation.ini")[acquisition::Member::kOpenDocument]
          .name,
      "Open");
  files.WriteBytes("C:\\automation.ini", "OpenDocument = Load\r\n");
  EXPECT_EQ(
      acquisition::ReadAutomationMembers(files, "C:\\automation.ini")[acquisition::Member::kOpenDocument]
          .name,
      "Load");
}

// An application whose calls are noted; nothing else of it is needed.
class StillApp : public acquisition::SpectrometerApp {
public:
  void SetWaiting(const acquisition::AutomationWaiting&) override {}
  void Interactive(bool interactive) override { calls.push_back(interactive ? "interactive" : "driven"); }
  std::shared_ptr<acquisition::Document> OpenDocument(const std::string& path) override {
    throw platform::RunTimeError(platform::ErrorNumber::kFileNotFound, path);
  }
  std::shared_ptr<acquisition::Document> NewDocument(const std::string&) override { return nullptr; }
  std::shared_ptr<acquisition::CollectMethod> LoadCollectMethod(const std::string&) override {
    return nullptr;
  }
  std::shared_ptr<acquisition::Document> ActiveDocument() override { return nullptr; }
  void BeginPrint() override { calls.push_back("print"); }
  void QuitApplication() override { calls.push_back("quit"); }

  std::vector<std::string> calls;
};

TEST(AutomationServer, MembersAreFoundWithoutRegardToCaseAndMisuseHasItsNumbers) {
  const auto app = std::make_shared<StillApp>();
  const auto server = ServeSpectrometerApp(app);
  const std::vector<AutomationValue> none;
  const std::vector<AutomationValue> one{false};
  server->Use(MemberUse::kCall, "BEGINPRINT", none);
  server->Use(MemberUse::kPut, "interactive", one);
  EXPECT_THAT(app->calls, ElementsAre("print", "driven"));
  EXPECT_THAT(server->Members(),
              ::testing::UnorderedElementsAre("Interactive", "Documents", "LoadCollectMethod",
                                              "ActiveDocument", "BeginPrint", "QuitApplication"));
  const auto use = [&](MemberUse how, const char* member, const std::vector<AutomationValue>& arguments) {
    return ErrorOf([&] { server->Use(how, member, arguments); });
  };
  EXPECT_EQ(use(MemberUse::kCall, "Nothing", none), platform::kNoSuchMember);
  EXPECT_EQ(use(MemberUse::kGet, "Interactive", none), platform::kNoSuchMember) << "it can only be set";
  EXPECT_EQ(use(MemberUse::kCall, "BeginPrint", one), platform::kWrongArgumentCount);
  EXPECT_EQ(use(MemberUse::kPut, "Interactive", {platform::AutomationArray()}), 13);
  EXPECT_THAT(app->calls.size(), 2);
  const auto documents = ObjectOf(server->Use(MemberUse::kGet, "Documents", none));
  EXPECT_EQ(
      ErrorOf([&] { documents->Use(MemberUse::kCall, "Open", std::vector<AutomationValue>{"C:\\none"}); }),
      53);
}

}  // namespace
}  // namespace veritane::simulator
