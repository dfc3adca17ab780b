// What a program with a window has to say to whoever started it, before there is a window.
#pragma once

#include <string>

namespace veritane::platform {

// Shows a text that the program has written to its standard outputs. Windows gives a program with a window
// none: there the text goes to the console that the program was started from, and into a message box.
// Elsewhere it does nothing.
void ShowToStarter(const std::string& text);

}  // namespace veritane::platform
