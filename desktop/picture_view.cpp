#include "desktop/picture_view.h"

#include <QFileInfo>
#include <QPainter>
#include <utility>

#include "desktop/look.h"

namespace tarnwick {
namespace {

void RoundCorners(QImage& image) {
  QImage rounded(image.size(), QImage::Format_ARGB32_Premultiplied);
  rounded.fill(Qt::transparent);
  QPainter painter(&rounded);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(image);
  const double radius = image.height() / 32.0;
  painter.drawRoundedRect(QRectF(image.rect()), radius, radius);
  painter.end();
  image = rounded;
}

}  // namespace

PictureView::PictureView(int lines, QWidget* parent, Ground ground)
    : QWidget(parent), lines_(lines), ground_(ground) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  if (ground == Ground::kOwn) setMaximumHeight(3 * lines_ * fontMetrics().height());
}

QSize PictureView::sizeHint() const { return QSize(lines_, lines_) * fontMetrics().height(); }

void PictureView::SetPicture(const std::filesystem::path& file, Retouch retouch) {
  if (file != file_) {
    file_ = file;
    source_ = file.empty() ? QImage() : QImage(QFileInfo(file).filePath());
    scaled_ = QImage();
  }
  retouch_ = std::move(retouch);
  shown_ = QImage();
  update();
}

QImage PictureView::Rendered(QSize pixels) {
  if (scaled_.size() != pixels) {
    scaled_ = source_.convertToFormat(QImage::Format_RGB32)
                  .scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  QImage image = scaled_;
  if (retouch_) {
    const auto count = static_cast<std::size_t>(image.width()) * image.height();
    retouch_({reinterpret_cast<std::uint32_t*>(image.bits()), count}, image.width());
  }
  if (ground_ == Ground::kOwn) RoundCorners(image);
  return image;
}

void PictureView::paintEvent(QPaintEvent* /*event*/) {
  if (source_.isNull()) return;
  QPainter painter(this);
  const double ratio = PixelRatioOf(painter);
  const QSize room = (QSizeF(size()) * ratio).toSize();
  const QSize pixels = source_.size().scaled(room, Qt::KeepAspectRatio);
  if (pixels.isEmpty()) return;
  if (shown_.size() != pixels) shown_ = Rendered(pixels);
  shown_.setDevicePixelRatio(ratio);
  if (ground_ == Ground::kSky) painter.setCompositionMode(QPainter::CompositionMode_Lighten);
  // A whole pixel of the screen, since between two of them the picture would blur.
  const QSize margin = (room - pixels) / 2;
  painter.drawImage(QPointF(margin.width(), margin.height()) / ratio, shown_);
}

}  // namespace tarnwick
