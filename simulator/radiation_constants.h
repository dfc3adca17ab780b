// The constants of Planck's law per wavenumber: 2 h c² and h c / k with c in cm/s (CODATA 2018).
#pragma once

namespace veritane::simulator {

inline constexpr double kFirstRadiationConstant = 1.191042972e-12;  // W cm²/sr
inline constexpr double kSecondRadiationConstant = 1.438776877;     // cm K

}  // namespace veritane::simulator
