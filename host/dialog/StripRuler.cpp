#include "host/dialog/StripRuler.h"

#include <QFontMetricsF>
#include <algorithm>
#include <array>
#include <cmath>

namespace cutline {
namespace {

const QString kWidest = QStringLiteral("0000");
constexpr double kFontShare = 0.72;  // of the dialog's font
constexpr double kTick = 4;
constexpr double kLongTick = 6;
constexpr double kSpace = 2;
constexpr int kCentimetre = 10;
constexpr double kLeastPitch = 5;  // pixels from tick to tick
constexpr double kAirOfNumbers = 2.2;
constexpr std::array<int, 6> kTickSteps = {10, 50, 100, 500, 1000, 10'000};

}  // namespace

QFont StripRuler::fontFor(const QFont& font) {
  QFont small = font;
  small.setPointSizeF(font.pointSizeF() * kFontShare);
  return small;
}

double StripRuler::extent(const QFont& font, bool runsAcross) {
  const QFontMetricsF metrics(fontFor(font));
  const double text = runsAcross ? metrics.height() : metrics.horizontalAdvance(kWidest);
  return std::ceil(text + kLongTick + kSpace);
}

StripRuler::StripRuler(const StripCanvas& canvas, const StripColours& colours, StripTexts& numbers,
                       double scale, double extent)
    : mCanvas(canvas),
      mColours(colours),
      mNumbers(numbers),
      mHeight(QFontMetricsF(numbers.font()).height()),
      mScale(scale),
      mExtent(extent),
      mStep(stepOfNumbers()) {}

int StripRuler::stepOfNumbers() const {
  const double number = mCanvas.runsAcross() ? mNumbers.width(kWidest) : mHeight;
  const auto* step = std::find_if(kTickSteps.begin(), kTickSteps.end() - 1, [&](int each) {
    return each >= 50 && each * mScale > kAirOfNumbers * number;
  });
  return *step;
}

void StripRuler::draw(double along, double across, double from, double to, double seenFrom,
                      double seenTo) {
  const double base = across + mExtent;
  const int pitch = kCentimetre * mScale < kLeastPitch ? mStep : kCentimetre;
  const double start = std::max(along, seenFrom);
  const double end = std::min(along + (to - from) * mScale, seenTo);
  if (end <= start) return;
  mCanvas.lineAlong(start, base - mCanvas.hair(), end - start, mColours.ruler);
  const auto millimetreAt = [&](double place) { return from + (place - along) / mScale; };
  const auto first = static_cast<std::int64_t>(std::ceil(millimetreAt(start) / pitch - 1e-6));
  const auto last = static_cast<std::int64_t>(std::floor(millimetreAt(end) / pitch + 1e-6));
  mCanvas.painter().setPen(mColours.rulerText);
  for (std::int64_t tick = first; tick <= last; ++tick) {
    const double at = along + (static_cast<double>(tick * pitch) - from) * mScale;
    const bool isLong = tick * pitch % mStep == 0;
    const double length = isLong ? kLongTick : kTick;
    mCanvas.lineAcross(at - mCanvas.hair() / 2, base - length, length, mColours.ruler);
    if (isLong) drawNumber(at, across, tick * pitch);
  }
}

// Beside the long ticks, and in the middle before them where the strip runs across.
void StripRuler::drawNumber(double along, double across, std::int64_t number) {
  const QString text = QString::number(number);
  const double width = mNumbers.width(text);
  const double room = mExtent - kLongTick - kSpace;
  const QRectF place =
      mCanvas.runsAcross()
          ? mCanvas.rect(along - width / 2, across, width, mHeight)
          : mCanvas.rect(along - mHeight / 2, across + room - width, mHeight, width);
  mNumbers.draw(mCanvas.painter(), place.topLeft(), text);
}

}  // namespace cutline
