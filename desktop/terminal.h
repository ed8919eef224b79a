// What a program without windows reads and writes.
#pragma once

namespace tarnwick {

// Whether standard error is a terminal that somebody may be looking at.
bool ErrorsGoToTerminal();

// Has standard output write line ends as they are, as it does anyway where they are one character.
void KeepLineEnds();

}  // namespace tarnwick
