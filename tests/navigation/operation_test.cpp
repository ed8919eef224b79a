#include "navigation/operation.h"

#include <gtest/gtest.h>

#include "engines/checked_arithmetic.h"
#include "navigation/trail.h"
#include "tools/driver/driver_desktop.h"

namespace tarnwick {
namespace {

TEST(CarryOut, AnErrorBringsTheMomentBackAndShowsIt) {
  DriverDesktop desktop([](YieldMode) {}, "");
  Session session;
  UniversalTime shown;
  session.hooks.show_moment = [&] {
    shown = session.Moment();
    return "";
  };
  session.SetMoment(UniversalTime(7));
  CarryOut(session, desktop, "Title", [&] {
    session.SetMoment(UniversalTime(8));
    session.hooks.show_moment();
    ThrowOverflow();
  });
  EXPECT_EQ(session.Moment(), UniversalTime(7));
  EXPECT_EQ(shown, UniversalTime(7));
  const auto messages = desktop.TakeMessages();
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_EQ(messages[0].text, "Overflow");
  EXPECT_EQ(messages[0].title, "Title");
}

TEST(Trail, KeepsTheNewestVisits) {
  constexpr int kTooMany = 5;
  Trail trail;
  for (std::size_t i = 0; i < Trail::kCapacity + kTooMany; ++i) {
    Visit visit;
    visit.moment = UniversalTime(static_cast<double>(i));
    trail.Add(visit);
  }
  UniversalTime oldest;
  while (trail.CanGoBack()) oldest = trail.GoBack().moment;
  EXPECT_EQ(oldest, UniversalTime(kTooMany));
}

}  // namespace
}  // namespace tarnwick
