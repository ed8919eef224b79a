#include "desktop/help_html.h"

#include <QStringList>
#include <string>

#include "desktop/characters.h"

namespace tarnwick {
namespace {

// Styles of a mark's lines: neighbours of the same kind stand close together.
constexpr char kHeading[] = "<h3 style='margin-bottom:2px'>%1</h3>";
constexpr char kParagraph[] = "<p style='margin-top:2px; margin-bottom:8px'>%1</p>";
constexpr char kItem[] = "<p style='margin:2px 0px 2px 14px; text-indent:-10px'>&bull; %1</p>";
constexpr char kExample[] = "<pre style='margin:0px 0px 0px 24px'>%1</pre>";
constexpr char kGap[] = "<p style='margin:0px; font-size:4pt'>&nbsp;</p>";

struct Mark {
  const char* prefix;
  const char* format;
};
constexpr Mark kMarks[] = {{"# ", kHeading}, {"- ", kItem}, {"    ", kExample}, {"", kParagraph}};

QString LineHtml(const QString& line) {
  for (const auto& [prefix, format] : kMarks) {
    if (!line.startsWith(QLatin1String(prefix))) continue;
    return QString(format).arg(line.mid(QLatin1String(prefix).size()).toHtmlEscaped());
  }
  return {};
}

}  // namespace

QString HelpHtml(std::string_view text) {
  QString html;
  bool spaced = true;
  for (const QString& line : ToQt(std::string(text)).split('\n')) {
    if (!line.isEmpty()) html += LineHtml(line);
    if (line.isEmpty() && !spaced) html += kGap;
    spaced = line.isEmpty() || !(line.startsWith("- ") || line.startsWith("    "));
  }
  return html;
}

}  // namespace tarnwick
