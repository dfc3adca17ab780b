// The program's string table.
#include "shell/state/string_table.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/run_time_error.h"

namespace veritane::state {

namespace {

// Sorted by number.
const std::vector<std::pair<int, std::string>>& Table() {
  // clang-format off
  static const std::vector<std::pair<int, std::string>> table{
    {16, "Product ID"},
    {17, "Collect Method"},
    {18, "Algorithm"},
    {19, "&Scan Standard"},
    {20, "&Cancel"},
    {21, "Standard"},
    {22, "Null Region"},
    {23, "Start of Null Region (high wavenumber)"},
    {24, "End of Null Region (low wavenumber"},
    {25, "Add a Null Region"},
    {26, "&Add"},
    {27, "Delete &Null Region"},
    {28, "&Done"},
    {29, "Status"},
    {30, "Select a Spectrum"},
    {31, "Select Method"},
    {32, "Select a Collect Method for the Background"},
    {33, "&Cancel"},
    {34, "O&K"},
    {35, "Sample"},
    {36, "Product ID"},
    {37, "O&K"},
    {38, "&Cancel"},
    {39, "Operator Prompts"},
    {40, "Operator Prompt for a Background"},
    {41, "Operator Prompt for a Sample"},
    {42, "O&K"},
    {43, "Password"},
    {44, "Enter Password"},
    {45, "O&K"},
    {46, "Define Product ID/Barcode Identifier"},
    {47, "Type in representative Product ID or scan in a representative Barcode. Use the mouse to hilight that portion of the Product ID that identifies the general product type (ie. ignore date fields, batch number fields etc.)"},
    {48, "O&K"},
    {49, "Veritane"},
    {50, "Supervisor Options"},
    {51, "Ret&urn to Operator Mode"},
    {52, "Securit&y"},
    {53, "&Background"},
    {54, "Collect Meth&ods"},
    {55, "S&tandards"},
    {56, "Opt&ions"},
    {57, "&Reprocess Data"},
    {58, "Expert &Mode"},
    {59, "Password Options"},
    {60, "No Password"},
    {61, "Password Required"},
    {62, "Background Options"},
    {63, "Manually Collect Background"},
    {64, "New Background Required Every"},
    {65, "Hours"},
    {66, "Collect Background Before Every Sample"},
    {67, "Coll&ect Background Now"},
    {68, "Methods"},
    {69, "Currently Defined Collect Methods"},
    {70, "Null"},
    {71, "&Add Collect Method"},
    {72, "Delete Met&hod"},
    {73, "Add &Null Regions"},
    {74, "Current Selection"},
    {75, "Product ID"},
    {76, "Collect Method"},
    {77, "Algorithm"},
    {78, "Chan&ge"},
    {79, "&Delete"},
    {80, "Collect &Standard Spectrum No&w"},
    {81, "Pass/Fail Threshold (0-100%)"},
    {82, "De&fine Product ID/Barcode Identifier"},
    {83, "Reprocess"},
    {84, "Sele&ct Standard"},
    {85, "Se&lect Sample"},
    {86, "&Reprocess Now"},
    {87, "Exit to Expert Mode"},
    {88, "Reprocessed"},
    {89, "&Reset Spectrum Limits"},
    {90, "&Print Spectrum"},
    {91, "&Screen Copy"},
    {92, "&Back to Main Menu"},
    {93, "Operator Mode"},
    {94, "&Sample"},
    {95, "Su&pervisor Mode"},
    {96, "E&xit"},
    {200, " Please select a region to delete."},
    {202, " Please prepare sample compartment/ accessory for Sample spectrum."},
    {203, " Please prepare sample compartment/ accessory for Background spectrum."},
    {204, " Select clm file"},
    {205, " Scanning..."},
    {206, " Spectrometer reported an error. Error #"},
    {207, " Warning"},
    {208, " Background"},
    {209, " Background Done"},
    {210, " Notice"},
    {212, " Standard already exists. Please delete Standard before collecting a new Standard with the same name."},
    {213, " A new Background is required."},
    {214, " Click on OK when ready to collect the background spectrum."},
    {215, " Standard "},
    {216, " Standard Done"},
    {217, " Please select a Collect Method to delete."},
    {218, " Please select a Collect Method."},
    {219, " You have exceeded 50,000 spectra. Please inform your Supervisor that backup files must be removed."},
    {220, " Product ID not found in the list of Standards. Please contact Supervisor."},
    {221, " Ready for Sample."},
    {222, " Click OK to scan Sample."},
    {223, " Loading Standard...."},
    {224, " Calculating..."},
    {225, "PASS"},
    {226, "FAIL"},
    {227, " Match Quality"},
    {229, "  Match Quality = "},
    {232, " Select Standard Spectrum."},
    {233, " Select Sample Spectrum."},
    {234, " Please select a Standard and a Sample Spectrum."},
    {235, " Spectral Resolutions are different."},
    {236, " Number of points for spectra are different."},
    {237, " Cannot reprocess spectra."},
    {238, " Reprocess Standard ---------"},
    {239, " Reprocess Sample ---------"},
    {240, " %. Algorithm = "},
    {241, " Enter Password"},
    {242, " Access Denied"},
    {243, " Product ID"},
    {244, " Collect Method"},
    {245, " Algorithm"},
    {247, " Calibrating (May take a couple of minutes)"},
    {248, "Verify Password"},
    {249, "Incorrect Password"},
    {250, "Must be a value between 0 and 100."},
    {252, " Incorrect sampling accessory installed in the Sample Compartment. Please put in correct accessory and click OK to continue."},
    {253, "Operator Name"},
    {254, "Please enter an Operator Name"},
    {255, "Standard"},
  };
  // clang-format on
  return table;
}

}  // namespace

const std::string& Text(int id) {
  const auto& table = Table();
  const auto found = std::lower_bound(table.begin(), table.end(), id,
                                      [](const auto& entry, int wanted) { return entry.first < wanted; });
  if (found == table.end() || found->first != id) {
    throw platform::RunTimeError(platform::ErrorNumber::kInvalidCall, "text " + std::to_string(id));
  }
  return found->second;
}

}  // namespace veritane::state
