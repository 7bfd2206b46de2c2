#include "samples/documents/generator/Picture.h"

#include <QPainter>
#include <cmath>

namespace cutline::documents {
namespace {

constexpr double kMillimetresPerInch = 25.4;

QColor colourOf(Shade shade) { return shade == Shade::Black ? Qt::black : Qt::white; }

void draw(QPainter& painter, const Faces&, const Box& box) {
  painter.fillRect(QRectF(box.x, box.y, box.width, box.height), colourOf(box.shade));
}

void draw(QPainter& painter, const Faces& faces, const Text& text) {
  const Face& face = faces.of(text.bold);
  painter.save();
  painter.translate(text.x, text.baseline);
  painter.scale(text.size / Face::kUnits, text.size / Face::kUnits);
  for (const char letter : text.letters) {
    painter.fillPath(face.outline(letter), colourOf(text.shade));
    painter.translate(face.advance(letter), 0);
  }
  painter.restore();
}

}  // namespace

QImage pictureOf(const Drawing& drawing, const Faces& faces, double dotsPerInch) {
  const double scale = dotsPerInch / kMillimetresPerInch;
  QImage image(static_cast<int>(std::lround(drawing.width * scale)),
               static_cast<int>(std::lround(drawing.height * scale)), QImage::Format_Grayscale8);
  image.setDotsPerMeterX(static_cast<int>(std::lround(scale * 1000)));
  image.setDotsPerMeterY(image.dotsPerMeterX());
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  for (const auto& mark : drawing.marks) {
    std::visit([&](const auto& what) { draw(painter, faces, what); }, mark);
  }
  return image;
}

}  // namespace cutline::documents
