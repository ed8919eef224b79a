#include "desktop/platform.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QUrl>

#include "desktop/characters.h"

namespace tarnwick::platform {

// XDG_CONFIG_HOME counts only if it is an absolute path.
std::filesystem::path UserDataFolder() {
  const QString chosen = QFile::decodeName(qgetenv("XDG_CONFIG_HOME"));
  const QString folder = QDir::isAbsolutePath(chosen) ? chosen : QDir::homePath() + "/.config";
  return QFile::encodeName(folder).toStdString();
}

// They are handed numbers only.
bool ReadersKnowValues() { return false; }

bool PrintsToFiles() { return true; }

void OpenWebPage(const std::string& address) { QDesktopServices::openUrl(QUrl(ToQt(address))); }

}  // namespace tarnwick::platform
