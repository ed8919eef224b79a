// Counting the characters (code points) of a text in UTF-8. A byte that begins none, as in a text
// that is not UTF-8, belongs to the character before it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tarnwick {

inline bool StartsCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

inline std::size_t CountCharacters(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), StartsCharacter));
}

// The byte at which character number `index` begins, or the end of the text.
inline std::size_t ByteOffset(std::string_view text, std::size_t index) {
  std::size_t byte = 0;
  for (std::size_t seen = 0; byte < text.size(); ++byte) {
    if (StartsCharacter(text[byte]) && seen++ == index) break;
  }
  return byte;
}

}  // namespace tarnwick
