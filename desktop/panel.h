// What a window is made of: panels, one below the other, and rows in them.
#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace tarnwick {

// A titled area of a window with a ground of its own.
class Panel : public QWidget {
 public:
  enum class Ground { kDark, kLight };

  Panel(Ground ground, QWidget* parent);

  // A panel without one leaves no room for it.
  void SetTitle(const QString& title);
  // Puts the title at the left of a row that is all the panel holds, and returns the row.
  QHBoxLayout& MakeLine();
  QLabel& Title() { return *title_; }
  // Where its content goes, below the title.
  QVBoxLayout& Content() { return *content_; }

 protected:
  double CornerRadius() const { return fontMetrics().height() / 3.0; }
  void paintEvent(QPaintEvent* event) override;

 private:
  Ground ground_;
  QLabel* title_;
  QVBoxLayout* content_;
};

// The column in which the sections of a window stand.
QVBoxLayout* MakeSections(QWidget& window);

// A row of widgets that are disabled and hidden together; option buttons in it exclude each other.
class Area : public QWidget {
 public:
  Area(int spacing, QWidget* parent);
  QHBoxLayout& Row() { return *row_; }

 private:
  QHBoxLayout* row_;
};

}  // namespace tarnwick
