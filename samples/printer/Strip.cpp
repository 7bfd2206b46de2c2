#include "samples/printer/Strip.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "samples/printer/PngWriter.h"

namespace cutline::printer {
namespace {

constexpr std::array<Rgb, 6> kPalette = {{{0xdd, 0xe3, 0xea},
                                          {0xff, 0xff, 0xff},
                                          {0x10, 0x12, 0x16},
                                          {0x8d, 0x99, 0xa6},
                                          {0xd6, 0x3f, 0x1b},
                                          {0x3a, 0x44, 0x50}}};

constexpr double kBorder = 3;         // mm of desk around the tape
constexpr double kGap = 3;            // mm between two pieces
constexpr double kHalfCutLine = 0.4;  // mm
constexpr double kDash = 1;           // mm
constexpr double kPrinter = 6;        // mm of the printer that are seen

// Pictures that are longer can't be opened: it is the limit of the usual readers.
constexpr std::uint64_t kMaxLength = 1'000'000;
constexpr std::uint64_t kMaxBytes = 512U << 20;

}  // namespace

// The places in the palette.
enum Strip::Colour : std::uint8_t { kDesk, kTape, kInk, kEdge, kKnife, kMachine };

std::uint32_t Strip::dotsAlong(double millimetres) const {
  const double dots = millimetres * mDots.along / kMillimetresPerInch;
  return static_cast<std::uint32_t>(std::max<long>(1, std::lround(dots)));
}

std::uint32_t Strip::border() const { return dotsAlong(kBorder); }

// A label that is narrower than the tape lies in its middle.
std::uint32_t Strip::leftOf(const Segment& segment) const {
  return (mWidth - segment.label.width()) / 2;
}

void Strip::add(Kind kind, std::uint32_t length) {
  mSegments.push_back({kind, length, {}});
  mLength += length;
}

// A new piece begins behind a gap, with an edge.
void Strip::start() {
  if (!std::exchange(mOnDesk, false)) return;
  add(Kind::Desk, mSegments.empty() ? border() : dotsAlong(kGap));
  add(Kind::TapeStart, 1);
}

void Strip::addBlank(std::uint32_t dots) {
  if (mLength + dots > kMaxLength) return;
  start();
  add(Kind::Tape, dots);
}

bool Strip::addLabel(Bitmap label) {
  const std::size_t size = label.bytes().size();
  if (mLength + label.height() > kMaxLength || mBytes + size > kMaxBytes) return false;
  start();
  mWidth = std::max(mWidth, label.width());
  mBytes += size;
  mLength += label.height();
  const std::uint32_t length = label.height();
  mSegments.push_back({Kind::Label, length, std::move(label)});
  return true;
}

void Strip::addCut(Cut cut) {
  if (mOnDesk || cut == Cut::None) return;
  mOnDesk = cut == Cut::Full;
  add(mOnDesk ? Kind::TapeStart : Kind::HalfCut, mOnDesk ? 1 : dotsAlong(kHalfCutLine));
}

void Strip::finish() {
  add(mOnDesk ? Kind::Desk : Kind::Printer, mOnDesk ? border() : dotsAlong(kPrinter));
}

Place Strip::bounds() const {
  const std::uint64_t across = std::uint64_t{mWidth} + 2 * border();
  return mDirection == Direction::Right ? Place{0, 0, mLength, across}
                                        : Place{0, 0, across, mLength};
}

std::vector<Place> Strip::labelPlaces() const {
  std::vector<Place> places;
  std::uint64_t along = 0;
  for (const Segment& segment : mSegments) {
    if (segment.kind == Kind::Label) {
      const std::uint64_t width = segment.label.width();
      const std::uint64_t left = border() + leftOf(segment);
      const std::uint64_t top = border() + mWidth - width - leftOf(segment);
      places.push_back(mDirection == Direction::Right ? Place{along, top, segment.length, width}
                                                      : Place{left, along, width, segment.length});
    }
    along += segment.length;
  }
  return places;
}

unsigned Strip::cuts(Cut kind) const {
  // A piece has an edge at its beginning, and one more where it was cut off.
  const auto count = [this](Kind wanted) {
    return static_cast<unsigned>(
        std::count_if(mSegments.begin(), mSegments.end(),
                      [wanted](const Segment& segment) { return segment.kind == wanted; }));
  };
  if (kind == Cut::Half) return count(Kind::HalfCut);
  return kind == Cut::Full ? count(Kind::TapeStart) / 2 : 0;
}

Strip::Colour Strip::labelColourAt(const Segment& segment, std::int64_t along,
                                   std::int64_t across) const {
  return segment.label.inkAt(across - leftOf(segment), along) ? kInk : kTape;
}

Strip::Colour Strip::colourAt(const Segment& segment, std::int64_t along,
                              std::int64_t across) const {
  if (segment.kind == Kind::Desk) return kDesk;
  if (segment.kind == Kind::Printer) return kMachine;
  if (across < -1 || across > mWidth) return kDesk;
  if (across == -1 || across == mWidth || segment.kind == Kind::TapeStart) return kEdge;
  if (segment.kind == Kind::HalfCut) return across / dotsAlong(kDash) % 2 == 0 ? kKnife : kTape;
  return segment.kind == Kind::Label ? labelColourAt(segment, along, across) : kTape;
}

template <typename Take>
bool Strip::forEachAlong(Take take) const {
  for (const Segment& segment : mSegments) {
    for (std::uint32_t along = 0; along < segment.length; ++along) {
      if (!take(segment, along)) return false;
    }
  }
  return true;
}

bool Strip::writeRight(PngWriter& png) const {
  std::vector<std::uint8_t> row(bounds().width);
  const std::int64_t bottom = -std::int64_t{border()};
  for (std::int64_t across = std::int64_t{mWidth} - 1 - bottom; across >= bottom; --across) {
    std::size_t at = 0;
    forEachAlong([&](const Segment& segment, std::uint32_t along) {
      row[at++] = colourAt(segment, along, across);
      return true;
    });
    if (!png.row(row)) return false;
  }
  return true;
}

bool Strip::writeDown(PngWriter& png) const {
  std::vector<std::uint8_t> row(bounds().width);
  return forEachAlong([&](const Segment& segment, std::uint32_t along) {
    for (std::size_t x = 0; x < row.size(); ++x) {
      row[x] = colourAt(segment, along, static_cast<std::int64_t>(x) - border());
    }
    return png.row(row);
  });
}

bool Strip::write(std::FILE* stream) const {
  if (mWidth == 0) return false;
  const bool right = mDirection == Direction::Right;
  const Place whole = bounds();
  PngWriter png(stream);
  return png.begin({static_cast<std::uint32_t>(whole.width),
                    static_cast<std::uint32_t>(whole.height), right ? mDots.along : mDots.across,
                    right ? mDots.across : mDots.along, kPalette}) &&
         (right ? writeRight(png) : writeDown(png)) && png.end();
}

}  // namespace cutline::printer
