// Files that are read and written whole.
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

// Writes a file whole, or leaves what was there: the text (any bytes) goes to a draft beside it,
// which then takes its place. A symbolic link stays, and the file that it leads to is written
// (where the standard library knows links: MinGW's does not). A file that was there keeps its
// permissions; one that may not be written, or is no ordinary file, is refused. Returns what went
// wrong, in words, empty if nothing did.
std::string WriteTextFile(const std::filesystem::path& path, std::string_view text);

// Adds lines at the end of a file, likewise whole or not at all; a file that is not there is made.
// Programs that do so at the same time take turns: each may have to wait for some seconds.
std::string AppendToTextFile(const std::filesystem::path& path, std::string_view lines);

}  // namespace tarnwick
