// Feeds arbitrary bytes to the readers of files with a few values: the settings, a method's prompts, the
// Product ID parser and the registry's text. The first byte says which. What is written reads back, a product
// key is a part of its Product ID; what is refused is refused with a RunTimeError.
#include "acquisition/product_key.h"
#include "acquisition/prompts.h"
#include "platform/number_text.h"
#include "platform/registry_text.h"
#include "platform/utf8.h"
#include "shell/state/settings_file.h"
#include "tests/fuzz/require.h"
#include "tests/support/memory_file_system.h"
#include "tests/support/test_folders.h"

namespace {

using namespace veritane;
using fuzz::Require;

// Strings stand bare in the settings: a comma, a quote before or blanks around them do not survive, nor does
// a line end.
bool SurvivesBare(const std::string& text) {
  const bool is_padded = text.starts_with(' ') || text.starts_with('\t') || text.ends_with(' ') ||
                         text.ends_with('\t') || text.starts_with('"');
  return !is_padded && text.find_first_of(",\r\n") == std::string::npos;
}

void Settings(std::string_view bytes) {
  const state::Options options = state::ReadSettings(bytes);
  Require(state::IsThreshold(options.passThreshold));
  if (!SurvivesBare(options.Password) || !SurvivesBare(options.printTemplate)) return;
  const state::Options again = state::ReadSettings(
      state::SettingsText(options, {.backInterval = std::to_string(options.backInterval),
                                    .threshold = platform::PlainNumberText(options.passThreshold),
                                    .printPassFail = options.addPassFail}));
  Require(again.demoMode == options.demoMode && again.PasswordRequired == options.PasswordRequired);
  Require(again.Password == options.Password && again.backOption == options.backOption);
  Require(again.backInterval == options.backInterval && again.printOption == options.printOption);
  Require(platform::PlainNumberText(again.passThreshold) == platform::PlainNumberText(options.passThreshold));
  Require(again.printTemplate == options.printTemplate && again.addPassFail == options.addPassFail);
}

const state::DataFolders kFolders{
    .appDir = "C:\\Data\\", .stdsDir = "C:\\Program\\Standards", .sampDir = "C:\\Data\\Samples"};

void Prompts(std::string_view bytes) {
  // A text that begins with a mark of its own behind the file's loses it when it is written.
  if (bytes.starts_with(platform::kByteOrderMark)) return;
  tests::MemoryFileSystem files;
  files.WriteBytes(acquisition::PromptsPath(kFolders, "Disc"), bytes);
  const acquisition::Prompts prompts = acquisition::LoadPrompts(files, kFolders, "Disc");
  acquisition::SavePrompts(files, kFolders, "Disc", prompts);
  const acquisition::Prompts again = acquisition::LoadPrompts(files, kFolders, "Disc");
  Require(again.background == prompts.background && again.sample == prompts.sample);
}

// The bytes before the first NUL are the definition, those behind it a Product ID.
void CutProductKey(std::string_view bytes) {
  const std::size_t end = std::min(bytes.find('\0'), bytes.size());
  const std::string product_id(bytes.substr(std::min(end + 1, bytes.size())));
  tests::MemoryFileSystem files;
  files.WriteBytes(kFolders.InStandards("ProductID.par"), bytes.substr(0, end));
  const std::string key = acquisition::ProductKey(files, kFolders, product_id);
  Require(product_id.find(key) != std::string::npos);
  Require(platform::CharacterCount(key) <= platform::CharacterCount(product_id));
}

// The bytes before the first NUL are an example, those behind it the part of it that names the product.
void DefineProductKey(std::string_view bytes) {
  const std::size_t end = std::min(bytes.find('\0'), bytes.size());
  const std::string example(bytes.substr(0, end));
  const std::string part(bytes.substr(std::min(end + 1, bytes.size())));
  if (!platform::IsUtf8(example) || !platform::IsUtf8(part) || example.size() > INT16_MAX) return;
  tests::MemoryFileSystem files;
  acquisition::DefineProductKey(files, tests::TestFolders(), {}, example, part);
  Require(acquisition::ProductKey(files, kFolders, example) == part);
}

void Registry(std::string_view bytes) {
  const std::string key = "Software\\Tarnex\\Spectrometer";
  const auto value = platform::DwordInRegistryText(bytes, key, "Obe Type");
  // Other lines before it and a line end behind it change nothing.
  const std::string more =
      "REGEDIT4\r\n\r\n[HKEY_LOCAL_MACHINE\\SOFTWARE]\r\n\"Obe Type\"=dword:00000006\r\n[]\n" +
      std::string(bytes) + "\r\n";
  Require(platform::DwordInRegistryText(more, key, "obe type") == value);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Feed(
      {{'s', Settings}, {'p', Prompts}, {'k', CutProductKey}, {'d', DefineProductKey}, {'r', Registry}}, data,
      size);
  return 0;
}
