// Texts between the forms (UTF-8, lines ended by CR LF, positions in characters) and Qt (UTF-16,
// lines ended by LF, positions in code units).
#pragma once

#include <QString>
#include <cstddef>
#include <string>

namespace tarnwick {

QString ToQt(const std::string& text);
std::string FromQt(const QString& text);

// A text of several lines as an edit shows it, and back.
QString ToShownLines(const std::string& text);
std::string FromShownLines(const QString& text);

// How many characters (code points) a text has.
std::size_t CountCharacters(QStringView text);
// The code unit at which character number `index` begins, or the end of the text.
qsizetype CodeUnitOffset(QStringView text, std::size_t index);

// The caption for a widget that takes "&" for a mnemonic: the first `mnemonic` in it is marked, in
// whichever case; none is if the letter is 0 or does not occur.
QString WithMnemonic(const QString& caption, char mnemonic);

}  // namespace tarnwick
