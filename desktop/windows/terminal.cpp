#include "desktop/terminal.h"

#include <io.h>
#include <stdio.h>

namespace tarnwick {

bool ErrorsGoToTerminal() { return _isatty(_fileno(stderr)) != 0; }

}  // namespace tarnwick
