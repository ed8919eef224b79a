// Lines on which a quantity has a value everywhere on the Earth: marching squares over a regular
// grid of latitude and longitude.
#pragma once

#include <functional>
#include <vector>

#include "sky/geo_point.h"

namespace tarnwick {

using GeoQuantity = std::function<double(const GeoPoint&)>;

// The quantity at the corners of squares that cover the Earth from pole to pole and once around
// from the date line. What is narrower than a square may be missed.
class GeoGrid {
 public:
  // `step` in whole degrees, a divisor of 180. The grid is empty, until its rows are filled.
  GeoGrid(int step, GeoQuantity quantity);

  // Evaluates the quantity along the next parallel. Returns whether there are more of them.
  bool FillRow();

  // All rows must be filled. The lines that bound where the quantity is at least `level`. Each
  // point lies on a side of a square, where linear interpolation begins and the quantity itself
  // then decides; where that leaps over the level, at the leap. In squares with two opposite
  // corners inside, the mean of the corners tells whether these are connected. A line comes back to
  // its first point or ends at the date line.
  GeoLines Contours(double level) const;

 private:
  // A side of a square, from its western or southern end to the east or to the north.
  struct Side {
    int row;
    int column;
    bool northward;
  };
  // Of all sides by their numbers: the side to which the line goes on from there, or none.
  using Successors = std::vector<int>;

  int NumberOf(const Side& side) const;
  double ValueAt(int row, int column) const;
  GeoPoint Corner(int row, int column) const;
  void MarchThrough(int row, int column, double level, Successors& next) const;
  std::vector<GeoPoint> TakeLine(int side, double level, Successors& next) const;
  GeoPoint Crossing(int side, double level) const;

  int step_;
  int columns_;  // of squares
  int rows_;
  GeoQuantity quantity_;
  std::vector<double> values_;
};

}  // namespace tarnwick
