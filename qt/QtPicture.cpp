#include "qt/QtPicture.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <cmath>

#include "platform/lib/ResourceFile.h"
#include "platform/lib/VectorPicture.h"
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

// A bitmap's bytes, of the kind that the file's name tells where they do not.
class BitmapReader {
 public:
  BitmapReader(const std::string& path, QByteArray bytes) : mBytes(std::move(bytes)) {
    mBuffer.setBuffer(&mBytes);
    mBuffer.open(QIODevice::ReadOnly);
    mReader.setDevice(&mBuffer);
    mReader.setFormat(QFileInfo(toQString(path)).suffix().toLower().toLatin1());
  }
  // Where the size stands in the bytes it must be there, and not too large.
  bool canRead() {
    if (!mReader.canRead()) return false;
    if (!mReader.supportsOption(QImageIOHandler::Size)) return true;
    return mReader.size().isValid() && !hasTooManyPixels(mReader.size());
  }
  QImage read() { return canRead() ? mReader.read() : QImage(); }

 private:
  QByteArray mBytes;
  QBuffer mBuffer;
  QImageReader mReader;
};

// Device pixels per point where the painter stands now, whatever it paints on.
double deviceScale(const QPainter& painter) {
  const QTransform transform = painter.deviceTransform();
  return std::hypot(transform.m11(), transform.m12());
}

// What Qt reads without a plug-in.
constexpr std::array<const char*, 2> kOwnTypes = {"svg", "png"};

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

QtPicture::~QtPicture() = default;

void QtPicture::read() {
  if (mRead) return;
  mRead = true;
  const QByteArray bytes = pictureBytes(mPath);
  if (!isVector(bytes)) {
    mBitmap = BitmapReader(mPath, bytes).read();
    return;
  }
  mVector = std::make_unique<QSvgRenderer>(bytes);
  if (!mVector->isValid()) mVector.reset();
}

QSizeF QtPicture::size() {
  read();
  if (mVector) return mVector->defaultSize();
  return mBitmap.deviceIndependentSize();
}

QRectF QtPicture::fittedInto(const QRectF& room) {
  const QSizeF whole = size();
  if (whole.isEmpty()) return {};
  QRectF target(QPointF(), whole.scaled(room.size(), Qt::KeepAspectRatio));
  target.moveCenter(room.center());
  return target;
}

QPixmap QtPicture::rendered(const QSize& devicePixels) {
  for (const QPixmap& each : mRendered) {
    if (each.size() == devicePixels) return each;
  }
  QImage image(devicePixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  if (mVector) {
    mVector->render(&painter);
  } else {
    painter.drawImage(QRectF(QPointF(), QSizeF(devicePixels)), mBitmap);
  }
  painter.end();
  if (mRendered.size() == kRenderedKept) mRendered.erase(mRendered.begin());
  mRendered.push_back(QPixmap::fromImage(std::move(image)));
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
