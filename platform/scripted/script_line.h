// One line of a script: a command and its words.
//
// Words are separated by blanks or tabs. A word that begins with a double quote reaches to the next one and
// may hold blanks. Inside quotes a quote is written "" or \"; every other backslash stands for itself, so
// that Windows paths need nothing special, and so does a backslash before the quote that ends the line:
//
//   file "C:\data\poly pls test.bsp"
//   set frmCollectStd.lblFolder "C:\data\"
//   type frmSamp.txtSampName "the \"blue\" lot"
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace veritane::platform {

// A line does not fit the screen, or is no command at all; the text says why. The script goes on.
class RefusedLine : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

struct ScriptWord {
  std::string text;
  bool isQuoted = false;
};

struct ScriptLine {
  std::string command;
  std::vector<ScriptWord> words;
};

// The line's first word as it stands; "" for a blank line.
std::string_view FirstWord(std::string_view line);

// Throws RefusedLine when quotes are not closed, a word follows a closing quote directly, or the line is not
// UTF-8 text. The line must not be blank.
ScriptLine ParseScriptLine(std::string_view line);

// A whole number of decimal digits; throws RefusedLine for anything else, naming `what` it should be.
int ParseWholeNumber(std::string_view word, std::string_view what);

}  // namespace veritane::platform
