// The whole program by the driver's commands, looked at after each of them.
#pragma once

#include <filesystem>
#include <ostream>
#include <string>

namespace tarnwick {

// Carries out the commands, one a line; what they answer goes to `output`. After each the program
// must be in order: the dates agree with one another and with the time, what can be used is what
// should, and nothing is busy unless a move runs. A move still running at the end is stopped.
void RunChecked(const std::string& commands, std::ostream& output);

// A folder of this process's own, which goes with it.
const std::filesystem::path& ScratchFolder();

}  // namespace tarnwick
