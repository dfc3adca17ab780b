// The dialogs, and which form has which layout.
#include "platform/form.h"
#include "platform/wx/layout_parts.h"
#include "platform/wx/layouts.h"

#include <map>
#include <string_view>

namespace veritane::platform {

namespace {

void AddNamedField(FormBuilder& builder, wxFlexGridSizer* table, wxWindow* parent, const std::string& label,
                   const std::string& field, int columns) {
  wxWindow* text = builder.Add(label, parent);
  AddField(table, text, builder.Add(field, parent), FormBuilder::Columns(parent, columns));
}

wxSizer* LayOutSample(FormBuilder& builder, wxWindow* root) {
  wxFlexGridSizer* table = FieldTable(root);
  AddNamedField(builder, table, root, "lblProductID", "cmbStandards", 42);
  AddNamedField(builder, table, root, "lblSampName", "txtSampName", 42);
  AddNamedField(builder, table, root, "lblOperator", "txtOperatorName", 42);
  wxWindow* okay = builder.Add("cmdProductIDOkay", root);
  return Dialog(root, table, ButtonRow(root, {okay, builder.Add("cmdSampleCancelled", root)}));
}

wxSizer* LayOutPassword(FormBuilder& builder, wxWindow* root) {
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(builder.Add("lblPassword", root));
  wxWindow* box = builder.Add("txtPassword", root);
  SetLeastWidth(box, FormBuilder::Columns(root, 36));
  content->Add(box, wxSizerFlags().Expand().Border(wxTOP, Gap(root)));
  return Dialog(root, content, ButtonRow(root, {builder.Add("cmdPasswordOK", root)}));
}

wxSizer* LayOutCollectStandard(FormBuilder& builder, wxWindow* root) {
  wxFlexGridSizer* table = FieldTable(root);
  AddNamedField(builder, table, root, "lblProductID", "txtProductID", 42);
  AddNamedField(builder, table, root, "lblCollectMethod", "cmbmth", 42);
  AddNamedField(builder, table, root, "lblAlgorithm", "cmbAlg", 42);
  wxWindow* label = builder.Add("lblFile", root);
  auto* file = new wxBoxSizer(wxHORIZONTAL);
  file->Add(builder.Add("txtCalFileName", root), wxSizerFlags(1).CentreVertical().ReserveSpaceEvenIfHidden());
  file->Add(builder.Add("cmdChooseCalFile", root),
            wxSizerFlags().CentreVertical().ReserveSpaceEvenIfHidden().Border(wxLEFT, Gap(root)));
  table->Add(label, wxSizerFlags().CentreVertical().ReserveSpaceEvenIfHidden());
  table->Add(file, wxSizerFlags(1).Expand().ReserveSpaceEvenIfHidden());
  wxWindow* scan = builder.Add("cmdScan", root);
  return Dialog(root, table, ButtonRow(root, {scan, builder.Add("cmdNoScanStandardNow", root)}));
}

wxSizer* LayOutNullRegion(FormBuilder& builder, wxWindow* root) {
  wxStaticBoxSizer* group = builder.AddGroup("fraAddNullRegion", root);
  wxWindow* box = group->GetStaticBox();
  wxFlexGridSizer* table = FieldTable(box);
  AddNamedField(builder, table, box, "lblNullStart", "txtNullStart", 12);
  AddNamedField(builder, table, box, "lblNullEnd", "txtNullEnd", 12);
  auto* entry = new wxBoxSizer(wxVERTICAL);
  entry->Add(table, wxSizerFlags().Expand());
  entry->Add(ButtonRow(box, {builder.Add("cmdAddNullRegion", box)}),
             wxSizerFlags().Right().Border(wxTOP, WideGap(box)));
  Fill(group, entry);

  wxWindow* list = builder.Add("lstNulls", root);
  list->SetMinSize({-1, FormBuilder::Line(root) * 8});
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(group, wxSizerFlags().Expand());
  content->Add(list, wxSizerFlags(1).Expand().Border(wxTOP, WideGap(root)));
  wxWindow* remove = builder.Add("cmdDeleteNullRegion", root);
  return Dialog(root, content, ButtonRow(root, {remove, builder.Add("cmdDone", root)}));
}

wxSizer* LayOutParse(FormBuilder& builder, wxWindow* root) {
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(builder.AddProse("lblInstruction", root, FormBuilder::Columns(root, 60)),
               wxSizerFlags().Expand());
  content->Add(builder.Add("txtTmpProductID", root), wxSizerFlags().Expand().Border(wxTOP, WideGap(root)));
  wxWindow* okay = builder.Add("cmdOK", root);
  return Dialog(root, content, ButtonRow(root, {okay, builder.Add("cmdResetParser", root)}));
}

wxSizer* LayOutPrompts(FormBuilder& builder, wxWindow* root) {
  auto* content = new wxBoxSizer(wxVERTICAL);
  const auto add = [&](const std::string& label, const std::string& box) {
    content->Add(builder.Add(label, root));
    wxWindow* field = builder.Add(box, root);
    SetLeastWidth(field, FormBuilder::Columns(root, 64));
    content->Add(field, wxSizerFlags().Expand().Border(wxTOP, Gap(root) / 2));
  };
  add("lblBackgroundPrompt", "txtBackgroundPrompt");
  content->AddSpacer(WideGap(root));
  add("lblSamplePrompt", "txtSamplePrompt");
  return Dialog(root, content, ButtonRow(root, {builder.Add("cmdOK", root)}));
}

wxSizer* LayOutSelectMethod(FormBuilder& builder, wxWindow* root) {
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(builder.Add("lblSelectMethod", root));
  wxWindow* methods = builder.Add("cmbSelectMethod", root);
  SetLeastWidth(methods, FormBuilder::Columns(root, 44));
  content->Add(methods, wxSizerFlags().Expand().Border(wxTOP, Gap(root)));
  wxWindow* okay = builder.Add("cmdSelectMethodOK", root);
  return Dialog(root, content, ButtonRow(root, {okay, builder.Add("cmdSelectMethodCancel", root)}));
}

wxSizer* LayOutStatus(FormBuilder& builder, wxWindow* root) {
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(builder.AddProse("lblStatus", root, FormBuilder::Columns(root, 44)), wxSizerFlags().Expand());
  content->Add(builder.AddGauge(root), wxSizerFlags().Expand().Border(wxTOP, Gap(root)));
  return Dialog(root, content, nullptr);
}

wxSizer* LayOutSelectSpectrum(FormBuilder& builder, wxWindow* root) {
  auto* content = new wxBoxSizer(wxVERTICAL);
  wxWindow* list = builder.AddConfirmedList("lstSpectrum", root);
  list->SetMinSize({FormBuilder::Columns(root, 70), FormBuilder::Line(root) * 16});
  content->Add(list, wxSizerFlags(1).Expand());
  return Dialog(root, content, nullptr);
}

wxSizer* LayOutResults(FormBuilder& builder, wxWindow* root) {
  auto* content = new wxBoxSizer(wxVERTICAL);
  wxWindow* text = builder.Add("txtResults", root);
  // A report is a narrow table, and must not hide the spectrum that it is about.
  text->SetMinSize({FormBuilder::Columns(root, 32), FormBuilder::Line(root) * 24});
  content->Add(text, wxSizerFlags(1).Expand());
  return Dialog(root, content, ButtonRow(root, {builder.Add("cmdPrint", root)}));
}

wxSizer* LayOutPrediction(FormBuilder& builder, wxWindow* root) {
  auto* file = new wxBoxSizer(wxHORIZONTAL);
  wxWindow* name = builder.AddData("lblCalFileName", root);
  SetLeastWidth(name, FormBuilder::Columns(root, 48));
  file->Add(name, wxSizerFlags(1).CentreVertical());
  file->Add(ButtonRow(root, {builder.Add("cmdNewCalFile", root)}),
            wxSizerFlags().CentreVertical().Border(wxLEFT, WideGap(root)));
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(file, wxSizerFlags().Expand());
  content->Add(builder.Add("Combo1", root), wxSizerFlags().Expand().Border(wxTOP, Gap(root)));
  wxWindow* results = builder.Add("iqoutput", root);
  results->SetMinSize({-1, FormBuilder::Line(root) * 12});
  content->Add(results, wxSizerFlags(1).Expand().Border(wxTOP, WideGap(root)));
  wxWindow* predict = builder.Add("cmdPredict", root);
  wxWindow* print = builder.Add("cmdPrint", root);
  return Dialog(root, content, ButtonRow(root, {predict, print, builder.Add("cmdDone", root)}));
}

wxSizer* LayOutInOrder(FormBuilder&, wxWindow*) {
  return new wxBoxSizer(wxVERTICAL);
}

}  // namespace

LayoutFunction LayoutOf(const std::string& form_name) {
  static const std::map<std::string_view, LayoutFunction> kLayouts = {
      {"frmVeritane", LayOutMainWindow},
      {"frmSamp", LayOutSample},
      {"frmPassword", LayOutPassword},
      {"frmCollectStd", LayOutCollectStandard},
      {"frmNullRegion", LayOutNullRegion},
      {"frmParse", LayOutParse},
      {"frmPrompts", LayOutPrompts},
      {"frmSelectMethod", LayOutSelectMethod},
      {kStatusForm, LayOutStatus},
      {"frmSelectSpectrum", LayOutSelectSpectrum},
      {"frmResults", LayOutResults},
      {"MainForm", LayOutPrediction},
      {"frmSimulator", LayOutSimulatorPanel},
  };
  const auto found = kLayouts.find(form_name);
  return found == kLayouts.end() ? LayOutInOrder : found->second;
}

}  // namespace veritane::platform
