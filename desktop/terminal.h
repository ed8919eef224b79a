// Who reads what a program writes to standard error.
#pragma once

namespace tarnwick {

// Whether standard error is a terminal that somebody may be looking at.
bool ErrorsGoToTerminal();

}  // namespace tarnwick
