// The windows of the help, and the notice.
#include "desktop/help_view.h"

#include <QListWidget>
#include <QTextBrowser>

#include "tests/desktop/shown_main_window.h"
#include "tests/desktop/suites.h"

namespace tarnwick {
namespace {

struct HelpWindow {
  HelpWindow() {
    QVERIFY(QTest::qWaitForWindowActive(&main.view));
    QTest::keyClick(&main.view, Qt::Key_F1);
    QTRY_VERIFY(view.isVisible());  // a button pressed by a key stays down for a moment
    QVERIFY(QTest::qWaitForWindowActive(&view));
  }

  QListWidget& Pages() {
    return *qobject_cast<QListWidget*>(view.WidgetOf(main.form.help_window.lstPages));
  }
  QString Shown() {
    return qobject_cast<QTextBrowser*>(view.WidgetOf(main.form.help_window.lblText))->toPlainText();
  }

  MainWindow main;
  HelpView view{main.form.help_window, main.gate};
};

}  // namespace

class HelpViewTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void keysOpenTheHelpAndTurnItsPages() {
    HelpWindow help;
    QVERIFY(help.Pages().hasFocus());
    const QString first = help.Shown();
    QVERIFY(first.contains("The current moment"));
    QTest::keyClick(&help.Pages(), Qt::Key_Down);
    QCOMPARE(help.main.form.help_window.lstPages.ListIndex(), 1);
    QVERIFY(help.Shown() != first);
    QTest::keyClick(&help.view, Qt::Key_Escape);
    QVERIFY(!help.view.isVisible());
  }

  void pagesShowNoMarks() {
    HelpWindow help;
    CreditsView credits(help.main.form.help_window.credits_window, help.main.gate);
    help.main.form.help_window.cmdCredits.Click();
    QStringList texts{credits.findChild<QTextBrowser*>()->toPlainText()};
    for (int page = 0; page < help.Pages().count(); ++page) {
      help.Pages().setCurrentRow(page);
      texts << help.Shown();
    }
    for (const QString& text : texts) {
      QVERIFY(text.size() > 200);
      for (const QString& line : text.split('\n')) {
        QVERIFY2(!line.startsWith("# ") && !line.startsWith("- "), qPrintable(line));
      }
    }
  }

  void noticeGoesByItselfAndOnAClick() {
    MainWindow main;
    NoticeView notice(main.form.notice, main.gate);
    QVERIFY(QTest::qWaitForWindowActive(&main.view));
    main.form.cmdSaveState.Click();
    QVERIFY(notice.isVisible());
    int starts = 0;
    Timer& timer = main.form.notice.tmrNotice;
    timer.Watch([&](Property changed) {
      if (changed == Property::kEnabled && timer.Enabled()) ++starts;
    });
    main.form.notice.ShowOver(main.form, "Saved");  // for as long again
    QCOMPARE(starts, 1);
    QCOMPARE(QApplication::focusWidget()->objectName(), "cmdMove");  // as saving leaves it
    QTest::mouseClick(notice.findChild<QWidget*>("lblNotice"), Qt::LeftButton);
    QVERIFY(!notice.isVisible());

    main.form.notice.ShowOver(main.form,
                              "The log has been added to C:\\Users\\Maria\\tnwk-log.txt");
    VerifyNothingIsClipped(notice);
    main.form.notice.tmrNotice.SetInterval(20);
    QVERIFY(notice.isVisible());
    QTRY_VERIFY(!notice.isVisible());
  }
};

const AddSuite<HelpViewTest> added;

}  // namespace tarnwick

#include "help_view_test.moc"
