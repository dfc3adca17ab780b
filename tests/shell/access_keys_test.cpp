// Access keys on the screens as they are: each letter leads to one place.
#include "tests/shell/program_fixture.h"
#include "tests/support/errors.h"

#include <cctype>
#include <map>
#include <set>

namespace veritane::tests {
namespace {

using platform::Control;
using ::testing::IsEmpty;

// The letters behind "&"; "&&" is an ampersand.
std::set<char> KeysOf(const std::string& caption) {
  std::set<char> keys;
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    const char letter = caption[++i];
    if (letter != '&') keys.insert(static_cast<char>(std::toupper(static_cast<unsigned char>(letter))));
  }
  return keys;
}

// Letters that several of the controls in front answer to: "S: cmdSample cmdExit".
std::vector<std::string> Clashes(const platform::Form& form) {
  std::map<char, std::string> owners;
  std::map<char, int> counts;
  const auto note = [&](const std::string& caption, const std::string& name) {
    for (const char key : KeysOf(caption)) {
      owners[key] += " " + name;
      ++counts[key];
    }
  };
  for (const Control* control : form.Controls()) {
    if (!control->IsShown()) continue;
    note(control->Caption(), control->Name());
    const auto* tabs = dynamic_cast<const platform::TabControl*>(control);
    // The page in front is there already: its letter is free.
    for (int page = 0; tabs != nullptr && page < tabs->PageCount(); ++page) {
      if (page != tabs->Tab()) note(tabs->PageCaption(page), tabs->Name());
    }
  }
  std::vector<std::string> clashes;
  for (const auto& [key, count] : counts) {
    if (count > 1) clashes.push_back(std::string(1, key) + ":" + owners[key]);
  }
  return clashes;
}

class AccessKeysTest : public ProgramTest {
protected:
  AccessKeysTest() {
    WriteSettings(true);
    Play({"start"});
  }

  void ShowOnly(const platform::Frame& panel) {
    for (platform::Frame* each :
         {&program_->fraMainMenu, &program_->fraSupervisorMode, &program_->fraSpectrum}) {
      each->SetVisible(each == &panel);
    }
  }
};

TEST_F(AccessKeysTest, NoLetterLeadsToTwoPlacesOnAScreenOfTheMainWindow) {
  ShowOnly(program_->fraMainMenu);
  EXPECT_THAT(Clashes(*program_), IsEmpty());
  ShowOnly(program_->fraSpectrum);
  EXPECT_THAT(Clashes(*program_), IsEmpty());
  ShowOnly(program_->fraSupervisorMode);
  for (int page = 0; page < shell::kTabCount; ++page) {
    program_->SSTab1.SetTab(page);
    EXPECT_THAT(Clashes(*program_), IsEmpty()) << "tab " << page;
  }
}

TEST_F(AccessKeysTest, NoLetterLeadsToTwoPlacesInADialog) {
  int dialogs = 0;
  for (platform::Form* form : program_->Screen().Forms()) {
    if (form == program_.get()) continue;
    // The prediction form predicts when it is shown; there is nothing to predict, but its controls are there.
    EXPECT_EQ(ErrorOf([&] { form->Show(); }), form->Name() == "MainForm" ? 5 : 0) << form->Name();
    // The widest form of a dialog has all its buttons.
    for (Control* control : form->Controls()) control->SetVisible(true);
    EXPECT_THAT(Clashes(*form), IsEmpty()) << form->Name();
    form->Hide();
    ++dialogs;
  }
  EXPECT_GE(dialogs, 10);
}

}  // namespace
}  // namespace veritane::tests
