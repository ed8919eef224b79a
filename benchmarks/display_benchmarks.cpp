// How long it takes from Compute to the moment in all calendars, without painting.
#include <benchmark/benchmark.h>
#include <string>

#include "app/main_window.h"
#include "moon/phase_cache.h"
#include "tools/driver/driver_desktop.h"

namespace tarnwick {
namespace {

// The main window without a display; its pictures are missing, which is reported once.
struct Window {
  DriverDesktop desktop{[](YieldMode) {}, {}};
  Screen screen;
  frmMain form{desktop, screen};

  Window() { form.Load(); }
  void Compute(const std::string& text) {
    form.entry.txbDate.SetText(text);
    form.entry.cmdCompute.Click();
  }
};

void DisplayOfAMomentNotSeenBefore(benchmark::State& state) {
  Window window;
  int year = -3199;
  for ([[maybe_unused]] auto _ : state) {
    state.PauseTiming();
    ClearPhaseCache();
    year = year < 5900 ? year + 7 : -3199;
    const std::string text = std::to_string(year) + "-12-31 CE";
    state.ResumeTiming();
    window.Compute(text);
  }
}
BENCHMARK(DisplayOfAMomentNotSeenBefore)->Unit(benchmark::kMicrosecond);

void DisplayWithinTheSameLunation(benchmark::State& state) {
  Window window;
  int minute = 0;
  for ([[maybe_unused]] auto _ : state) {
    minute = (minute + 1) % 60;
    window.Compute("2024-03-" + std::to_string(12 + minute % 15) +
                   " CE 12:" + (minute < 10 ? "0" : "") + std::to_string(minute));
  }
}
BENCHMARK(DisplayWithinTheSameLunation)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tarnwick
