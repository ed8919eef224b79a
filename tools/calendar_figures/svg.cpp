#include "tools/calendar_figures/svg.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <sstream>

namespace tarnwick {
namespace {

constexpr double kFirstYear = -3200;
constexpr double kLastYear = 6000;
constexpr double kPanelWidth = 760;
constexpr double kPanelHeight = 110;
constexpr double kLeft = 70;
constexpr double kTop = 40;
constexpr double kGap = 14;
constexpr std::array kColours{"#1f5f99", "#a33b20", "#3f7d2f", "#7a4b9c", "#8a6a12"};

// One panel of the figure: a calendar's distances in a frame of its own.
struct Panel {
  const Drift& drift;
  double top;
  double least;
  double largest;

  double X(double year) const {
    return kLeft + (year - kFirstYear) / (kLastYear - kFirstYear) * kPanelWidth;
  }
  double Y(double days) const { return top + (largest - days) / (largest - least) * kPanelHeight; }
};

Panel MakePanel(const Drift& drift, double top) {
  double least = 0;
  double largest = 0;
  for (const DriftPoint& point : drift.points) {
    least = std::min(least, std::floor(point.least));
    largest = std::max(largest, std::ceil(point.largest));
  }
  return {drift, top, least, largest};
}

void DrawGrid(std::ostream& svg, const Panel& panel) {
  svg << "<rect x='" << kLeft << "' y='" << panel.top << "' width='" << kPanelWidth << "' height='"
      << kPanelHeight << "' fill='#fbfcfe' stroke='#8899aa'/>\n";
  for (const double days : std::set{panel.least, 0.0, panel.largest}) {
    svg << "<text x='" << kLeft - 8 << "' y='" << panel.Y(days) + 4 << "' text-anchor='end'>"
        << days << "</text>\n";
  }
  svg << "<line x1='" << kLeft << "' x2='" << kLeft + kPanelWidth << "' y1='" << panel.Y(0)
      << "' y2='" << panel.Y(0) << "' stroke='#8899aa' stroke-dasharray='4 4'/>\n";
}

void DrawDrift(std::ostream& svg, const Panel& panel, const char* colour) {
  const auto& points = panel.drift.points;
  svg << "<path fill='" << colour << "' fill-opacity='0.2' d='M";
  for (const DriftPoint& p : points) svg << panel.X(p.year) << ' ' << panel.Y(p.largest) << ' ';
  for (auto p = points.rbegin(); p != points.rend(); ++p) {
    svg << panel.X(p->year) << ' ' << panel.Y(p->least) << ' ';
  }
  svg << "z'/>\n<path fill='none' stroke='" << colour << "' stroke-width='2' d='M";
  for (const DriftPoint& p : points) svg << panel.X(p.year) << ' ' << panel.Y(p.mean) << ' ';
  svg << "'/>\n<text x='" << kLeft + 10 << "' y='" << panel.top + 18
      << "' font-weight='bold' fill='" << colour << "'>" << panel.drift.calendar << "</text>\n";
}

void DrawYears(std::ostream& svg, const Panel& last) {
  for (int year = -3000; year <= 6000; year += 1000) {
    svg << "<text x='" << last.X(year) << "' y='" << last.top + kPanelHeight + 18
        << "' text-anchor='middle'>" << year << "</text>\n";
  }
}

}  // namespace

std::string DriftFigure(const std::vector<Drift>& drifts, const std::string& title,
                        const std::string& axis) {
  std::ostringstream svg;
  const double height = kTop + static_cast<double>(drifts.size()) * (kPanelHeight + kGap) + 20;
  svg << "<svg xmlns='http://www.w3.org/2000/svg' width='" << kLeft + kPanelWidth + 20
      << "' height='" << height << "' font-family='sans-serif' font-size='12'>\n"
      << "<rect width='100%' height='100%' fill='white'/>\n"
      << "<text x='" << kLeft << "' y='24' font-size='15'>" << title << "</text>\n"
      << "<text x='16' y='" << height / 2 << "' transform='rotate(-90 16 " << height / 2
      << ")' text-anchor='middle'>" << axis << "</text>\n";
  double top = kTop;
  std::size_t colour = 0;
  for (const Drift& drift : drifts) {
    const Panel panel = MakePanel(drift, top);
    DrawGrid(svg, panel);
    DrawDrift(svg, panel, kColours[colour++ % kColours.size()]);
    top += kPanelHeight + kGap;
    if (&drift == &drifts.back()) DrawYears(svg, panel);
  }
  svg << "</svg>\n";
  return svg.str();
}

}  // namespace tarnwick
