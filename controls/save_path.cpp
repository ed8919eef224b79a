#include "controls/save_path.h"

#include <system_error>

namespace tarnwick {
namespace {

bool UserReplaces(Desktop& desktop, const std::string& title, const std::filesystem::path& file) {
  return desktop.ShowMessage({PathText(file.filename()) + " already exists.  Replace it?", title,
                              MessageIcon::kQuestion, MessageButtons::kYesNo,
                              MessageAnswer::kNo}) == MessageAnswer::kYes;
}

}  // namespace

std::string FileNameOf(std::string_view title) {
  std::string name;
  for (const char c : title) {
    name += std::string_view("<>:\"/\\|?*").find(c) == std::string_view::npos ? c : '.';
  }
  return name;
}

std::string PathText(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::optional<std::filesystem::path> AskWhereToSave(Desktop& desktop, const std::string& title,
                                                    const std::string& suggestion) {
  while (auto file = desktop.AskSavePath(title, suggestion)) {
    std::error_code error;
    if (!std::filesystem::exists(*file, error) || UserReplaces(desktop, title, *file)) return file;
  }
  return std::nullopt;
}

std::string SaveErrorText(const std::string& what, const std::string& error) {
  return "Error when attempting to save " + what + ": " + error;
}

void ReportSaveError(Desktop& desktop, const std::string& what, const std::string& title,
                     const std::string& error) {
  desktop.ShowMessage({SaveErrorText(what, error), title, MessageIcon::kExclamation});
}

}  // namespace tarnwick
