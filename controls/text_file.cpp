#include "controls/text_file.h"

#include <cerrno>
#include <chrono>
#include <fstream>
#include <memory>
#include <random>
#include <stdexcept>
#include <system_error>
#include <thread>

#include "controls/own_folder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr int kMostLinks = 40;  // in a chain of symbolic links

// A folder that is older than this has been left behind by a program that did not end as it should.
constexpr std::chrono::hours kOldDraft(24);
constexpr std::chrono::seconds kOldTurn(10);
constexpr std::chrono::seconds kPatience(15);  // to wait for one's turn: longer than for an old one
constexpr unsigned kLongestPause = 40;         // milliseconds between two attempts

[[noreturn]] void Throw(std::errc error) { throw std::system_error(std::make_error_code(error)); }

// With what the C library says of the failure of a stream.
[[noreturn]] void ThrowStreamError() {
  Throw(errno != 0 ? static_cast<std::errc>(errno) : std::errc::io_error);
}

// What went wrong in an action, in words, empty if nothing did.
template <class Action>
std::string ErrorOf(const Action& action) {
  try {
    action();
    return {};
  } catch (const std::system_error& error) {
    return error.code().message();
  } catch (const std::runtime_error& error) {
    return error.what();
  }
}

// The file that a path means: itself or, through symbolic links, another, which need not be there.
fs::path FollowLinks(const fs::path& path) {
  fs::path file = fs::absolute(path);
  for (int links = 0; fs::is_symlink(file); ++links) {
    if (links == kMostLinks) Throw(std::errc::too_many_symbolic_link_levels);
    file = file.parent_path() / fs::read_symlink(file);
  }
  return file;
}

// The permissions of a file that is to be written, nothing if it is not there yet. Throws where it
// must not be written.
std::optional<fs::perms> PermissionsToWrite(const fs::path& file) {
  const fs::file_status status = fs::status(file);
  if (!fs::exists(status)) return std::nullopt;
  if (fs::is_directory(status)) throw std::runtime_error("This is a folder.");
  if (!fs::is_regular_file(status)) throw std::runtime_error("This is not an ordinary file.");
  // The system lets an administrator open anything, so what the file says counts too.
  constexpr fs::perms kAnyWrite =
      fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if ((status.permissions() & kAnyWrite) == fs::perms::none) Throw(std::errc::permission_denied);
  errno = 0;
  if (!std::ofstream(file, std::ios::binary | std::ios::in)) ThrowStreamError();
  return status.permissions();
}

// Before anything is in it, the file gets its permissions.
void WriteBytes(const fs::path& file, std::string_view text, std::optional<fs::perms> permissions) {
  errno = 0;
  std::ofstream out(file, std::ios::binary);
  if (out && permissions && fs::status(file).permissions() != *permissions) {
    fs::permissions(file, *permissions);
  }
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  out.close();
  if (!out) ThrowStreamError();
}

// `file` is no link.
void Replace(const fs::path& file, std::string_view text) {
  const std::optional<fs::perms> permissions = PermissionsToWrite(file);
  const OwnFolder draft(file.parent_path(), ".tnwk-draft-");
  draft.RemoveOthers(kOldDraft);
  WriteBytes(draft.File(), text, permissions);
  fs::rename(draft.File(), file);
}

// It is our turn to change files in a folder for as long as the folder made here is there. Two
// programs that try at once see each other and try again.
std::unique_ptr<OwnFolder> TakeTurn(const fs::path& folder) {
  const auto give_up = std::chrono::steady_clock::now() + kPatience;
  std::random_device random;
  while (true) {
    auto turn = std::make_unique<OwnFolder>(folder, ".tnwk-turn-");
    if (turn->RemoveOthers(kOldTurn) == 0) return turn;
    turn.reset();
    if (std::chrono::steady_clock::now() > give_up) Throw(std::errc::device_or_resource_busy);
    std::this_thread::sleep_for(std::chrono::milliseconds(1 + random() % kLongestPause));
  }
}

}  // namespace

std::optional<std::string> ReadTextFile(const std::filesystem::path& path, std::size_t limit) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  std::string text(limit + 1, '\0');
  file.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(file.gcount()));
  if (file.bad() || !file.eof()) return std::nullopt;
  return text;
}

std::string WriteTextFile(const std::filesystem::path& path, std::string_view text) {
  return ErrorOf([&] { Replace(FollowLinks(path), text); });
}

std::string AppendToTextFile(const std::filesystem::path& path, std::string_view lines) {
  return ErrorOf([&] {
    const fs::path file = FollowLinks(path);
    const auto turn = TakeTurn(file.parent_path());
    std::string whole;
    if (PermissionsToWrite(file)) {
      const auto before = ReadTextFile(file, fs::file_size(file));
      if (!before) Throw(std::errc::io_error);
      whole = *before;
      if (!whole.empty() && whole.back() != '\n') whole += "\r\n";
    }
    Replace(file, whole.append(lines));
  });
}

}  // namespace tarnwick
