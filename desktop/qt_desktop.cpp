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
#include <QMessageBox>

#include "controls/form.h"
#include "controls/text_file.h"
#include "desktop/characters.h"
#include "desktop/look.h"
#include "desktop/platform.h"
#include "desktop/program_folder.h"
#include "engines/time_units.h"
#include "state/state_file.h"

namespace tarnwick {
namespace {

constexpr int kImageResolution = 2;  // pixels of a saved image for one of the screen, each way

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

// Makes room for the title beside the buttons of the window's frame, and for a line of text that
// would else break just before its end.
void Widen(QMessageBox& box) {
  const QFontMetrics font = box.fontMetrics();
  const int title = font.horizontalAdvance(box.windowTitle()) + 12 * font.height();
  const int text = font.size(0, box.text()).width() + 8 * font.height();
  const int width = qMax(title, qMin(text, 48 * font.height()));
  auto* grid = static_cast<QGridLayout*>(box.layout());
  grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

}  // namespace

MessageAnswer QtDesktop::ShowMessage(const Message& message) {
  QMessageBox box(IconOf(message.icon), ToQt(message.title), ToQt(message.text),
                  ButtonsOf(message.buttons), QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  for (QAbstractButton* button : box.buttons()) button->setIcon(QIcon());
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
  QFileDialog dialog(QApplication::activeWindow(), ToQt(title));
  dialog.setOption(QFileDialog::DontConfirmOverwrite);  // the form asks
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QFileInfo(ToQt(suggestion)).suffix());
  dialog.selectFile(ToQt(suggestion));
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
  image.fill(Look::kWindow);
  widget->render(&image, {}, {}, QWidget::DrawChildren);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG")) {
    return "The picture cannot be made.";
  }
  return WriteTextFile(file, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

std::optional<std::filesystem::path> QtDesktop::StateFile() const {
  return StateFileIn(platform::UserDataFolder());
}

std::filesystem::path QtDesktop::ProgramFolder() const { return tarnwick::ProgramFolder(); }

void QtDesktop::OpenWebPage(const std::string& address) { platform::OpenWebPage(address); }

void QtDesktop::Yield(YieldMode mode) {
  if (!gate_.IsOpen()) return;
  QCoreApplication::processEvents(FlagsOf(mode));
}

void QtDesktop::EndProgram() {
  gate_.Shut();
  QCoreApplication::exit();
}

}  // namespace tarnwick
