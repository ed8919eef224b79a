#include "desktop/terminal.h"

#include <fcntl.h>
#include <io.h>
#include <stdio.h>

namespace tarnwick {

bool ErrorsGoToTerminal() { return _isatty(_fileno(stderr)) != 0; }

void KeepLineEnds() { _setmode(_fileno(stdout), _O_BINARY); }

}  // namespace tarnwick
