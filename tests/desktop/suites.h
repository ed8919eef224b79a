#pragma once

#include <QTest>

namespace tarnwick {

// One for each file of tests; they return the number of failures.
int RunBinderTests(int argc, char** argv);
int RunBinderFormTests(int argc, char** argv);
int RunBinderTextTests(int argc, char** argv);
int RunCalendarViewTests(int argc, char** argv);
int RunHelpViewTests(int argc, char** argv);
int RunLogViewTests(int argc, char** argv);
int RunMainWindowViewTests(int argc, char** argv);
int RunMoonPicturesTests(int argc, char** argv);
int RunNavigationViewTests(int argc, char** argv);
int RunPictureViewTests(int argc, char** argv);
int RunQtDesktopTests(int argc, char** argv);

template <class Suite>
int Run(int argc, char** argv) {
  Suite suite;
  return QTest::qExec(&suite, argc, argv);
}

}  // namespace tarnwick
