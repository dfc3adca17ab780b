// The wxWidgets application around the program.
#include "platform/wx/wx_text.h"
#include "platform/wx/wx_user_interface.h"

#include <wx/app.h>
#include <wx/log.h>
#include <wx/utils.h>

#include <cstdio>
#include <memory>

namespace veritane::platform {

namespace {

void ReportAssertion(const wxString& file, int line, const wxString&, const wxString& condition,
                     const wxString& message) {
  std::fprintf(stderr, "Veritane: window: %s:%d: %s %s\n", FromWx(file).c_str(), line,
               FromWx(condition).c_str(), FromWx(message).c_str());
}

class WindowApplication : public wxApp {
public:
  WindowApplication(PathMapping paths, std::function<void(WxUserInterface&)> start)
      : paths_(std::move(paths)), start_(std::move(start)) {}

  bool OnInit() override {
    // The command line belongs to the program, and complaints of the toolkit are nothing for the user.
    wxSetAssertHandler(ReportAssertion);
    // The log target is the toolkit's from here on.
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
    delete wxLog::SetActiveTarget(new wxLogStderr);
    SetAppDisplayName("Veritane");
    // The program ends when it says so, not when its last window closes.
    SetExitOnFrameDelete(false);
    user_interface_ = std::make_unique<WxUserInterface>(paths_);
    CallAfter([this] { user_interface_->RunStart([this] { start_(*user_interface_); }); });
    return true;
  }

  int OnRun() override {
    wxApp::OnRun();
    return user_interface_->ExitStatus();
  }

  int OnExit() override {
    user_interface_.reset();
    return wxApp::OnExit();
  }

private:
  PathMapping paths_;
  std::function<void(WxUserInterface&)> start_;
  std::unique_ptr<WxUserInterface> user_interface_;
};

}  // namespace

int RunInWindow(int argc, char** argv, PathMapping paths, std::function<void(WxUserInterface&)> start) {
  // GTK would load a whole graphics driver, half of the program's memory, in which nothing is ever drawn.
  // Other toolkits do not know the word.
  if (!wxGetEnv("GDK_GL", nullptr)) wxSetEnv("GDK_GL", "disable");
  wxApp::SetInstance(new WindowApplication(std::move(paths), std::move(start)));
  return wxEntry(argc, argv);
}

}  // namespace veritane::platform
