// Delta T, the difference between Terrestrial and Universal Time.
#pragma once

namespace tarnwick {

// Delta T in seconds at a decimal Gregorian year. Before -720 a parabola that meets the spline,
// -720 to 2027 the cubic spline through the knots of delta_t.inc, 2027 to 2827 a cubic that joins
// value and slope at both ends, from 2827 the parabola -320 + 32.5 u^2, u centuries from 1825.
// Source: Stephenson, Morrison and Hohenkerk, Proc. R. Soc. A 472 (2016).
double DeltaTSeconds(double year);

// The standard error of that in seconds, an estimate. Before 1300 and from 2200 on 0.8 u^2, u
// centuries from 1820, which also follows the scatter of the old observations; between them even
// steps through the errors of the observations since, and on to those of the extrapolation.
// Source: Morrison and Stephenson, Journal for the History of Astronomy 35 (2004).
double DeltaTError(double year);

}  // namespace tarnwick
