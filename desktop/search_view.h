// Searches on the screen, and the eclipse on display.
#pragma once

#include "desktop/binder.h"
#include "desktop/panel.h"
#include "navigation/search_section.h"

namespace tarnwick {

// The panel is not the frame itself: a search disables the frame, and says that it is running.
class SearchView final : public Panel {
 public:
  SearchView(SearchSection& section, Binder& binder, QWidget* parent);

 private:
  QWidget* MakeFrame();

  SearchSection& section_;
  Binder& binder_;
};

class EclipseView final : public Panel {
 public:
  EclipseView(SearchSection& section, Binder& binder, QWidget* parent);
};

}  // namespace tarnwick
