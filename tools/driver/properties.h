// The properties of controls and forms as text, by name.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/controls.h"
#include "controls/form.h"

namespace tarnwick {

// CR, LF and backslash as \r, \n and \\, and back. Unescape leaves any other backslash as it is.
std::string Escape(std::string_view text);
std::string Unescape(std::string_view text);

// A property by its name: Caption, Text, Value, ListIndex, Enabled, Visible, ForeColor,
// ToolTipText, SelStart, SelLength, Left, Top, Width, Height, Interval, Selected, Description,
// Picture (the name of its file), RowCount, Columns (their headings) or SortedBy (the column,
// "2 descending"); nothing where the control has none of that name. Booleans are 1 and 0, numbers
// of a row or column that there is not -1, colours #rrggbb.
std::optional<std::string> PropertyText(const Control& control, std::string_view property);
std::optional<std::string> PropertyText(const Form& form, std::string_view property);

// The property that tells most about a control of that kind.
std::string_view DefaultProperty(const Control& control);

// Name, value, Enabled, Visible, ForeColor and ToolTipText of a control; its value is its default
// property, that of a picture the name of its file.
std::vector<std::string> DumpFields(const Control& control);

}  // namespace tarnwick
