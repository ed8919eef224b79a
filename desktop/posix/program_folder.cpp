#include "desktop/program_folder.h"

#include <system_error>

namespace tarnwick {

std::filesystem::path ProgramFolder() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::filesystem::current_path() : program.parent_path();
}

}  // namespace tarnwick
