// Makes the widgets of one form, one call a control, for the layouts to arrange.
#pragma once

#include "platform/form.h"
#include "platform/wx/list_views.h"
#include "platform/wx/simple_views.h"

#include <wx/gauge.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/statbox.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace veritane::platform {

class FormBuilder {
public:
  FormBuilder(Form& form, ViewOwner& owner) : form_(form), owner_(owner) {}

  // The usual widget for the control of this name. A name that the form lacks, or one that was added before,
  // is a mistake in a layout (std::logic_error).
  wxWindow* Add(const std::string& name, wxWindow* parent);
  // A label whose text is data: a name or path, shown as it is and cut where it is too long.
  wxWindow* AddData(const std::string& name, wxWindow* parent);
  // A label of several lines, at least as wide as `width`.
  wxWindow* AddProse(const std::string& name, wxWindow* parent, int width);
  // A list whose entries are chosen by a click or Enter, not by walking through it.
  wxWindow* AddConfirmedList(const std::string& name, wxWindow* parent);

  // A frame as a box with its caption; what it encloses has the sizer's static box as parent.
  wxStaticBoxSizer* AddGroup(const std::string& name, wxWindow* parent);
  // A frame as a panel of the window, its caption as a heading to be placed by the layout.
  struct Panel {
    wxPanel* panel;
    wxStaticText* heading;
  };
  Panel AddPanel(const std::string& name, wxWindow* parent);
  wxNotebook* AddTabs(const std::string& name, wxWindow* parent);

  // A gauge that moves whenever the program lets the window breathe.
  wxGauge* AddGauge(wxWindow* parent);
  wxGauge* Gauge() const { return gauge_; }

  // Controls that no layout has asked for yet, in the form's order.
  std::vector<Control*> Remaining() const;
  // The views in the form's order.
  std::vector<std::shared_ptr<ControlView>> TakeViews();

  // Heights and widths that grow with the font: a line of text, and the width of this many digits.
  static int Line(const wxWindow* window) { return window->GetCharHeight(); }
  static int Columns(const wxWindow* window, int count) { return window->GetCharWidth() * count; }

private:
  Control& Find(const std::string& name) const;
  std::shared_ptr<ControlView> MakeView(Control& control, wxWindow* parent, wxWindow*& widget);
  wxRadioButton* NoneOf(wxWindow* parent);
  wxWindow* Keep(std::shared_ptr<ControlView> view, wxWindow* widget);

  Form& form_;
  ViewOwner& owner_;
  std::map<const Control*, std::shared_ptr<ControlView>> views_;
  // In each parent the hidden option that is on while none of the visible ones is.
  std::map<wxWindow*, wxRadioButton*> none_options_;
  wxGauge* gauge_ = nullptr;
};

}  // namespace veritane::platform
