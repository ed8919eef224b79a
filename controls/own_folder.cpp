#include "controls/own_folder.h"

#include <algorithm>
#include <random>
#include <string_view>
#include <system_error>
#include <utility>

namespace tarnwick {
namespace {

constexpr int kAttempts = 100;
constexpr int kDigits = 16;
constexpr char kHexadecimal[] = "0123456789abcdef";

std::string RandomDigits(std::random_device& random) {
  std::string digits;
  for (int i = 0; i < kDigits; ++i) digits += kHexadecimal[random() % kDigits];
  return digits;
}

bool AreDigits(std::u8string_view text) {
  return text.size() == kDigits && std::ranges::all_of(text, [](char8_t c) {
           return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
         });
}

}  // namespace

OwnFolder::OwnFolder(const std::filesystem::path& parent, std::string prefix)
    : prefix_(std::move(prefix)) {
  std::random_device random;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    path_ = parent / (prefix_ + RandomDigits(random));
    if (std::filesystem::create_directory(path_)) return;
  }
  throw std::system_error(std::make_error_code(std::errc::file_exists));
}

OwnFolder::~OwnFolder() { Remove(path_); }

std::filesystem::path OwnFolder::FileIn(const std::filesystem::path& folder) {
  return folder / "draft";
}

// Whatever else may lie in it keeps it from going.
void OwnFolder::Remove(const std::filesystem::path& folder) {
  std::error_code ignored;
  std::filesystem::remove(FileIn(folder), ignored);
  std::filesystem::remove(folder, ignored);
}

bool OwnFolder::IsOther(const std::filesystem::directory_entry& entry) const {
  const std::u8string name = entry.path().filename().u8string();
  const std::u8string prefix(prefix_.begin(), prefix_.end());
  std::error_code error;
  return name.starts_with(prefix) && AreDigits(std::u8string_view(name).substr(prefix.size())) &&
         entry.path().filename() != path_.filename() &&
         entry.symlink_status(error).type() == std::filesystem::file_type::directory;
}

// One that cannot be looked at has just gone.
int OwnFolder::RemoveOthers(std::chrono::seconds age) const {
  namespace fs = std::filesystem;
  int left = 0;
  std::error_code error;
  const fs::file_time_type now = fs::last_write_time(path_, error);
  for (fs::directory_iterator at(path_.parent_path(), error), end; !error && at != end;
       at.increment(error)) {
    if (!IsOther(*at)) continue;
    std::error_code gone;
    const fs::file_time_type made = fs::last_write_time(at->path(), gone);
    if (gone) continue;
    // One that seems to be made later has been left behind before the clock was set back.
    if (std::chrono::abs(now - made) > age) {
      Remove(at->path());
    } else {
      ++left;
    }
  }
  return left;
}

}  // namespace tarnwick
