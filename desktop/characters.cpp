#include "desktop/characters.h"

#include <algorithm>

namespace tarnwick {

QString ToQt(const std::string& text) { return QString::fromStdString(text); }

std::string FromQt(const QString& text) { return text.toStdString(); }

QString ToShownLines(const std::string& text) { return ToQt(text).replace("\r\n", "\n"); }

std::string FromShownLines(const QString& text) {
  return FromQt(QString(text).replace("\n", "\r\n"));
}

std::size_t CountCharacters(QStringView text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](QChar unit) { return !unit.isLowSurrogate(); }));
}

qsizetype CodeUnitOffset(QStringView text, std::size_t index) {
  qsizetype unit = 0;
  for (std::size_t seen = 0; unit < text.size(); ++unit) {
    if (!text[unit].isLowSurrogate() && seen++ == index) break;
  }
  return unit;
}

QString WithMnemonic(const QString& caption, char mnemonic) {
  QString marked = caption;
  marked.replace("&", "&&");
  const qsizetype at =
      mnemonic == 0 ? -1 : marked.indexOf(QLatin1Char(mnemonic), 0, Qt::CaseInsensitive);
  return at < 0 ? marked : marked.insert(at, '&');
}

}  // namespace tarnwick
