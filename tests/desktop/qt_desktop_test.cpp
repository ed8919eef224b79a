#include "desktop/qt_desktop.h"

#include <QApplication>
#include <QDateTime>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>

#include "tests/desktop/suites.h"
#include "tests/desktop/when_modal.h"

namespace tarnwick {

class QtDesktopTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void messageBoxShowsTheMessageAndAnswers() {
    using enum MessageIcon;
    constexpr auto kOk = MessageButtons::kOk;
    constexpr auto kOkCancel = MessageButtons::kOkCancel;
    constexpr auto kYesNo = MessageButtons::kYesNo;
    struct {
      MessageIcon icon;
      MessageButtons buttons;
      Qt::Key key;
      QMessageBox::Icon shown;
      MessageAnswer answer;
      std::optional<MessageAnswer> first = {};
    } const cases[] = {
        {kExclamation, kOk, Qt::Key_Return, QMessageBox::Warning, MessageAnswer::kOk},
        {kNone, kOk, Qt::Key_Escape, QMessageBox::NoIcon, MessageAnswer::kOk},
        {kQuestion, kOkCancel, Qt::Key_Return, QMessageBox::Question, MessageAnswer::kOk},
        {kQuestion, kOkCancel, Qt::Key_Escape, QMessageBox::Question, MessageAnswer::kCancel},
        {kInformation, kYesNo, Qt::Key_Return, QMessageBox::Information, MessageAnswer::kYes},
        {kQuestion, kYesNo, Qt::Key_Escape, QMessageBox::Question, MessageAnswer::kNo},
        {kQuestion, kYesNo, Qt::Key_Return, QMessageBox::Question, MessageAnswer::kNo,
         MessageAnswer::kNo},
    };
    for (const auto& one : cases) {
      WhenModal<QMessageBox>([&one](QMessageBox& box) {
        QCOMPARE(box.text(), "<b>plain</b>");
        QCOMPARE(box.textFormat(), Qt::PlainText);
        QCOMPARE(box.windowTitle(), "Compute date");
        QCOMPARE(box.icon(), one.shown);
        QTest::keyClick(&box, one.key);
      });
      QCOMPARE(
          desktop_.ShowMessage({"<b>plain</b>", "Compute date", one.icon, one.buttons, one.first}),
          one.answer);
    }
  }

  void clockReadsLocalTime() {
#ifndef Q_OS_WIN                // which keeps its own
    qputenv("TZ", "IST-5:30");  // most machines that test stand at Greenwich
#endif
    const ClockReading clock = desktop_.ReadClock();
    const QString text = QString::fromStdString(clock.date + " " + clock.time);
    const QDateTime read = QDateTime::fromString(text, "yyyy-MM-dd HH:mm:ss");
    QVERIFY(read.isValid());
    const QDateTime now = QDateTime::currentDateTime();
    QVERIFY(std::abs(read.secsTo(now)) <= 2);
    QDateTime gmt = read.addSecs(qint64{-60} * clock.offset_minutes);
    gmt.setTimeSpec(Qt::UTC);
    QVERIFY(std::abs(gmt.secsTo(QDateTime::currentDateTimeUtc())) <= 2);
    qunsetenv("TZ");
  }

  void clipboardKeepsText() {
    desktop_.SetClipboardText("\xC5\xA0\r\nlog");
    QCOMPARE(desktop_.ClipboardText(), "\xC5\xA0\r\nlog");
  }

  void filePathIsAskedFor() {
    const QTemporaryDir folder;
    WhenModal<QFileDialog>([&](QFileDialog& dialog) {
      QCOMPARE(dialog.windowTitle(), "Save picture");
      QCOMPARE(QFileInfo(dialog.selectedFiles().value(0)).fileName(), "lunation.png");
      dialog.selectFile(folder.filePath("waxing"));
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
    const auto path = desktop_.AskSavePath("Save picture", "lunation.png");
    QVERIFY(path.has_value());
    QCOMPARE(QString::fromStdString(path->string()), folder.filePath("waxing.png"));

    WhenModal<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    QVERIFY(!desktop_.AskSavePath("Save picture", "lunation.png").has_value());
  }

  // A box that has been answered leaves no window active for a moment.
  void nextQuestionBelongsToTheSameWindow() {
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QList<QWidget*> owners;
    const auto note_and_refuse = [&owners](QDialog& dialog) {
      owners << dialog.parentWidget();
      dialog.reject();
    };
    WhenModal<QMessageBox>(note_and_refuse);
    desktop_.ShowMessage({"Replace it?", "Save", MessageIcon::kQuestion, MessageButtons::kYesNo});
    WhenModal<QFileDialog>(note_and_refuse);
    desktop_.AskSavePath("Save", "lunation.png");
    QCOMPARE(owners, (QList<QWidget*>{&window, &window}));
  }

  void stateFileFollowsTheEnvironment() {
#ifdef Q_OS_WIN
    QSKIP("the shell tells the folder");
#endif
    const QTemporaryDir folder;
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder.path().toUtf8());
    const std::string file = "/Ostrel Systems/tnwk.usr";
    const auto chosen = folder.filePath("a folder").toUtf8();
    for (const QByteArray& setting : {chosen, QByteArray(), QByteArray("not/absolute")}) {
      qputenv("XDG_CONFIG_HOME", setting);
      const std::string base =
          setting == chosen ? chosen.toStdString() : folder.filePath(".config").toStdString();
      const auto path = desktop_.StateFile();
      QVERIFY(path.has_value());
      QCOMPARE(path->string(), base + file);
      QVERIFY(std::filesystem::is_directory(path->parent_path()));
    }
    qputenv("XDG_CONFIG_HOME", before);
    qputenv("HOME", home);
  }

  void programFolderHoldsTheProgram() {
    const QString name = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    QVERIFY(std::filesystem::exists(desktop_.ProgramFolder() / name.toStdString()));
  }

  void waitingYieldWaitsForAnEvent() {
    QCoreApplication::processEvents();
    bool happened = false;
    desktop_.Yield(YieldMode::kPoll);
    QTimer::singleShot(30, this, [&] { happened = true; });
    desktop_.Yield(YieldMode::kPoll);
    QVERIFY(!happened);
    while (!happened) desktop_.Yield(YieldMode::kWait);
  }

  // The last of the tests: it shuts the gate.
  void endedProgramRunsNothingMore() {
    int later = 0;
    QTimer::singleShot(0, this, [&] {
      gate_.Run([&] {
        desktop_.EndProgram();
        desktop_.Yield(YieldMode::kWait);  // returns although no event comes
        gate_.Run([&] { ++later; });
      });
    });
    QCOMPARE(QApplication::exec(), 0);
    gate_.Run([&] { ++later; });
    QCOMPARE(later, 0);
  }

 private:
  HandlerGate gate_{[](const std::string& what) { QFAIL(what.c_str()); }};
  QtDesktop desktop_{gate_};
};

const AddSuite<QtDesktopTest> added;

}  // namespace tarnwick

#include "qt_desktop_test.moc"
