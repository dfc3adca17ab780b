// Runs the tests of the drawn window inside a wxWidgets application.
#include <gmock/gmock.h>
#include <wx/app.h>
#include <wx/evtloop.h>

#include <cstdio>

namespace {

class TestApplication : public wxApp {
public:
  bool OnInit() override {
    SetExitOnFrameDelete(false);
    // A complaint of the toolkit is a fault of the program.
    wxSetAssertHandler([](const wxString& file, int line, const wxString&, const wxString& condition,
                          const wxString& message) {
      ADD_FAILURE() << file.utf8_string() << ":" << line << ": " << condition.utf8_string() << " "
                    << message.utf8_string();
    });
    return true;
  }

  int OnRun() override {
    wxGUIEventLoop loop;
    const wxEventLoopActivator activator(&loop);
    return RUN_ALL_TESTS();
  }
};

}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleMock(&argc, argv);
  wxApp::SetInstance(new TestApplication);
  return wxEntry(argc, argv);
}
