// The texts of the help for Qt's pages.
#pragma once

#include <QString>
#include <string_view>

namespace tarnwick {

// A text with the marks of help/help_text.h as a page of HTML.
QString HelpHtml(std::string_view text);

}  // namespace tarnwick
