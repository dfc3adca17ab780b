// Message boxes from the string table, in one short call each.
#pragma once

#include "platform/desktop.h"
#include "shell/state/string_table.h"

namespace veritane::state {

// Shows one text under the title " Notice".
inline void Notice(platform::Desktop& desktop, TextId text, platform::MessageIcon icon) {
  desktop.ShowMessage({.text = Text(text), .title = Text(TextId::kNoticeTitle), .icon = icon});
}

}  // namespace veritane::state
