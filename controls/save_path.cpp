#include "controls/save_path.h"

#include <system_error>

namespace tarnwick {
namespace {

bool UserReplaces(Desktop& desktop, const std::string& title, const std::filesystem::path& file) {
  const std::u8string name = file.filename().u8string();
  return desktop.ShowMessage(
             {std::string(name.begin(), name.end()) + " already exists.  Replace it?", title,
              MessageIcon::kQuestion, MessageButtons::kYesNo}) == MessageAnswer::kYes;
}

}  // namespace

std::optional<std::filesystem::path> AskWhereToSave(Desktop& desktop, const std::string& title,
                                                    const std::string& suggestion) {
  while (auto file = desktop.AskSavePath(title, suggestion)) {
    std::error_code error;
    if (!std::filesystem::exists(*file, error) || UserReplaces(desktop, title, *file)) return file;
  }
  return std::nullopt;
}

void ReportSaveError(Desktop& desktop, const std::string& what, const std::string& title,
                     const std::string& error) {
  desktop.ShowMessage(
      {"Error when attempting to save " + what + ": " + error, title, MessageIcon::kExclamation});
}

}  // namespace tarnwick
