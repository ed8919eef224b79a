// Shows the picture of a file as large as it finds room for, with rounded corners or, in the sky
// that its parent paints, with what of it is brighter. The picture is
// retouched when it has the size at which it is shown, in pixels of the screen, so that what is
// drawn on it is sharp at any scaling.
#pragma once

#include <QImage>
#include <QWidget>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>

namespace tarnwick {

class PictureView : public QWidget {
 public:
  using Retouch = std::function<void(std::span<std::uint32_t> pixels, int width)>;

  enum class Ground { kOwn, kSky };

  // `lines` is the height it would like to have, in lines of text; it takes up to three times that,
  // in the sky whatever there is.
  PictureView(int lines, QWidget* parent, Ground ground = Ground::kOwn);

  // Shows nothing if there is no such picture.
  void SetPicture(const std::filesystem::path& file, Retouch retouch);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint() / 2; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage Rendered(QSize pixels);

  int lines_;
  Ground ground_;
  std::filesystem::path file_;
  Retouch retouch_;
  QImage source_;
  QImage scaled_;  // as the source, at the size at which it was last shown
  QImage shown_;   // at the size at which it was last shown; null when it has to be made anew
};

}  // namespace tarnwick
