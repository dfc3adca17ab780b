// Reading and writing the methods list.
#include "acquisition/method_list.h"

#include <algorithm>

#include "platform/number_text.h"
#include "platform/text_file.h"
#include "platform/windows_path.h"

namespace veritane::acquisition {

std::string MethodListPath(const state::ProgramState& state) {
  return state.folders.appDir + state.folderSet.methsTable;
}

std::vector<std::string> ReadMethodList(std::string_view bytes, const std::string& path) {
  platform::TextReader reader(bytes, path);
  const int count = reader.ReadInt16();
  std::vector<std::string> paths;
  paths.reserve(static_cast<std::size_t>(std::max(count, 0)));
  for (int i = 0; i < count; ++i) paths.push_back(reader.ReadLine());
  return paths;
}

std::string MethodListText(const std::vector<std::string>& paths) {
  std::string text = platform::CountText(static_cast<long long>(paths.size())).append(platform::kLineEnd);
  for (const std::string& path : paths) text.append(path).append(platform::kLineEnd);
  return text;
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
  std::vector<std::string> paths = ReadMethodList(files.ReadBytes(path), path);
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

void SaveMethodList(platform::FileSystem& files, const state::ProgramState& state) {
  files.WriteBytes(MethodListPath(state), MethodListText(state.methodPaths));
}

}  // namespace veritane::acquisition
