#include "lists/lists_window.h"

namespace tarnwick {

frmLists::frmLists(Desktop& /*desktop*/, Screen& screen, Session& /*session*/,
                   EntrySection& /*entry*/, PlaceSection& /*place*/, frmNotice& /*notice*/)
    : ClosableForm(screen, "frmLists", "Lists") {}

}  // namespace tarnwick
