// The suites of this program. A file of tests adds its own: AddSuite<BinderTest> added;
#pragma once

#include <QTest>
#include <vector>

namespace tarnwick {

// Runs one suite; returns the number of failures.
using SuiteRun = int (*)(int argc, char** argv);

inline std::vector<SuiteRun>& Suites() {
  static std::vector<SuiteRun> suites;
  return suites;
}

template <class Suite>
struct AddSuite {
  AddSuite() {
    Suites().push_back([](int argc, char** argv) {
      Suite suite;
      return QTest::qExec(&suite, argc, argv);
    });
  }
};

}  // namespace tarnwick
