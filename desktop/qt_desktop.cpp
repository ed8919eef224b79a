#include "desktop/qt_desktop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QDateTime>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QScrollArea>
#include <QScrollBar>

#include "controls/form.h"
#include "controls/product.h"
#include "controls/text_file.h"
#include "desktop/characters.h"
#include "desktop/look.h"
#include "desktop/platform.h"
#include "desktop/program_folder.h"
#include "desktop/screen_fit.h"
#include "desktop/vector_registers.h"
#include "engines/time_units.h"
#include "state/state_file.h"

namespace tarnwick {
namespace {

constexpr int kImageResolution = 2;  // pixels of a saved image for one of the screen, each way
constexpr int kWidestText = 48;      // of a message, in lines of text
constexpr int kDialogWidth = 40;     // of the question for a printer, in lines of text
constexpr int kPatience = 1000;      // ms of work of which nobody need be told

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kExclamation:
      return QMessageBox::Warning;
    case MessageIcon::kInformation:
      return QMessageBox::Information;
    case MessageIcon::kQuestion:
      return QMessageBox::Question;
    case MessageIcon::kNone:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::kOkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case MessageButtons::kYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::kOk:
      break;
  }
  return QMessageBox::Ok;
}

QMessageBox::StandardButton ButtonOf(MessageAnswer answer) {
  switch (answer) {
    case MessageAnswer::kCancel:
      return QMessageBox::Cancel;
    case MessageAnswer::kYes:
      return QMessageBox::Yes;
    case MessageAnswer::kNo:
      return QMessageBox::No;
    case MessageAnswer::kOk:
      break;
  }
  return QMessageBox::Ok;
}

MessageAnswer AnswerOf(int pressed, MessageButtons buttons) {
  if (pressed == QMessageBox::Yes) return MessageAnswer::kYes;
  if (pressed == QMessageBox::Ok || buttons == MessageButtons::kOk) return MessageAnswer::kOk;
  return buttons == MessageButtons::kYesNo ? MessageAnswer::kNo : MessageAnswer::kCancel;
}

QEventLoop::ProcessEventsFlags FlagsOf(YieldMode mode) {
  switch (mode) {
    case YieldMode::kWait:
      return QEventLoop::WaitForMoreEvents;
    case YieldMode::kOnlyQuitting:  // the window's close box is not the user's input to it
      return QEventLoop::ExcludeUserInputEvents;
    case YieldMode::kPoll:
      break;
  }
  return QEventLoop::AllEvents;
}

// Lets a text scroll that has no room on the screen, beside the icon and above the buttons.
void ScrollLongText(QMessageBox& box) {
  const int line = box.fontMetrics().height();
  const QSize room = RoomFor(box).size() - QSize(8, 6) * line;
  const QRect widest(0, 0, qMin(room.width(), kWidestText * line), room.height());
  const QSize text = box.fontMetrics().boundingRect(widest, Qt::TextWordWrap, box.text()).size();
  if (text == text.boundedTo(room)) return;
  auto* grid = static_cast<QGridLayout*>(box.layout());
  auto* own = box.findChild<QLabel*>("qt_msgbox_label");
  int row = 0;
  int column = 0;
  int rows = 0;
  int columns = 0;
  grid->getItemPosition(grid->indexOf(own), &row, &column, &rows, &columns);
  own->hide();
  auto* shown = new QLabel(box.text());
  shown->setTextFormat(Qt::PlainText);
  shown->setWordWrap(true);
  shown->resize(text);
  auto* area = new QScrollArea(&box);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidget(shown);
  const int bar = area->verticalScrollBar()->sizeHint().width();
  area->setMinimumSize((text + QSize(bar, bar)).boundedTo(room));
  grid->addWidget(area, row, column, rows, columns);
}

// Makes room for the title beside the buttons of the window's frame, and for a line of text that
// would else break just before its end.
void Widen(QMessageBox& box) {
  const QFontMetrics font = box.fontMetrics();
  const int title = font.horizontalAdvance(box.windowTitle()) + 12 * font.height();
  const int text = font.size(0, box.text()).width() + 8 * font.height();
  const int room = RoomFor(box).width() - 2 * font.height();
  const int width = qMin(room, qMax(title, qMin(text, kWidestText * font.height())));
  auto* grid = static_cast<QGridLayout*>(box.layout());
  grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

}  // namespace

QWidget* QtDesktop::WindowInUse() {
  if (QWidget* active = QApplication::activeWindow()) window_in_use_ = active;
  return window_in_use_;
}

MessageAnswer QtDesktop::ShowMessage(const Message& message) {
  QMessageBox box(IconOf(message.icon), ToQt(message.title), ToQt(message.text),
                  ButtonsOf(message.buttons), WindowInUse());
  box.setTextFormat(Qt::PlainText);
  for (QAbstractButton* button : box.buttons()) button->setIcon(QIcon());
  ScrollLongText(box);
  if (message.default_button) box.setDefaultButton(ButtonOf(*message.default_button));
  Widen(box);
  return AnswerOf(box.exec(), message.buttons);
}

// One reading gives date, time and offset, so that they agree even while the clocks change.
ClockReading QtDesktop::ReadClock() const {
  const QDateTime now = QDateTime::currentDateTime();
  return {FromQt(now.toString("yyyy-MM-dd")), FromQt(now.toString("HH:mm:ss")),
          now.offsetFromUtc() / kSecondsPerMinute};
}

std::string QtDesktop::ClipboardText() const {
  return FromQt(QGuiApplication::clipboard()->text());
}

void QtDesktop::SetClipboardText(const std::string& text) {
  QGuiApplication::clipboard()->setText(ToQt(text));
}

std::optional<std::filesystem::path> QtDesktop::AskSavePath(const std::string& title,
                                                            const std::string& suggestion) {
  QFileDialog dialog(WindowInUse(), ToQt(title));
  dialog.setOption(QFileDialog::DontConfirmOverwrite);  // the form asks
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QFileInfo(ToQt(suggestion)).suffix());
  dialog.selectFile(ToQt(suggestion));
  dialog.resize(dialog.size().boundedTo(RoomFor(dialog).size()));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return QFileInfo(dialog.selectedFiles().constFirst()).filesystemFilePath();
}

// Windows and widgets are named after their forms and controls.
std::string QtDesktop::SaveImage(const Control& area, const std::filesystem::path& file) {
  QWidget* widget = nullptr;
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() != ToQt(area.Owner().Name())) continue;
    widget = window->findChild<QWidget*>(ToQt(area.Name()));
  }
  if (widget == nullptr) return "The window is gone.";
  const double ratio = kImageResolution * widget->devicePixelRatioF();
  QImage image((QSizeF(widget->size()) * ratio).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  image.fill(widget->palette().color(QPalette::Window));
  widget->render(&image, {}, {}, QWidget::DrawChildren);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG")) {
    return "The picture cannot be made.";
  }
  return WriteTextFile(file, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

std::string QtDesktop::PaintWithProgress(const PrintedDocument& document, const PageRange& range,
                                         QPagedPaintDevice& device) {
  QProgressDialog progress("Painting the pages ...", "Stop", 0, 0, WindowInUse());
  progress.setWindowTitle(ToQt(TitleOf(document)));
  progress.setWindowModality(Qt::ApplicationModal);
  progress.setMinimumDuration(kPatience);
  return PaintPages(document, range, device, [&](std::size_t done, std::size_t count) {
    progress.setMaximum(static_cast<int>(count));
    progress.setValue(static_cast<int>(done));
    if (!progress.wasCanceled() && gate_.IsOpen()) return true;
    if (auto* printer = dynamic_cast<QPrinter*>(&device)) printer->abort();
    return false;
  });
}

std::string QtDesktop::Print(const PrintedDocument& document, PaperSize paper) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(ToQt(TitleOf(document)));
  printer.setCreator(kProgramTitle);
  // Qt goes over to files where there is no printer.
  const bool to_file = printer.outputFormat() != QPrinter::NativeFormat;
  if (to_file && !platform::PrintsToFiles()) return "There is no printer.";
  ArrangePaper(document, paper, printer);
  QPrintDialog dialog(&printer, WindowInUse());
  dialog.setMinMax(1, static_cast<int>(kMostPages));
  const int width = qMin(kDialogWidth * dialog.fontMetrics().height(), RoomFor(dialog).width());
  dialog.resize(width, dialog.height());  // else names of printers and files are cut
  if (dialog.exec() != QDialog::Accepted) return {};
  PageRange range;
  if (printer.printRange() == QPrinter::PageRange) {
    range = {static_cast<std::size_t>(printer.fromPage()),
             static_cast<std::size_t>(printer.toPage())};
  }
  return PaintWithProgress(document, range, printer);
}

std::string QtDesktop::SavePDF(const PrintedDocument& document, const std::filesystem::path& file,
                               PaperSize paper) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(ToQt(TitleOf(document)));
  writer.setCreator(kProgramTitle);
  ArrangePaper(document, paper, writer);
  std::string error = PaintWithProgress(document, {}, writer);
  if (!error.empty()) return error;
  return WriteTextFile(file, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

// North America prints on Letter.
PaperSize QtDesktop::UsualPaper() const {
  return QLocale::system().measurementSystem() == QLocale::ImperialUSSystem ? PaperSize::kLetter
                                                                            : PaperSize::kA4;
}

std::optional<std::filesystem::path> QtDesktop::StateFile() const {
  return StateFileIn(platform::UserDataFolder());
}

std::filesystem::path QtDesktop::ProgramFolder() const { return tarnwick::ProgramFolder(); }

void QtDesktop::OpenWebPage(const std::string& address) { platform::OpenWebPage(address); }

void QtDesktop::Yield(YieldMode mode) {
  if (!gate_.IsOpen()) return;
  QCoreApplication::processEvents(FlagsOf(mode));
  ClearVectorRegisters();
}

void QtDesktop::EndProgram() {
  gate_.Shut();
  QCoreApplication::exit();
}

}  // namespace tarnwick
