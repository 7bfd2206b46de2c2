#include "qt/QtPicture.h"

#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <algorithm>
#include <array>
#include <cmath>

#include "qt/QtText.h"

namespace cutline {

namespace {

// A picture is shown in one size at one or two pixel ratios (a window between two screens).
constexpr std::size_t kRenderedKept = 3;

bool isVectorFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  QXmlStreamReader reader(&file);
  return reader.readNextStartElement() && reader.name() == QLatin1String("svg");
}

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

bool QtPicture::isPictureFile(const std::string& path) {
  const QString name = toQString(path);
  return isVectorFile(name) || QImageReader(name).canRead();
}

void QtPicture::read() {
  if (mRead) return;
  mRead = true;
  const QString path = toQString(mPath);
  if (!isVectorFile(path)) {
    mBitmap = QImageReader(path).read();
    return;
  }
  mVector = std::make_unique<QSvgRenderer>(path);
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
  if (pixels.isEmpty()) return;
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
