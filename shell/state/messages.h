// Message boxes from the string table, in one short call each.
#pragma once

#include <string>

#include "platform/desktop.h"
#include "shell/state/string_table.h"

namespace veritane::state {

// The title of messages whose texts are not in the string table.
inline const std::string kPlainNotice = "Notice";

// Shows one text under the title " Notice".
inline void Notice(platform::Desktop& desktop, TextId text, platform::MessageIcon icon) {
  desktop.ShowMessage({.text = Text(text), .title = Text(TextId::kNoticeTitle), .icon = icon});
}

}  // namespace veritane::state
