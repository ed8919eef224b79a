#include <QApplication>

#include "desktop/accessible.h"
#include "desktop/look.h"
#include "tests/desktop/suites.h"

int main(int argc, char** argv) {
  // Only Qt's own dialogs can be driven by a test.
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tarnwick::InstallAccessibles();
  tarnwick::ApplyLook();
  int failures = 0;
  for (const tarnwick::SuiteRun run : tarnwick::Suites()) failures += run(argc, argv);
  return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
