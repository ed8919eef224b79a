// Texts between the forms (UTF-8, lines ended by CR LF) and Qt (UTF-16, lines ended by LF).
#pragma once

#include <QKeySequence>
#include <QString>
#include <string>
#include <string_view>

namespace tarnwick {

QString ToQt(const std::string& text);
std::string FromQt(const QString& text);

// A text of several lines as an edit shows it, and back.
QString ToShownLines(const std::string& text);
std::string FromShownLines(const QString& text);

// Keys as forms name them: "Alt+Left", "Page_Down".
QKeySequence ToKeySequence(std::string_view keys);

// The caption for a widget that takes "&" for a mnemonic: the first `mnemonic` in it is marked, in
// whichever case; none is if the letter is 0 or does not occur.
QString WithMnemonic(const QString& caption, char mnemonic);

}  // namespace tarnwick
