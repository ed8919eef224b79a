#include "desktop/calendar_opener.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "desktop/bound_widgets.h"
#include "desktop/characters.h"
#include "desktop/drop_list.h"
#include "desktop/look.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"cboMonthCalendar", 0, "Calendar of the lunation"},
};

QString WidestItem(const ComboBox& list, const QFontMetrics& font) {
  QString widest;
  for (const ComboBox::Item& item : list.Items()) {
    const QString text = ToQt(item.text);
    if (font.horizontalAdvance(text) > font.horizontalAdvance(widest)) widest = text;
  }
  return widest;
}

}  // namespace

CalendarOpener::CalendarOpener(CalendarSection& section, Binder& binder, QWidget* parent)
    : Area(Spacing(*parent), parent) {
  binder.AddWordings(kWordings);
  auto* calendars = new DropList(this);
  ReserveWidth(*calendars, WidestItem(section.cboMonthCalendar, calendars->fontMetrics()));
  binder.Bind(section.cboMonthCalendar, *calendars);
  Row().addWidget(calendars);
  Row().addWidget(MakeButton(binder, section.cmdDisplayCalendar, this));
}

}  // namespace tarnwick
