// A whole run: start-up, clock and instrument, errors, the end and its exit status, streams in and out.
#include "platform/text_printout.h"
#include "tests/scripted/sample_forms.h"

#include <gmock/gmock.h>

#include <sstream>

namespace veritane::platform {
namespace {

using nlohmann::ordered_json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

TEST(StartUp, ComesAtTheFirstLineThatIsNoPreparation) {
  SampleRun sample;
  std::vector<std::string> order;
  const auto start = sample.run.program.start;
  sample.run.program.start = [&] {
    order.push_back("start");
    start();
  };
  sample.run.program.setInstrument = [&](const std::vector<std::string>& words) {
    order.push_back("app " + words.back());
    return std::vector<ordered_json>();
  };
  sample.run.program.setClock = [&](const DateTime& now) {
    order.push_back("now " + std::to_string(now.year));
  };
  sample.Lines({"# a comment", "", "  ", "app sample \"a b\"", "now \"2026-11-21T10:59:00\"", "app"});
  EXPECT_FALSE(sample.frmMain.Shown());
  sample.Lines({"get frmMain.cmdGo", "now 2027-01-02T03:04", "#x"});
  EXPECT_THAT(order, ElementsAre("app a b", "now 2026", "start", "now 2027"));
  EXPECT_EQ(sample.run.AllEvents().Refusals().size(), 1U);
}

TEST(StartUp, CanBeAskedForOnce) {
  SampleRun sample;
  const Events events = sample.Lines({"start", [&] { EXPECT_TRUE(sample.frmMain.Shown()); }, "start"});
  EXPECT_THAT(events.Refusals(), ElementsAre("The program has started already."));
}

TEST(StartUp, ItsBoxesAreAnsweredByTheLinesAfter) {
  SampleRun sample;
  std::vector<std::string> order;
  sample.run.program.start = [&] {
    sample.run.Screen().AttachForms();
    sample.frmMain.Show();
    sample.run.Screen().ShowMessage({.text = "Not calibrated", .title = " Warning"});
    order.push_back("started");
  };
  sample.frmMain.cmdGo.OnClick = [&] { order.push_back("clicked"); };
  const Events events = sample.Lines({"click frmMain.cmdGo", "click frmMain.cmdGo", "answer OK"});
  EXPECT_THAT(order, ElementsAre("started", "clicked"));
  EXPECT_THAT(events.Refusals(), ElementsAre("frmMain.cmdGo is behind the message box \" Warning\"."));
}

TEST(StartUp, AnErrorThereEndsTheRunWithStatusOne) {
  SampleRun sample;
  sample.run.program.start = [] { throw RunTimeError(ErrorNumber::kFileNotFound, "C:\\Meth.tbl"); };
  const Events events = sample.Lines({"start", "list"});
  EXPECT_THAT(events.All(), SizeIs(2));
  EXPECT_EQ(events.All()[0].dump(), R"({"event":"error","number":53,"text":"File not found: C:\\Meth.tbl"})");
  EXPECT_EQ(events.All()[1]["event"], "exit");
  EXPECT_EQ(sample.run.Finish(), kExitStoppedOnError);
}

TEST(StartUp, ThatEndsTheProgramLeavesItsLineUndone) {
  SampleRun sample;
  sample.run.program.start = [&] { sample.run.Screen().End(0); };
  const Events events = sample.Lines({"list"});
  ASSERT_THAT(events.All(), SizeIs(1));
  EXPECT_EQ(events.All()[0].dump(), R"({"event":"exit","status":0})");
}

TEST(Errors, InAHandlerShowOneBoxAndTheProgramGoesOn) {
  SampleRun sample;
  sample.frmMain.cmdGo.OnClick = [] { throw RunTimeError(11079, "Wrong accessory"); };
  const Events events = sample.Lines({"click frmMain.cmdGo", "answer OK", "get frmMain.cmdGo"});
  EXPECT_EQ(events.Last("error")["number"], 11079);
  EXPECT_EQ(events.Last("message")["icon"], "critical");
  EXPECT_TRUE(events.LastGot("frmMain.cmdGo").is_object());
  EXPECT_EQ(sample.run.Finish(), 0);
}

TEST(Errors, ThatNobodyForesawEndTheRun) {
  SampleRun sample;
  sample.frmMain.cmdGo.OnClick = [] { throw std::out_of_range("vector"); };
  const Events events = sample.Lines({"click frmMain.cmdGo", "list"});
  EXPECT_EQ(events.Last("error").dump(), R"({"event":"error","number":null,"text":"vector"})");
  EXPECT_THAT(events.Named("list"), IsEmpty());
  EXPECT_EQ(events.Last("exit")["status"], kExitStoppedOnError);
}

TEST(TheEnd, ComesAfterTheHandlerAndLeavesTheOtherLinesUnread) {
  SampleRun sample;
  sample.frmMain.cmdGo.OnClick = [&] {
    sample.run.Screen().End(0);
    sample.frmMain.Hide();
  };
  bool read_on = false;
  const Events events =
      sample.Lines({"click frmMain.cmdGo", [&] { read_on = true; }, "click frmMain.cmdNone"});
  EXPECT_FALSE(read_on);
  EXPECT_THAT(events.Refusals(), IsEmpty());
  EXPECT_FALSE(events.Last("form")["shown"]);
  EXPECT_EQ(events.All().back().dump(), R"({"event":"exit","status":0})");
}

TEST(TheEnd, LeavesAModalFormAndAgreesToNothingMore) {
  SampleRun sample;
  MessageAnswer answer = MessageAnswer::kYes;
  sample.frmDialog.cmdAsk.OnClick = [&] {
    sample.run.Screen().End(3);
    answer =
        sample.run.Screen().ShowMessage({.text = "Delete?", .title = "", .buttons = MessageButtons::kYesNo});
  };
  sample.frmMain.cmdGo.OnClick = [&] { sample.frmDialog.ShowModal(); };
  sample.Lines({"click frmMain.cmdNone", "click frmMain.cmdGo", "click frmDialog.cmdAsk"});
  EXPECT_EQ(answer, MessageAnswer::kNo);
  EXPECT_EQ(sample.run.Finish(), 3);
}

TEST(TheEnd, StatusIsTwoAfterARefusedLine) {
  SampleRun sample;
  sample.frmMain.cmdGo.OnClick = [&] { sample.run.Screen().End(0); };
  const Events events = sample.Lines({"nonsense", "click frmMain.cmdGo"});
  EXPECT_EQ(events.Last("exit")["status"], kExitLineRefused);
}

TEST(TheEnd, ComesByItselfWhenTheLinesRunOutWithNoDialog) {
  SampleRun sample;
  sample.Lines({"list"});
  EXPECT_EQ(sample.run.Finish(), 0);
  EXPECT_EQ(sample.run.Finish(), 0);
  EXPECT_THAT(sample.run.AllEvents().Named("exit"), SizeIs(1));
}

TEST(ClockAndInstrument, TakeWordsAndGiveEventsAtAnyTime) {
  SampleRun sample;
  std::vector<std::string> words;
  sample.run.program.setInstrument = [&](const std::vector<std::string>& line) {
    if (line[0] == "unknown") throw RefusedLine("There is no setting \"unknown\".");
    if (line[0] == "full") throw RunTimeError(ErrorNumber::kDiskFull);
    words = line;
    return std::vector<ordered_json>{
        {{"event", "calls"}, {"calls", ordered_json::array({"OpenDocument(C:\\a.bsp)"})}}};
  };
  sample.frmMain.cmdGo.OnClick = [&] { sample.run.Screen().ShowMessage({.text = "Ready", .title = ""}); };
  const Events events =
      sample.Lines({"click frmMain.cmdGo", "app fault 11079 \"2\"", "app unknown", "app full", "now tomorrow",
                    "now 2026-11-21", "now 2026-11-21T10:59:00", "answer OK"});
  EXPECT_THAT(words, ElementsAre("fault", "11079", "2"));
  EXPECT_EQ(events.Last("calls")["calls"], ordered_json::array({"OpenDocument(C:\\a.bsp)"}));
  EXPECT_THAT(events.Refusals(), ElementsAre("There is no setting \"unknown\".", HasSubstr("Disk full"),
                                             HasSubstr("no date and time"), HasSubstr("no date and time"),
                                             "The clock cannot be set here."));
}

TEST(ClockAndInstrument, AMomentThatTheClockCannotTellIsRefusedAndLeavesTheOpenBoxAlone) {
  SampleRun sample;
  bool was_answered = false;
  sample.run.program.setClock = [](const DateTime&) {
    throw RunTimeError(ErrorNumber::kOverflow, "the date");
  };
  sample.frmMain.cmdGo.OnClick = [&] {
    sample.run.Screen().ShowMessage({.text = "Ready", .title = ""});
    was_answered = true;
  };
  const Events events = sample.Lines({"click frmMain.cmdGo", "now 2300-01-01T00:00", "answer OK"});
  EXPECT_THAT(events.Refusals(), ElementsAre(HasSubstr("Overflow: the date")));
  EXPECT_TRUE(was_answered);
}

TEST(PanelsAndStatus, AreReportedWhenTheyChange) {
  SampleRun sample;
  sample.frmMain.cmdGo.OnClick = [&] {
    sample.frmMain.fraStart.SetVisible(true);
    sample.frmMain.fraStart.SetVisible(false);
    sample.frmMain.fraResult.SetVisible(true);
    sample.frmStatus.lblStatus.SetCaption(" Scanning...");
    sample.frmStatus.Show();
    sample.frmStatus.lblStatus.SetCaption(" Scanning...");
    sample.frmStatus.lblStatus.SetCaption(" Calculating...");
    sample.frmStatus.Hide();
    sample.run.Interface().NotePrint(PrintKind::kTemplate, "C:\\out.pdf");
  };
  const Events events = sample.Lines({"click frmMain.cmdGo"});
  const std::vector<ordered_json> panels = events.Named("panel");
  ASSERT_THAT(panels, SizeIs(2));
  EXPECT_EQ(panels[0].dump(), R"({"event":"panel","name":"fraStart","shown":false})");
  EXPECT_EQ(panels[1].dump(), R"({"event":"panel","name":"fraResult","shown":true})");
  EXPECT_THAT(events.Statuses(), ElementsAre(" Scanning...", " Calculating..."));
  EXPECT_EQ(events.Last("print").dump(), R"({"event":"print","kind":"template","file":"C:\\out.pdf"})");
}

TEST(Printing, WithoutAPrinterIsToldAsAnError) {
  SampleRun sample;
  sample.frmMain.cmdGo.OnClick = [&] {
    TextPrintout printout("Results", "one");
    sample.run.Screen().Print(printout);
  };
  const Events events = sample.Lines({"click frmMain.cmdGo", "answer OK"});
  EXPECT_THAT(events.Messages(), ElementsAre(HasSubstr("Run-time error 57")));
  EXPECT_THAT(events.Named("print"), IsEmpty());
}

TEST(PanelsAndStatus, OfAFormThatDoesNotShowAreNoEvents) {
  SampleRun sample;
  sample.run.program.start = [&] {
    sample.run.Screen().AttachForms();
    sample.frmMain.fraStart.SetVisible(false);
    sample.frmMain.Show();
  };
  EXPECT_THAT(sample.Lines({"start"}).Named("panel"), IsEmpty());
}

// The console itself: text in, text out.
std::string Console(const std::string& script, int& status) {
  std::istringstream in(script);
  std::ostringstream out;
  ScriptedInterface screen(LinesOf(in), JsonLines(out));
  Desktop desktop(screen);
  SampleMain frmMain(desktop);
  status = screen.Run(desktop, {.start =
                                    [&] {
                                      desktop.AttachForms();
                                      frmMain.Show();
                                    },
                                .setInstrument = {},
                                .setClock = {}});
  return out.str();
}

std::vector<ordered_json> ConsoleEvents(const std::string& script) {
  int status = 0;
  std::istringstream lines(Console(script, status));
  std::vector<ordered_json> events;
  for (std::string line; std::getline(lines, line);) events.push_back(ordered_json::parse(line));
  return events;
}

TEST(Streams, AnEmptyScriptOnlyExits) {
  int status = -1;
  EXPECT_EQ(Console("", status), "{\"event\":\"exit\",\"status\":0}\n");
  EXPECT_EQ(status, 0);
}

TEST(Streams, TakeWindowsLineEndsAByteOrderMarkAndNoLastLineEnd) {
  const auto events =
      ConsoleEvents("\xEF\xBB\xBF# first\r\nset frmMain.txtNumber \"90\"\r\nget frmMain.txtNumber");
  ASSERT_THAT(events, SizeIs(3));
  EXPECT_EQ(events[1]["text"], "90");
}

TEST(Streams, DamagedBytesAreRefusedAndEchoedAsValidText) {
  const auto events = ConsoleEvents(std::string("set frmMain.txtNumber \"\xE9\xFF\"\n") +
                                    std::string("get frmMain\0.txtNumber\n", 23) + "get frmMain.txtNumber\n");
  ASSERT_THAT(events, SizeIs(5));
  EXPECT_EQ(events[1]["line"], "set frmMain.txtNumber \"\uFFFD\uFFFD\"");
  EXPECT_EQ(events[2]["reason"], "The line holds a NUL character.");
  EXPECT_EQ(events[3]["text"], "");
  EXPECT_EQ(events[4]["status"], kExitLineRefused);
}

TEST(Streams, VeryLongLinesPass) {
  const std::string text(1'000'000, 'x');
  const auto events = ConsoleEvents("set frmMain.txtNumber \"" + text + "\"\nget frmMain.txtNumber\n");
  EXPECT_EQ(events.at(1)["text"], text);
}

TEST(Streams, AScriptThatCannotBeReadIsAnError) {
  std::istringstream in("list\n");
  in.setstate(std::ios::badbit);
  EXPECT_THROW(LinesOf(in)(), RunTimeError);
}

}  // namespace
}  // namespace veritane::platform
