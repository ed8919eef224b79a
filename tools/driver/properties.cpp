#include "tools/driver/properties.h"

#include <cstdio>

#include "controls/drawing.h"
#include "controls/table.h"

namespace tarnwick {
namespace {

std::string Flag(bool value) { return value ? "1" : "0"; }

std::string ColorText(Color color) {
  char text[8];
  std::snprintf(text, sizeof text, "#%02x%02x%02x", unsigned{color.red}, unsigned{color.green},
                unsigned{color.blue});
  return text;
}

std::optional<std::string> BoundsText(const Rectangle& bounds, std::string_view property) {
  if (property == "Left") return std::to_string(bounds.left);
  if (property == "Top") return std::to_string(bounds.top);
  if (property == "Width") return std::to_string(bounds.width);
  if (property == "Height") return std::to_string(bounds.height);
  return std::nullopt;
}

std::optional<std::string> TableProperty(const Table& table, std::string_view property) {
  if (property == "RowCount") return std::to_string(table.RowCount());
  if (property == "Selected") return table.Selected() ? std::to_string(*table.Selected()) : "-1";
  if (property == "SortedBy") {
    const auto& order = table.SortedBy();
    if (!order) return "-1";
    return std::to_string(order->column) + (order->descending ? " descending" : "");
  }
  if (property != "Columns") return std::nullopt;
  std::string headings;
  for (const TableColumn& column : table.Columns()) {
    headings += (headings.empty() ? "" : "|") + column.heading;
  }
  return headings;
}

// The properties that only some kinds of control have.
std::optional<std::string> OwnProperty(const Control& control, std::string_view property) {
  if (const auto* captioned = dynamic_cast<const CaptionedControl*>(&control)) {
    if (property == "Caption") return captioned->Caption();
  }
  if (const auto* label = dynamic_cast<const Label*>(&control)) {
    if (property == "Selected") return Flag(label->Selected());
  }
  if (const auto* check = dynamic_cast<const CheckBox*>(&control)) {
    if (property == "Value") return Flag(check->Value());
  }
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) {
    if (property == "Value") return Flag(option->Value());
  }
  if (const auto* text = dynamic_cast<const TextBox*>(&control)) {
    if (property == "Text") return text->Text();
    if (property == "SelStart") return std::to_string(text->SelStart());
    if (property == "SelLength") return std::to_string(text->SelLength());
  }
  if (const auto* list = dynamic_cast<const ComboBox*>(&control)) {
    if (property == "ListIndex") return std::to_string(list->ListIndex());
    if (property == "Text") return list->Text();
  }
  if (const auto* picture = dynamic_cast<const Picture*>(&control)) {
    if (property == "Picture") return picture->File().filename().string();
    if (property == "Description") return picture->Description();
  }
  if (const auto* drawing = dynamic_cast<const Drawing*>(&control)) {
    if (property == "Description") return drawing->Description();
  }
  if (const auto* table = dynamic_cast<const Table*>(&control)) {
    return TableProperty(*table, property);
  }
  if (const auto* timer = dynamic_cast<const Timer*>(&control)) {
    if (property == "Interval") return std::to_string(timer->Interval());
  }
  return std::nullopt;
}

}  // namespace

std::string Escape(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '\r':
        escaped += "\\r";
        break;
      case '\n':
        escaped += "\\n";
        break;
      case '\\':
        escaped += "\\\\";
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

std::string Unescape(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char next = text[i] == '\\' && i + 1 < text.size() ? text[i + 1] : '\0';
    if (next != 'r' && next != 'n' && next != '\\') {
      plain += text[i];
      continue;
    }
    plain += next == 'r' ? '\r' : next == 'n' ? '\n' : '\\';
    ++i;
  }
  return plain;
}

std::optional<std::string> PropertyText(const Control& control, std::string_view property) {
  if (property == "Enabled") return Flag(control.Enabled());
  if (property == "Visible") return Flag(control.Visible());
  if (property == "ForeColor") return ColorText(control.ForeColor());
  if (property == "ToolTipText") return control.ToolTipText();
  if (auto text = BoundsText(control.Bounds(), property)) return text;
  return OwnProperty(control, property);
}

std::optional<std::string> PropertyText(const Form& form, std::string_view property) {
  if (property == "Caption") return form.Caption();
  if (property == "Visible") return Flag(form.Visible());
  return BoundsText(form.Bounds(), property);
}

std::string_view DefaultProperty(const Control& control) {
  if (dynamic_cast<const Drawing*>(&control) != nullptr) return "Description";
  for (const std::string_view property :
       {"Value", "ListIndex", "Text", "Caption", "Interval", "RowCount"}) {
    if (OwnProperty(control, property)) return property;
  }
  return "Visible";
}

std::vector<std::string> DumpFields(const Control& control) {
  const auto* picture = dynamic_cast<const Picture*>(&control);
  const std::string_view value = picture != nullptr ? "Picture" : DefaultProperty(control);
  std::vector<std::string> fields{control.Name()};
  for (const std::string_view property :
       {value, std::string_view("Enabled"), std::string_view("Visible"),
        std::string_view("ForeColor"), std::string_view("ToolTipText")}) {
    fields.push_back(*PropertyText(control, property));
  }
  return fields;
}

}  // namespace tarnwick
