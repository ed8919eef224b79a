// How what is on display gets to the clipboard.
#pragma once

#include "controls/controls.h"
#include "controls/desktop.h"
#include "moment/dates_section.h"

namespace tarnwick {

// Gives a value a context menu that copies it, or the time with all dates. A value that is empty is
// not copied: the clipboard keeps what it holds.
void OfferCopying(Label& value, const DatesSection& dates, Desktop& desktop);

}  // namespace tarnwick
