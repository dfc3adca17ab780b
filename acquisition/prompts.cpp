// Reading prompt files.
#include "acquisition/prompts.h"

#include "platform/text_file.h"
#include "shell/state/string_table.h"

namespace veritane::acquisition {

Prompts LoadPrompts(const platform::FileSystem& files, const state::DataFolders& folders,
                    const std::string& short_name) {
  const std::string path = folders.InStandards(short_name + ".pro");
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

}  // namespace veritane::acquisition
