// The collect methods while a supervisor edits them: the list itself, their prompts and their null regions.
#pragma once

#include "acquisition/frm_null_region.h"
#include "acquisition/frm_prompts.h"
#include "platform/controls.h"
#include "platform/desktop.h"
#include "platform/file_system.h"
#include "shell/state/program_state.h"

#include <functional>
#include <string>

namespace veritane::acquisition {

class MethodEditor {
public:
  struct Controls {
    platform::ListBox& lstMeths;
    platform::ListBox& lstNullRegions;
    FrmPrompts& frmPrompts;
    FrmNullRegion& frmNullRegion;
  };

  // `load_methods` reads the methods list into everything that shows it.
  MethodEditor(platform::Desktop& desktop, platform::FileSystem& files, state::ProgramState& state,
               Controls controls, std::function<void()> load_methods);

  // Asks for a ".clm" file, adds it to the list and asks for its prompts.
  void AddMethod();
  // Takes the selected method off the list. Its files stay.
  void DeleteMethod();
  // Shows the null regions of the selected method. A method without a file has none.
  void ShowNullRegions();
  // Lets the user edit the null regions of the selected method and writes them.
  void EditNullRegions();

private:
  std::string SelectedShortName() const;
  // As the end of a sentence that names the method's file, or "".
  std::string WhyNotAMethod(const std::string& short_name) const;
  void AskForPrompts(const std::string& short_name);

  platform::Desktop& desktop_;
  platform::FileSystem& files_;
  state::ProgramState& state_;
  Controls controls_;
  std::function<void()> load_methods_;
};

}  // namespace veritane::acquisition
