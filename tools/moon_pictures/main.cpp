// Draws the pictures of the Moon that the program shows.
// usage: tarnwick_moon_pictures FOLDER
#include <QImage>
#include <cstdlib>
#include <iostream>
#include <string>

#include "tools/moon_pictures/moon_drawing.h"

namespace {

bool WritePicture(const std::string& folder, tarnwick::MoonPhase phase) {
  const std::string file =
      folder + "/" + std::string(tarnwick::MoonPictureFile(phase.fraction, phase.waxing));
  const std::vector<std::uint32_t> pixels = tarnwick::DrawMoon(tarnwick::kMoonPictureWidth, phase);
  const QImage image(reinterpret_cast<const uchar*>(pixels.data()), tarnwick::kMoonPictureWidth,
                     tarnwick::kMoonPictureWidth, QImage::Format_RGB32);
  if (image.convertToFormat(QImage::Format_RGB888).save(QString::fromStdString(file))) return true;
  std::cerr << "tarnwick_moon_pictures: cannot write " << file << '\n';
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: tarnwick_moon_pictures FOLDER\n";
    return EXIT_FAILURE;
  }
  for (const tarnwick::MoonPhase phase :
       {tarnwick::MoonPhase{0, true}, {0.5, true}, {1, true}, {0.5, false}}) {
    if (!WritePicture(argv[1], phase)) return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
