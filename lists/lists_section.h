// The way to the lists: the button that opens their window.
#pragma once

#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/form.h"
#include "help/notice.h"
#include "lists/lists_window.h"
#include "moment/entry_section.h"
#include "moment/session.h"
#include "sky/place_section.h"

namespace tarnwick {

class ListsSection {
 public:
  ListsSection(Form& form, Screen& screen, Session& session, Desktop& desktop, EntrySection& entry,
               PlaceSection& place, frmNotice& notice);

  Button cmdLists;

  frmLists lists_window;
};

}  // namespace tarnwick
