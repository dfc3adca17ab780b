// The simulator panel: the settings in three columns, the last spectrum below.
#include "platform/wx/layout_parts.h"
#include "platform/wx/layouts.h"

namespace veritane::platform {

namespace {

const wxColour kNoteText(168, 32, 24);
constexpr int kColumnWidth = 34;

void AddNote(FormBuilder& builder, wxWindow* box, wxSizer* sizer, const std::string& name) {
  wxWindow* note = builder.AddProse(name, box, FormBuilder::Columns(box, kColumnWidth));
  note->SetForegroundColour(kNoteText);
  sizer->Add(note, wxSizerFlags().Expand());
}

// An option or a label, and the box that belongs to it, in one line.
void AddPair(FormBuilder& builder, wxWindow* box, wxSizer* sizer, const std::string& first,
             const std::string& text_box) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(builder.Add(first, box), wxSizerFlags(1).CentreVertical());
  wxWindow* text = builder.Add(text_box, box);
  SetLeastWidth(text, FormBuilder::Columns(box, 14));
  row->Add(text, wxSizerFlags().CentreVertical().Border(wxLEFT, Gap(box)));
  sizer->Add(row, wxSizerFlags().Expand().Border(wxTOP, Gap(box) / 2));
}

wxSizer* Inside(wxStaticBoxSizer* group) {
  auto* column = new wxBoxSizer(wxVERTICAL);
  Fill(group, column);
  return column;
}

wxSizer* LayOutSampleGroup(FormBuilder& builder, wxWindow* root) {
  wxStaticBoxSizer* group = builder.AddGroup("fraSample", root);
  wxWindow* box = group->GetStaticBox();
  wxSizer* column = Inside(group);
  column->Add(builder.Add("lblMaterials", box));
  wxWindow* list = builder.Add("lstMaterials", box);
  list->SetMinSize({FormBuilder::Columns(box, kColumnWidth), FormBuilder::Line(box) * 8});
  column->Add(list, wxSizerFlags(1).Expand().Border(wxTOP | wxBOTTOM, Gap(box) / 2));
  column->Add(builder.AddProse("lblSample", box, FormBuilder::Columns(box, kColumnWidth)),
              wxSizerFlags().Expand());
  column->Add(builder.Add("txtSample", box), wxSizerFlags().Expand().Border(wxTOP, Gap(box) / 2));
  AddNote(builder, box, column, "lblSampleNote");
  column->Add(ButtonRow(box, {builder.Add("cmdChooseFile", box)}), wxSizerFlags().Border(wxTOP, Gap(box)));
  return group;
}

wxSizer* LayOutAccessoryGroup(FormBuilder& builder, wxWindow* root) {
  wxStaticBoxSizer* group = builder.AddGroup("fraAccessory", root);
  wxWindow* box = group->GetStaticBox();
  wxSizer* column = Inside(group);
  column->Add(builder.Add("optTransmission", box));
  column->Add(builder.Add("optAtr", box), wxSizerFlags().Border(wxTOP, Gap(box) / 2));
  AddPair(builder, box, column, "optOtherAccessory", "txtAccessory");
  AddNote(builder, box, column, "lblAccessoryNote");
  return group;
}

wxSizer* LayOutFaultGroup(FormBuilder& builder, wxWindow* root) {
  wxStaticBoxSizer* group = builder.AddGroup("fraFault", root);
  wxWindow* box = group->GetStaticBox();
  wxSizer* column = Inside(group);
  column->Add(builder.Add("optNoFault", box));
  column->Add(builder.Add("optWrongAccessory", box), wxSizerFlags().Border(wxTOP, Gap(box) / 2));
  AddPair(builder, box, column, "optOtherFault", "txtFault");
  AddNote(builder, box, column, "lblFaultNote");
  AddPair(builder, box, column, "lblFaultCount", "txtFaultCount");
  AddNote(builder, box, column, "lblFaultCountNote");
  column->Add(builder.AddProse("lblFaultsLeft", box, FormBuilder::Columns(box, kColumnWidth)),
              wxSizerFlags().Expand().Border(wxTOP, Gap(box)));
  return group;
}

wxSizer* LayOutMeasurementGroup(FormBuilder& builder, wxWindow* root) {
  wxStaticBoxSizer* group = builder.AddGroup("fraMeasurement", root);
  wxWindow* box = group->GetStaticBox();
  wxSizer* column = Inside(group);
  AddPair(builder, box, column, "lblNoise", "txtNoise");
  AddNote(builder, box, column, "lblNoiseNote");
  AddPair(builder, box, column, "lblDuration", "txtDuration");
  AddNote(builder, box, column, "lblDurationNote");
  column->Add(builder.Add("lblSeed", box), wxSizerFlags().Border(wxTOP, WideGap(box)));
  column->Add(builder.Add("optRandomSeed", box), wxSizerFlags().Border(wxTOP, Gap(box) / 2));
  AddPair(builder, box, column, "optFixedSeed", "txtSeed");
  AddNote(builder, box, column, "lblSeedNote");
  return group;
}

wxSizer* LayOutSpectrumGroup(FormBuilder& builder, wxWindow* root) {
  wxStaticBoxSizer* group = builder.AddGroup("fraSpectrum", root);
  wxWindow* box = group->GetStaticBox();
  wxSizer* column = Inside(group);
  wxWindow* name = builder.AddData("lblSpectrum", box);
  name->SetFont(name->GetFont().Bold());
  column->Add(name, wxSizerFlags().Expand());
  column->Add(builder.AddData("lblSpectrumFile", box), wxSizerFlags().Expand());
  wxWindow* chart = builder.Add("chtSpectrum", box);
  chart->SetMinSize({FormBuilder::Columns(box, 60), FormBuilder::Line(box) * 12});
  column->Add(chart, wxSizerFlags(1).Expand().Border(wxTOP, Gap(box) / 2));
  return group;
}

}  // namespace

wxSizer* LayOutSimulatorPanel(FormBuilder& builder, wxWindow* root) {
  auto* middle = new wxBoxSizer(wxVERTICAL);
  middle->Add(LayOutAccessoryGroup(builder, root), wxSizerFlags().Expand());
  middle->Add(LayOutMeasurementGroup(builder, root), wxSizerFlags(1).Expand().Border(wxTOP, Gap(root)));
  auto* settings = new wxBoxSizer(wxHORIZONTAL);
  settings->Add(LayOutSampleGroup(builder, root), wxSizerFlags(1).Expand());
  settings->Add(middle, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, Gap(root)));
  settings->Add(LayOutFaultGroup(builder, root), wxSizerFlags(1).Expand());

  auto* content = new wxBoxSizer(wxVERTICAL);
  wxWindow* problem = builder.AddProse("lblProblem", root, FormBuilder::Columns(root, 80));
  problem->SetForegroundColour(kNoteText);
  content->Add(builder.AddData("lblFile", root), wxSizerFlags().Expand());
  content->Add(problem, wxSizerFlags().Expand().Border(wxBOTTOM, Gap(root) / 2));
  content->Add(settings, wxSizerFlags().Expand());
  content->Add(LayOutSpectrumGroup(builder, root), wxSizerFlags(1).Expand().Border(wxTOP, Gap(root)));
  return Padded(content, Gap(root) * 3 / 2);
}

}  // namespace veritane::platform
