// Reading and writing settings.ini.
#include "shell/state/settings_file.h"

#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "platform/text_file.h"

namespace veritane::state {

ShownOptions ShownOf(const Options& options) {
  return {.backInterval = std::to_string(options.backInterval),
          .threshold = platform::PlainNumberText(options.passThreshold),
          .printPassFail = options.addPassFail};
}

std::string SettingsText(const Options& options, const ShownOptions& shown) {
  std::string text;
  for (const std::string& line : {std::to_string(options.demoMode), std::to_string(options.PasswordRequired),
                                  options.Password, std::to_string(options.backOption), shown.backInterval,
                                  shown.threshold, std::to_string(options.printOption), options.printTemplate,
                                  std::to_string(shown.printPassFail), std::to_string(options.addPassFail)}) {
    text.append(line).append(platform::kLineEnd);
  }
  return text;
}

Options ReadSettings(std::string_view bytes) {
  platform::TextReader reader(bytes);
  Options options;
  options.demoMode = reader.ReadInt16();
  options.PasswordRequired = reader.ReadInt16();
  options.Password = reader.ReadField();
  options.backOption = reader.ReadInt16();
  options.backInterval = reader.ReadInt16();
  options.passThreshold = reader.ReadDouble();
  if (!IsThreshold(options.passThreshold)) throw platform::RunTimeError(platform::ErrorNumber::kInvalidCall);
  options.printOption = reader.ReadInt16();
  options.printTemplate = reader.ReadField();
  options.addPassFail = reader.ReadInt16();
  return options;
}

bool SettingsKeep(const std::string& text) {
  if (text.empty()) return true;
  try {
    platform::TextReader reader(text);
    return reader.ReadField() == text && reader.AtEnd();
  } catch (const platform::RunTimeError&) {
    return false;
  }
}

}  // namespace veritane::state
