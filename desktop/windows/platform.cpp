#include "desktop/platform.h"

#include <array>
#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>
#include <windows.h>

namespace tarnwick::platform {
namespace {

constexpr int kApplicationData = 26;  // the shell's number of the user's roaming data folder

// The path of one of the shell's special folders, empty if it has none.
std::filesystem::path SpecialFolder(int number) {
  LPITEMIDLIST id = nullptr;
  if (FAILED(SHGetSpecialFolderLocation(nullptr, number, &id))) return {};
  std::array<wchar_t, MAX_PATH> path{};
  const bool found = SHGetPathFromIDListW(id, path.data()) != 0;
  CoTaskMemFree(id);
  return found ? std::filesystem::path(path.data()) : std::filesystem::path();
}

// The root of the first drive that is part of the computer; C: where Windows names none.
std::filesystem::path LocalDrive() {
  const DWORD drives = GetLogicalDrives();
  for (int i = 0; i < 26; ++i) {
    const std::wstring root{static_cast<wchar_t>(L'A' + i), L':', L'\\'};
    if ((drives >> i & 1U) != 0 && GetDriveTypeW(root.c_str()) == DRIVE_FIXED) return root;
  }
  return L"C:\\";
}

}  // namespace

std::filesystem::path UserDataFolder() {
  std::filesystem::path folder = SpecialFolder(kApplicationData);
  return folder.empty() ? LocalDrive() : folder;
}

bool ReadersKnowValues() { return true; }

bool PrintsToFiles() { return false; }

void OpenWebPage(const std::string& address) {
  ShellExecuteA(nullptr, "open", address.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

}  // namespace tarnwick::platform
