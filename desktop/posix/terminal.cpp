#include "desktop/terminal.h"

#include <unistd.h>

namespace tarnwick {

bool ErrorsGoToTerminal() { return isatty(STDERR_FILENO) != 0; }

void KeepLineEnds() {}

}  // namespace tarnwick
