// Actions of the user on controls, with the checks that a screen makes by itself.
#include "platform/scripted/user_actions.h"

#include "platform/controls.h"
#include "platform/desktop.h"
#include "platform/grid.h"
#include "platform/scripted/control_report.h"
#include "platform/utf8.h"

#include <algorithm>
#include <functional>

namespace veritane::platform {

namespace {

void CheckReachable(const Form& form, const std::string& name) {
  if (!form.Shown()) {
    throw RefusedLine(name + " is hidden" +
                      (name == form.Name() ? "." : ": the form " + form.Name() + " is not shown."));
  }
  if (!form.Screen().IsBlocked(form)) return;
  const Form* modal = form.Screen().FrontModalForm();
  throw RefusedLine(name + " is behind the modal form " + (modal == nullptr ? "" : modal->Name()) + ".");
}

void CheckUsable(const Control& control) {
  CheckReachable(control.Owner(), FullName(control));
  if (!control.IsShown()) throw RefusedLine(FullName(control) + " is hidden.");
  if (!control.IsUsable()) throw RefusedLine(FullName(control) + " is disabled.");
}

[[noreturn]] void RefuseKind(const Control& control, const std::string& what) {
  throw RefusedLine(FullName(control) + " is a " + TypeName(control) + " and " + what + ".");
}

void Perform(Control& control, const std::function<void()>& action) {
  control.Owner().Screen().Perform([&] {
    control.SetFocus();
    action();
  });
}

bool IsTextBox(const Control& control) {
  return control.Kind() == ControlKind::kTextBox || control.Kind() == ControlKind::kComboBox;
}

// A combo box that takes only its entries.
bool IsDropDownList(const Control& control) {
  return control.Kind() == ControlKind::kComboBox && !static_cast<const ComboBox&>(control).isEditable;
}

TextBox& TextBoxOf(Control& control) {
  CheckUsable(control);
  if (!IsTextBox(control)) RefuseKind(control, "takes no text");
  return static_cast<TextBox&>(control);
}

TextBox& WritableTextBox(Control& control) {
  TextBox& box = TextBoxOf(control);
  if (box.isReadOnly) throw RefusedLine(FullName(control) + " is read-only.");
  return box;
}

// Puts the characters in the place of the highlighted ones, or behind the text when none are.
void Insert(TextBox& box, const std::string& characters) {
  const std::string text = box.Text();
  const std::size_t length = static_cast<std::size_t>(box.HighlightLength());
  const std::size_t start =
      length > 0 ? static_cast<std::size_t>(box.HighlightStart()) : CharacterCount(text);
  box.SetText(Characters(text, 0, start) + characters + Characters(text, start + length, std::string::npos));
}

void DeleteBackwards(TextBox& box) {
  if (box.HighlightLength() > 0) return Insert(box, "");
  const std::size_t count = CharacterCount(box.Text());
  if (count > 0) box.SetText(Characters(box.Text(), 0, count - 1));
}

int IndexOf(const Control& control, const ItemList& list, const ScriptWord& entry) {
  if (!entry.isQuoted && entry.text.starts_with('#')) {
    const int index = ParseWholeNumber(std::string_view(entry.text).substr(1), "an index");
    if (index < list.Count()) return index;
    throw RefusedLine(FullName(control) + " has no entry " + entry.text + ": it has " +
                      std::to_string(list.Count()) + ".");
  }
  const auto found = std::find(list.Items().begin(), list.Items().end(), entry.text);
  if (found == list.Items().end()) {
    throw RefusedLine(FullName(control) + " has no entry \"" + entry.text + "\".");
  }
  return static_cast<int>(found - list.Items().begin());
}

constexpr int kTabKey = 9;
constexpr int kSpaceKey = ' ';
// Keys without a character.
constexpr int kUpKey = -1;
constexpr int kDownKey = -2;

int KeyCode(const std::string& name) {
  static constexpr std::pair<std::string_view, int> kNames[] = {
      {"Enter", kEnterKey}, {"Escape", kEscapeKey}, {"Tab", kTabKey},  {"Backspace", kBackspaceKey},
      {"Space", kSpaceKey}, {"Up", kUpKey},         {"Down", kDownKey}};
  for (const auto& [known, code] : kNames) {
    if (known == name) return code;
  }
  const std::u32string characters = DecodeUtf8(name);
  if (characters.size() == 1 && characters[0] >= U' ') return static_cast<int>(characters[0]);
  throw RefusedLine("\"" + name +
                    "\" is no key: Enter, Escape, Tab, Backspace, Space, Up, Down or one character.");
}

bool TakesKeys(const Control& control) {
  return control.Kind() != ControlKind::kLabel && control.Kind() != ControlKind::kFrame &&
         control.Kind() != ControlKind::kChart;
}

// Presses the form's default or cancel button, when the user could; returns whether there was one to press.
bool PressButton(const Form& form, bool Button::*role) {
  for (const Control* control : form.Controls()) {
    if (control->Kind() != ControlKind::kButton || !control->IsUsable()) continue;
    const auto& button = static_cast<const Button&>(*control);
    if (!(button.*role)) continue;
    button.Click();
    return true;
  }
  return false;
}

// Escape on a dialog without a button for it closes it as its system menu does.
void Dismiss(Form& form) {
  const bool is_main = form.Screen().Forms().front() == &form;
  if (form.Shown() && !PressButton(form, &Button::isCancel) && !is_main) form.Close();
}

void FocusNext(const Control& control) {
  const std::vector<Control*>& controls = control.Owner().Controls();
  const auto here = std::find(controls.begin(), controls.end(), &control);
  const auto can_have_it = [](const Control* other) { return TakesKeys(*other) && other->IsUsable(); };
  auto next = std::find_if(here + 1, controls.end(), can_have_it);
  if (next == controls.end()) next = std::find_if(controls.begin(), here, can_have_it);
  if (next != controls.end()) (*next)->SetFocus();
}

template <typename List>
void MoveSelection(List& list, int step) {
  const int index = std::clamp(list.Selected() + step, 0, std::max(0, list.Count() - 1));
  if (index < list.Count() && index != list.Selected()) list.Select(index);
}

void MoveUpOrDown(Control& control, int step) {
  if (control.Kind() == ControlKind::kListBox) {
    MoveSelection(static_cast<ListBox&>(control), step);
  } else if (control.Kind() == ControlKind::kComboBox) {
    MoveSelection(static_cast<ComboBox&>(control), step);
  } else if (control.Kind() == ControlKind::kGrid) {
    auto& grid = static_cast<Grid&>(control);
    const int row = grid.Row() + step;
    if (row >= grid.FixedRows() && row < grid.RowCount()) grid.SetRow(row);
  }
}

void ClickNow(Control& control) {
  if (control.Kind() == ControlKind::kButton) {
    static_cast<const Button&>(control).Click();
  } else if (control.Kind() == ControlKind::kOption) {
    static_cast<OptionButton&>(control).Check();
  } else if (control.Kind() == ControlKind::kCheckBox) {
    auto& box = static_cast<CheckBox&>(control);
    box.SetChecked(!box.Checked());
  } else if (control.Kind() == ControlKind::kListBox) {
    auto& list = static_cast<ListBox&>(control);
    list.Select(list.Selected());
  }
}

// Gives the key to a text box; returns whether it means something to the form as well.
bool TypeKey(TextBox& box, int key) {
  if (!box.KeyPress(key)) return false;
  const bool is_writable = !box.isReadOnly && !IsDropDownList(box);
  if (key == kEnterKey && box.isMultiLine) {
    if (is_writable) Insert(box, "\n");
    return false;
  }
  if (key == kEnterKey || key == kEscapeKey) return true;
  if (!is_writable) return false;
  if (key == kBackspaceKey) {
    DeleteBackwards(box);
  } else {
    Insert(box, EncodeUtf8(static_cast<char32_t>(key)));
  }
  return false;
}

void PressKeyNow(Control& control, int key) {
  if (key == kUpKey || key == kDownKey) return MoveUpOrDown(control, key == kUpKey ? -1 : 1);
  if (key == kTabKey) return FocusNext(control);
  if (IsTextBox(control) && !TypeKey(static_cast<TextBox&>(control), key)) return;
  if (key == kEscapeKey) {
    Dismiss(control.Owner());
  } else if (key == kEnterKey && control.Kind() != ControlKind::kButton) {
    PressButton(control.Owner(), &Button::isDefault);
  } else if (key == kEnterKey || (key == kSpaceKey && control.Kind() != ControlKind::kListBox)) {
    ClickNow(control);
  }
}

}  // namespace

void Click(Control& control) {
  CheckUsable(control);
  switch (control.Kind()) {
    case ControlKind::kButton:
    case ControlKind::kOption:
    case ControlKind::kCheckBox:
      break;
    case ControlKind::kListBox:
      if (static_cast<const ListBox&>(control).Selected() < 0) {
        throw RefusedLine(FullName(control) + " has no selected entry to click: use choose.");
      }
      break;
    default:
      RefuseKind(control, "cannot be clicked");
  }
  Perform(control, [&] { ClickNow(control); });
}

void Type(Control& control, const std::string& text) {
  TextBox& box = WritableTextBox(control);
  if (IsDropDownList(control)) return Choose(control, {.text = text, .isQuoted = true});
  Perform(control, [&] { box.SetText(""); });
  for (const char32_t character : DecodeUtf8(text)) {
    if (control.Owner().Screen().Ended()) return;
    // A handler may have hidden the box meanwhile: the rest of the text has nowhere to go.
    CheckUsable(control);
    Perform(control, [&] {
      if (box.KeyPress(static_cast<int>(character))) Insert(box, EncodeUtf8(character));
    });
  }
}

void Paste(Control& control, const std::string& text) {
  TextBox& box = WritableTextBox(control);
  if (IsDropDownList(control)) return Choose(control, {.text = text, .isQuoted = true});
  Perform(control, [&] { box.SetText(text); });
}

void Highlight(Control& control, int start, int length) {
  TextBox& box = TextBoxOf(control);
  Perform(control, [&] { box.Highlight(start, length); });
}

void PressKey(Control& control, const std::string& key) {
  const int code = KeyCode(key);
  CheckUsable(control);
  if (!TakesKeys(control)) RefuseKind(control, "takes no keys");
  Perform(control, [&] { PressKeyNow(control, code); });
}

void Choose(Control& control, const ScriptWord& entry) {
  CheckUsable(control);
  if (control.Kind() == ControlKind::kListBox) {
    auto& list = static_cast<ListBox&>(control);
    const int index = IndexOf(control, list, entry);
    Perform(control, [&] { list.Select(index); });
  } else if (control.Kind() == ControlKind::kComboBox) {
    auto& combo = static_cast<ComboBox&>(control);
    const int index = IndexOf(control, combo, entry);
    Perform(control, [&] { combo.Select(index); });
  } else {
    RefuseKind(control, "has no entries to choose from");
  }
}

void ShowTab(Control& control, int page) {
  CheckUsable(control);
  if (control.Kind() != ControlKind::kTabs) RefuseKind(control, "has no tabs");
  auto& tabs = static_cast<TabControl&>(control);
  if (page >= tabs.PageCount()) {
    throw RefusedLine(FullName(control) + " has no tab " + std::to_string(page) + ": it has " +
                      std::to_string(tabs.PageCount()) + ".");
  }
  Perform(control, [&] { tabs.SetTab(page); });
}

void GoToRow(Control& control, int row) {
  CheckUsable(control);
  if (control.Kind() != ControlKind::kGrid) RefuseKind(control, "has no rows");
  auto& grid = static_cast<Grid&>(control);
  if (row < grid.FixedRows()) {
    throw RefusedLine("Row " + std::to_string(row) + " of " + FullName(control) + " is a heading.");
  }
  if (row >= grid.RowCount()) {
    throw RefusedLine(FullName(control) + " has no row " + std::to_string(row) + ": it has " +
                      std::to_string(grid.RowCount()) + " with the header.");
  }
  Perform(control, [&] { grid.SetRow(row); });
}

void Close(Form& form) {
  CheckReachable(form, form.Name());
  form.Screen().Perform([&] { form.Close(); });
}

}  // namespace veritane::platform
