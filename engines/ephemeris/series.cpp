#include "engines/ephemeris/series.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <stdexcept>

namespace tarnwick {
namespace {

constexpr std::size_t kLunarAngles = 4;  // D, lp, l, F lead the angles

using Multiples = std::array<std::int8_t, kAngles>;

Phasor operator*(const Phasor& a, const Phasor& b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

Multiples LunarPart(const Multiples& multiples) {
  Multiples part{};
  std::copy_n(multiples.begin(), kLunarAngles, part.begin());
  return part;
}

Multiples OtherPart(Multiples multiples) {
  std::fill_n(multiples.begin(), kLunarAngles, std::int8_t{0});
  return multiples;
}

// s sin theta + c cos theta is the real part of (c - i s) exp(i theta).
Phasor Amplitude(const SeriesTerm& term, std::size_t power) {
  return {term.amplitudes[3 + power], -term.amplitudes[power]};
}

bool IsConstant(const SeriesTerm& term) {
  const auto& a = term.amplitudes;
  return a[1] == 0 && a[2] == 0 && a[4] == 0 && a[5] == 0;
}

}  // namespace

SeriesSet::SeriesSet(std::span<const std::span<const SeriesTerm>> tables) {
  if (tables.size() > kMaximum) throw std::length_error("too many series in a set");
  FindHighest(tables);
  for (std::size_t i = 0; i < tables.size(); ++i) {
    AddTable(static_cast<std::uint16_t>(i), tables[i]);
  }
  if (std::max(lunar_.list.size(), other_.list.size()) > kMaximumCombinations) {
    throw std::length_error("too many combinations of angles");
  }
}

void SeriesSet::FindHighest(std::span<const std::span<const SeriesTerm>> tables) {
  for (const auto& table : tables) {
    for (const SeriesTerm& term : table) {
      for (std::size_t i = 0; i < kAngles; ++i) {
        highest_[i] = std::max(highest_[i], std::abs(term.multiples[i]));
      }
    }
  }
  std::size_t end = 0;
  for (std::size_t i = 0; i < kAngles; ++i) {
    const auto highest = static_cast<std::size_t>(highest_[i]);
    zero_power_[i] = end + highest;
    end += 2 * highest + 1;
  }
  if (end > kMaximumPowers) throw std::length_error("too high multiples of angles");
}

std::uint16_t SeriesSet::FindOrAdd(Combinations& combinations, const Multiples& multiples) const {
  auto& [list, factors] = combinations;
  const auto found = std::find_if(list.begin(), list.end(), [&](const Combination& combination) {
    return combination.multiples == multiples;
  });
  const auto index = static_cast<std::uint16_t>(found - list.begin());
  if (found != list.end()) return index;
  for (std::size_t i = 0; i < kAngles; ++i) {
    if (multiples[i] == 0) continue;
    const auto power = static_cast<std::ptrdiff_t>(zero_power_[i]) + multiples[i];
    factors.push_back(static_cast<std::uint16_t>(power));
  }
  list.push_back({multiples, static_cast<std::uint32_t>(factors.size())});
  return index;
}

void SeriesSet::AddTable(std::uint16_t table, std::span<const SeriesTerm> terms) {
  std::map<std::uint16_t, std::vector<const SeriesTerm*>> by_other;
  for (const SeriesTerm& term : terms) {
    by_other[FindOrAdd(other_, OtherPart(term.multiples))].push_back(&term);
  }
  for (const auto& [other, members] : by_other) {
    for (const SeriesTerm* term : members) {
      AddTerm(*term, FindOrAdd(lunar_, LunarPart(term->multiples)));
    }
    groups_.push_back({table, other, static_cast<std::uint32_t>(constant_.size()),
                       static_cast<std::uint32_t>(varying_.size())});
  }
}

void SeriesSet::AddTerm(const SeriesTerm& term, std::uint16_t lunar) {
  if (IsConstant(term)) {
    constant_.push_back({Amplitude(term, 0), lunar});
  } else {
    varying_.push_back({{Amplitude(term, 0), Amplitude(term, 1), Amplitude(term, 2)}, lunar});
  }
}

// Powers of exp(i angle), negative ones as conjugates. Those of the Sun's anomaly carry the power
// of the eccentricity that every term with that multiple has.
void SeriesSet::FillPowers(const Arguments& arguments, std::span<MovingPhasor> powers) const {
  for (std::size_t i = 0; i < kAngles; ++i) {
    const MovingAngle& angle = arguments.angles[i];
    const double size = i == kLp ? arguments.eccentricity : 1;
    const Phasor first{size * std::cos(angle.value), size * std::sin(angle.value)};
    Phasor power{1, 0};
    powers[zero_power_[i]] = {power, 0};
    for (std::size_t k = 1; k <= static_cast<std::size_t>(highest_[i]); ++k) {
      power = power * first;
      const double rate = static_cast<double>(k) * angle.rate;
      powers[zero_power_[i] + k] = {power, rate};
      powers[zero_power_[i] - k] = {{power.re, -power.im}, -rate};
    }
  }
}

void SeriesSet::FillPhasors(const Combinations& combinations, std::span<const MovingPhasor> powers,
                            Phasors& phasors) {
  std::size_t factor = 0;
  for (std::size_t i = 0; i < combinations.list.size(); ++i) {
    MovingPhasor product{{1, 0}, 0};
    for (; factor < combinations.list[i].factors_end; ++factor) {
      const MovingPhasor& power = powers[combinations.factors[factor]];
      product.phasor = product.phasor * power.phasor;
      product.rate += power.rate;
    }
    phasors[i] = product;
  }
}

// d/dt of a z is i w a z; the factor i waits for the end.
void SeriesSet::GroupSum::Add(const Phasor& amplitude, const MovingPhasor& lunar) {
  const Phasor term = amplitude * lunar.phasor;
  sum.re += term.re;
  sum.im += term.im;
  rate.re += lunar.rate * term.re;
  rate.im += lunar.rate * term.im;
}

SeriesSet::Values SeriesSet::Evaluate(const Arguments& arguments) const {
  std::array<MovingPhasor, kMaximumPowers> powers;
  FillPowers(arguments, powers);
  Phasors lunar;
  FillPhasors(lunar_, powers, lunar);
  Phasors other;
  FillPhasors(other_, powers, other);

  Values values{};
  const double x = arguments.x;
  std::size_t constant = 0;
  std::size_t varying = 0;
  for (const Group& group : groups_) {
    GroupSum group_sum;
    for (; constant < group.constant_end; ++constant) {
      group_sum.Add(constant_[constant].amplitude, lunar[constant_[constant].lunar]);
    }
    for (; varying < group.varying_end; ++varying) {
      const auto& [a0, a1, a2] = varying_[varying].amplitude;
      const Phasor amplitude{a0.re + x * (a1.re + x * a2.re), a0.im + x * (a1.im + x * a2.im)};
      group_sum.Add(amplitude, lunar[varying_[varying].lunar]);
    }
    const auto& [phasor, rate] = other[group.other];
    SeriesValue& value = values[group.table];
    value.value += (group_sum.sum * phasor).re;
    const Phasor turning{group_sum.rate.re + rate * group_sum.sum.re,
                         group_sum.rate.im + rate * group_sum.sum.im};
    value.rate -= (turning * phasor).im;
  }
  return values;
}

}  // namespace tarnwick
