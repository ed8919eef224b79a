#include "moment/copying.h"

namespace tarnwick {

void OfferCopying(Label& value, const DatesSection& dates, Desktop& desktop) {
  const auto copy = [&value, &desktop] {
    if (!value.Caption().empty()) desktop.SetClipboardText(value.Caption());
  };
  const auto copy_all = [&dates, &desktop] { desktop.SetClipboardText(dates.AllDatesText()); };
  value.menu = {{"Copy", copy, "Ctrl+C"}, {"Copy all dates", copy_all, ""}};
}

}  // namespace tarnwick
