// The fixed texts of the window of help.
//
// A text is lines of UTF-8, each paragraph one line, with these marks at the beginning of a line:
//   "# "    a heading within the page
//   "- "    an item of a list
//   "    "  (four blanks) an example, to be shown in fixed pitch as it stands
// An empty line stands between paragraphs; lists and examples need none between their lines.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tarnwick {

struct HelpPage {
  std::string_view title;  // short: it stands in a list of pages
  std::string_view text;
};

// The pages of the help in the order of reading.
std::span<const HelpPage> HelpPages();

}  // namespace tarnwick
