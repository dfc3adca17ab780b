// The filters of file choosers.
#pragma once

#include <string>

namespace veritane::platform {

// "(*.clm)|*.clm" as the system's chooser takes it: where names of files differ by case, the pattern is made
// to match either, as in "(*.clm)|*.[cC][lL][mM]". Descriptions stay as they are.
std::string NativeFilter(const std::string& filter);

}  // namespace veritane::platform
