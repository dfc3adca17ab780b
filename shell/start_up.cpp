// Start-up and the two ways to end.
#include "acquisition/collection.h"
#include "acquisition/method_list.h"
#include "platform/desktop.h"
#include "platform/run_time_error.h"
#include "platform/texts.h"
#include "shell/frm_veritane.h"
#include "shell/state/data_folders.h"
#include "shell/state/messages.h"

namespace veritane::shell {

using platform::MessageIcon;
using platform::Pointer;
using state::Text;
using state::TextId;

namespace {

// For the steps of an ending that must all be tried, whatever becomes of each.
template <typename Step>
void IgnoringErrors(Step step) {
  try {
    step();
  } catch (const platform::RunTimeError&) {
    // The program ends; there is nobody left to tell.
  }
}

}  // namespace

void FrmVeritane::Form_Load() {
  state_.folderSet = state::ChooseFolderSet(machine_.registry);
  const std::optional<std::string> data_folder = TakeDataFolder();
  if (!data_folder) return;
  state::MakeTablesConcrete(machine_.files, state_.folderSet, *data_folder);
  LoadScreenTexts(dialogs_, *this);
  PrepareGrid();
  Screen().AttachForms();
  DeleteStalePrintView();
  ShowVersionTitle();
  Screen().SetMousePointer(Pointer::kHourglass);
  state::ShowPanel(bench_.panel, fraMainMenu);
  Show();
  Screen().ProcessPendingEvents();
  CreateSpectrometerObject();
  state_.folders = state::SetUpFolders(machine_.folders, machine_.files, state_.folderSet);
  ClearUnfinishedFiles();
  state_.formStartup = 1;
  LoadSettings();
  Log();
  if (state_.options.demoMode == 0) {
    if (!LoadCalibrationMethod()) return;
    Calibrate();
  }
  grid.SetFixedRows(1);
  FillAlgorithmLists();
  LoadMethods();
  chart.SetTitles(Text(TextId::kWavenumberAxis), Text(TextId::kIntensityAxis));
  state_.formStartup = 0;
  Screen().SetMousePointer(Pointer::kDefault);
}

// The data folder, for this program alone. Two programs on the same files would write over what the other one
// filed; nothing when the program has ended because of that.
std::optional<std::string> FrmVeritane::TakeDataFolder() {
  std::string data_folder;
  try {
    const std::string common = machine_.folders.CommonApplicationData(false);
    if (common.empty())
      Screen().ShowMessage({.text = Text(TextId::kNoApplicationData), .title = Text(TextId::kProgramName)});
    data_folder = state::DataFolderBelow(common);
    if (!machine_.files.FolderExists(data_folder)) return data_folder;
    data_folder_lock_ = machine_.files.TakeFile(data_folder + state::kDataFolderLock);
  } catch (const platform::RunTimeError& error) {
    throw platform::RunTimeError(error.Number(), Text(TextId::kDataFolderUnusable, {error.what()}));
  }
  if (data_folder_lock_ != nullptr) return data_folder;
  Screen().ShowMessage({.text = Text(TextId::kRunningAlready, {data_folder}),
                        .title = Text(TextId::kProgramName),
                        .icon = MessageIcon::kCritical});
  Screen().End(1);
  return std::nullopt;
}

// What a program that was killed left of its writing.
void FrmVeritane::ClearUnfinishedFiles() {
  for (const std::string& folder :
       {state_.folders.appDir, state_.folders.stdsDir, state_.folders.sampDir, PrintFolder()}) {
    machine_.files.ClearUnfinished(folder);
  }
}

// Placeholders until the product table is loaded.
void FrmVeritane::PrepareGrid() {
  for (int column = 1; column < grid.ColumnCount(); ++column) {
    grid.SetCell(0, column, Text(TextId::kGridColumn, {std::to_string(column)}));
  }
  for (int row = 1; row < grid.RowCount(); ++row)
    grid.SetCell(row, 0, Text(TextId::kGridRow, {std::to_string(row)}));
  grid.SetCurrentCell(1, 1);
}

void FrmVeritane::DeleteStalePrintView() {
  const std::string path = machine_.folders.ProgramFolder() + "\\current.pv";
  // Nothing reads it, so one that cannot be deleted keeps nobody from working.
  IgnoringErrors([&] {
    if (machine_.files.FileExists(path)) machine_.files.DeleteFile(path);
  });
}

void FrmVeritane::ShowVersionTitle() {
  SetCaption(Text(TextId::kVersionTitle,
                  {std::to_string(VERITANE_VERSION_MAJOR), std::to_string(VERITANE_VERSION_MINOR),
                   std::to_string(VERITANE_VERSION_REVISION)}));
}

void FrmVeritane::CreateSpectrometerObject() {
  session_.SpectrometerApp = create_spectrometer_app_(acquisition::kSpectrometerProgId);
  session_.SpectrometerApp->SetWaiting({.pendingText = platform::Text(platform::TextId::kWaitingForServer)});
}

platform::AppendingFile& FrmVeritane::Log() {
  if (log_ == nullptr) log_ = machine_.files.OpenForAppending(state_.folders.appDir + "log.txt");
  return *log_;
}

// False when the program has ended for want of the method.
bool FrmVeritane::LoadCalibrationMethod() {
  session_.SpectrometerApp->Interactive(false);
  state_.isVantor = state::kTrue;
  session_.CurrentDocument =
      session_.SpectrometerApp->OpenDocument(state_.folders.InStandards("Autoalign.bsp"));
  const std::string method = state_.folders.InStandards("Initial.clm");
  if (!machine_.files.FileExists(method)) {
    state::PlainNotice(Screen(), Text(TextId::kInitialMethodMissing), MessageIcon::kCritical);
    log_.reset();
    // They are as they were read a moment ago, and the program must end.
    IgnoringErrors([this] { SaveSettings(); });
    EndProgram();
    return false;
  }
  session_.scan = session_.SpectrometerApp->LoadCollectMethod(method);
  return true;
}

void FrmVeritane::Calibrate() {
  constexpr int kAttempts = 2;
  for (int attempt = 1; attempt <= kAttempts; ++attempt) {
    session_.scan->SetScanParameter(1);
    session_.scan->SetSubParameter(0);
    dialogs_.frmStatus.lblStatus.SetCaption(Text(TextId::kCalibrating));
    dialogs_.frmStatus.Show();
    Screen().SetMousePointer(Pointer::kHourglass);
    Screen().ProcessPendingEvents();
    const std::int16_t error_number = platform::ToInt16(session_.CurrentDocument->AutoAlign(*session_.scan));
    Screen().SetMousePointer(Pointer::kDefault);
    if (error_number == acquisition::kNoInstrumentError) break;
    if (attempt == 1) {
      // Only the younger instruments refuse the first scan; they need the option from now on.
      state_.isVantor = state::kFalse;
      session_.scan->SetCollectOption("NI");
    } else {
      acquisition::ShowInstrumentError(Screen(), error_number);
      session_.SpectrometerApp->Interactive(true);
    }
  }
  dialogs_.frmStatus.Hide();
  session_.CurrentDocument->CloseDocument(false);
}

void FrmVeritane::FillAlgorithmLists() {
  for (platform::ComboBox* list : {&cmbAlgorithm, &cmbAlg}) {
    list->Clear();
    list->AddAll({state::kEuclidean, state::kFourier, state::kLumivar, state::kPls, state::kMarkPeaks});
  }
  cmbAlg.Select(0);
}

void FrmVeritane::LoadMethods() {
  acquisition::LoadMethodList(machine_.files, state_,
                              {.lstMeths = lstMeths,
                               .shortNames = {&cmbCollectMethod, &dialogs_.frmCollectStd.cmbmth,
                                              &dialogs_.frmSelectMethod.cmbSelectMethod}});
  // No method is selected any more, and the lists were emptied beside the grid's current row.
  lstNullRegions.Clear();
  products_.ShowCurrentRow();
}

// Whether the program may end: the settings are saved, or the user leaves without them.
bool FrmVeritane::SaveSettingsOrAsk() {
  try {
    SaveSettings();
    return true;
  } catch (const platform::RunTimeError& error) {
    const auto answer = Screen().ShowMessage({.text = Text(TextId::kSettingsNotSaved, {error.what()}),
                                              .title = Text(TextId::kProgramName),
                                              .icon = MessageIcon::kQuestion,
                                              .buttons = platform::MessageButtons::kYesNo});
    return answer == platform::MessageAnswer::kYes;
  }
}

void FrmVeritane::cmdExit_Click() {
  log_.reset();
  if (SaveSettingsOrAsk()) EndProgram();
}

void FrmVeritane::EndProgram() {
  IgnoringErrors([this] { session_.SpectrometerApp->Interactive(true); });
  QuitApplicationAndEnd();
}

void FrmVeritane::QuitApplicationAndEnd() {
  if (state_.going_to_expert == state::kFalse)
    IgnoringErrors([this] { session_.SpectrometerApp->QuitApplication(); });
  session_.Release();
  Screen().End(0);
}

// The window is closed by the system menu or the system. The application is asked to quit before and after
// the log is closed, even when it was to stay open for the expert. Before start-up is done there is nothing
// to save.
void FrmVeritane::Form_QueryUnload() {
  if (state_.formStartup != 0 || session_.SpectrometerApp == nullptr) return;
  if (!SaveSettingsOrAsk()) return;
  session_.SpectrometerApp->QuitApplication();
  log_.reset();
  QuitApplicationAndEnd();
}

}  // namespace veritane::shell
