// What is drawn on the map of the Earth, from the ground up.
#pragma once

namespace tarnwick {

enum class MapLayer {
  kNight,       // area: where the Sun is below the horizon
  kMoonDown,    // areas, one over the other: where the Moon is below it at a phase of its eclipse
  kGraticule,   // lines every 30 degrees
  kCoast,       // lines
  kMagnitude,   // lines of the greatest magnitude seen, marked with it
  kSomeSeen,    // line around the places that see something of a lunar eclipse
  kWholeSeen,   // line around those that see all of it
  kPathIfLess,  // limits of the path if delta T is less by its standard error
  kPathIfMore,  // and if it is more
  kLimit,       // limits of totality or annularity
  kCentralLine,
  kGreatest,  // mark
  kPlace,     // mark: the place that has been chosen
  kCount,
};

}  // namespace tarnwick
