#include "desktop/calendar_view.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/bound_widgets.h"
#include "desktop/characters.h"
#include "desktop/drop_list.h"
#include "desktop/link_label.h"
#include "desktop/look.h"
#include "desktop/mirror.h"
#include "desktop/panel.h"
#include "desktop/picture_view.h"
#include "desktop/screen_fit.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"fraCalendar", 0, "Lunation"},
    {"imgMoon", 0, "The Moon"},
    {"lblDate", 0, "Day"},
    {"lblCEDate", 0, "CE date"},
    {"lblEvent", 0, "Phases and eclipses"},
    {"cmdShowPreviousOrNext(0)", 'p', ""},
    {"cmdShowPreviousOrNext(1)", 'n', ""},
    {"cmdPrintLunation", 'r', ""},
    {"cmdPrintYear", 'y', ""},
    {"cmdSavePDF", 'D', ""},
    {"cmdSaveYearPDF", 'e', ""},
    {"cboPaper", 0, "Paper"},
    {"cmdSaveCalendarImage", 'S', ""},
    {"cmdClose", 'C', ""},
};

constexpr double kSmall = 0.85;  // of the font
constexpr int kPictureLines = 4;
constexpr int kEventLines = 3;  // a phase, and an eclipse that takes two
constexpr char kLongestDate[] = "10-3 Mellephan.";
constexpr char kLongestPaper[] = "Letter";
constexpr char kLongestEventLine[] = "Non-central annular";

QLabel* MakeText(double size, QWidget* parent) {
  auto* text = new QLabel(parent);
  text->setFont(Scaled(text->font(), size));
  text->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  return text;
}

// A cell as a whole is the widget of its date: what stands in it lets the mouse through.
class CellView final : public LinkLabel {
 public:
  CellView(Label& date, QWidget* parent) : LinkLabel(Kind::kValue, parent), date_(date) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    setBackgroundRole(
        QPalette::Window);  // else the texts in it would have the colour of a button's
  }

  QSize sizeHint() const override { return layout()->totalSizeHint(); }
  QSize minimumSizeHint() const override { return layout()->totalMinimumSize(); }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    const bool current = date_.Selected();
    const double radius = fontMetrics().height() / 3.0;
    const QRectF ground = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(current ? Look::kCurrentBar : underMouse() ? Look::kCaption : Look::kPanelEdge);
    painter.setBrush(isDown() ? Look::kPanel : Look::kSky);
    painter.drawRoundedRect(ground, radius, radius);
    if (current) PaintBar(painter, ground, radius);
  }

  void keyPressEvent(QKeyEvent* event) override {
    const int steps = StepsOf(event->key());
    if (steps == 0) {
      LinkLabel::keyPressEvent(event);
    } else {
      MoveFocus(steps);
    }
  }

 private:
  // The left edge, as of the current calendar in the main window.
  static void PaintBar(QPainter& painter, const QRectF& ground, double radius) {
    QPainterPath shape;
    shape.addRoundedRect(ground, radius, radius);
    painter.setClipPath(shape);
    painter.fillRect(QRectF(ground.topLeft(), QSizeF(radius, ground.height())), Look::kCurrentBar);
    painter.setClipping(false);
  }

  // How many cells further on an arrow key leads.
  static int StepsOf(int key) {
    switch (key) {
      case Qt::Key_Left:
        return -1;
      case Qt::Key_Right:
        return 1;
      case Qt::Key_Up:
        return -kGridColumns;
      case Qt::Key_Down:
        return kGridColumns;
      default:
        return 0;
    }
  }

  // To the next cell in that direction that shows a day; nowhere if there is none.
  void MoveFocus(qsizetype steps) {
    const QList<CellView*> cells = Cells();
    for (qsizetype at = cells.indexOf(this) + steps; 0 <= at && at < cells.size(); at += steps) {
      if (!cells[at]->isVisible()) continue;
      cells[at]->setFocus(Qt::TabFocusReason);
      return;
    }
  }

  QList<CellView*> Cells() const {
    QList<CellView*> cells;
    for (QObject* sibling : parentWidget()->children()) {
      if (auto* cell = dynamic_cast<CellView*>(sibling)) cells << cell;
    }
    return cells;
  }

  const Label& date_;
};

}  // namespace

CalendarView::CalendarView(frmCalendar& form, HandlerGate& gate)
    : form_(form), binder_(gate, kWordings) {
  QVBoxLayout* rows = MakeSections(*this);
  rows->addWidget(MakePage(), 1);
  rows->addWidget(MakeButtons());
  FitToScreen(*this);
  resize(sizeHint());
  binder_.Bind(form_, *this);
}

QWidget* CalendarView::MakePage() {
  const int space = Spacing(*this);
  auto* page = new QWidget(this);
  binder_.Bind(form_.fraCalendar, *page);
  auto* rows = new QVBoxLayout(page);
  rows->setContentsMargins(space, space, space, space);
  rows->setSpacing(space / 2);

  QLabel* title = MakeText(1.5, page);
  binder_.Bind(form_.lblTitle, *title);
  rows->addWidget(title);
  QLabel* months = MakeText(1, page);
  binder_.Bind(form_.lblYearAndMonth, *months);
  rows->addWidget(months);
  rows->addSpacing(space);

  auto* grid = new QGridLayout;
  grid->setSpacing(space);  // the ring of the focus stands between the cells
  AddHeadings(*grid, page);
  for (int i = 0; i < kGridCells; ++i) {
    const int row = 1 + i / kGridColumns;
    grid->addWidget(MakeCell(static_cast<std::size_t>(i), page), row, i % kGridColumns);
    grid->setRowStretch(row, 1);
  }
  rows->addLayout(grid, 1);

  QLabel* note = MakeText(kSmall, page);
  note->setText(ToQt(std::string(kLunarWeekNote)));
  SetTextColor(*note, Look::kCaption);
  rows->addWidget(note);
  return page;
}

void CalendarView::AddHeadings(QGridLayout& grid, QWidget* page) {
  const QFontMetrics small(Scaled(font(), kSmall));
  const int widest = qMax(fontMetrics().horizontalAdvance(kLongestDate),
                          small.horizontalAdvance(kLongestEventLine));
  for (int column = 0; column < kGridColumns; ++column) {
    Label& label = form_.lblWeekday[static_cast<std::size_t>(column)];
    QLabel* heading = MakeText(1, page);
    binder_.Bind(label, *heading);
    heading->setText(ToQt(label.Caption()).trimmed());  // the blanks would put it off the middle
    SetTextColor(*heading, Look::kCaption);
    grid.addWidget(heading, 0, column);
    grid.setColumnStretch(column, 1);
    grid.setColumnMinimumWidth(column, widest + 2 * Spacing(*this));
  }
}

QWidget* CalendarView::MakeCell(std::size_t index, QWidget* page) {
  auto* cell = new CellView(form_.lblDate[index], page);
  cell->setCheckable(true);
  binder_.Bind(form_.lblDate[index], *cell);
  const int space = Spacing(*this);
  auto* rows = new QVBoxLayout(cell);
  rows->setContentsMargins(space / 2, space + space / 2, space / 2, space);
  rows->setSpacing(space / 4);

  auto* picture = new PictureView(kPictureLines, cell);
  binder_.Bind(form_.imgMoon[index], *picture);
  rows->addWidget(picture, 1);
  QLabel* date = MakeText(1, cell);
  date->setTextFormat(Qt::PlainText);
  Mirror(form_.lblDate[index], Property::kCaption, *date,
         [date, &label = form_.lblDate[index]] { date->setText(ToQt(label.Caption())); });
  rows->addWidget(date);
  QLabel* ce_date = MakeText(kSmall, cell);
  binder_.Bind(form_.lblCEDate[index], *ce_date);
  SetTextColor(*ce_date, Look::kCaption);
  rows->addWidget(ce_date);
  QLabel* event = MakeText(kSmall, cell);
  event->setWordWrap(true);
  // A line of several takes a little more than the height of the font.
  event->setFixedHeight((3 * kEventLines + 1) * event->fontMetrics().height() / 3);
  binder_.Bind(form_.lblEvent[index], *event);
  SetTextColor(*event, Look::kEvent);
  rows->addWidget(event);
  for (QWidget* part : {static_cast<QWidget*>(picture), static_cast<QWidget*>(date),
                        static_cast<QWidget*>(ce_date), static_cast<QWidget*>(event)}) {
    part->setAttribute(Qt::WA_TransparentForMouseEvents);
    KeepRoomWhenHidden(*part);  // every page has the same room, whatever cells it shows
  }
  KeepRoomWhenHidden(*cell);
  return cell;
}

QWidget* CalendarView::MakeButtons() {
  auto* area = new Area(Spacing(*this), this);
  QHBoxLayout& row = area->Row();
  for (Button& button : form_.cmdShowPreviousOrNext) {
    row.addWidget(MakeButton(binder_, button, area));
  }
  row.addStretch();
  for (Button* button :
       {&form_.cmdPrintLunation, &form_.cmdPrintYear, &form_.cmdSavePDF, &form_.cmdSaveYearPDF}) {
    row.addWidget(MakeButton(binder_, *button, area));
  }
  auto* paper = new DropList(area);
  ReserveWidth(*paper, kLongestPaper);
  binder_.Bind(form_.cboPaper, *paper);
  row.addWidget(paper);
  row.addStretch();
  row.addWidget(MakeButton(binder_, form_.cmdSaveCalendarImage, area));
  row.addWidget(MakeButton(binder_, form_.cmdClose, area));
  return area;
}

}  // namespace tarnwick
