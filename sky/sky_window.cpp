#include "sky/sky_window.h"

namespace tarnwick {

frmSky::frmSky(Desktop& /*desktop*/, Screen& screen, Session& /*session*/, frmNotice& /*notice*/)
    : ClosableForm(screen, "frmSky", "Sky at a place") {}

}  // namespace tarnwick
