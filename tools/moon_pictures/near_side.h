// The near side of the Moon: how bright its ground is, and how high.
#pragma once

#include "tools/moon_pictures/noise.h"

namespace tarnwick {

// Places are unit vectors: x to the east (the right edge as seen from the northern hemisphere), y
// to the north, z to the Earth.

struct Ground {
  double brightness = 0;  // 0 to 1, about 0.8 in the highlands, 0.4 in the maria
  double blueness = 0;    // -1 reddish to 1 bluish
  double roughness = 0;   // 0 in the maria, 1 in the highlands
};

Ground GroundAt(Vector3 place);

// The height of the ground above the mean in the highlands, in an arbitrary measure.
double HeightAt(Vector3 place);

}  // namespace tarnwick
