// Adding and deleting collect methods, and editing what belongs to one.
#include "acquisition/method_editor.h"

#include "acquisition/background.h"
#include "acquisition/method_list.h"
#include "acquisition/null_regions.h"
#include "acquisition/product_table.h"
#include "acquisition/prompts.h"
#include "platform/text_file.h"
#include "platform/windows_path.h"
#include "shell/state/messages.h"

namespace veritane::acquisition {

using platform::MessageIcon;
using state::Text;
using state::TextId;

MethodEditor::MethodEditor(platform::Desktop& desktop, platform::FileSystem& files,
                           state::ProgramState& state, Controls controls, std::function<void()> load_methods)
    : desktop_(desktop),
      files_(files),
      state_(state),
      controls_(controls),
      load_methods_(std::move(load_methods)) {}

void MethodEditor::AddMethod() {
  const auto path = desktop_.ChooseFile({.title = Text(TextId::kSelectClmFile),
                                         .filter = "(*.clm)|*.clm",
                                         .folder = state_.folders.stdsDir + "\\"});
  if (!path) return;
  const std::string previous = state_.methodShortNames.empty() ? "" : state_.methodShortNames.back();
  const std::string short_name = MethodShortName(*path, previous);
  if (const std::string why = WhyNotAMethod(short_name); !why.empty()) {
    state::PlainNotice(desktop_, Text(TextId::kNotACollectMethod, {*path, why}));
    return;
  }
  std::vector<std::string> paths = state_.methodPaths;
  paths.push_back(*path);
  // The list in memory follows only what is on disk.
  SaveMethodList(files_, state_, paths);
  state_.methodPaths = std::move(paths);
  state_.methodShortNames.push_back(short_name);
  controls_.lstMeths.Add(*path);
  AskForPrompts(short_name);
}

std::string MethodEditor::WhyNotAMethod(const std::string& short_name) const {
  if (std::string why = platform::WhyNotAFileName(short_name); !why.empty()) return why;
  // Its background would be written over the Standard of that product.
  const std::string table = ProductTablePath(state_);
  const std::string background = platform::LeafWithoutExtension(BackgroundPath(state_.folders, short_name));
  return FindProduct(files_.ReadBytes(table), background, table)
             ? Text(TextId::kBackgroundIsStandard, {background})
             : "";
}

void MethodEditor::AskForPrompts(const std::string& short_name) {
  FrmPrompts& dialog = controls_.frmPrompts;
  const std::string path = PromptsPath(state_.folders, short_name);
  const Prompts prompts =
      files_.FileExists(path) ? LoadPrompts(files_, state_.folders, short_name) : Prompts{};
  dialog.txtBackgroundPrompt.SetText(prompts.background);
  dialog.txtSamplePrompt.SetText(prompts.sample);
  dialog.ShowModal();
  SavePrompts(files_, state_.folders, short_name,
              {.background = dialog.txtBackgroundPrompt.Text(), .sample = dialog.txtSamplePrompt.Text()});
}

void MethodEditor::DeleteMethod() {
  const int selected = controls_.lstMeths.Selected();
  if (selected < 0) {
    state::Notice(desktop_, TextId::kSelectMethodToDelete, MessageIcon::kInformation);
    return;
  }
  std::vector<std::string> paths = state_.methodPaths;
  paths.erase(paths.begin() + selected);
  SaveMethodList(files_, state_, paths);
  load_methods_();
}

std::string MethodEditor::SelectedShortName() const {
  return state_.methodShortNames.at(static_cast<std::size_t>(controls_.lstMeths.Selected()));
}

void MethodEditor::ShowNullRegions() {
  controls_.lstNullRegions.Clear();
  if (controls_.lstMeths.Selected() < 0) return;
  controls_.lstNullRegions.AddAll(
      ReadNullRegionLines(files_, NullRegionPath(state_.folders, SelectedShortName())));
}

void MethodEditor::EditNullRegions() {
  if (controls_.lstMeths.Selected() < 0) {
    state::Notice(desktop_, TextId::kSelectMethod, MessageIcon::kExclamation);
    return;
  }
  FrmNullRegion& dialog = controls_.frmNullRegion;
  dialog.txtNullStart.SetText("");
  dialog.txtNullEnd.SetText("");
  dialog.lstNulls.Clear();
  // From the file, since the list on the panel is empty when it cannot be read; then nothing is written over.
  dialog.lstNulls.AddAll(ReadNullRegionLines(files_, NullRegionPath(state_.folders, SelectedShortName())));
  dialog.ShowModal();
  const std::vector<std::string> regions = dialog.lstNulls.Items();
  files_.WriteBytes(NullRegionPath(state_.folders, SelectedShortName()), platform::CountedLines(regions));
  controls_.lstNullRegions.Clear();
  controls_.lstNullRegions.AddAll(regions);
}

}  // namespace veritane::acquisition
