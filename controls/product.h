// What the program is called.
#pragma once

namespace tarnwick {

inline constexpr char kVersion[] = "18.0";
inline constexpr char kProgramTitle[] = "Tarnwick 18.0";
inline constexpr char kWebPage[] = "https://tarnwick.example/";

}  // namespace tarnwick
