#include "desktop/screen_fit.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "desktop/event_hook.h"

namespace tarnwick {
namespace {

// Of a window's size this much may be lost by rounding where the scaling is no whole number.
constexpr QSize kRounding(1, 1);

// The content of a window. The window grows and shrinks as if there were no scrolling, as long as
// the screen has room for it.
class ContentArea final : public QScrollArea {
 public:
  // Takes the layout of the window over, with the widgets in it.
  explicit ContentArea(QWidget& window) : QScrollArea(&window) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    auto* content = new QWidget(this);
    content->setLayout(window.layout());
    setWidget(content);
    new EventHook(*content, [this](QEvent& event) {
      if (event.type() == QEvent::LayoutRequest) {
        updateGeometry();
        ResizeContent();
      }
      return false;
    });
    // Not only the tab key moves the focus: a mnemonic or a handler may lead out of view. A window
    // that becomes active stays as it is, so that it opens at its top.
    QObject::connect(qApp, &QApplication::focusChanged, this, [this](QWidget* left, QWidget* now) {
      if (widget()->isAncestorOf(left) && widget()->isAncestorOf(now)) Reveal(*now);
    });
  }

  QSize sizeHint() const override { return widget()->sizeHint() + kRounding; }
  QSize minimumSizeHint() const override {
    const QSize room = RoomFor(*window()).size();
    const QSize least = widget()->minimumSizeHint();
    return (least + BarsFor(least, room) + kRounding).boundedTo(room);
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    ResizeContent();
    QScrollArea::resizeEvent(event);
  }

  // Keys that scroll nothing belong to the window.
  void keyPressEvent(QKeyEvent* event) override {
    const bool scrolls = verticalScrollBar()->maximum() > 0 || horizontalScrollBar()->maximum() > 0;
    if (scrolls) {
      QScrollArea::keyPressEvent(event);
    } else {
      event->ignore();
    }
  }

 private:
  // The whole of it with the ring around it, or at least its beginning and the caret in it.
  void Reveal(QWidget& part) {
    const QPoint place = part.mapTo(widget(), QPoint());
    Reveal(*horizontalScrollBar(), place.x(), part.width(), viewport()->width());
    Reveal(*verticalScrollBar(), place.y(), part.height(), viewport()->height());
    ensureWidgetVisible(&part, 0, 0);
  }
  void Reveal(QScrollBar& bar, int begin, int length, int room) const {
    const int ring = std::clamp((room - length) / 2, 0, fontMetrics().height() / 2);
    bar.setValue(qMin(qMax(bar.value(), begin + length + ring - room), begin - ring));
  }

  // What the scroll bars take of the width and the height where the room is smaller than the least.
  QSize BarsFor(QSize least, QSize room) const {
    const QSize both(verticalScrollBar()->sizeHint().width(),
                     horizontalScrollBar()->sizeHint().height());
    const bool down = least.height() > room.height();
    const bool across = least.width() + (down ? both.width() : 0) > room.width();
    const bool down_beside = down || least.height() + (across ? both.height() : 0) > room.height();
    return {down_beside ? both.width() : 0, across ? both.height() : 0};
  }

  // Left to itself, a scroll area would hold texts that wrap at their best height, not the least.
  void ResizeContent() {
    const QSize least = widget()->minimumSizeHint();
    widget()->resize(least.expandedTo(size() - BarsFor(least, size())));
  }
};

void MoveContentIntoArea(QWidget& window) {
  auto* area = new ContentArea(window);
  auto* rows = new QVBoxLayout(&window);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addWidget(area);
}

QRect OpeningPlace(const QWidget& window) {
  QRect place = window.geometry();
  if (window.testAttribute(Qt::WA_Moved)) return place;
  const QWindow* main = window.windowHandle()->transientParent();
  place.moveCenter(main != nullptr ? main->geometry().center() : RoomFor(window).center());
  return place;
}

void BringInside(QWidget& window, const QRect& place) {
  const QRect inside = Inside(place, RoomFor(window));
  if (inside != window.geometry()) window.setGeometry(inside);
}

}  // namespace

QRect Inside(QRect place, const QRect& room) {
  place.setSize(place.size().boundedTo(room.size()));
  place.moveLeft(std::clamp(place.left(), room.left(), room.right() + 1 - place.width()));
  place.moveTop(std::clamp(place.top(), room.top(), room.bottom() + 1 - place.height()));
  return place;
}

// The frame itself is known only when a window has been shown, too late for its size.
QRect RoomFor(const QWidget& window) {
  const int line = window.fontMetrics().height();
  const QMargins generous(line / 2, 5 * line / 2, line / 2, line / 2);
  return window.screen()->availableGeometry().marginsRemoved(generous);
}

void FitToScreen(QWidget& window) {
  MoveContentIntoArea(window);
  new EventHook(window, [&window, opened = false](QEvent& event) mutable {
    // What the user moves comes from the system, and may go where he likes.
    const bool shown = event.type() == QEvent::Show && !event.spontaneous();
    const bool moved = event.type() == QEvent::Move && !event.spontaneous() && window.isVisible();
    if ((!shown && !moved) || window.isMaximized() || window.isMinimized()) return false;
    // What was laid out while it was hidden has changed its needs, but not told of it yet.
    window.layout()->invalidate();
    window.layout()->activate();
    BringInside(window, opened ? window.geometry() : OpeningPlace(window));
    opened = true;
    return false;
  });
}

void BelongTo(QWidget& window, const QWidget& main) {
  new EventHook(window, [&window, &main](QEvent& event) {
    if (event.type() == QEvent::Show)
      window.windowHandle()->setTransientParent(main.windowHandle());
    return false;
  });
}

}  // namespace tarnwick
