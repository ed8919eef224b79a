#include "lists/lists_section.h"

namespace tarnwick {

ListsSection::ListsSection(Form& form, Screen& screen, Session& session, Desktop& desktop,
                           EntrySection& entry, PlaceSection& place, frmNotice& notice)
    : cmdLists(form, "cmdLists", "Lists"),
      lists_window(desktop, screen, session, entry, place, notice) {
  cmdLists.SetToolTipText("All phases, eclipses, crescents or days of a period in a table");
  cmdLists.on_click = [this] { lists_window.Show(); };
}

}  // namespace tarnwick
