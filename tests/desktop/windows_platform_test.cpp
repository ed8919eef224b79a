#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

#include "desktop/platform.h"
#include "state/state_file.h"

namespace tarnwick {
namespace {

TEST(WindowsPlatform, StateLiesInTheRoamingFolderOfTheUser) {
  const wchar_t* const roaming = _wgetenv(L"APPDATA");
  ASSERT_NE(roaming, nullptr);
  EXPECT_EQ(platform::UserDataFolder(), std::filesystem::path(roaming));
  const std::filesystem::path file = StateFileIn(platform::UserDataFolder());
  EXPECT_EQ(file, std::filesystem::path(roaming) / L"Ostrel Systems" / L"tnwk.usr");
  EXPECT_TRUE(std::filesystem::is_directory(file.parent_path()));
}

}  // namespace
}  // namespace tarnwick
