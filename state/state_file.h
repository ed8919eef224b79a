// Where the state is kept, and the file as text.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

// The file in the user's folder for the data of programs. Its own folder there is made if there is
// none; if that fails, writing the file will tell.
std::filesystem::path StateFileIn(const std::filesystem::path& user_data_folder);

// Records as they stand in the file, each on a line of its own: whole numbers, other numbers (such
// that reading them gives the same number) and quoted texts.
std::string NumberRecord(std::int16_t number);
std::string NumberRecord(double number);
std::string TextRecord(std::string_view text);

// Reads a file record by record. Every routine returns nothing where the file ends or the next
// record is of another kind, after which the rest is of no use.
class StateReader {
 public:
  explicit StateReader(std::string_view text) : rest_(text) {}

  std::optional<std::int16_t> ReadInteger();
  std::optional<double> ReadNumber();  // finite
  // A text may have several lines; it ends at its closing quotation mark.
  std::optional<std::string> ReadText();

 private:
  template <class Number>
  std::optional<Number> Read();

  std::string_view rest_;
};

}  // namespace tarnwick
