// Delta T, the difference between Terrestrial and Universal Time.
#pragma once

namespace tarnwick {

// Delta T in seconds at a decimal Gregorian year. Before -720 a parabola that meets the spline,
// -720 to 2027 the cubic spline through the knots of delta_t.inc, 2027 to 2827 a cubic that joins
// value and slope at both ends, from 2827 the parabola -320 + 32.5 u^2, u centuries from 1825.
// Source: Stephenson, Morrison and Hohenkerk, Proc. R. Soc. A 472 (2016).
double DeltaTSeconds(double year);

}  // namespace tarnwick
