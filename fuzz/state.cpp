// Any bytes as the saved state: the program starts with them, and what it then shows and saves, the
// next start shows and saves again.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

#include "controls/text_file.h"
#include "fuzz/check.h"
#include "fuzz/checked_driver.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLargestFile = 65536;

struct Run {
  std::string shown;
  std::string saved;
};

Run StartAndSave(const std::filesystem::path& file) {
  std::ostringstream output;
  RunChecked("statefile " + file.string() + "\nstart\nmessages\ndump\nclose frmMain\n", output);
  return {output.str(), ReadTextFile(file, kLargestFile).value_or("none")};
}

}  // namespace
}  // namespace tarnwick

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick;
  const std::filesystem::path file = ScratchFolder() / "state.usr";
  std::ofstream(file, std::ios::binary)
      << std::string_view(reinterpret_cast<const char*>(data), size);
  const Run first = StartAndSave(file);
  Check(first.shown.starts_with(".\n"), "a start has nothing to say",
        first.shown.substr(0, first.shown.find('\n')));
  const Run second = StartAndSave(file);
  CheckAlike(first.saved, second.saved, "the state is saved as it was read");
  CheckAlike(first.shown, second.shown, "the next start shows what the last one showed");
  return 0;
}
