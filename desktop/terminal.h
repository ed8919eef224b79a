#pragma once

namespace tarnwick {

// Whether standard error is a terminal that somebody may be looking at.
bool ErrorsGoToTerminal();

}  // namespace tarnwick
