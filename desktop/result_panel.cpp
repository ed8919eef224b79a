// The eclipse on display.
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/look.h"
#include "desktop/main_window_view.h"
#include "desktop/panel.h"

namespace tarnwick {
namespace {

constexpr char kLongestText[] =
    "Non-central annular-total solar eclipse\n"
    "Lunation number = -64316\n"
    "Saros number = 100\n"
    "Penumbral phase starts 00:00 and lasts 6h 00m.\n"
    "Umbral phase starts 00:00 and lasts 4h 00m.\n"
    "Total phase starts 00:00 and lasts 2h 00m.";

}  // namespace

QWidget* MainWindowView::MakeResultPanel() {
  auto* panel = new Panel(Panel::Ground::kLight, this);
  panel->SetTitle("Eclipse");
  auto* text = new QLabel(panel);
  text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  // Room for any eclipse, so that nothing moves when one is found.
  text->setText(kLongestText);
  text->setMinimumSize(text->sizeHint());
  binder_.Bind(form_.lblActualEclipseData, *text);
  panel->Content().addWidget(text, 1);
  return panel;
}

}  // namespace tarnwick
