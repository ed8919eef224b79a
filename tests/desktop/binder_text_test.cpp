#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>

#include "desktop/characters.h"
#include "tests/desktop/bound_window.h"
#include "tests/desktop/suites.h"

namespace tarnwick {
namespace {

// Two code units each, and one character.
const QString kMoon = QString::fromUtf8("\xF0\x9F\x8C\x95");

}  // namespace

class BinderTextTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void typedTextReachesTheControl() {
    BoundWindow bound;
    TextBox box(bound.form, "txbText");
    auto& edit = bound.Add<QLineEdit>(box);
    bound.Show();
    QCOMPARE(edit.accessibleName(), "A text");
    QTest::keyClicks(&edit, "2003");
    QCOMPARE(box.Text(), "2003");
    QCOMPARE(box.SelStart(), std::size_t{4});
    QTest::keyClick(&edit, Qt::Key_Home);
    QTest::keyClick(&edit, Qt::Key_Delete);
    QCOMPARE(box.Text(), "003");
    QCOMPARE(box.SelStart(), std::size_t{0});
  }

  void textOfTheControlIsShown() {
    BoundWindow bound;
    TextBox box(bound.form, "txbText");
    auto& edit = bound.Add<QLineEdit>(box);
    QSignalSpy changes(&edit, &QLineEdit::textChanged);
    box.SetText("\xC5\xA0 date");
    QCOMPARE(edit.text(), QString::fromUtf8("\xC5\xA0 date"));
    QCOMPARE(edit.cursorPosition(), 0);
    box.MoveCaretToEnd();
    QCOMPARE(edit.cursorPosition(), 6);
    box.SetText("\xFF is no UTF-8");
    QCOMPARE(box.Text(), "\xFF is no UTF-8");  // shown as well as can be, and not written back
    QCOMPARE(changes.count(), 0);
  }

  void selectionCountsCharacters() {
    BoundWindow bound;
    TextBox box(bound.form, "txbText");
    auto& edit = bound.Add<QLineEdit>(box);
    box.SetText(FromQt("a" + kMoon + "bc"));
    box.Select(1, 2);
    QCOMPARE(edit.selectedText(), kMoon + "b");
    edit.setSelection(3, 2);
    QCOMPARE(box.SelStart(), std::size_t{2});
    QCOMPARE(box.SelText(), "bc");
    edit.setSelection(1, 2);
    QCOMPARE(box.SelText(), FromQt(kMoon));
    edit.setSelection(5, -4);  // made from right to left, and left so
    QCOMPARE(box.SelText(), FromQt(kMoon + "bc"));
    QCOMPARE(edit.cursorPosition(), 1);
  }

  void selectionOfLinesCountsTheirEnds() {
    BoundWindow bound;
    TextBox box(bound.form, "txbText");
    auto& edit = bound.Add<QPlainTextEdit>(box);
    box.SetText(FromQt("one\r\n" + kMoon + " two\r\nthree"));
    QCOMPARE(edit.toPlainText(), "one\n" + kMoon + " two\nthree");
    box.Select(5, 5);
    QCOMPARE(edit.textCursor().selectedText(), kMoon + " two");
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(11);
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    edit.setTextCursor(cursor);
    QCOMPARE(box.SelText(), "three");
    box.MoveCaretToEnd();
    QVERIFY(edit.textCursor().atEnd());
  }

  void typedLinesEndInBothCharacters() {
    BoundWindow bound;
    TextBox box(bound.form, "txbText");
    auto& edit = bound.Add<QPlainTextEdit>(box);
    bound.Show();
    QTest::keyClicks(&edit, "a");
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClicks(&edit, "b");
    QCOMPARE(box.Text(), "a\r\nb");
    QCOMPARE(box.SelStart(), std::size_t{4});
  }

  void keysReachTheHandlerFirst() {
    BoundWindow bound;
    TextBox box(bound.form, "txbText");
    bool swallow = true;
    std::vector<int> keys;
    box.on_key_press = [&](int& key) {
      keys.push_back(key);
      if (swallow) key = 0;
    };
    auto& edit = bound.Add<QLineEdit>(box);
    bound.Show();
    QSignalSpy returns(&edit, &QLineEdit::returnPressed);
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClick(&edit, Qt::Key_Enter);
    QTest::keyClicks(&edit, "a");
    QTest::keyClick(&edit, Qt::Key_Left);  // stands for no character
    QCOMPARE(keys, (std::vector<int>{13, 13, 'a'}));
    QCOMPARE(returns.count(), 0);
    QCOMPARE(edit.text(), "");
    swallow = false;
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClicks(&edit, "a");
    QCOMPARE(returns.count(), 1);
    QCOMPARE(box.Text(), "a");
  }

  void mouseUpSeesTheNewSelection() {
    BoundWindow bound;
    TextBox box(bound.form, "txbText");
    auto& edit = bound.Add<QPlainTextEdit>(box);
    box.SetText("some words");
    box.Select(0, 10);
    std::vector<std::size_t> lengths;
    box.on_mouse_up = [&] { lengths.push_back(box.SelLength()); };
    bound.Show();
    const QPoint inside = edit.cursorRect().center() - QPoint(2, 0);
    QTest::mouseClick(edit.viewport(), Qt::LeftButton, {}, inside);
    QTRY_COMPARE(lengths.size(), std::size_t{1});
    QCOMPARE(lengths.front(), std::size_t{0});  // a click into the selection takes it away
  }
};

const AddSuite<BinderTextTest> added;

}  // namespace tarnwick

#include "binder_text_test.moc"
