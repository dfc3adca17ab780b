// How each form's widgets are arranged. Everything is measured by the font, so that a larger one fits as
// well.
#pragma once

#include "platform/wx/form_builder.h"

#include <wx/sizer.h>

namespace veritane::platform {

// Makes the widgets of a form as children of `root` and gives the sizer that holds them.
using LayoutFunction = wxSizer* (*)(FormBuilder& builder, wxWindow* root);

// The layout of the form of this name. A form that has none of its own gets its controls one below the other.
LayoutFunction LayoutOf(const std::string& form_name);

wxSizer* LayOutMainWindow(FormBuilder& builder, wxWindow* root);
// The largest of its panels.
wxWindow* LayOutSupervisorPanel(FormBuilder& builder, wxWindow* parent);

// The window beside the program that sets the simulated instrument.
wxSizer* LayOutSimulatorPanel(FormBuilder& builder, wxWindow* root);

}  // namespace veritane::platform
