#include "sky/place_time.h"

#include "calendars/date_processing.h"
#include "calendars/date_texts.h"
#include "engines/time_units.h"
#include "moment/time_zone.h"
#include "moon/clock_error.h"

namespace tarnwick {
namespace {

constexpr double kDegreesPerDay = 360;  // of longitude
constexpr double kHalfDay = 0.5;        // from the noon of an AJD to the midnight of a CJD

std::string DateOf(DayNumber day, Calendar calendar) {
  return ShortDateText(IsDayCount(calendar) ? kCE : calendar, NoonOf(day, 0), 0);
}

std::string MainText(const DayAndTime& main, const std::string& time, const PlaceReading& reading) {
  return DateOf(main.day_number, reading.calendar) + " " + time + " " + MainTimeName(reading);
}

}  // namespace

LocalCJD LocalMeanTime(UniversalTime instant, const GeoPoint& place) {
  return LocalCJD(instant.days + kHalfDay + place.longitude / kDegreesPerDay);
}

UniversalTime FromLocalMeanTime(LocalCJD local, const GeoPoint& place) {
  return UniversalTime(local.days - kHalfDay - place.longitude / kDegreesPerDay);
}

std::string LocalDate(UniversalTime instant, const PlaceReading& reading) {
  const DayAndTime local = SplitCJD(LocalMeanTime(instant, reading.place));
  return DateOf(local.day_number, reading.calendar);
}

std::string MainTimeName(const PlaceReading& reading) {
  return TimeZoneText(TimeZoneIndex(reading.offset_minutes));
}

PlaceTimes PlaceTimesOf(UniversalTime instant, const PlaceReading& reading, bool with_seconds,
                        double error) {
  const std::string suffix = ClockErrorSuffix(error);
  const bool seconds = with_seconds && suffix.empty();
  const DayAndTime local = SplitCJD(LocalMeanTime(instant, reading.place));
  const DayAndTime main = SplitCJD(AJDToCJD(instant, reading.offset_minutes));
  const std::string local_time = TimeOfDayText(local.fraction, seconds);
  const std::string main_time = TimeOfDayText(main.fraction, seconds);
  return {local_time + suffix, main_time + suffix,
          DateOf(local.day_number, reading.calendar) + " " + local_time + " " + kLocalMeanTime +
              "\n" + MainText(main, main_time, reading)};
}

std::string MainDateAndTime(UniversalTime instant, const PlaceReading& reading) {
  const DayAndTime main = SplitCJD(AJDToCJD(instant, reading.offset_minutes));
  return MainText(main, TimeOfDayText(main.fraction, false), reading);
}

}  // namespace tarnwick
