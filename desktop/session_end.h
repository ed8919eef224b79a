// The end that comes from outside: of the user's session, or of the program by another.
#pragma once

#include <functional>

namespace tarnwick {

// Has `save` called before the program ends because the system or another program wants it to: by
// SIGTERM, SIGHUP or SIGINT, or by the end of a session of Windows. To be called once, with a
// QApplication; `save` is called from its event loop and may ask nothing.
void SaveAtSessionEnd(std::function<void()> save);

}  // namespace tarnwick
