// Documents on paper, read back from PDF files.
#include "desktop/print_painter.h"

#include <QFile>
#include <QLineEdit>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "desktop/qt_desktop.h"
#include "lunation_view/printed_lunations.h"
#include "tests/desktop/suites.h"
#include "tests/desktop/when_modal.h"

namespace tarnwick {
namespace {

constexpr auto kGoOn = [](std::size_t /*done*/, std::size_t /*count*/) { return true; };

PrintedGrids Year() { return PrintedLunations("Year 4721", LunationsOfYear(300, {0, 0}), {0, 0}); }

PrintedTable Rows(std::size_t rows) {
  PrintedTable table{"Phases", {{"Date", "2003-12-31 CE"}, {"Lunation", "-64316", true}}, rows, {}};
  table.cell = [](std::size_t row, std::size_t column) {
    return std::to_string(10 * row + column);
  };
  return table;
}

PrintedTable WideTable() {
  PrintedTable table = Rows(3);
  table.columns.assign(9, {"OLW", "9000-13-3-3 OLW (Daythree in Weekthree of De Quincy, 9000)"});
  return table;
}

int CountPages(const QByteArray& pdf) {
  return static_cast<int>(pdf.count("/Type /Page\n") + pdf.count("/Type /Page\r\n"));
}

// The sheet of every page, in points: "842 595".
QStringList Sheets(const QByteArray& pdf) {
  QStringList sheets;
  const QRegularExpression box(R"(/MediaBox \[[\d.]+ [\d.]+ ([\d.]+) ([\d.]+)\])");
  auto found = box.globalMatch(QString::fromLatin1(pdf));
  while (found.hasNext()) {
    const QRegularExpressionMatch sides = found.next();
    sheets << QString("%1 %2")
                  .arg(qRound(sides.captured(1).toDouble()))
                  .arg(qRound(sides.captured(2).toDouble()));
  }
  return sheets;
}

}  // namespace

class PrintPainterTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void documentsTakeTheirPages() {
    const PrintedGrids year = Year();
    const int lunations = static_cast<int>(year.page_count);
    struct {
      PrintedDocument document;
      int fewest;
      int most;
      bool wide;
    } const cases[] = {
        {PrintedLunations("One", {49, 49}, {3, 0}), 1, 1, true},
        {year, lunations, lunations, true},
        {Rows(500), 7, 13, false},
        {Rows(0), 1, 1, false},
        {PrintedTable{"Nothing", {}, 0, {}}, 1, 1, false},
        {WideTable(), 1, 1, true},
    };
    for (const auto& [document, fewest, most, wide] : cases) {
      for (const auto& [paper, upright, across] :
           {std::tuple(PaperSize::kA4, "595 842", "842 595"),
            std::tuple(PaperSize::kLetter, "612 792", "792 612")}) {
        const QByteArray pdf = Saved(document, paper);
        QVERIFY(pdf.startsWith("%PDF-"));
        const int pages = CountPages(pdf);
        QVERIFY2(pages >= fewest && pages <= most, qPrintable(QString::number(pages)));
        const QStringList sheets = Sheets(pdf);
        QVERIFY(!sheets.isEmpty());
        QCOMPARE(sheets, QStringList(sheets.size(), wide ? across : upright));
      }
    }
    const QByteArray pdf = Saved(year, PaperSize::kA4);  // texts are texts, pictures are curves
    QVERIFY(pdf.contains("/ToUnicode"));
    QVERIFY(!pdf.contains("/Subtype /Image"));
  }

  // However many rows a page takes, and however long the texts are.
  void everyCellIsPaintedOnce() {
    PrintedTable table = WideTable();
    table.row_count = 321;
    std::vector<int> asked(table.row_count);
    table.cell = [&asked](std::size_t row, std::size_t /*column*/) {
      ++asked[row];
      return std::string(300, 'W');  // far longer than the column has said
    };
    QVERIFY(!Saved(table, PaperSize::kLetter).isEmpty());
    QCOMPARE(asked, std::vector<int>(table.row_count, static_cast<int>(table.columns.size())));
  }

  void onlyChosenPagesArePainted() {
    PrintedGrids year = Year();
    std::vector<std::size_t> painted;
    year.page = [&painted, page = year.page](std::size_t index) {
      painted.push_back(index);
      return page(index);
    };
    QPdfWriter writer(folder_.filePath("chosen.pdf"));
    ArrangePaper(year, PaperSize::kA4, writer);
    QCOMPARE(PaintPages(year, {3, 5}, writer, kGoOn), "");
    QCOMPARE(painted, (std::vector<std::size_t>{2, 3, 4}));
    QCOMPARE(PaintPages(year, {year.page_count, 99}, writer, kGoOn), "");
    QCOMPARE(painted.back(), year.page_count - 1);
    QVERIFY(!PaintPages(year, {year.page_count + 1, 99}, writer, kGoOn).empty());
  }

  void moreThanAnybodyPrintsIsRefused() {
    const std::string error =
        desktop_.SavePDF(Rows(3'360'000), folder_.filePath("days.pdf").toStdU16String(), {});
    QVERIFY(QString::fromStdString(error).contains("pages"));
    QVERIFY(!QFile::exists(folder_.filePath("days.pdf")));
  }

  void paintingCanBeStopped() {
    QPdfWriter writer(folder_.filePath("stopped.pdf"));
    std::size_t painted = 0;
    const PrintedGrids year = Year();
    QVERIFY(!PaintPages(year, {}, writer, [&](std::size_t done, std::size_t count) {
               painted = done;
               return count == year.page_count && done < 2;
             }).empty());
    QCOMPARE(painted, std::size_t{2});
  }

  void failureToWriteIsTold() {
    const QString nowhere = folder_.filePath("no folder/a.pdf");
    QVERIFY(!desktop_.SavePDF(Rows(1), nowhere.toStdU16String(), PaperSize::kA4).empty());
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(nowhere);
    QVERIFY(!PaintPages(Rows(1), {}, printer, kGoOn).empty());
  }

  void printerIsAskedFor() {
#ifdef Q_OS_WIN
    QSKIP("the system's own dialog cannot be driven");
#endif
    WhenModal<QPrintDialog>([](QPrintDialog& dialog) { dialog.reject(); });
    QCOMPARE(desktop_.Print(Year(), PaperSize::kA4), "");

    const QString file = folder_.filePath("printed.pdf");
    WhenModal<QPrintDialog>([&file](QPrintDialog& dialog) {
      dialog.findChild<QLineEdit*>("filename")->setText(file);
      dialog.accept();
    });
    QCOMPARE(desktop_.Print(Year(), PaperSize::kLetter), "");
    QFile printed(file);
    QVERIFY(printed.open(QIODevice::ReadOnly));
    const QByteArray pdf = printed.readAll();
    QCOMPARE(CountPages(pdf), static_cast<int>(Year().page_count));
    QCOMPARE(Sheets(pdf).value(0), "792 612");
  }

 private:
  QByteArray Saved(const PrintedDocument& document, PaperSize paper) {
    QFile file(folder_.filePath("document.pdf"));
    const std::string error = desktop_.SavePDF(document, file.filesystemFileName(), paper);
    if (!error.empty() || !file.open(QIODevice::ReadOnly)) return {};
    return file.readAll();
  }

  HandlerGate gate_{[](const std::string& what) { QFAIL(what.c_str()); }};
  QtDesktop desktop_{gate_};
  QTemporaryDir folder_;
};

const AddSuite<PrintPainterTest> added;

}  // namespace tarnwick

#include "print_painter_test.moc"
