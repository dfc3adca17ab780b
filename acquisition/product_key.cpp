// Defining and applying the Product ID parser.
#include "acquisition/product_key.h"

#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "platform/utf8.h"

namespace veritane::acquisition {

namespace {

const std::string kDefinition = "ProductID.par";

std::string DefinitionFolder(const platform::ShellFolders& system, const state::FolderSet& set) {
  return system.ProgramFolder() + "\\" + set.stdsFolder;
}

}  // namespace

std::string ProductKey(const platform::FileSystem& files, const state::DataFolders& folders,
                       const std::string& product_id) {
  const std::string path = folders.InStandards(kDefinition);
  if (!files.FileExists(path)) return product_id;
  platform::TextReader reader(files.ReadBytes(path), path);
  const int start = reader.ReadInt16();
  const int length = reader.ReadInt16();
  if (start < 1 || length < 0) throw platform::RunTimeError(platform::ErrorNumber::kInvalidCall, path);
  return platform::Characters(product_id, static_cast<std::size_t>(start - 1),
                              static_cast<std::size_t>(length));
}

void DefineProductKey(platform::FileSystem& files, const platform::ShellFolders& system,
                      const state::FolderSet& set, const std::string& example, const std::string& part) {
  const std::size_t place = example.find(part);
  if (place == std::string::npos) throw platform::RunTimeError(platform::ErrorNumber::kInvalidCall, part);
  const std::string folder = DefinitionFolder(system, set);
  if (!files.FolderExists(folder)) files.CreateFolder(folder);
  const auto number = [](std::size_t count) { return platform::CountText(static_cast<long long>(count)); };
  const std::size_t start = platform::CharacterCount(std::string_view(example).substr(0, place)) + 1;
  std::string text = number(start);
  text.append(platform::kLineEnd).append(number(platform::CharacterCount(part))).append(platform::kLineEnd);
  files.WriteBytes(folder + "\\" + kDefinition, text);
}

void DeleteProductKeyDefinition(platform::FileSystem& files, const platform::ShellFolders& system,
                                const state::FolderSet& set) {
  const std::string path = DefinitionFolder(system, set) + "\\" + kDefinition;
  if (files.FileExists(path)) files.DeleteFile(path);
}

}  // namespace veritane::acquisition
