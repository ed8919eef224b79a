#include "engines/ephemeris/series_layout.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>

namespace tarnwick {
namespace {

// Runs of a table with no more places than this between them are made one: a few terms of amplitude
// 0 cost less than another run.
constexpr int kLargestGap = 8;

// A run is summed with as many digits as its terms have: it should not be too long for that.
constexpr int kLongestRun = 64;

using Multiples = std::array<int, kAngles>;
using Places = std::map<Multiples, int>;

Multiples MultiplesOf(const SeriesTerm& term, int sign) {
  Multiples multiples;
  for (std::size_t i = 0; i < kAngles; ++i) multiples[i] = sign * term.multiples[i];
  return multiples;
}

// The multiples of every phasor in the list.
std::vector<Multiples> ListOf(std::span<const PhasorProduct> products) {
  std::vector<Multiples> list(kFirstProduct);
  for (std::size_t i = 0; i < kAngles; ++i) {
    list[1 + 2 * i][i] = 1;
    list[2 + 2 * i][i] = -1;
  }
  for (const auto& [left, right] : products) {
    Multiples sum = list[left];
    for (std::size_t i = 0; i < kAngles; ++i) sum[i] += list[right][i];
    list.push_back(sum);
  }
  return list;
}

// Where the phasor of a theta stands.
Places PlacesOf(const std::vector<Multiples>& list) {
  Places places;
  for (std::size_t i = 0; i < list.size(); ++i) places[list[i]] = static_cast<int>(i);
  return places;
}

bool IsLarge(const SeriesTerm& term, const SeriesTable& table) {
  double sum = 0;
  for (const double amplitude : term.amplitudes) sum += std::abs(amplitude);
  return sum >= table.large;
}

bool Varies(const SeriesTerm& term) {
  const auto& a = term.amplitudes;
  return a[1] != 0 || a[2] != 0 || a[4] != 0 || a[5] != 0;
}

// s0, s1, s2, c0, c1, c2 by the place of the phasor.
using TermAmplitudes = std::array<double, 6>;
using PlacedTerms = std::map<int, TermAmplitudes>;

// The list has the phasor of a term's theta or that of its opposite. Of a theta that is a factor
// too the last of its places is the one meant: there it has its neighbours.
void Place(const SeriesTerm& term, const Places& places, PlacedTerms& placed) {
  const auto place_of = [&](int sign) {
    const auto found = places.find(MultiplesOf(term, sign));
    return found == places.end() ? -1 : found->second;
  };
  const int same = place_of(1);
  const int opposite = place_of(-1);
  if (std::max(same, opposite) < 0) throw std::out_of_range("a theta that no product makes");
  TermAmplitudes& amplitudes = placed[std::max(same, opposite)];
  amplitudes = term.amplitudes;
  if (opposite <= same) return;
  for (std::size_t i = 0; i < 3; ++i) amplitudes[i] = -amplitudes[i];
}

// The terms of a table that are large, or not, and vary, or not.
PlacedTerms Select(const SeriesTable& table, bool large, bool varying, const Places& places) {
  PlacedTerms selected;
  for (const SeriesTerm& term : table.terms) {
    if (IsLarge(term, table) == large && Varies(term) == varying) Place(term, places, selected);
  }
  return selected;
}

// Where the run ends that begins with a term.
int EndOfRun(const PlacedTerms& terms, PlacedTerms::const_iterator first) {
  int end = first->first + 1;
  for (auto i = first; i != terms.end() && i->first <= end + kLargestGap; ++i) {
    if (i->first >= first->first + kLongestRun) break;
    end = i->first + 1;
  }
  return end;
}

template <class Amplitudes>
void Append(double sine, double cosine, Amplitudes& amplitudes) {
  using Real = typename decltype(amplitudes.sines)::value_type;
  amplitudes.sines.push_back(static_cast<Real>(sine));
  amplitudes.cosines.push_back(static_cast<Real>(cosine));
}

template <class Real>
void Append(const TermAmplitudes& term, bool varying, TermLayout<Real>& layout) {
  const auto& [s0, s1, s2, c0, c1, c2] = term;
  if (!varying) return Append(s0, c0, layout.constant);
  Append(s0, c0, layout.varying[0]);
  Append(s1, c1, layout.varying[1]);
  Append(s2, c2, layout.varying[2]);
}

template <class Real>
void AppendRuns(std::size_t table, bool varying, const PlacedTerms& terms,
                TermLayout<Real>& layout) {
  for (auto term = terms.begin(); term != terms.end();) {
    constexpr int kLanes = TermLayout<Real>::kLanes;
    const int begin = term->first / kLanes * kLanes;
    const int end = (EndOfRun(terms, term) + kLanes - 1) / kLanes * kLanes;
    const auto& amplitudes = varying ? layout.varying[0] : layout.constant;
    layout.runs.push_back({static_cast<std::uint16_t>(table), static_cast<std::uint16_t>(begin),
                           static_cast<std::uint16_t>(amplitudes.sines.size()),
                           static_cast<std::uint16_t>(end - begin), varying});
    for (int place = begin; place < end; ++place) {
      const bool is_there = term != terms.end() && term->first == place;
      Append(is_there ? (term++)->second : TermAmplitudes{}, varying, layout);
    }
  }
}

// Where the phasors end that the runs reach.
template <class Real>
std::size_t EndOf(const TermLayout<Real>& layout) {
  std::size_t end = kFirstProduct;
  for (const auto& run : layout.runs) end = std::max(end, std::size_t{run.place} + run.length);
  return end;
}

}  // namespace

SeriesLayout LayOut(std::span<const SeriesTable> tables, std::span<const PhasorProduct> products) {
  SeriesLayout layout;
  const Places places = PlacesOf(ListOf(products));
  for (std::size_t i = 0; i < tables.size(); ++i) {
    for (const bool varying : {false, true}) {
      AppendRuns(i, varying, Select(tables[i], true, varying, places), layout.large);
      AppendRuns(i, varying, Select(tables[i], false, varying, places), layout.small);
    }
  }
  layout.products.assign(products.begin(), products.end());
  // A run may reach beyond the last theta.
  const std::size_t end = std::max(EndOf(layout.large), EndOf(layout.small));
  layout.products.resize(std::max(products.size(), end - kFirstProduct));
  layout.large_products = EndOf(layout.large) - kFirstProduct;
  return layout;
}

}  // namespace tarnwick
