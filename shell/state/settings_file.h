// settings.ini: the ten lines and what they mean.
#pragma once

#include "shell/state/program_state.h"

#include <string>
#include <string_view>

namespace veritane::state {

// What the two text boxes and the check box show; these, and not the variables, are what is written.
struct ShownOptions {
  std::string backInterval;
  std::string threshold;
  int printPassFail = 1;
};

// What they show of these options.
ShownOptions ShownOf(const Options& options);

// The ten lines of the file.
std::string SettingsText(const Options& options, const ShownOptions& shown);

// Reads the first nine values. Errors 62 (too few), 13 (no number), 6 (a number that does not fit), 5 (a
// threshold that is none): the whole file is then worth nothing.
Options ReadSettings(std::string_view bytes);

// Whether a text is read back as it stands: one that is cut by a comma, begins with a quotation mark or has
// blanks around it would cost the whole file.
bool SettingsKeep(const std::string& text);

}  // namespace veritane::state
