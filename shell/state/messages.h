// Message boxes from the string table, in one short call each.
#pragma once

#include "platform/desktop.h"
#include "shell/state/string_table.h"

#include <string>

namespace veritane::state {

// Shows one text under the title " Notice".
inline void Notice(platform::Desktop& desktop, TextId text, platform::MessageIcon icon) {
  desktop.ShowMessage({.text = Text(text), .title = Text(TextId::kNoticeTitle), .icon = icon});
}

// Shows a text under the title "Notice".
inline void PlainNotice(platform::Desktop& desktop, const std::string& text,
                        platform::MessageIcon icon = platform::MessageIcon::kExclamation) {
  desktop.ShowMessage({.text = text, .title = Text(TextId::kPlainNotice), .icon = icon});
}

}  // namespace veritane::state
