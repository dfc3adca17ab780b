// Reading and writing the methods list.
#include "acquisition/method_list.h"

#include "platform/text_file.h"
#include "platform/windows_path.h"

namespace veritane::acquisition {

std::string MethodListPath(const state::ProgramState& state) {
  return state.folders.appDir + state.folderSet.methsTable;
}

std::string MethodShortName(const std::string& path, const std::string& previous) {
  constexpr std::size_t kExtension = 4;
  if (path.find('\\') == std::string::npos) return previous;
  const std::string leaf = platform::LeafName(path);
  return leaf.size() < kExtension ? "" : leaf.substr(0, leaf.size() - kExtension);
}

void LoadMethodList(const platform::FileSystem& files, state::ProgramState& state,
                    const MethodListControls& controls) {
  const std::string path = MethodListPath(state);
  std::vector<std::string> paths = platform::ReadCountedLines(files.ReadBytes(path), path);
  std::vector<std::string> names;
  std::string name;
  for (const std::string& method : paths) {
    name = MethodShortName(method, name);
    names.push_back(name);
  }
  state.methodPaths = std::move(paths);
  state.methodShortNames = std::move(names);
  controls.lstMeths.Clear();
  controls.lstMeths.AddAll(state.methodPaths);
  for (platform::ComboBox* combo : controls.shortNames) {
    combo->Clear();
    combo->AddAll(state.methodShortNames);
  }
}

void SaveMethodList(platform::FileSystem& files, const state::ProgramState& state,
                    const std::vector<std::string>& paths) {
  files.WriteBytes(MethodListPath(state), platform::CountedLines(paths));
}

}  // namespace veritane::acquisition
