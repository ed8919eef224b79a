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
    BoundText<QLineEdit> bound;
    bound.Show();
    QCOMPARE(bound.edit.accessibleName(), "A text");
    QTest::keyClicks(&bound.edit, "2003");
    QCOMPARE(bound.box.Text(), "2003");
    QCOMPARE(bound.box.SelStart(), std::size_t{4});
    QTest::keyClick(&bound.edit, Qt::Key_Home);
    QTest::keyClick(&bound.edit, Qt::Key_Delete);
    QCOMPARE(bound.box.Text(), "003");
    QCOMPARE(bound.box.SelStart(), std::size_t{0});
  }

  void textOfTheControlIsShown() {
    BoundText<QLineEdit> bound;
    QSignalSpy changes(&bound.edit, &QLineEdit::textChanged);
    bound.box.SetText("\xC5\xA0 date");
    QCOMPARE(bound.edit.text(), QString::fromUtf8("\xC5\xA0 date"));
    QCOMPARE(bound.edit.cursorPosition(), 0);
    bound.box.MoveCaretToEnd();
    QCOMPARE(bound.edit.cursorPosition(), 6);
    bound.box.SetText("\xFF is no UTF-8");
    QCOMPARE(bound.box.Text(),
             "\xFF is no UTF-8");  // shown as well as can be, and not written back
    QCOMPARE(changes.count(), 0);
  }

  void selectionCountsCharacters() {
    BoundText<QLineEdit> bound;
    bound.box.SetText(FromQt("a" + kMoon + "bc"));
    bound.box.Select(1, 2);
    QCOMPARE(bound.edit.selectedText(), kMoon + "b");
    bound.edit.setSelection(3, 2);
    QCOMPARE(bound.box.SelStart(), std::size_t{2});
    QCOMPARE(bound.box.SelText(), "bc");
    bound.edit.setSelection(1, 2);
    QCOMPARE(bound.box.SelText(), FromQt(kMoon));
    bound.edit.setSelection(5, -4);  // made from right to left, and left so
    QCOMPARE(bound.box.SelText(), FromQt(kMoon + "bc"));
    QCOMPARE(bound.edit.cursorPosition(), 1);
  }

  void selectionOfLinesCountsTheirEnds() {
    BoundText<QPlainTextEdit> bound;
    bound.box.SetText(FromQt("one\r\n" + kMoon + " two\r\nthree"));
    QCOMPARE(bound.edit.toPlainText(), "one\n" + kMoon + " two\nthree");
    bound.box.Select(5, 5);
    QCOMPARE(bound.edit.textCursor().selectedText(), kMoon + " two");
    QTextCursor cursor = bound.edit.textCursor();
    cursor.setPosition(11);
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    bound.edit.setTextCursor(cursor);
    QCOMPARE(bound.box.SelText(), "three");
    bound.box.MoveCaretToEnd();
    QVERIFY(bound.edit.textCursor().atEnd());
  }

  void typedLinesEndInBothCharacters() {
    BoundText<QPlainTextEdit> bound;
    bound.Show();
    QTest::keyClicks(&bound.edit, "a");
    QTest::keyClick(&bound.edit, Qt::Key_Return);
    QTest::keyClicks(&bound.edit, "b");
    QCOMPARE(bound.box.Text(), "a\r\nb");
    QCOMPARE(bound.box.SelStart(), std::size_t{4});
  }

  void keysReachTheHandlerFirst() {
    BoundText<QLineEdit> bound;
    bool swallow = true;
    std::vector<int> keys;
    bound.box.on_key_press = [&](int& key) {
      keys.push_back(key);
      if (swallow) key = 0;
    };
    bound.Show();
    QSignalSpy returns(&bound.edit, &QLineEdit::returnPressed);
    QTest::keyClick(&bound.edit, Qt::Key_Return);
    QTest::keyClick(&bound.edit, Qt::Key_Enter);
    QTest::keyClicks(&bound.edit, "a");
    QTest::keyClick(&bound.edit, Qt::Key_Left);  // stands for no character
    QCOMPARE(keys, (std::vector<int>{13, 13, 'a'}));
    QCOMPARE(returns.count(), 0);
    QCOMPARE(bound.edit.text(), "");
    swallow = false;
    QTest::keyClick(&bound.edit, Qt::Key_Return);
    QTest::keyClicks(&bound.edit, "a");
    QCOMPARE(returns.count(), 1);
    QCOMPARE(bound.box.Text(), "a");
  }

  void mouseUpSeesTheNewSelection() {
    BoundText<QPlainTextEdit> bound;
    bound.box.SetText("some words");
    bound.box.Select(0, 10);
    std::vector<std::size_t> lengths;
    bound.box.on_mouse_up = [&] { lengths.push_back(bound.box.SelLength()); };
    bound.Show();
    const QPoint inside = bound.edit.cursorRect().center() - QPoint(2, 0);
    QTest::mouseClick(bound.edit.viewport(), Qt::LeftButton, {}, inside);
    QTRY_COMPARE(lengths.size(), std::size_t{1});
    QCOMPARE(lengths.front(), std::size_t{0});  // a click into the selection takes it away
  }
};

const AddSuite<BinderTextTest> added;

}  // namespace tarnwick

#include "binder_text_test.moc"
