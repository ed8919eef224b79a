// Files that hold one text, read and written whole.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

// The bytes of a file, as they stand; nothing if it cannot be read, is no ordinary file or has more
// than `limit` bytes.
std::optional<std::string> ReadTextFile(const std::filesystem::path& path, std::size_t limit);

// Writes a file whole, or leaves what was there: the text goes to a file beside it, which then
// takes its place. Returns the system's description of what went wrong, empty if nothing did.
std::string WriteTextFile(const std::filesystem::path& path, std::string_view text);

}  // namespace tarnwick
