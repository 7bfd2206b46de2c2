// Pictures from files, as widgets draw them and as the toolkit's images.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QPixmap>
#include <QRectF>
#include <QSizeF>
#include <string>
#include <vector>

#include "platform/ports/Drawing.h"

class QPainter;

namespace cutline {

// The kinds of picture files that are read, by suffix; vector pictures first, and nothing behind
// the last.
std::optional<std::string> pictureFileType(std::size_t index);

// A picture file, read when it is first needed and drawn crisp at any device pixel ratio. Vector
// pictures are rendered for the device where no bitmap of theirs fits, bitmaps are scaled.
class QtPicture {
 public:
  explicit QtPicture(std::string path);
  QtPicture(const QtPicture&) = delete;
  QtPicture& operator=(const QtPicture&) = delete;

  const std::string& path() const noexcept { return mPath; }

  // In points; empty when the file cannot be read, or has more bytes or pixels than a bundle's
  // picture may have. Reads the file on the first call.
  QSizeF size();

  // Draws the part `source` of the picture (its own points, y downwards; empty means all of it)
  // into `target`. Draws nothing when the file cannot be read.
  void draw(QPainter& painter, const QRectF& target, const QRectF& source = {});

  // The largest rectangle of the picture's proportions in the middle of `room`; empty when the
  // file cannot be read.
  QRectF fittedInto(const QRectF& room);

 private:
  void read();
  void readFile();
  QImage made(const QSize& devicePixels);
  QPixmap rendered(const QSize& devicePixels);

  std::string mPath;
  bool mRead = false;
  bool mHasDrawn = false;  // there are bitmaps of the vector picture, whose bytes are not read yet
  QByteArray mVector;      // its bytes; none of a bitmap
  QSizeF mSize;
  QImage mBitmap;
  std::vector<QPixmap> mRendered;  // for the last few sizes asked for
};

// An image of the toolkit: a picture file that is read when it is first drawn.
class QtImage : public Image {
 public:
  explicit QtImage(const std::string& path);

  Size size() const noexcept override;
  std::string path() const noexcept override { return mPicture.path(); }

  QtPicture& picture() const noexcept { return mPicture; }

 private:
  mutable QtPicture mPicture;  // reading and rendering are a cache behind a constant image
};

}  // namespace cutline
