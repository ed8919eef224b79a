// Going through what a finder finds.
#pragma once

namespace tarnwick {

// Calls visit(found) for everything that a finder of lists/finders.h finds, until it returns false.
template <class Finder, class Visit>
bool VisitFound(Finder finder, const Visit& visit) {
  while (finder.Next()) {
    if (const auto* found = finder.Found(); found && !visit(*found)) return false;
  }
  return true;
}

}  // namespace tarnwick
