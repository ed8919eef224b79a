#include "help/help_window.h"

#include <string>

#include "controls/product.h"
#include "help/credits_text.h"
#include "help/help_text.h"

namespace tarnwick {

frmCredits::frmCredits(Desktop& desktop, Screen& screen)
    : ClosableForm(screen, "frmCredits", "Credits"), desktop_(desktop) {
  lblText.SetCaption(std::string(CreditsText()));
  cmdWebPage.SetCaption(kWebPage);
  cmdWebPage.on_click = [this] { cmdWebPage_Click(); };
}

void frmCredits::Form_Activate() { cmdClose.SetFocus(); }

void frmCredits::cmdWebPage_Click() { desktop_.OpenWebPage(kWebPage); }

frmHelp::frmHelp(Desktop& desktop, Screen& screen)
    : ClosableForm(screen, "frmHelp", "Help"), credits_window(desktop, screen) {
  for (const HelpPage& page : HelpPages()) lstPages.AddItem(std::string(page.title));
  lstPages.on_click = [this] { lstPages_Click(); };
  cmdCredits.on_click = [this] { cmdCredits_Click(); };
}

void frmHelp::Form_Load() { lstPages.SetListIndex(0); }

void frmHelp::Form_Activate() { lstPages.SetFocus(); }

void frmHelp::lstPages_Click() {
  const auto page = static_cast<std::size_t>(lstPages.ListIndex());
  lblText.SetCaption(std::string(HelpPages()[page].text));
}

void frmHelp::cmdCredits_Click() { credits_window.Show(); }

}  // namespace tarnwick
