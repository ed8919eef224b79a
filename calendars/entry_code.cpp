#include "calendars/entry_code.h"

#include <array>

#include "engines/names.h"

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, kNoDateGiven> kErrorTexts{
    "Invalid date entry.",
    "Calendar must be specified (one of CE, JC, ARC, SD, LLT, OLW, CJD and AJD).",
    "Time specification not permitted with CJD or AJD.",
    "Invalid time specification.  Times must be, e.g., 23:50.",
    "Date separator must be a dash, '-'.",
    "Invalid CE date.  CE dates must be in ISO 8601 format: year-month-day",
    "Invalid JC date.  JC dates must be in ISO 8601 format: year-month-day",
    "Invalid ARC date.  ARC dates must be in the form: year-month-day",
    "Invalid SD date.  SD dates must be in the form: cycle-year-month-day",
    "Invalid LLT date.  LLT dates must be in the form: cycle-year-month-triday-day or "
    "year-month-triday-day",
    "Invalid KSG date.  KSG dates must be in the form: cycle-year-month-day or year-month-day",
    "Invalid CJD or AJD date.  These must be, e.g., 999999.99 CJD or 2,111,111 AJD.",
    "Error when parsing date string.",
    "Value for addition or subtraction is invalid.",
    "Invalid OLW date.  OWL dates must be in the form: year-month-week-day",
    "Invalid month value in OLW date.",
    "Invalid week value in OLW date.",
    "Invalid day value in OLW date.",
    "No date given.",
};

}  // namespace

std::string_view EntryErrorText(std::int16_t code) {
  const std::string_view text = NameOf(kErrorTexts, code);
  return text.empty() ? "Unknown error." : text;
}

}  // namespace tarnwick
