#include <QComboBox>

#include "tests/desktop/bound_window.h"
#include "tests/desktop/suites.h"

namespace tarnwick {

class BinderFormTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void windowShowsItsFormAndAsksItToClose() {
    BoundWindow bound;
    QVERIFY(!bound.window.isVisible());
    bound.form.SetCaption("Test 18.0");
    bound.Show();
    QCOMPARE(bound.window.windowTitle(), "Test 18.0");
    QCOMPARE(bound.form.activations, 1);
    bound.form.refuses_to_close = true;
    bound.window.close();
    QVERIFY(bound.window.isVisible());
    bound.form.refuses_to_close = false;
    bound.window.close();
    QVERIFY(!bound.window.isVisible() && !bound.form.Visible());
  }

  void sizesAreTwips() {
    BoundWindow bound;
    bound.Show();
    const int before = bound.form.resizes;
    bound.window.resize(400, 300);
    QTRY_COMPARE(bound.form.Bounds().width, 6000);
    QCOMPARE(bound.form.Bounds().height, 4500);
    QCOMPARE(bound.form.resizes, before + 1);

    bound.form.SetBounds({1500, 750, 7500, 3000});
    QTRY_COMPARE(bound.window.size(), QSize(500, 200));
    QCOMPARE(bound.window.pos(), QPoint(100, 50));

    bound.window.showMaximized();
    QTRY_VERIFY(bound.window.width() > 500);
    bound.form.SetBounds({1500, 750, 7500, 3000});
    QVERIFY(bound.window.width() > 500);
  }

  void minimisedFormIsToldOnce() {
    BoundWindow bound;
    bound.Show();
    bound.window.showMinimized();
    QTRY_VERIFY(bound.form.Minimised());
    bound.form.Show();
    QTRY_VERIFY(!bound.window.isMinimized());
    bound.form.Minimise();
    QVERIFY(bound.window.isMinimized());
  }

  void activeWindowIsTheActiveForm() {
    BoundWindow bound;
    NotingForm other(bound.screen);
    QWidget second;
    bound.binder.Bind(other, second);
    bound.Show();
    other.Show();
    QVERIFY(QTest::qWaitForWindowActive(&second));
    bound.window.activateWindow();
    QTRY_VERIFY(bound.form.IsActive());
    other.Show();  // it is open already, behind the first
    QTRY_VERIFY(second.isActiveWindow());
    other.Hide();
    QTRY_VERIFY(bound.window.isActiveWindow());
  }

  void escapeReachesTheFormFromAList() {
    BoundWindow bound;
    ComboBox list(bound.form, "cboTarget");
    auto& combo = bound.Add<QComboBox>(list);
    bound.Show();
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Escape);
    QTest::simulateEvent(&combo, true, Qt::Key_Escape, Qt::NoModifier, {}, true);  // held down
    QCOMPARE(bound.form.keys, std::vector<int>{27});
  }

  void nothingRunsAfterTheEnd() {
    BoundWindow bound;
    bound.Show();
    const int before = bound.form.resizes;
    bound.gate.Shut();
    bound.window.resize(410, 310);
    QCoreApplication::processEvents();
    QCOMPARE(bound.form.resizes, before);
  }
};

const AddSuite<BinderFormTest> added;

}  // namespace tarnwick

#include "binder_form_test.moc"
