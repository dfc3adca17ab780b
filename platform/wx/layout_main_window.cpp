// The main window: its three panels in one place, the operator's panel, and the spectrum panel.
#include "platform/texts.h"
#include "platform/wx/layout_parts.h"
#include "platform/wx/layouts.h"
#include "platform/wx/wx_text.h"

#include <wx/stattext.h>

namespace veritane::platform {

namespace {

const wxColour kBand(11, 46, 89);
const wxColour kBandText(255, 255, 255);
const wxColour kBandQuietText(200, 216, 236);

// The name of the program on a dark band, with its subtitle.
wxWindow* TitleBand(FormBuilder& builder, wxWindow* parent) {
  auto* band = new wxPanel(parent);
  band->SetBackgroundColour(kBand);
  auto* title = new wxStaticText(band, wxID_ANY, ToWx(Text(TextId::kProgramName)));
  title->SetForegroundColour(kBandText);
  title->SetFont(title->GetFont().Bold().Scaled(2.8F));
  wxWindow* subtitle = builder.Add("Label8", band);
  subtitle->SetForegroundColour(kBandQuietText);
  subtitle->SetFont(subtitle->GetFont().Scaled(1.2F));

  auto* texts = new wxBoxSizer(wxVERTICAL);
  texts->Add(title);
  texts->Add(subtitle, wxSizerFlags().Border(wxTOP, Gap(parent) / 2));
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(texts, wxSizerFlags().Border(wxALL, WideGap(parent) * 2));
  band->SetSizer(sizer);
  return band;
}

wxWindow* LayOutOperatorPanel(FormBuilder& builder, wxWindow* parent) {
  const auto [panel, heading] = builder.AddPanel("fraMainMenu", parent);
  wxWindow* band = TitleBand(builder, panel);
  wxWindow* sample = builder.Add("cmdSample", panel);
  wxWindow* supervisor = builder.Add("cmdSupervisor", panel);
  wxWindow* exit = builder.Add("cmdExit", panel);
  sample->SetFont(sample->GetFont().Bold().Scaled(1.6F));
  for (wxWindow* button : {supervisor, exit}) button->SetFont(button->GetFont().Scaled(1.25F));

  const int line = FormBuilder::Line(panel);
  const int width = FormBuilder::Columns(panel, 40);
  sample->SetMinSize({width, line * 5});
  for (wxWindow* button : {supervisor, exit}) button->SetMinSize({width, line * 3});
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(heading, wxSizerFlags().Border(wxBOTTOM, line));
  column->Add(sample, wxSizerFlags().Expand().Border(wxBOTTOM, line));
  column->Add(supervisor, wxSizerFlags().Expand().Border(wxBOTTOM, line));
  column->Add(exit, wxSizerFlags().Expand());

  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(band, wxSizerFlags().Expand());
  sizer->AddStretchSpacer(2);
  sizer->Add(column, wxSizerFlags().CentreHorizontal().Border(wxALL, WideGap(panel)));
  sizer->AddStretchSpacer(3);
  panel->SetSizer(sizer);
  return panel;
}

wxWindow* LayOutSpectrumPanel(FormBuilder& builder, wxWindow* parent) {
  const auto [panel, heading] = builder.AddPanel("fraSpectrum", parent);
  wxWindow* chart = builder.Add("chart", panel);
  chart->SetMinSize({FormBuilder::Columns(panel, 60), FormBuilder::Line(panel) * 16});
  wxWindow* readout = builder.AddData("lblReadout", panel);
  // Wide enough for "10000.0, -0.0000", so that nothing moves while the pointer does.
  SetLeastWidth(readout, FormBuilder::Columns(panel, 20));
  wxWindow* result = builder.AddProse("lblResult", panel, FormBuilder::Columns(panel, 40));
  result->SetFont(result->GetFont().Bold());

  auto* below_chart = new wxBoxSizer(wxHORIZONTAL);
  below_chart->Add(result, wxSizerFlags(1).Top());
  below_chart->Add(readout, wxSizerFlags().Top().Border(wxLEFT, WideGap(panel)));

  wxWindow* next = builder.Add("cmdNextSample", panel);
  wxWindow* reset = builder.Add("cmdResetLimits", panel);
  wxWindow* print = builder.Add("cmdPrint", panel);
  wxWindow* copy = builder.Add("cmdScreenCopy", panel);
  wxWindow* back = builder.Add("cmdBacktoMainMenu", panel);
  next->SetFont(next->GetFont().Bold());
  const int gap = Gap(panel);
  auto* inside = new wxBoxSizer(wxVERTICAL);
  inside->Add(heading, wxSizerFlags().Border(wxBOTTOM, gap));
  inside->Add(chart, wxSizerFlags(1).Expand());
  inside->Add(below_chart, wxSizerFlags().Expand().Border(wxTOP, gap));
  inside->Add(WrappingButtons(panel, {next, reset, print, copy, back}),
              wxSizerFlags().Expand().Border(wxTOP, WideGap(panel)));
  panel->SetSizer(Padded(inside, WideGap(panel)));
  return panel;
}

}  // namespace

wxSizer* LayOutMainWindow(FormBuilder& builder, wxWindow* root) {
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(LayOutOperatorPanel(builder, root), wxSizerFlags(1).Expand());
  sizer->Add(LayOutSupervisorPanel(builder, root), wxSizerFlags(1).Expand());
  sizer->Add(LayOutSpectrumPanel(builder, root), wxSizerFlags(1).Expand());
  return sizer;
}

}  // namespace veritane::platform
