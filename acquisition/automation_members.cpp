// The table of member names and the file that changes it.
#include "acquisition/automation_members.h"

#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "platform/texts.h"
#include "platform/windows_path.h"
#include "shell/state/string_table.h"

#include <algorithm>
#include <optional>
#include <set>

namespace veritane::acquisition {

namespace {

using platform::MemberUse;
using platform::TrimBlanks;
using state::Text;
using state::TextId;

struct Row {
  Member member;
  std::string_view contractName;
  MemberUse use;
  std::string_view serverName;
};

constexpr std::array<Row, kMemberCount> kTable{{
    {Member::kInteractive, "Interactive", MemberUse::kPut, "Interactive"},
    {Member::kDocuments, "Documents", MemberUse::kGet, "Documents"},
    {Member::kLoadCollectMethod, "LoadCollectMethod", MemberUse::kCall, "LoadCollectMethod"},
    {Member::kActiveDocument, "ActiveDocument", MemberUse::kGet, "ActiveDocument"},
    {Member::kBeginPrint, "BeginPrint", MemberUse::kCall, "BeginPrint"},
    {Member::kQuitApplication, "QuitApplication", MemberUse::kCall, "QuitApplication"},

    {Member::kOpenDocument, "OpenDocument", MemberUse::kCall, "Open"},
    {Member::kNewDocument, "NewDocument", MemberUse::kCall, "Add"},

    {Member::kAutoAlign, "AutoAlign", MemberUse::kCall, "AutoAlign"},
    {Member::kCollectInto, "CollectInto", MemberUse::kCall, "CollectInto"},
    {Member::kCloseDocument, "CloseDocument", MemberUse::kCall, "CloseDocument"},
    {Member::kGetSpectrum, "GetSpectrum", MemberUse::kGet, "GetSpectrum"},
    {Member::kGetSpectrumAt, "GetSpectrumAt", MemberUse::kGet, "GetSpectrumAt"},
    {Member::kGetSpectrumCount, "GetSpectrumCount", MemberUse::kGet, "GetSpectrumCount"},
    {Member::kSelectSpectrum, "SelectSpectrum", MemberUse::kCall, "SelectSpectrum"},
    {Member::kCreateOperation, "CreateOperation", MemberUse::kCall, "CreateOperation"},
    {Member::kApplyOperation, "ApplyOperation", MemberUse::kCall, "ApplyOperation"},
    {Member::kSaveDocumentAs, "SaveDocumentAs", MemberUse::kCall, "SaveDocumentAs"},
    {Member::kSetDocumentShown, "SetDocumentShown", MemberUse::kCall, "SetDocumentShown"},
    {Member::kPrepareSampleView, "PrepareSampleView", MemberUse::kCall, "PrepareSampleView"},
    {Member::kPrepareStandardView, "PrepareStandardView", MemberUse::kCall, "PrepareStandardView"},
    {Member::kOpenPrintTemplate, "OpenPrintTemplate", MemberUse::kCallByReference, "OpenPrintTemplate"},

    {Member::kSetCollectOption, "SetCollectOption", MemberUse::kPut, "CollectOption"},
    {Member::kSetBackgroundFile, "SetBackgroundFile", MemberUse::kPut, "BackgroundFile"},
    {Member::kSetScanParameter, "SetScanParameter", MemberUse::kPut, "ScanParameter"},
    {Member::kGetScanSettings, "GetScanSettings", MemberUse::kGet, "ScanSettings"},
    {Member::kSetSubParameter, "SetSubParameter", MemberUse::kPut, "SubParameter"},

    {Member::kSetOperation, "SetOperation", MemberUse::kPut, "Operation"},
    {Member::kSetFileName, "SetFileName", MemberUse::kPut, "FileName"},

    {Member::kSpectrumData, "SpectrumData", MemberUse::kGet, "SpectrumData"},
    {Member::kGetParameter, "GetParameter", MemberUse::kGet, "GetParameter"},
    {Member::kGetParameterList, "GetParameterList", MemberUse::kGet, "GetParameterList"},
    {Member::kGetMarkerList, "GetMarkerList", MemberUse::kGet, "GetMarkerList"},
    {Member::kSpacing, "Spacing", MemberUse::kGet, "Spacing"},
    {Member::kNumberOfPoints, "NumberOfPoints", MemberUse::kGet, "NumberOfPoints"},
    {Member::kValues, "Values", MemberUse::kGet, "Values"},

    {Member::kGetValue, "GetValue", MemberUse::kGet, "Value"},
    {Member::kSetValue, "SetValue", MemberUse::kPut, "Value"},
    {Member::kAddParameter, "AddParameter", MemberUse::kCall, "AddParameter"},

    {Member::kAddMarker, "AddMarker", MemberUse::kCall, "AddMarker"},
    {Member::kClearMarkers, "ClearMarkers", MemberUse::kCall, "ClearMarkers"},
    {Member::kSetKind, "SetKind", MemberUse::kPut, "Kind"},
    {Member::kSetStyle, "SetStyle", MemberUse::kPut, "Style"},
    {Member::kGetDefinition, "GetDefinition", MemberUse::kGet, "Definition"},
    {Member::kSetDefiningMethod, "SetDefiningMethod", MemberUse::kPut, "DefiningMethod"},
    {Member::kSetLowerBound, "SetLowerBound", MemberUse::kPut, "LowerBound"},

    {Member::kPrintDoc, "PrintDoc", MemberUse::kCall, "PrintDoc"},
    {Member::kCloseDoc, "CloseDoc", MemberUse::kCall, "CloseDoc"},
}};

constexpr bool TableIsInOrder() {
  for (std::size_t i = 0; i < kTable.size(); ++i) {
    if (static_cast<std::size_t>(kTable[i].member) != i) return false;
  }
  return true;
}
static_assert(TableIsInOrder());

std::optional<MemberUse> UseOf(std::string_view word) {
  const std::string upper = platform::UpperCase(word);
  if (upper == "CALL") return MemberUse::kCall;
  if (upper == "CALLREF") return MemberUse::kCallByReference;
  if (upper == "GET") return MemberUse::kGet;
  if (upper == "PUT") return MemberUse::kPut;
  return std::nullopt;
}

[[noreturn]] void Refuse(TextId why, const std::string& place, const std::string& name = "") {
  throw platform::RunTimeError(platform::ErrorNumber::kTypeMismatch, Text(why, {place, name}));
}

// The text behind "=", as a member that is used like `former` unless it says otherwise; nothing when it is
// none.
std::optional<ServerMember> ParseServerMember(std::string_view text, const ServerMember& former) {
  MemberUse use = former.use;
  const std::size_t blank = text.find_first_of(" \t");
  if (blank != text.npos) {
    const auto named = UseOf(text.substr(0, blank));
    if (!named) return std::nullopt;
    use = *named;
    text = TrimBlanks(text.substr(blank));
  }
  if (text.empty() || text.find_first_of(" \t=\"'") != text.npos) return std::nullopt;
  return ServerMember{std::string(text), use};
}

}  // namespace

AutomationMembers::AutomationMembers() {
  for (std::size_t i = 0; i < kTable.size(); ++i) {
    members_[i] = {std::string(kTable[i].serverName), kTable[i].use};
  }
}

AutomationMembers::AutomationMembers(std::string_view bytes, const std::string& source)
    : AutomationMembers() {
  platform::TextReader reader(bytes, source);
  std::set<Member> changed;
  for (int number = 1; !reader.AtEnd(); ++number) {
    const std::string line = reader.ReadLine();
    const std::string_view text = TrimBlanks(line);
    if (text.empty() || text.starts_with('#')) continue;
    const std::string place = platform::Text(platform::TextId::kLineOfFile, {source, std::to_string(number)});
    const std::size_t equals = text.find('=');
    if (equals == text.npos) Refuse(TextId::kMemberLineExpected, place);
    const std::string name(TrimBlanks(text.substr(0, equals)));
    const auto* const row = std::ranges::find(kTable, platform::UpperCase(name), [](const Row& each) {
      return platform::UpperCase(each.contractName);
    });
    if (row == kTable.end()) Refuse(TextId::kNotInContract, place, name);
    if (!changed.insert(row->member).second) Refuse(TextId::kMemberTwice, place, name);
    ServerMember& member = members_[static_cast<std::size_t>(row->member)];
    const auto given = ParseServerMember(TrimBlanks(text.substr(equals + 1)), member);
    if (!given) Refuse(TextId::kMemberNameExpected, place);
    member = *given;
  }
}

AutomationMembers ReadAutomationMembers(const platform::FileSystem& files, const std::string& path) {
  return files.FileExists(path) ? AutomationMembers(files.ReadBytes(path), path) : AutomationMembers();
}

}  // namespace veritane::acquisition
