// The pictures that lie beside the program, in its folder "assets".
#pragma once

#include <filesystem>

#include "controls/desktop.h"

namespace tarnwick {

// Finds them. The program is of use without its pictures, so the user is told of the first one that
// is missing, and of no other.
class PictureFiles {
 public:
  explicit PictureFiles(Desktop& desktop) : desktop_(desktop) {}

  // The file of a picture, "moon_pics/day1.gif"; empty if there is none.
  std::filesystem::path Find(const std::filesystem::path& name);

 private:
  Desktop& desktop_;
  bool reported_ = false;
};

}  // namespace tarnwick
