#include "samples/printer/LabelJob.h"

#include <algorithm>
#include <cmath>

namespace cutline::printer {
namespace {

constexpr double kKeptBlank = 1;  // mm that stay around the print when blank space is removed
constexpr double kMarkLength = 1.5;
constexpr double kMarkWidth = 0.3;

std::uint32_t dotsOf(double millimetres, std::uint32_t dotsPerInch) {
  return static_cast<std::uint32_t>(std::lround(millimetres * dotsPerInch / kMillimetresPerInch));
}

Bitmap withoutBlankEnds(const Bitmap& page, std::uint32_t kept) {
  std::uint32_t first = 0;
  std::uint32_t end = page.height();
  while (first < end && page.rowIsBlank(first)) ++first;
  if (first == end) return page;
  while (page.rowIsBlank(end - 1)) --end;
  return page.rows(first - std::min(first, kept), std::min(page.height(), end + kept));
}

void inkBox(Bitmap& label, std::int64_t left, std::int64_t top, std::uint32_t width,
            std::uint32_t height) {
  for (std::int64_t y = top; y < top + height; ++y) {
    for (std::int64_t x = left; x < left + width; ++x) label.ink(x, y);
  }
}

// A tick at each corner of the label tells where to cut by hand.
void addCutMarks(Bitmap& label, const Resolution& dots) {
  const std::uint32_t length = std::max(1U, dotsOf(kMarkLength, dots.across));
  const std::uint32_t width = std::max(1U, dotsOf(kMarkWidth, dots.along));
  for (const std::int64_t left : {std::int64_t{0}, std::int64_t{label.width()} - length}) {
    for (const std::int64_t top : {std::int64_t{0}, std::int64_t{label.height()} - width}) {
      inkBox(label, left, top, length, width);
    }
  }
}

}  // namespace

bool LabelJob::feed(std::optional<double> millimetres) {
  return mWriter.write(Feed{dotsOf(millimetres.value_or(0), mDots.along)});
}

bool LabelJob::begin(const Resolution& dots) {
  mDots = dots;
  if (!mWriter.write(dots)) return false;
  if (!mRules.hasLeader()) return true;
  return feed(mRules.settings().leader) && mWriter.write(mRules.behindLeader());
}

Bitmap LabelJob::finished(const Bitmap& page) const {
  const CutSettings& settings = mRules.settings();
  Bitmap label =
      settings.removesBlankSpace ? withoutBlankEnds(page, dotsOf(kKeptBlank, mDots.along)) : page;
  // Along a tape the text runs the way the tape does, on a roll across it.
  if (settings.mirrors) label = settings.isRoll ? label.mirroredAcross() : label.mirroredAlong();
  if (settings.printsCutMarks) addCutMarks(label, mDots);
  return label;
}

bool LabelJob::add(const Bitmap& page, const Resolution& dots) {
  const bool led = mLabels == 0 ? begin(dots) : mWriter.write(mRules.behindLabel(mLabels));
  if (!led) return false;
  ++mLabels;
  return mWriter.write(finished(page));
}

bool LabelJob::end() {
  const Cut last = mRules.atEnd();
  if (last == Cut::Half && !mWriter.write(last)) return false;
  if (mRules.feedsOut() && !feed(mRules.settings().feed)) return false;
  return (last != Cut::Full || mWriter.write(last)) && mWriter.write(End{});
}

}  // namespace cutline::printer
