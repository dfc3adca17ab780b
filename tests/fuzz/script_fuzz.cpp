// Plays arbitrary bytes as a script on a few forms. Every line is carried out or refused with its reason, no
// error is one that nobody foresaw, the events are JSON and end with the exit status that fits them; a word
// that is written in quotes reads back.
#include "tests/fuzz/require.h"
#include "tests/scripted/sample_forms.h"

#include <sstream>

namespace {

using namespace veritane;
using namespace veritane::platform;
using fuzz::Require;
using nlohmann::ordered_json;

// A run whose buttons ask, choose a file, open the dialog and fail.
class Run : public SampleRun {
public:
  Run() {
    frmMain.cmdGo.OnClick = [this] {
      if (run.Screen().ShowMessage({.text = "Go on?", .title = "Go", .buttons = MessageButtons::kYesNo}) ==
          MessageAnswer::kYes) {
        frmMain.lblResult.SetCaption(
            run.Screen().ChooseFile({.title = "Open", .filter = "(*.bsp)|*.bsp"}).value_or("no file"));
        frmMain.fraResult.SetVisible(true);
      }
    };
    frmMain.cmdNext.OnClick = [this] { frmDialog.ShowModal(); };
    frmMain.txtNumber.OnChange = [this] { frmStatus.lblStatus.SetCaption(frmMain.txtNumber.Text()); };
    frmMain.optTwo.OnClick = [this] { frmStatus.Show(); };
    run.program.setClock = [](const DateTime& now) { Require(now.month >= 1 && now.month <= 12); };
    run.program.setInstrument = [](const std::vector<std::string>& words) {
      Require(!words.empty());
      return std::vector<ordered_json>{{{"event", "calls"}, {"calls", words}}};
    };
  }
};

void RequireWordsReadBack(const std::string& line) {
  if (FirstWord(line).empty()) return;
  ScriptLine parsed;
  try {
    parsed = ParseScriptLine(line);
  } catch (const RefusedLine&) {
    return;
  }
  for (const ScriptWord& word : parsed.words) {
    std::string quoted = "x \"";
    for (const char character : word.text) quoted.append(character == '"' ? "\\" : "").append(1, character);
    const ScriptLine again = ParseScriptLine(quoted + "\"");
    Require(again.words.size() == 1 && again.words[0].text == word.text);
  }
}

void RequireWholeEvents(const Events& events, int exit_status) {
  for (const ordered_json& event : events.All()) {
    Require(event.value("event", "") != "error" || event.at("number").is_number());
    const std::string text = event.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
    Require(text.find('\n') == std::string::npos && text.starts_with('{') && ordered_json::accept(text));
  }
  Require(events.All().back().at("event") == "exit" && events.All().back().at("status") == exit_status);
  Require(exit_status >= 0 && exit_status <= kExitLineRefused);
  Require(exit_status != 0 || events.Refusals().empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::istringstream stream{std::string(fuzz::BytesOf(data, size))};
  const LineSource next_line = LinesOf(stream);
  std::vector<ScriptRun::Step> steps;
  while (const auto line = next_line()) {
    RequireWordsReadBack(*line);
    steps.emplace_back(*line);
  }
  Run script;
  script.Lines(std::move(steps));
  const int exit_status = script.run.Finish();
  RequireWholeEvents(script.run.AllEvents(), exit_status);
  return 0;
}
