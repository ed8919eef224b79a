// Draws the pictures of the Moon that the program shows: the four that it makes any phase from, as
// BMP, and those of the days of a lunation and of its icon, as PNG.
// usage: tarnwick_moon_pictures FOLDER
#include <QImage>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <numbers>
#include <string>

#include "moon/syzyg.h"
#include "tools/moon_pictures/moon_drawing.h"

namespace {

using tarnwick::MoonPhase;

// The calendar of a lunation: 4 rows of 8 cells, 7 days a row. The last cell is for the day left
// over from a fortnight, in the second and the fourth row; in the first and the third it is empty.
constexpr int kCells = 32;
constexpr int kFirstEmptyCell = 7;
constexpr int kSecondEmptyCell = 23;
constexpr int kDayWidth = 160;
constexpr int kIconWidth = 256;
constexpr MoonPhase kIconPhase{0.4, true};

// The mean phase at noon of the day in a cell.
MoonPhase PhaseOfCell(int cell) {
  const int days_since_new = cell - (cell > kFirstEmptyCell) - (cell > kSecondEmptyCell);
  const double angle = 2 * std::numbers::pi * days_since_new / tarnwick::SynodicMonth;
  return {(1 - std::cos(angle)) / 2, angle < std::numbers::pi};
}

bool WritePicture(const std::string& file, int width, MoonPhase phase) {
  const std::vector<std::uint32_t> pixels = tarnwick::DrawMoon(width, phase);
  const QImage image(reinterpret_cast<const uchar*>(pixels.data()), width, width,
                     QImage::Format_RGB32);
  if (image.convertToFormat(QImage::Format_RGB888).save(QString::fromStdString(file))) return true;
  std::cerr << "tarnwick_moon_pictures: cannot write " << file << '\n';
  return false;
}

bool WritePhases(const std::string& folder) {
  for (const MoonPhase phase : {MoonPhase{0, true}, {0.5, true}, {1, true}, {0.5, false}}) {
    const std::string file(tarnwick::MoonPictureFile(phase.fraction, phase.waxing));
    if (!WritePicture(folder + "/" + file, tarnwick::kMoonPictureWidth, phase)) return false;
  }
  return true;
}

bool WriteDays(const std::string& folder) {
  for (int cell = 0; cell < kCells; ++cell) {
    if (cell == kFirstEmptyCell || cell == kSecondEmptyCell) continue;
    const std::string file = folder + "/day" + std::to_string(cell + 1) + ".png";
    if (!WritePicture(file, kDayWidth, PhaseOfCell(cell))) return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: tarnwick_moon_pictures FOLDER\n";
    return EXIT_FAILURE;
  }
  const std::string folder = argv[1];
  const bool written = WritePicture(folder + "/icon.png", kIconWidth, kIconPhase) &&
                       WritePhases(folder) && WriteDays(folder);
  return written ? EXIT_SUCCESS : EXIT_FAILURE;
}
