#include "navigation/trail.h"

namespace tarnwick {

void Trail::Add(const Visit& visit) {
  if (!visits_.empty()) {
    if (visits_[place_] == visit) return;
    visits_.resize(place_ + 1);
  }
  visits_.push_back(visit);
  if (visits_.size() > kCapacity) visits_.pop_front();
  place_ = visits_.size() - 1;
}

}  // namespace tarnwick
