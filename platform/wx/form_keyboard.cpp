// What the keyboard does on a form: focus, Enter, Escape and access keys.
#include "platform/controls.h"
#include "platform/wx/form_window.h"
#include "platform/wx/simple_views.h"
#include "platform/wx/wx_text.h"

#include <algorithm>

namespace veritane::platform {

namespace {

bool IsInside(const Control& control, const Control* panel) {
  if (panel == nullptr) return true;
  for (const Control* around = control.EnclosingFrame(); around != nullptr;
       around = around->EnclosingFrame()) {
    if (around == panel) return true;
  }
  return false;
}

const Button* AsButton(const Control& control) {
  return control.Kind() == ControlKind::kButton ? static_cast<const Button*>(&control) : nullptr;
}

}  // namespace

ControlView* FormWindow::ViewOf(const Control* control) const {
  const auto found = std::find_if(views_.begin(), views_.end(),
                                  [control](const auto& view) { return &view->Model() == control; });
  return found == views_.end() ? nullptr : found->get();
}

ControlView* FormWindow::FocusedView() const {
  for (const wxWindow* at = wxWindow::FindFocus(); at != nullptr && at != window_; at = at->GetParent()) {
    for (const auto& view : views_) {
      if (view->Window() == at) return view->CanTakeFocus() ? view.get() : nullptr;
    }
  }
  return nullptr;
}

// To the panel's default button, else to the first control that can be used.
void FormWindow::FocusFirst(const Control* panel) {
  ControlView* first = nullptr;
  for (const auto& view : views_) {
    const Control& control = view->Model();
    if (!view->CanTakeFocus() || !control.IsUsable() || !IsInside(control, panel)) continue;
    const Button* button = AsButton(control);
    if (panel != nullptr && button != nullptr && button->isDefault) {
      first = view.get();
      break;
    }
    if (first == nullptr) first = view.get();
  }
  if (first == nullptr) return;
  form_.NoteFocus(&first->Model());
  first->TakeFocus();
}

void FormWindow::OnChildFocus(wxChildFocusEvent& event) {
  event.Skip();
  if (const ControlView* view = FocusedView()) form_.NoteFocus(&view->Model());
}

void FormWindow::OnCharHook(wxKeyEvent& event) {
  const int key = event.GetKeyCode();
  bool is_done = false;
  if ((key == WXK_RETURN || key == WXK_NUMPAD_ENTER) && !event.HasAnyModifiers()) {
    is_done = OnEnter();
  } else if (key == WXK_ESCAPE && !event.HasAnyModifiers()) {
    is_done = OnEscape();
  } else if (event.AltDown() && !event.ControlDown() && event.GetUnicodeKey() > ' ') {
    is_done = OnAccessKey(event.GetUnicodeKey());
  }
  if (!is_done) event.Skip();
}

bool FormWindow::OnEnter() {
  ControlView* focused = FocusedView();
  if (focused != nullptr) {
    if (focused->KeepsEnter()) return false;
    if (auto* box = dynamic_cast<TextBox*>(&focused->Model())) {
      bool is_allowed = false;
      Perform([&] { is_allowed = box->KeyPress(kEnterKey); });
      // A handler that did something else with it, such as hiding the form, has the last word.
      if (!is_allowed || !form_.Shown()) return true;
    } else if (const Button* button = AsButton(focused->Model())) {
      Perform([button] { button->Click(); });
      return true;
    }
  }
  for (const auto& view : views_) {
    const Button* button = AsButton(view->Model());
    if (button == nullptr || !button->isDefault || !button->IsUsable()) continue;
    Perform([button] { button->Click(); });
    return true;
  }
  return focused != nullptr && dynamic_cast<TextBox*>(&focused->Model()) != nullptr;
}

bool FormWindow::OnEscape() {
  if (ControlView* focused = FocusedView()) {
    if (focused->KeepsEnter() && focused->Model().Kind() == ControlKind::kComboBox) return false;
    if (auto* box = dynamic_cast<TextBox*>(&focused->Model())) {
      bool is_allowed = false;
      Perform([&] { is_allowed = box->KeyPress(kEscapeKey); });
      if (!is_allowed || !form_.Shown()) return true;
    }
  }
  for (const auto& view : views_) {
    const Button* button = AsButton(view->Model());
    if (button == nullptr || !button->isCancel || !button->IsUsable()) continue;
    Perform([button] { button->Click(); });
    return true;
  }
  // A dialog without a button for it closes as by its system menu.
  if (!is_main_) Perform([this] { form_.Close(); });
  return true;
}

// When several controls share a letter, the next one behind the focus takes it.
bool FormWindow::OnAccessKey(wxUniChar letter) {
  const ControlView* focused = FocusedView();
  const auto at = std::find_if(views_.begin(), views_.end(),
                               [focused](const auto& view) { return view.get() == focused; });
  const auto begin = at == views_.end() ? views_.begin() : at + 1;
  std::vector<ControlView*> in_order;
  for (auto view = begin; view != views_.end(); ++view) in_order.push_back(view->get());
  for (auto view = views_.begin(); view != begin; ++view) in_order.push_back(view->get());
  return std::any_of(in_order.begin(), in_order.end(),
                     [&](ControlView* view) { return PressAccessKey(*view, letter); });
}

bool FormWindow::PressAccessKey(ControlView& view, wxUniChar letter) {
  const Control& control = view.Model();
  if (!control.IsUsable()) return false;
  if (auto* tabs = dynamic_cast<TabsView*>(&view)) return tabs->PressPageKey(letter);
  if (!HasAccessKey(control.Caption(), letter)) return false;
  if (control.Kind() == ControlKind::kFrame) {
    FocusFirst(&control);
    return true;
  }
  if (control.Kind() == ControlKind::kLabel) {
    // A label's key belongs to the field behind it.
    const auto at =
        std::find_if(views_.begin(), views_.end(), [&](const auto& v) { return v.get() == &view; });
    const auto field = std::find_if(at, views_.end(),
                                    [](const auto& v) { return v->CanTakeFocus() && v->Model().IsUsable(); });
    if (field == views_.end()) return false;
    (*field)->TakeFocus();
    return true;
  }
  view.PressAccessKey();
  return true;
}

}  // namespace veritane::platform
