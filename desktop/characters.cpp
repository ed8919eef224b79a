#include "desktop/characters.h"

namespace tarnwick {

QString ToQt(const std::string& text) { return QString::fromStdString(text); }

std::string FromQt(const QString& text) { return text.toStdString(); }

QString ToShownLines(const std::string& text) { return ToQt(text).replace("\r\n", "\n"); }

std::string FromShownLines(const QString& text) {
  return FromQt(QString(text).replace("\n", "\r\n"));
}

QKeySequence ToKeySequence(std::string_view keys) {
  const QString name = ToQt(std::string(keys)).replace('_', ' ');
  return QKeySequence::fromString(name, QKeySequence::PortableText);
}

QString WithMnemonic(const QString& caption, char mnemonic) {
  QString marked = caption;
  marked.replace("&", "&&");
  const qsizetype at =
      mnemonic == 0 ? -1 : marked.indexOf(QLatin1Char(mnemonic), 0, Qt::CaseInsensitive);
  return at < 0 ? marked : marked.insert(at, '&');
}

}  // namespace tarnwick
