#include "engines/ephemeris/series.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>
#include <stdexcept>

#include "engines/time_units.h"

namespace tarnwick {
namespace {

// Bounds of the work space, which lies on the stack. Arrays of so many numbers, one after the
// other, keep from each other's places modulo 4096 bytes, which processors take for the same: with
// 1344 instead of 1184 all takes a tenth longer.
constexpr std::size_t kMaximumPhasors = 1184;
constexpr std::size_t kMaximumVarying = 384;

// A list of phasors. Each part has an array of its own, so that neighbours can be loaded at once.
template <class Real>
struct Phasors {
  alignas(64) std::array<Real, kMaximumPhasors> re;
  alignas(64) std::array<Real, kMaximumPhasors> im;
};

template <class Real>
using Rates = std::array<Real, kMaximumPhasors>;  // of theirs, radians a day

struct Phasor {
  double re;
  double im;
};

// The phasors of all 128ths of a turn.
constexpr int kSteps = 128;
constexpr double kStep = 2 * std::numbers::pi / kSteps;
using StepPhasors = std::array<Phasor, kSteps + 1>;

StepPhasors MakeSteps() {
  StepPhasors steps;
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const double angle = static_cast<double>(i) * kStep;
    steps[i] = {std::cos(angle), std::sin(angle)};
  }
  return steps;
}

// exp(i angle), angle in [0, 2 pi]: the phasor of the 128ths of a turn that are full, and what is
// left to the angle by the series of sine and cosine. std::sin and std::cos decide between several
// ways, which for an angle that nobody can foresee takes longer than the arithmetic.
Phasor PhasorOf(double angle, const StepPhasors& steps) {
  const int full = static_cast<int>(angle * (1 / kStep));
  const auto& [re, im] = steps[static_cast<std::size_t>(full)];
  const double r = angle - full * kStep;
  const double q = r * r;
  const double cosine =
      1 - q * (1.0 / 2) * (1 - q * (1.0 / 12) * (1 - q * (1.0 / 30) * (1 - q * (1.0 / 56))));
  const double sine = r * (1 - q * (1.0 / 6) * (1 - q * (1.0 / 20) * (1 - q * (1.0 / 42))));
  return {re * cosine - im * sine, im * cosine + re * sine};
}

// The head of the list. Every term with a multiple of the Sun's anomaly has the same power of the
// eccentricity, so that it is part of that angle's phasor.
void FillAngles(const Arguments& arguments, Phasors<double>& z, Rates<double>& rates) {
  static const StepPhasors steps = MakeSteps();
  z.re[0] = 1;
  z.im[0] = 0;
  rates[0] = 0;
  for (std::size_t i = 0; i < kAngles; ++i) {
    const auto& [angle, rate] = arguments.angles[i];
    const Phasor phasor = PhasorOf(angle, steps);
    const double size = i == kLp ? arguments.eccentricity : 1;
    const std::size_t place = 1 + 2 * i;
    z.re[place] = z.re[place + 1] = size * phasor.re;
    z.im[place] = size * phasor.im;
    z.im[place + 1] = -z.im[place];
    rates[place] = rate;
    rates[place + 1] = -rate;
  }
}

using Products = std::span<const PhasorProduct>;

// Appends products to a list that has phasors before `place`. Both parts are read before one is
// written, so that the compiler need not ask whether what is written is read again.
template <class Real>
void AppendProducts(Products products, std::size_t place, Phasors<Real>& z) {
  for (const auto& [left, right] : products) {
    const Real re = z.re[left] * z.re[right] - z.im[left] * z.im[right];
    const Real im = z.re[left] * z.im[right] + z.im[left] * z.re[right];
    z.re[place] = re;
    z.im[place] = im;
    ++place;
  }
}

void AppendRates(Products products, Rates<double>& rates) {
  std::size_t place = kFirstProduct;
  for (const auto& [left, right] : products) rates[place++] = rates[left] + rates[right];
}

// Takes over the phasors before `end`.
void Copy(const Phasors<double>& from, std::size_t end, Phasors<float>& to) {
  for (std::size_t i = 0; i < end; ++i) to.re[i] = static_cast<float>(from.re[i]);
  for (std::size_t i = 0; i < end; ++i) to.im[i] = static_cast<float>(from.im[i]);
}

template <class Real>
struct Amplitudes {
  std::array<Real, kMaximumVarying> sines;
  std::array<Real, kMaximumVarying> cosines;
};

template <class Real>
void FillVarying(const TermLayout<Real>& layout, Real x, Amplitudes<Real>& amplitudes) {
  const auto& [a0, a1, a2] = layout.varying;
  for (std::size_t i = 0; i < a0.sines.size(); ++i) {
    amplitudes.sines[i] = a0.sines[i] + x * (a1.sines[i] + x * a2.sines[i]);
    amplitudes.cosines[i] = a0.cosines[i] + x * (a1.cosines[i] + x * a2.cosines[i]);
  }
}

// Neighbouring terms c cos theta + s sin theta, and the rates of their thetas.
template <class Real>
struct Terms {
  const Real* s;
  const Real* c;
  const Real* re;
  const Real* im;
  const Real* rate;
};

template <class Lanes>
double Total(const Lanes& lanes) {
  return std::accumulate(lanes.begin(), lanes.end(), typename Lanes::value_type{});
}

template <class Real>
void AddTerms(const Terms<Real>& terms, std::size_t count, SeriesValue& sum) {
  constexpr std::size_t kLanes = TermLayout<Real>::kLanes;
  const auto& [s, c, re, im, rate] = terms;
  std::array<Real, kLanes> values{};
  std::array<Real, kLanes> rates{};
  for (std::size_t i = 0; i < count; i += kLanes) {
    for (std::size_t j = 0; j < kLanes; ++j) {
      values[j] += c[i + j] * re[i + j] + s[i + j] * im[i + j];
    }
    for (std::size_t j = 0; j < kLanes; ++j) {
      rates[j] += rate[i + j] * (s[i + j] * re[i + j] - c[i + j] * im[i + j]);
    }
  }
  sum.value += Total(values);
  sum.rate += Total(rates);
}

template <class Real>
void AddSeries(const TermLayout<Real>& layout, double x, const Phasors<Real>& z, const Real* rates,
               SeriesSet::Values& sums) {
  Amplitudes<Real> varying;
  FillVarying(layout, static_cast<Real>(x), varying);
  for (const auto& [table, place, first, length, is_varying] : layout.runs) {
    const Real* const s = is_varying ? varying.sines.data() : layout.constant.sines.data();
    const Real* const c = is_varying ? varying.cosines.data() : layout.constant.cosines.data();
    AddTerms<Real>({s + first, c + first, &z.re[place], &z.im[place], rates + place}, length,
                   sums[table]);
  }
}

}  // namespace

SeriesSet::SeriesSet(std::span<const SeriesTable> tables, std::span<const PhasorProduct> products)
    : layout_(LayOut(tables, products)) {
  const std::size_t phasors = kFirstProduct + layout_.products.size();
  const std::size_t varying =
      std::max(layout_.large.varying[0].sines.size(), layout_.small.varying[0].sines.size());
  if (tables.size() > kMaximum || phasors > kMaximumPhasors || varying > kMaximumVarying) {
    throw std::length_error("too many or too long series");
  }
  Phasors<double> z;
  Rates<double> rates;
  FillAngles(ArgumentsAt(kJ2000), z, rates);
  AppendRates(layout_.products, rates);
  mean_rates_.assign(rates.begin(), rates.begin() + static_cast<std::ptrdiff_t>(phasors));
}

SeriesSet::Values SeriesSet::Evaluate(const Arguments& arguments) const {
  const Products all = layout_.products;
  const Products for_large = all.first(layout_.large_products);
  Values sums{};
  Phasors<double> z;
  Rates<double> rates;
  FillAngles(arguments, z, rates);
  AppendProducts(for_large, kFirstProduct, z);
  AppendRates(for_large, rates);
  AddSeries(layout_.large, arguments.x, z, rates.data(), sums);
  if (layout_.small.runs.empty()) return sums;

  const std::size_t made = kFirstProduct + for_large.size();
  Phasors<float> w;
  Copy(z, made, w);
  AppendProducts(all.subspan(for_large.size()), made, w);
  AddSeries(layout_.small, arguments.x, w, mean_rates_.data(), sums);
  return sums;
}

}  // namespace tarnwick
