// What a user's hand does to a form: clicking, typing, choosing. Each action first checks that the user could
// do it, and throws RefusedLine with the reason when not; then it runs through the dispatcher of the desktop.
#pragma once

#include "platform/form.h"
#include "platform/scripted/script_line.h"

#include <string>

namespace veritane::platform {

class Control;

// Presses a button, checks an option, toggles a check box, or clicks a list box's selected entry once more.
void Click(Control& control);

// Empties a text box or editable combo box and types the text key by key; what a KeyPress handler discards
// does not appear. In a combo box that is not editable the text must be one of the entries.
void Type(Control& control, const std::string& text);

// Replaces the whole text at once, without KeyPress.
void Paste(Control& control, const std::string& text);

// Selects part of a text, in characters.
void Highlight(Control& control, int start, int length);

// Presses one key while the control has the focus: Enter, Escape, Tab, Backspace, Space, Up, Down or a single
// character. Enter presses the button that has the focus, else the form's default button, unless a KeyPress
// handler discards it or the box takes several lines; Escape presses the form's cancel button, or closes a
// form that has none, unless it is the main form. Tab goes to the next control that takes keys; Up and Down
// move through lists and grids. A key with no use there does nothing.
void PressKey(Control& control, const std::string& key);

// Picks an entry of a list or combo box: by its text, or by "#" and its index unless the word was quoted.
void Choose(Control& control, const ScriptWord& entry);

// Brings a page of a tab control to the front.
void ShowTab(Control& control, int page);

// Makes a row of a grid current; heading rows are refused.
void GoToRow(Control& control, int row);

// Closes a form by its system menu.
void Close(Form& form);

}  // namespace veritane::platform
