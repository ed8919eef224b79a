#include "sky/contours.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

#include "engines/ephemeris/bounded_search.h"

namespace tarnwick {
namespace {

constexpr int kNone = -1;
constexpr double kFineStep = 1e-4;  // degrees: ten metres, far below what a map shows

}  // namespace

GeoGrid::GeoGrid(int step, GeoQuantity quantity)
    : step_(step), columns_(360 / step), rows_(180 / step), quantity_(std::move(quantity)) {
  const int corners = (rows_ + 1) * columns_;
  values_.reserve(static_cast<std::size_t>(corners));
}

bool GeoGrid::FillRow() {
  const int row = static_cast<int>(values_.size()) / columns_;
  const bool pole = row == 0 || row == rows_;
  for (int column = 0; column < columns_; ++column) {
    values_.push_back(pole && column > 0 ? values_.back() : quantity_(Corner(row, column)));
  }
  return row < rows_;
}

GeoPoint GeoGrid::Corner(int row, int column) const {
  return {row * step_ - 90.0, column * step_ - 180.0};
}

double GeoGrid::ValueAt(int row, int column) const {
  const int corner = row * columns_ + column % columns_;
  return values_[static_cast<std::size_t>(corner)];
}

int GeoGrid::NumberOf(const Side& side) const {
  return 2 * (side.row * (columns_ + 1) + side.column) + (side.northward ? 1 : 0);
}

GeoLines GeoGrid::Contours(double level) const {
  Successors next(static_cast<std::size_t>(NumberOf({rows_ + 1, 0, false})), kNone);
  for (int row = 0; row < rows_; ++row) {
    for (int column = 0; column < columns_; ++column) MarchThrough(row, column, level, next);
  }
  GeoLines lines;
  const auto take = [&](int side) {
    if (next[static_cast<std::size_t>(side)] == kNone) return;
    lines.push_back(TakeLine(side, level, next));
  };
  // First those from the date line, which must be taken from their beginnings.
  for (int row = 0; row < rows_; ++row) {
    take(NumberOf({row, 0, true}));
    take(NumberOf({row, columns_, true}));
  }
  for (int side = 0; side < static_cast<int>(next.size()); ++side) take(side);
  return lines;
}

// Goes round the square against the clock. A line runs from a side on which this comes inside to
// one on which it goes out again; the square beyond, gone round the same way, sees it the other way
// about, so that lines go on from square to square.
void GeoGrid::MarchThrough(int row, int column, double level, Successors& next) const {
  const std::array<double, 4> values{ValueAt(row, column), ValueAt(row, column + 1),
                                     ValueAt(row + 1, column + 1), ValueAt(row + 1, column)};
  const std::array<int, 4> sides{NumberOf({row, column, false}), NumberOf({row, column + 1, true}),
                                 NumberOf({row + 1, column, false}), NumberOf({row, column, true})};
  const auto inside = [&](std::size_t i) { return values[i % 4] >= level; };
  const bool connected = (values[0] + values[1] + values[2] + values[3]) / 4 >= level;
  const std::size_t turn = connected ? 3 : 1;  // back to cut off what is outside, on for what is in
  for (std::size_t i = 0; i < 4; ++i) {
    if (inside(i) || !inside(i + 1)) continue;
    std::size_t out = i + turn;
    while (!inside(out) || inside(out + 1)) out += turn;
    next[static_cast<std::size_t>(sides[i])] = sides[out % 4];
  }
}

std::vector<GeoPoint> GeoGrid::TakeLine(int side, double level, Successors& next) const {
  std::vector<GeoPoint> line{Crossing(side, level)};
  const int first = side;
  while (true) {
    side = std::exchange(next[static_cast<std::size_t>(side)], kNone);
    if (side == kNone) return line;
    line.push_back(side == first ? line.front() : Crossing(side, level));
  }
}

GeoPoint GeoGrid::Crossing(int side, double level) const {
  const bool northward = side % 2 == 1;
  const GeoPoint start = Corner(side / 2 / (columns_ + 1), side / 2 % (columns_ + 1));
  const auto point = [&](double degrees) {
    return northward ? GeoPoint{start.latitude + degrees, start.longitude}
                     : GeoPoint{start.latitude, start.longitude + degrees};
  };
  const auto outside = [&](double degrees) { return level - quantity_(point(degrees)); };
  const bool starts_inside = outside(0) <= 0;
  return point(starts_inside ? RootBetween(outside, 0, step_, kFineStep)
                             : RootBetween(outside, step_, 0, kFineStep));
}

}  // namespace tarnwick
