#include "qt/QtPicture.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

#include "platform/lib/ResourceFile.h"
#include "platform/lib/VectorPicture.h"
#include "qt/DrawnBitmap.h"
#include "qt/QtText.h"

namespace cutline {

namespace {

// A picture is shown in one size at one or two pixel ratios (a window between two screens).
constexpr std::size_t kRenderedKept = 3;

// Nothing of a file that is no picture by its size alone.
QByteArray pictureBytes(const std::string& path) {
  const auto bytes = readResource(path);
  return bytes ? QByteArray::fromStdString(*bytes) : QByteArray();
}

bool isVector(const QByteArray& bytes) {
  return isVectorPicture({bytes.data(), static_cast<std::size_t>(bytes.size())});
}

bool hasTooManyPixels(const QSize& size) {
  return static_cast<double>(size.width()) * size.height() > kMostPicturePixels;
}

// A picture's bytes, of a kind that Qt or a plug-in of its own reads.
class PictureReader {
 public:
  PictureReader(const QByteArray& type, QByteArray bytes) : mBytes(std::move(bytes)) {
    mBuffer.setBuffer(&mBytes);
    mBuffer.open(QIODevice::ReadOnly);
    mReader.setDevice(&mBuffer);
    mReader.setFormat(type);
  }
  // Not valid where it is unknown or the bytes are of another kind.
  QSize size() const { return mReader.size(); }
  // Where the size stands in the bytes it must be there, and not too large.
  bool canRead() {
    if (!mReader.canRead()) return false;
    if (!mReader.supportsOption(QImageIOHandler::Size)) return true;
    return mReader.size().isValid() && !hasTooManyPixels(mReader.size());
  }
  QImage read() { return canRead() ? mReader.read() : QImage(); }
  // A vector picture's, in a size of the caller's.
  QImage rendered(const QSize& devicePixels) {
    mReader.setScaledSize(devicePixels);
    return mReader.read();
  }

 private:
  QByteArray mBytes;
  QBuffer mBuffer;
  QImageReader mReader;
};

// The kind that the file's name tells, for where the bytes do not.
QByteArray typeOf(const std::string& path) {
  return QFileInfo(toQString(path)).suffix().toLower().toLatin1();
}

// Device pixels per point where the painter stands now, whatever it paints on.
double deviceScale(const QPainter& painter) {
  const QTransform transform = painter.deviceTransform();
  return std::hypot(transform.m11(), transform.m12());
}

constexpr char kVectorType[] = "svg";

// What can be read wherever this runs.
constexpr std::array<const char*, 2> kOwnTypes = {kVectorType, "png"};

// Asked for once and late: the answer takes loading every plug-in of Qt's for pictures, which costs
// more than a millisecond of the time to the first picture.
const std::vector<std::string>& pluggedInTypes() {
  static const std::vector<std::string> types = [] {
    std::vector<std::string> found;
    for (const QByteArray& type : QImageReader::supportedImageFormats()) {
      if (std::find(kOwnTypes.begin(), kOwnTypes.end(), type) == kOwnTypes.end())
        found.push_back(type.toStdString());
    }
    return found;
  }();
  return types;
}

}  // namespace

std::optional<std::string> pictureFileType(std::size_t index) {
  if (index < kOwnTypes.size()) return kOwnTypes.at(index);
  const std::vector<std::string>& others = pluggedInTypes();
  const std::size_t place = index - kOwnTypes.size();
  return place < others.size() ? std::optional(others[place]) : std::nullopt;
}

QtPicture::QtPicture(std::string path) : mPath(std::move(path)) {}

void QtPicture::read() {
  if (mRead) return;
  mRead = true;
  mSize = sizeOfDrawn(mPath);
  mHasDrawn = !mSize.isEmpty();
  if (!mHasDrawn) readFile();
}

void QtPicture::readFile() {
  const QByteArray bytes = pictureBytes(mPath);
  if (isVector(bytes)) {
    mVector = bytes;
    mSize = PictureReader(kVectorType, bytes).size().expandedTo({0, 0});
    return;
  }
  mBitmap = PictureReader(typeOf(mPath), bytes).read();
  mSize = mBitmap.deviceIndependentSize();
}

QSizeF QtPicture::size() {
  read();
  return mSize;
}

QRectF QtPicture::fittedInto(const QRectF& room) {
  const QSizeF whole = size();
  if (whole.isEmpty()) return {};
  QRectF target(QPointF(), whole.scaled(room.size(), Qt::KeepAspectRatio));
  target.moveCenter(room.center());
  return target;
}

QImage QtPicture::made(const QSize& devicePixels) {
  for (const int scale : kDrawnScales) {
    if (!mHasDrawn || devicePixels != mSize * scale) continue;
    const QImage drawn = drawnBitmap(mPath, scale);
    if (drawn.size() == devicePixels) return drawn;
  }
  if (mHasDrawn && mVector.isEmpty()) readFile();
  if (!mVector.isEmpty()) return PictureReader(kVectorType, mVector).rendered(devicePixels);
  QImage image(devicePixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(QRectF(QPointF(), QSizeF(devicePixels)), mBitmap);
  return image;
}

QPixmap QtPicture::rendered(const QSize& devicePixels) {
  for (const QPixmap& each : mRendered) {
    if (each.size() == devicePixels) return each;
  }
  if (mRendered.size() == kRenderedKept) mRendered.erase(mRendered.begin());
  mRendered.push_back(QPixmap::fromImage(made(devicePixels)));
  return mRendered.back();
}

void QtPicture::draw(QPainter& painter, const QRectF& target, const QRectF& source) {
  const QSizeF whole = size();
  if (whole.isEmpty() || target.isEmpty()) return;
  const QRectF part = source.isEmpty() ? QRectF(QPointF(), whole) : source;
  const double scale = deviceScale(painter);
  const double xScale = scale * target.width() / part.width();
  const double yScale = scale * target.height() / part.height();
  const QSize pixels(qRound(whole.width() * xScale), qRound(whole.height() * yScale));
  if (pixels.isEmpty() || hasTooManyPixels(pixels)) return;
  const QRectF pixelPart(part.x() * xScale, part.y() * yScale, part.width() * xScale,
                         part.height() * yScale);
  painter.drawPixmap(target, rendered(pixels), pixelPart);
}

QtImage::QtImage(const std::string& path) : mPicture(path) {}

Size QtImage::size() const noexcept {
  const QSizeF size = mPicture.size();
  return {size.width(), size.height()};
}

}  // namespace cutline
