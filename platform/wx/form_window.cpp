// Forms as windows: making them, showing and hiding, and their place on the screen.
#include "platform/wx/form_window.h"

#include "platform/controls.h"
#include "platform/wx/layout_parts.h"
#include "platform/wx/layouts.h"
#include "platform/wx/spoken_name.h"
#include "platform/wx/wx_text.h"

#include <wx/dialog.h>
#include <wx/display.h>
#include <wx/frame.h>
#include <wx/gauge.h>
#include <wx/iconbndl.h>
#include <wx/panel.h>

#include <algorithm>
#include <map>

namespace veritane::platform {

namespace {

wxTopLevelWindow* MakeWindow(const Form& form, bool is_status, wxWindow* main_window) {
  const wxString title = ToWx(form.Caption());
  if (main_window == nullptr) return new wxFrame(nullptr, wxID_ANY, title);
  if (is_status) {
    // No close button, and no place in the task bar: it comes and goes with the work.
    return new wxFrame(main_window, wxID_ANY, title, wxDefaultPosition, wxDefaultSize,
                       wxCAPTION | wxFRAME_FLOAT_ON_PARENT | wxFRAME_NO_TASKBAR);
  }
  return new wxDialog(main_window, wxID_ANY, title, wxDefaultPosition, wxDefaultSize,
                      wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER);
}

// Tab goes through the controls in the form's order, whatever order the layout made them in.
void OrderTabs(const std::vector<std::shared_ptr<ControlView>>& views) {
  std::map<wxWindow*, wxWindow*> last_of_parent;
  for (const auto& view : views) {
    wxWindow* window = view->Window();
    wxWindow*& last = last_of_parent[window->GetParent()];
    if (last != nullptr) window->MoveAfterInTabOrder(last);
    last = window;
  }
}

}  // namespace

FormWindow::FormWindow(Form& form, ActionGate& gate, wxWindow* main_window)
    : form_(form),
      gate_(gate),
      is_main_(main_window == nullptr),
      is_status_(form.Name() == kStatusForm),
      window_(MakeWindow(form, is_status_, main_window)),
      root_(new wxPanel(window_)),
      alive_(std::make_shared<FormWindow*>(this)) {
  window_->SetName(ToWx(form.Name()));
#ifdef __WXMSW__
  // Elsewhere the desktop knows the program's icon; here it is in the program itself.
  window_->SetIcons(wxIconBundle("VERITANE", nullptr));
#endif
  BuildControls();
  window_->Bind(wxEVT_CLOSE_WINDOW, &FormWindow::OnClose, this);
  window_->Bind(wxEVT_CHILD_FOCUS, &FormWindow::OnChildFocus, this);
  window_->Bind(wxEVT_CHAR_HOOK, &FormWindow::OnCharHook, this);
  form_.Watch([weak = std::weak_ptr(alive_)](Form::Change change) {
    if (const auto alive = weak.lock()) (*alive)->Follow(change);
  });
  if (form_.Shown()) Follow(Form::Change::kShown);
}

FormWindow::~FormWindow() {
  is_built_ = false;
  alive_.reset();
  // The widgets go before their views: on its way out a window still reports that it lost the focus.
  window_->Hide();
  delete window_;
}

void FormWindow::BuildControls() {
  FormBuilder builder(form_, *this);
  wxSizer* sizer = LayoutOf(form_.Name())(builder, root_);
  AppendRemaining(builder, sizer);
  gauge_ = builder.Gauge();
  views_ = builder.TakeViews();
  root_->SetSizer(sizer);
  auto* whole = new wxBoxSizer(wxVERTICAL);
  whole->Add(root_, wxSizerFlags(1).Expand());
  window_->SetSizer(whole);
  OrderTabs(views_);
  FollowPanels();
  FollowNames();
  is_built_ = true;
  FitToContent();
}

// What no layout knows of is still there to be used.
void FormWindow::AppendRemaining(FormBuilder& builder, wxSizer* sizer) {
  for (const Control* control : builder.Remaining()) {
    if (control->Kind() == ControlKind::kFrame || control->Kind() == ControlKind::kTabs) continue;
    sizer->Add(builder.Add(control->Name(), root_), wxSizerFlags().Expand().Border(wxALL, Gap(root_)));
  }
}

// The keyboard goes to a panel when it comes to the front.
void FormWindow::FollowPanels() {
  for (const auto& view : views_) {
    Control& control = view->Model();
    if (control.Kind() != ControlKind::kFrame || control.EnclosingFrame() != nullptr) continue;
    control.Watch([this, &control, weak = std::weak_ptr(alive_)](Property property) {
      if (weak.expired() || property != Property::kVisible || !control.Visible()) return;
      FocusFirst(&control);
    });
  }
}

// A caption may name other controls than its own.
void FormWindow::FollowNames() {
  Announce();
  for (const auto& view : views_) {
    view->Model().Watch([this, weak = std::weak_ptr(alive_)](Property property) {
      if (property == Property::kCaption && !weak.expired()) Announce();
    });
  }
}

void FormWindow::Announce() {
  for (const auto& view : views_) view->Announce();
  if (gauge_ != nullptr) TellScreenReaders(*gauge_, ToWx(form_.Caption()), "");
}

// A window that does not fit on the screen could not even be moved.
wxSize FormWindow::LargestSize() const {
  return wxDisplay(window_).GetClientArea().GetSize() - wxSize(0, FormBuilder::Line(root_) * 2);
}

void FormWindow::FitToContent() {
  // The window is never smaller than what its panels need, shown or hidden, so that switching them clips
  // nothing.
  wxSize needed = root_->GetSizer()->CalcMin();
  for (const wxWindow* child : root_->GetChildren()) {
    if (wxSizer* sizer = child->GetSizer()) needed.IncTo(sizer->CalcMin());
  }
  wxSize size = needed;
  if (is_main_) size.IncTo({FormBuilder::Columns(root_, 110), FormBuilder::Line(root_) * 42});
  needed.DecTo(LargestSize());
  size.DecTo(LargestSize());
  window_->SetMinClientSize(needed);
  window_->SetClientSize(size);
  window_->Layout();
}

bool FormWindow::Perform(const std::function<void()>& action) {
  if (!is_built_) return false;
  if (ControlView* view = FocusedView()) view->BringUpToDate();
  return gate_.Perform(form_, action);
}

void FormWindow::Arrange() {
  if (!is_built_ || is_arranging_) return;
  is_arranging_ = true;
  // Several captions often change together; they are arranged once.
  window_->CallAfter([this, weak = std::weak_ptr(alive_)] {
    if (weak.expired()) return;
    is_arranging_ = false;
    const wxSize needed = root_->GetSizer()->CalcMin();
    wxSize least = window_->GetMinClientSize();
    least.IncTo(needed);
    least.DecTo(LargestSize());
    if (least != window_->GetMinClientSize()) {
      window_->SetMinClientSize(least);
      wxSize size = window_->GetClientSize();
      size.IncTo(least);
      if (size != window_->GetClientSize()) window_->SetClientSize(size);
    }
    root_->Layout();
    window_->Layout();
  });
}

void FormWindow::Follow(Form::Change change) {
  switch (change) {
    case Form::Change::kCaption:
      window_->SetTitle(ToWx(form_.Caption()));
      Announce();
      break;
    case Form::Change::kShown:
      Appear();
      break;
    case Form::Change::kHidden:
      EndModal();
      window_->Hide();
      break;
  }
}

void FormWindow::Appear() {
  if (is_main_) {
    window_->CentreOnScreen();
    window_->Show();
    FocusFirst(nullptr);
    return;
  }
  if (is_status_) {
    window_->CentreOnParent();
    window_->ShowWithoutActivating();
    return;
  }
  if (form_.Modal()) {
    window_->CentreOnParent();
  } else {
    PlaceBeside(window_->GetParent()->GetScreenRect());
  }
  FocusFirst(nullptr);
  // A modal form begins to run later, but is on screen while it is being prepared.
  window_->Show();
  window_->Raise();
}

// What stays open beside the main window hides as little of it as the screen allows.
void FormWindow::PlaceBeside(const wxRect& main_window) {
  const wxRect screen = wxDisplay(window_).GetClientArea();
  const wxSize size = window_->GetSize();
  const int left = std::min(main_window.GetRight() + 1, screen.GetRight() + 1 - size.x);
  const int top =
      std::min(main_window.GetTop() + FormBuilder::Line(root_) * 2, screen.GetBottom() + 1 - size.y);
  window_->Move(std::max(screen.GetLeft(), left), std::max(screen.GetTop(), top));
}

void FormWindow::RunModal() {
  auto* dialog = dynamic_cast<wxDialog*>(window_);
  if (dialog == nullptr || !form_.Shown()) return;
  const ActionGate::NestedLoop loop(gate_, ActionGate::Allow::kForms);
  dialog->ShowModal();
}

void FormWindow::EndModal() {
  auto* dialog = dynamic_cast<wxDialog*>(window_);
  if (dialog != nullptr && dialog->IsModal()) dialog->EndModal(wxID_CANCEL);
}

void FormWindow::Pulse() {
  if (gauge_ != nullptr && window_->IsShown()) gauge_->Pulse();
}

void FormWindow::OnClose(wxCloseEvent& event) {
  // The form decides; the window goes when the form hides.
  if (event.CanVeto()) event.Veto();
  Perform([this] { form_.Close(); });
}

}  // namespace veritane::platform
