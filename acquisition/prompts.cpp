// Reading prompt files.
#include "acquisition/prompts.h"

#include "platform/text_file.h"
#include "shell/state/string_table.h"

namespace veritane::acquisition {

std::string PromptsPath(const state::DataFolders& folders, const std::string& short_name) {
  return folders.InStandards(short_name + ".pro");
}

Prompts LoadPrompts(const platform::FileSystem& files, const state::DataFolders& folders,
                    const std::string& short_name) {
  const std::string path = PromptsPath(folders, short_name);
  if (!files.FileExists(path)) {
    return {.background = state::Text(state::TextId::kDefaultBackgroundPrompt),
            .sample = state::Text(state::TextId::kDefaultSamplePrompt)};
  }
  platform::TextReader reader(files.ReadBytes(path), path);
  Prompts prompts;
  prompts.background = reader.AtEnd() ? "" : reader.ReadLine();
  prompts.sample = reader.AtEnd() ? "" : reader.ReadLine();
  return prompts;
}

void SavePrompts(platform::FileSystem& files, const state::DataFolders& folders,
                 const std::string& short_name, const Prompts& prompts) {
  std::string text = prompts.background;
  text.append(platform::kLineEnd).append(prompts.sample).append(platform::kLineEnd);
  files.WriteBytes(PromptsPath(folders, short_name), text);
}

}  // namespace veritane::acquisition
