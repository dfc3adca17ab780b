// What the console prints about controls and forms: their properties as JSON objects.
#pragma once

#include "platform/desktop.h"
#include "platform/form.h"

#include <nlohmann/json.hpp>

#include <string>

namespace veritane::platform {

class Control;

// "frmSamp.txtSampName": the names as the program writes them.
std::string FullName(const Control& control);

// What kind of control it is, e.g. "button", as the reports call it.
std::string TypeName(const Control& control);

// The properties of a control. "visible" says whether the user could see it; "enabled" is its own property. A
// text that the screen shows as dots is reported as that many asterisks. Numbers that are not finite become
// null. With `points` a chart's series come with all their "x" and "y".
nlohmann::ordered_json DescribeControl(const Control& control, bool points);

// The forms that show, each with the controls on it that the user could see.
nlohmann::ordered_json DescribeScreen(const Desktop& desktop);

// The events that tell of a message box, a file chooser and a form that was shown or hidden.
nlohmann::ordered_json MessageEvent(const Message& message);
nlohmann::ordered_json FileDialogEvent(const FileChoice& choice);
nlohmann::ordered_json FormEvent(const Form& form);

// What refusals call a dialog: its kind and its title, or its text where it has none.
std::string DialogName(const Message& message);
std::string DialogName(const FileChoice& choice);

// What a message box's button says, e.g. "OK".
std::string ButtonText(MessageAnswer button);

}  // namespace veritane::platform
