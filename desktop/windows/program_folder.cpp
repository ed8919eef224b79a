#include "desktop/program_folder.h"

#include <string>
#include <windows.h>

namespace tarnwick {

std::filesystem::path ProgramFolder() {
  // The longest path that Windows knows.
  std::wstring name(32768, L'\0');
  const DWORD length = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
  name.resize(length);
  return length == 0 ? std::filesystem::current_path() : std::filesystem::path(name).parent_path();
}

}  // namespace tarnwick
