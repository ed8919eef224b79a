// How long the main window takes to show a moment, painting included, as a step of a repeated move
// does, and the window of lists a page of its table. It is painted off the screen, at the size
// given, in units of the screen.
#include <QApplication>
#include <QScrollBar>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <string>

#include "desktop/accessible.h"
#include "desktop/lists_view.h"
#include "desktop/look.h"
#include "desktop/main_window_view.h"
#include "desktop/sky_view.h"
#include "desktop/table_view.h"
#include "tools/driver/driver_desktop.h"

namespace tarnwick {
namespace {

// One step on and one back, by turns, so that the picture of the Moon changes each time.
void PaintedStep(benchmark::State& state, const std::string& moment) {
  HandlerGate gate([](const std::string&) { std::abort(); });
  DriverDesktop desktop([](YieldMode) {}, QCoreApplication::applicationDirPath().toStdString());
  Screen screen;
  frmMain form(desktop, screen);
  MainWindowView view(form, gate);
  form.Load();
  view.resize(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  form.entry.txbDate.SetText(moment);
  form.entry.cmdCompute.Click();
  QCoreApplication::processEvents();
  int direction = 0;
  for ([[maybe_unused]] auto _ : state) {
    form.move.optMoveDirection[direction].Click();
    form.move.cmdMove.Click();
    QCoreApplication::processEvents();
    direction = 1 - direction;
  }
}
BENCHMARK_CAPTURE(PaintedStep, Gibbous, "2024-03-20 CE")
    ->Args({1137, 742})
    ->Args({1900, 1000})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PaintedStep, Crescent, "2024-03-14 CE")
    ->Args({1137, 742})
    ->Args({1900, 1000})
    ->Unit(benchmark::kMillisecond);

// The same with the sky of a place beside it: a day on and back under the same eclipse, or a
// century on and back from one total eclipse to another month's sky, whose map is made anew.
void PaintedSky(benchmark::State& state, const std::string& step) {
  HandlerGate gate([](const std::string&) { std::abort(); });
  DriverDesktop desktop([](YieldMode) {}, QCoreApplication::applicationDirPath().toStdString());
  Screen screen;
  frmMain form(desktop, screen);
  const MainWindowView main_view(form, gate);
  frmSky& sky = form.sky.sky_window;
  const SkyView view(sky, gate);
  form.Load();
  form.entry.txbDate.SetText("1999-08-11 CE");
  form.entry.cmdCompute.Click();
  form.sky.cmdSky.Click();
  const auto& steps = form.move.cboMoveStep.Items();
  const auto chosen = std::ranges::find(steps, step, &ComboBox::Item::text);
  form.move.cboMoveStep.SetListIndex(static_cast<int>(chosen - steps.begin()));
  int direction = 0;
  for ([[maybe_unused]] auto _ : state) {
    form.move.optMoveDirection[direction].Click();
    form.move.cmdMove.Click();
    do {
      QCoreApplication::processEvents();
    } while (sky.tmrMap.Enabled());
    direction = 1 - direction;
  }
}
BENCHMARK_CAPTURE(PaintedSky, Day, "1 day")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PaintedSky, AnotherEclipse, "1 ARC year")->Unit(benchmark::kMillisecond);

// The window of lists with so many rows of eight columns.
struct FilledTable {
  explicit FilledTable(std::size_t rows) {
    main.Load();
    main.lists.cmdLists.Click();
    lists.tblList.SetColumns(std::vector<TableColumn>(8, {"Eclipse", "Central total solar"}));
    lists.tblList.cell_text = [](std::size_t row, std::size_t column) {
      return std::to_string(row) + " of column " + std::to_string(column);
    };
    lists.tblList.SetRowCount(rows);
    QCoreApplication::processEvents();
  }
  QScrollBar& Bar() {
    return *static_cast<TableView*>(view.WidgetOf(lists.tblList))->verticalScrollBar();
  }

  HandlerGate gate{[](const std::string&) { std::abort(); }};
  DriverDesktop desktop{[](YieldMode) {}, QCoreApplication::applicationDirPath().toStdString()};
  Screen screen;
  frmMain main{desktop, screen};
  frmLists& lists = main.lists.lists_window;
  ListsView view{lists, gate};
};

// A page further each time.
void ScrolledTable(benchmark::State& state) {
  FilledTable table(static_cast<std::size_t>(state.range(0)));
  QScrollBar& bar = table.Bar();
  for ([[maybe_unused]] auto _ : state) {
    bar.setValue(bar.value() == bar.maximum() ? 0 : bar.value() + bar.pageStep());
    QCoreApplication::processEvents();
  }
}
BENCHMARK(ScrolledTable)->Arg(10'000)->Arg(3'360'000)->Unit(benchmark::kMillisecond);

// Ten rows more each time, as while a list is made.
void GrowingTable(benchmark::State& state) {
  FilledTable table(static_cast<std::size_t>(state.range(0)));
  for ([[maybe_unused]] auto _ : state) {
    table.lists.tblList.SetRowCount(table.lists.tblList.RowCount() + 10);
    QCoreApplication::processEvents();
  }
}
BENCHMARK(GrowingTable)->Arg(10'000)->Arg(450'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnwick

int main(int argc, char** argv) {
  if (std::getenv("QT_QPA_PLATFORM") == nullptr) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  tarnwick::InstallAccessibles();
  tarnwick::ApplyLook();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
