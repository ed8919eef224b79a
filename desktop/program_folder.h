// Where the files that come with the program lie.
#pragma once

#include <filesystem>

namespace tarnwick {

// The folder that the running program's file lies in; the current one if that cannot be told.
std::filesystem::path ProgramFolder();

}  // namespace tarnwick
