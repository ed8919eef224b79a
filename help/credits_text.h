// The fixed text of the window of credits, with the marks of help_text.h.
#pragma once

#include <string_view>

namespace tarnwick {

// Version, licence and sources.
std::string_view CreditsText();

}  // namespace tarnwick
