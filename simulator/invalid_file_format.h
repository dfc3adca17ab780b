// The number of the RunTimeError for a file that is not what its reader reads: no spectrum, no print
// template.
#pragma once

namespace veritane::simulator {

inline constexpr int kInvalidFileFormat = 321;

}  // namespace veritane::simulator
