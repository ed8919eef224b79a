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
  void messageBoxShowsTheMessageAndAnswers_data() {
    QTest::addColumn<MessageIcon>("icon");
    QTest::addColumn<MessageButtons>("buttons");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("shown");
    QTest::addColumn<MessageAnswer>("answer");
    QTest::addColumn<std::optional<MessageAnswer>>("first");
    using enum MessageIcon;
    const auto row = [](const char* name, MessageIcon icon, MessageButtons buttons, int key,
                        int shown, MessageAnswer answer, std::optional<MessageAnswer> first = {}) {
      QTest::newRow(name) << icon << buttons << key << shown << answer << first;
    };
    constexpr auto kOk = MessageButtons::kOk;
    constexpr auto kOkCancel = MessageButtons::kOkCancel;
    constexpr auto kYesNo = MessageButtons::kYesNo;
    row("ok", kExclamation, kOk, Qt::Key_Return, QMessageBox::Warning, MessageAnswer::kOk);
    row("ok, Escape", kNone, kOk, Qt::Key_Escape, QMessageBox::NoIcon, MessageAnswer::kOk);
    row("ok or cancel", kQuestion, kOkCancel, Qt::Key_Return, QMessageBox::Question,
        MessageAnswer::kOk);
    row("cancel", kQuestion, kOkCancel, Qt::Key_Escape, QMessageBox::Question,
        MessageAnswer::kCancel);
    row("yes", kInformation, kYesNo, Qt::Key_Return, QMessageBox::Information, MessageAnswer::kYes);
    row("no", kQuestion, kYesNo, Qt::Key_Escape, QMessageBox::Question, MessageAnswer::kNo);
    row("no first", kQuestion, kYesNo, Qt::Key_Return, QMessageBox::Question, MessageAnswer::kNo,
        MessageAnswer::kNo);
  }

  void messageBoxShowsTheMessageAndAnswers() {
    QFETCH(MessageIcon, icon);
    QFETCH(MessageButtons, buttons);
    QFETCH(int, key);
    QFETCH(int, shown);
    WhenModal<QMessageBox>([key, shown](QMessageBox& box) {
      QCOMPARE(box.text(), "<b>plain</b>");
      QCOMPARE(box.textFormat(), Qt::PlainText);
      QCOMPARE(box.windowTitle(), "Compute date");
      QCOMPARE(static_cast<int>(box.icon()), shown);
      QTest::keyClick(&box, static_cast<Qt::Key>(key));
    });
    QFETCH(std::optional<MessageAnswer>, first);
    const MessageAnswer given =
        desktop_.ShowMessage({"<b>plain</b>", "Compute date", icon, buttons, first});
    QFETCH(MessageAnswer, answer);
    QCOMPARE(given, answer);
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
