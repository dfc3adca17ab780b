// The names under which the Spectrometer application's automation objects show the operations of the
// contract. A site whose application calls them otherwise says so in a text file.
#pragma once

#include "platform/automation.h"
#include "platform/file_system.h"

#include <array>
#include <string>
#include <string_view>

namespace veritane::acquisition {

// What the contract needs of the application's objects, object by object.
enum class Member {
  // Of the application.
  kInteractive,
  kDocuments,
  kLoadCollectMethod,
  kActiveDocument,
  kBeginPrint,
  kQuitApplication,
  // Of its documents collection.
  kOpenDocument,
  kNewDocument,
  // Of a document.
  kAutoAlign,
  kCollectInto,
  kCloseDocument,
  kGetSpectrum,
  kGetSpectrumAt,
  kGetSpectrumCount,
  kSelectSpectrum,
  kCreateOperation,
  kApplyOperation,
  kSaveDocumentAs,
  kSetDocumentShown,
  kPrepareSampleView,
  kPrepareStandardView,
  kOpenPrintTemplate,
  // Of a collect method, and of the object that it keeps its further settings in.
  kSetCollectOption,
  kSetBackgroundFile,
  kSetScanParameter,
  kGetScanSettings,
  kSetSubParameter,
  // Of an operation.
  kSetOperation,
  kSetFileName,
  // Of a spectrum and of its data.
  kSpectrumData,
  kGetParameter,
  kGetParameterList,
  kGetMarkerList,
  kSpacing,
  kNumberOfPoints,
  kValues,
  // Of a parameter and of the list of parameters.
  kGetValue,
  kSetValue,
  kAddParameter,
  // Of the list of markers, of a marker, and of the object that says where it stands.
  kAddMarker,
  kClearMarkers,
  kSetKind,
  kSetStyle,
  kGetDefinition,
  kSetDefiningMethod,
  kSetLowerBound,
  // Of a print.
  kPrintDoc,
  kCloseDoc,
};
inline constexpr std::size_t kMemberCount = static_cast<std::size_t>(Member::kCloseDoc) + 1;

// A member as the application shows it.
struct ServerMember {
  std::string name;
  platform::MemberUse use = platform::MemberUse::kCall;
};

class AutomationMembers {
public:
  // The names that Veritane's own Spectrometer application uses.
  AutomationMembers();

  // The same with the changes that the lines of a file make: "contract name = server name", where one of the
  // words call, callref (arguments by reference), get and put may stand before the server's name and tells
  // how it is used. "#" begins a comment line. `source` is the file's path, for the text of errors: 13 with
  // path and line for a line of another form, for a name that the contract does not have or that came before.
  AutomationMembers(std::string_view bytes, const std::string& source);

  const ServerMember& operator[](Member member) const { return members_[static_cast<std::size_t>(member)]; }

private:
  std::array<ServerMember, kMemberCount> members_;
};

// The leaf name of the file in the data folder.
inline constexpr const char* kAutomationMembersFile = "automation.ini";

// The members as the file at this path has them; without the file, those of the default.
AutomationMembers ReadAutomationMembers(const platform::FileSystem& files, const std::string& path);

}  // namespace veritane::acquisition
