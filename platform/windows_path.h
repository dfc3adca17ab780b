// Parts of Windows paths as text; nothing here touches a disk.
#pragma once

#include <string>
#include <string_view>

namespace veritane::platform {

// The text after the last "\", or the whole text where there is none.
std::string LeafName(std::string_view path);
// The leaf name without its last extension, e.g. "ASA-100" of "C:\Data\ASA-100.bsp".
std::string LeafWithoutExtension(std::string_view path);
// The text before the last "\", or "" where there is none.
std::string FolderOf(std::string_view path);

// Latin, Greek and Cyrillic letters in upper case (UTF-8 in and out); other characters
// as they are. Used wherever names are compared without regard to case.
std::string UpperCase(std::string_view text);

// What no name of a file holds, beside control characters.
inline constexpr std::string_view kForbiddenInNames = "\\/:*?\"<>|";

// Why a text cannot be the name of a file, as a sentence for the user, or "" when it can: empty, "." or "..",
// one of \ / : * ? " < > |, a control character, a trailing blank or point, a reserved device name.
std::string WhyNotAFileName(std::string_view name);

}  // namespace veritane::platform
