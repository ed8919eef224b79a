#include "controls/picture_files.h"

#include <string>
#include <system_error>
#include <utility>

#include "controls/save_path.h"

namespace tarnwick {

std::filesystem::path PictureFiles::Find(const std::filesystem::path& name) {
  std::filesystem::path file = desktop_.ProgramFolder() / "assets" / name;
  std::error_code error;
  if (std::filesystem::is_regular_file(file, error)) return file;
  if (!std::exchange(reported_, true)) {
    desktop_.ShowMessage(
        {"Picture not found: " + PathText(file), "Error", MessageIcon::kExclamation});
  }
  return {};
}

}  // namespace tarnwick
