// The supervisor panel: one function a tab.
#include "platform/wx/layout_parts.h"
#include "platform/wx/layouts.h"

#include <wx/notebook.h>

namespace veritane::platform {

namespace {

// The options of a group below one another.
wxSizer* Stacked(const wxWindow* window, std::initializer_list<wxWindow*> widgets) {
  auto* column = new wxBoxSizer(wxVERTICAL);
  for (wxWindow* widget : widgets) {
    if (column->GetItemCount() > 0) column->AddSpacer(Gap(window));
    column->Add(widget);
  }
  return column;
}

wxSizer* LayOutSecurity(FormBuilder& builder, wxWindow* page) {
  wxStaticBoxSizer* group = builder.AddGroup("fraPassword", page);
  wxWindow* box = group->GetStaticBox();
  wxWindow* none = builder.Add("optNoPassword", box);
  Fill(group, Stacked(box, {none, builder.Add("optPassword", box)}));
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(group, wxSizerFlags().Expand());
  return sizer;
}

wxSizer* LayOutBackground(FormBuilder& builder, wxWindow* page) {
  wxStaticBoxSizer* group = builder.AddGroup("fraBackground", page);
  wxWindow* box = group->GetStaticBox();
  auto* options = new wxBoxSizer(wxVERTICAL);
  options->Add(builder.Add("optManualBackground", box));
  auto* interval = new wxBoxSizer(wxHORIZONTAL);
  interval->Add(builder.Add("optBackInterval", box), wxSizerFlags().CentreVertical());
  wxWindow* hours = builder.Add("txtbackInterval", box);
  SetLeastWidth(hours, FormBuilder::Columns(box, 10));
  interval->Add(hours, wxSizerFlags().CentreVertical().Border(wxLEFT | wxRIGHT, Gap(box)));
  interval->Add(builder.Add("lblHours", box), wxSizerFlags().CentreVertical());
  options->Add(interval, wxSizerFlags().Border(wxTOP | wxBOTTOM, Gap(box) / 2));
  options->Add(builder.Add("optBackBeforeSample", box));
  Fill(group, options);

  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(group, wxSizerFlags().Expand());
  sizer->Add(ButtonRow(page, {builder.Add("cmdBack", page)}), wxSizerFlags().Border(wxTOP, WideGap(page)));
  return sizer;
}

wxSizer* LabelledList(FormBuilder& builder, wxWindow* box, const std::string& label, const std::string& list,
                      int columns) {
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(builder.Add(label, box), wxSizerFlags().Border(wxBOTTOM, Gap(box) / 2));
  wxWindow* entries = builder.Add(list, box);
  entries->SetMinSize({FormBuilder::Columns(box, columns), FormBuilder::Line(box) * 8});
  column->Add(entries, wxSizerFlags(1).Expand());
  return column;
}

wxSizer* LayOutMethods(FormBuilder& builder, wxWindow* page) {
  wxStaticBoxSizer* group = builder.AddGroup("fraMethods", page);
  wxWindow* box = group->GetStaticBox();
  auto* lists = new wxBoxSizer(wxHORIZONTAL);
  lists->Add(LabelledList(builder, box, "lblMethods", "lstMeths", 40), wxSizerFlags(3).Expand());
  lists->AddSpacer(WideGap(box));
  lists->Add(LabelledList(builder, box, "lblNull", "lstNullRegions", 18), wxSizerFlags(1).Expand());
  Fill(group, lists);

  wxWindow* add = builder.Add("cmdAddMeth", page);
  wxWindow* remove = builder.Add("cmdDeleteMethod", page);
  wxWindow* regions = builder.Add("cmdNullRegions", page);
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(group, wxSizerFlags(1).Expand());
  sizer->Add(WrappingButtons(page, {add, remove, regions}),
             wxSizerFlags().Expand().Border(wxTOP, WideGap(page)));
  return sizer;
}

wxSizer* LayOutStandards(FormBuilder& builder, wxWindow* page) {
  wxWindow* grid = builder.Add("grid", page);
  grid->SetMinSize({FormBuilder::Columns(page, 60), FormBuilder::Line(page) * 9});

  wxStaticBoxSizer* group = builder.AddGroup("fraCurrentSelection", page);
  wxWindow* box = group->GetStaticBox();
  const int width = FormBuilder::Columns(box, 24);
  wxFlexGridSizer* table = FieldTable(box);
  wxWindow* label = builder.Add("lblProductID", box);
  AddField(table, label, builder.AddData("lblCurrentProductID", box), width);
  label = builder.Add("lblCollectMethod", box);
  AddField(table, label, builder.Add("cmbCollectMethod", box), width);
  label = builder.Add("lblAlgorithm", box);
  AddField(table, label, builder.Add("cmbAlgorithm", box), width);
  wxWindow* choose = builder.Add("cmdChooseCalFile", box);
  wxWindow* remove = builder.Add("cmdDel", box);
  auto* selection = new wxBoxSizer(wxHORIZONTAL);
  selection->Add(table, wxSizerFlags(1).CentreVertical());
  selection->Add(ButtonColumn(box, {choose, remove}),
                 wxSizerFlags().CentreVertical().Border(wxLEFT, WideGap(box) * 2));
  Fill(group, selection);

  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(grid, wxSizerFlags(1).Expand());
  sizer->Add(group, wxSizerFlags().Expand().Border(wxTOP, WideGap(page)));
  sizer->Add(ButtonRow(page, {builder.Add("cmdCollectStdNow", page)}),
             wxSizerFlags().Border(wxTOP, WideGap(page)));
  return sizer;
}

wxSizer* LayOutOptions(FormBuilder& builder, wxWindow* page) {
  auto* threshold = new wxBoxSizer(wxHORIZONTAL);
  threshold->Add(builder.Add("lblThreshold", page), wxSizerFlags().CentreVertical());
  wxWindow* box = builder.Add("txtThreshold", page);
  SetLeastWidth(box, FormBuilder::Columns(page, 12));
  threshold->Add(box, wxSizerFlags().CentreVertical().Border(wxLEFT, WideGap(page)));
  wxSizer* parse = ButtonRow(page, {builder.Add("cmdParse", page)});

  wxStaticBoxSizer* group = builder.AddGroup("fraPrint", page);
  wxWindow* inside = group->GetStaticBox();
  wxWindow* plain = builder.Add("optDefaultPrint", inside);
  wxWindow* with_template = builder.Add("optPrintTemplate", inside);
  wxWindow* template_path = builder.AddData("lblPrintTemplate", inside);
  auto* chosen = new wxBoxSizer(wxHORIZONTAL);
  chosen->Add(ButtonRow(inside, {builder.Add("cmdSelTemplate", inside)}), wxSizerFlags().CentreVertical());
  chosen->Add(template_path, wxSizerFlags(1).CentreVertical().Border(wxLEFT, WideGap(inside)));
  auto* print = new wxBoxSizer(wxVERTICAL);
  print->Add(Stacked(inside, {plain, with_template}));
  print->Add(chosen, wxSizerFlags().Expand().Border(wxTOP, Gap(inside)));
  Fill(group, print);

  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(threshold);
  sizer->Add(parse, wxSizerFlags().Border(wxTOP | wxBOTTOM, WideGap(page)));
  sizer->Add(group, wxSizerFlags().Expand());
  sizer->Add(builder.Add("chkPrintPassFail", page), wxSizerFlags().Border(wxTOP, WideGap(page)));
  return sizer;
}

wxSizer* LayOutReprocess(FormBuilder& builder, wxWindow* page) {
  wxStaticBoxSizer* group = builder.AddGroup("fraReprocess", page);
  wxWindow* box = group->GetStaticBox();
  const int width = FormBuilder::Columns(box, 40);
  wxFlexGridSizer* table = FieldTable(box);
  const auto add_choice = [&](const std::string& button_name, const std::string& file_name) {
    wxWindow* button = builder.Add(button_name, box);
    SetLeastWidth(button, FormBuilder::Columns(box, 24));
    AddField(table, button, builder.AddData(file_name, box), width);
  };
  add_choice("cmdStandard", "lblStdName");
  add_choice("cmdSamp", "lblSampleName");
  wxWindow* label = builder.Add("lblReprocessAlgorithm", box);
  wxWindow* algorithm = builder.Add("cmbAlg", box);
  SetLeastWidth(algorithm, FormBuilder::Columns(box, 24));
  table->Add(label, wxSizerFlags().CentreVertical());
  table->Add(algorithm, wxSizerFlags().CentreVertical());
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(table, wxSizerFlags().Expand());
  content->Add(ButtonRow(box, {builder.Add("cmdNow", box)}), wxSizerFlags().Border(wxTOP, WideGap(box)));
  Fill(group, content);
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(group, wxSizerFlags().Expand());
  return sizer;
}

wxSizer* LayOutExpert(FormBuilder& builder, wxWindow* page) {
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(ButtonRow(page, {builder.Add("cmdExpertMode", page)}));
  return sizer;
}

}  // namespace

wxWindow* LayOutSupervisorPanel(FormBuilder& builder, wxWindow* parent) {
  const auto [panel, heading] = builder.AddPanel("fraSupervisorMode", parent);
  wxNotebook* tabs = builder.AddTabs("SSTab1", panel);
  static constexpr LayoutFunction kPages[] = {LayOutSecurity,  LayOutBackground, LayOutMethods,
                                              LayOutStandards, LayOutOptions,    LayOutReprocess,
                                              LayOutExpert};
  for (std::size_t i = 0; i < std::size(kPages) && i < tabs->GetPageCount(); ++i) {
    wxWindow* page = tabs->GetPage(i);
    page->SetSizer(Padded(kPages[i](builder, page), WideGap(panel)));
    page->InvalidateBestSize();
  }
  // The tabs are as large as the largest of their pages, whatever size they were made with.
  tabs->SetMinSize(wxDefaultSize);
  auto* inside = new wxBoxSizer(wxVERTICAL);
  inside->Add(heading, wxSizerFlags().Border(wxBOTTOM, Gap(panel)));
  inside->Add(tabs, wxSizerFlags(1).Expand());
  inside->Add(ButtonRow(panel, {builder.Add("cmdMainMenu", panel)}),
              wxSizerFlags().Right().Border(wxTOP, WideGap(panel)));
  panel->SetSizer(Padded(inside, WideGap(panel)));
  return panel;
}

}  // namespace veritane::platform
