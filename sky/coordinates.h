// Latitudes and longitudes as people type and read them. In degrees, north and east positive; a
// latitude lies within [-90, 90], a longitude within [-180, 180]. Both are read and written to five
// decimals, about a metre.
//
// Typed are decimals, or degrees with minutes and perhaps seconds, whose marks may be left out; a
// letter before or behind, or a sign: "32.54 N", "32°32'24\" N", "32 32 24 N", "N 32 32.4",
// "-33.87". Texts are UTF-8; blanks and the case of letters do not count.
//
// Each routine that reads returns what is wrong with the text, in words; then it changes nothing.
// It returns an empty text when all is well.
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

std::string ReadLatitude(std::string_view text, double& latitude);
std::string ReadLongitude(std::string_view text, double& longitude);

// Both in one text: "32.54 N 44.42 E", "-33.87, 151.2", "52.52 13.40". The latitude comes first,
// unless letters tell otherwise.
std::string ReadCoordinates(std::string_view text, double& latitude, double& longitude);

// "32.54 N", "151.2 E", "32.54 N 44.42 E", for values in range. What has been read, written and
// read again is the same value.
std::string LatitudeText(double latitude);
std::string LongitudeText(double longitude);
std::string CoordinatesText(double latitude, double longitude);

}  // namespace tarnwick
