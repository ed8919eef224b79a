// Trigonometric series in many angles, evaluated with their rates.
//
// A term is  e^|k_lp| [(s0 + s1 x + s2 x^2) sin theta + (c0 + c1 x + c2 x^2) cos theta], theta a
// sum of multiples of the angles. With phasors z = exp(i theta) it is the real part of a z,
// a = c - i s. The terms of all tables together use few different combinations of the lunar angles
// (D, lp, l, F) and of the others, so the phasor of each combination is made once, by products of
// powers; terms with the same other angles are summed before they are multiplied by that phasor.
// No sine or cosine is taken but the 13 of the angles themselves.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "engines/ephemeris/arguments.h"

namespace tarnwick {

struct Phasor {
  double re;
  double im;
};

// A row of a table: the multiples of the angles, and s0, s1, s2, c0, c1, c2.
struct SeriesTerm {
  std::array<std::int8_t, kAngles> multiples;
  std::array<double, 6> amplitudes;
};

// The sum of a table's terms in the table's unit, and its rate a day. The rate leaves out the slow
// change of the amplitudes, a ten-millionth of it.
struct SeriesValue {
  double value = 0;
  double rate = 0;
};

// Several series, laid out for evaluation at the same instants.
class SeriesSet {
 public:
  static constexpr std::size_t kMaximum = 6;
  using Values = std::array<SeriesValue, kMaximum>;  // in the order of the tables

  explicit SeriesSet(std::span<const std::span<const SeriesTerm>> tables);

  Values Evaluate(const Arguments& arguments) const;

 private:
  // One combination of angles: its phasor is the product of some powers.
  struct Combination {
    std::array<std::int8_t, kAngles> multiples{};
    std::uint32_t factors_end = 0;  // in the list of factors; it begins where the last one ends
  };
  struct Combinations {
    std::vector<Combination> list;
    std::vector<std::uint16_t> factors;  // places in the table of powers
  };
  struct ConstantTerm {
    Phasor amplitude;
    std::uint16_t lunar;  // combination of the lunar angles
  };
  struct VaryingTerm {
    std::array<Phasor, 3> amplitude;  // by powers of x
    std::uint16_t lunar;
  };
  // Terms of one table that have the same other angles.
  struct Group {
    std::uint16_t table;
    std::uint16_t other;
    std::uint32_t constant_end;  // the terms from the end of the group before to here
    std::uint32_t varying_end;
  };
  // exp(i theta) and the rate of theta, radians a day.
  struct MovingPhasor {
    Phasor phasor;
    double rate;
  };
  // Bounds of the work space, which lies on the stack.
  static constexpr std::size_t kMaximumPowers = 512;
  static constexpr std::size_t kMaximumCombinations = 512;
  using Phasors = std::array<MovingPhasor, kMaximumCombinations>;
  // The sum of a group's terms before the other angles come in, and its rate.
  struct GroupSum {
    Phasor sum{0, 0};
    Phasor rate{0, 0};
    void Add(const Phasor& amplitude, const MovingPhasor& lunar);
  };

  void FindHighest(std::span<const std::span<const SeriesTerm>> tables);
  std::uint16_t FindOrAdd(Combinations& combinations,
                          const std::array<std::int8_t, kAngles>& multiples) const;
  void AddTable(std::uint16_t table, std::span<const SeriesTerm> terms);
  void AddTerm(const SeriesTerm& term, std::uint16_t lunar);

  void FillPowers(const Arguments& arguments, std::span<MovingPhasor> powers) const;
  static void FillPhasors(const Combinations& combinations, std::span<const MovingPhasor> powers,
                          Phasors& phasors);

  std::array<int, kAngles> highest_{};             // multiple of each angle in use
  std::array<std::size_t, kAngles> zero_power_{};  // where exponent 0 of each angle stands
  Combinations lunar_;
  Combinations other_;
  std::vector<ConstantTerm> constant_;
  std::vector<VaryingTerm> varying_;
  std::vector<Group> groups_;
};

}  // namespace tarnwick
