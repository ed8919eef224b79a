#include "controls/text_file.h"

#include <cerrno>
#include <fstream>
#include <system_error>

namespace tarnwick {
namespace {

// What the C library says of the failure of a stream.
std::error_code StreamError() {
  return {errno != 0 ? errno : static_cast<int>(std::errc::io_error), std::generic_category()};
}

std::error_code WriteBytes(const std::filesystem::path& path, std::string_view text) {
  errno = 0;
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  file.close();
  return file ? std::error_code() : StreamError();
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
  std::filesystem::path draft = path;
  draft += ".new";
  std::error_code error = WriteBytes(draft, text);
  if (!error) std::filesystem::rename(draft, path, error);
  if (!error) return {};
  std::error_code ignored;
  std::filesystem::remove(draft, ignored);
  return error.message();
}

}  // namespace tarnwick
