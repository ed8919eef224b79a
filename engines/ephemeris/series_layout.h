// How trigonometric series in many angles are laid out for their evaluation.
//
// A term is  e^|k_lp| [(s0 + s1 x + s2 x^2) sin theta + (c0 + c1 x + c2 x^2) cos theta], theta a
// sum of multiples k of the angles. The terms of several tables use fewer different thetas than
// there are terms; theta and -theta count as one.
//
// The layout is one list of phasors exp(i theta), to be filled from first to last:
//   - 1, then those of the single angles, each followed by its conjugate;
//   - products of two phasors that stand before them, as planned by tools/ephemeris: some that
//     serve as factors only, then one for each theta or -theta. Each costs one complex
//     multiplication and no decision.
// The plan has the thetas in an order in which the terms of a table lie side by side in a few runs:
// their sum needs no index and goes several terms at a time. And it has those of large terms before
// the others. What is left after them makes do with numbers of type float.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "engines/ephemeris/arguments.h"

namespace tarnwick {

// A row of a table: the multiples of the angles, and s0, s1, s2, c0, c1, c2.
struct SeriesTerm {
  std::array<std::int8_t, kAngles> multiples;
  std::array<double, 6> amplitudes;
};

struct SeriesTable {
  std::span<const SeriesTerm> terms;
  double large = 0;  // a term is large if its amplitudes add up to so much
};

// The places in the list of the two phasors that a product is made of. Their multiples of the Sun's
// anomaly are not of opposite signs, so that the powers of the eccentricity multiply as they
// should.
struct PhasorProduct {
  std::uint16_t left;
  std::uint16_t right;
};

// Where products begin in the list of phasors.
inline constexpr std::size_t kFirstProduct = 1 + 2 * kAngles;

// Terms with numbers of type Real, which are summed 16 bytes at a time.
template <class Real>
struct TermLayout {
  static constexpr int kLanes = 16 / sizeof(Real);

  // Terms of one table: the phasors from `place` on, the amplitudes from `first` on, among the
  // constant ones or among those that vary with x.
  struct Run {
    std::uint16_t table;
    std::uint16_t place;  // this, the next and the length are multiples of kLanes
    std::uint16_t first;
    std::uint16_t length;
    bool varying;
  };
  // Coefficients of sine and cosine.
  struct Amplitudes {
    std::vector<Real> sines;
    std::vector<Real> cosines;
  };

  std::vector<Run> runs;
  Amplitudes constant;
  std::array<Amplitudes, 3> varying;  // by powers of x
};

struct SeriesLayout {
  std::vector<PhasorProduct> products;
  std::size_t large_products = 0;  // the first ones, which the large terms need
  TermLayout<double> large;
  TermLayout<float> small;
};

// The layout of some tables. Throws std::out_of_range where the products lack a theta of theirs.
SeriesLayout LayOut(std::span<const SeriesTable> tables, std::span<const PhasorProduct> products);

}  // namespace tarnwick
