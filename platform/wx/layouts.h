// How each form's widgets are arranged. Everything is measured by the font, so that a larger one fits as
// well.
#pragma once

#include <wx/sizer.h>

#include "platform/wx/form_builder.h"

namespace veritane::platform {

// Makes the widgets of a form as children of `root` and gives the sizer that holds them.
using LayoutFunction = wxSizer* (*)(FormBuilder& builder, wxWindow* root);

// The layout of the form of this name. A form that has none of its own gets its controls one below the other.
LayoutFunction LayoutOf(const std::string& form_name);

wxSizer* LayOutMainWindow(FormBuilder& builder, wxWindow* root);
// The panels of the main window.
wxWindow* LayOutOperatorPanel(FormBuilder& builder, wxWindow* parent);
wxWindow* LayOutSupervisorPanel(FormBuilder& builder, wxWindow* parent);
wxWindow* LayOutSpectrumPanel(FormBuilder& builder, wxWindow* parent);

// Dialogs of the sample and of the set-up.
wxSizer* LayOutSample(FormBuilder& builder, wxWindow* root);
wxSizer* LayOutPassword(FormBuilder& builder, wxWindow* root);
wxSizer* LayOutCollectStandard(FormBuilder& builder, wxWindow* root);
wxSizer* LayOutNullRegion(FormBuilder& builder, wxWindow* root);
wxSizer* LayOutParse(FormBuilder& builder, wxWindow* root);
wxSizer* LayOutPrompts(FormBuilder& builder, wxWindow* root);
wxSizer* LayOutSelectMethod(FormBuilder& builder, wxWindow* root);
// Windows that show something.
wxSizer* LayOutStatus(FormBuilder& builder, wxWindow* root);
wxSizer* LayOutSelectSpectrum(FormBuilder& builder, wxWindow* root);
wxSizer* LayOutResults(FormBuilder& builder, wxWindow* root);
wxSizer* LayOutPrediction(FormBuilder& builder, wxWindow* root);
// The window beside the program that sets the simulated instrument.
wxSizer* LayOutSimulatorPanel(FormBuilder& builder, wxWindow* root);
wxSizer* LayOutInOrder(FormBuilder& builder, wxWindow* root);

}  // namespace veritane::platform
