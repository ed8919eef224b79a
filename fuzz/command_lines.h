// Inputs that are commands of the driver, one a line, and change line by line: new lines are
// commands on the controls and windows that there are.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace tarnwick {

using Random = std::minstd_rand;
using Lines = std::vector<std::string>;

Lines LinesOf(const std::uint8_t* data, std::size_t size);

// Writes as many lines as there is room for; returns how many bytes that takes.
std::size_t WriteLines(const Lines& lines, std::uint8_t* data, std::size_t room);

// Makes one change: a line more, less, elsewhere or otherwise.
void MutateLines(Lines& lines, Random& random);

}  // namespace tarnwick
