#include "composition/typeset/TextFit.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace cutline {
namespace {

constexpr double kLeastSize = 4;
// Text of this size is read whole rather than broken and larger.
constexpr double kReadableSize = 6;
constexpr int kSearchSteps = 12;

bool hasWidth(const TextRoom& room) { return !room.isEndless || room.width > 0; }

double widthOf(const TextRoom& room) {
  return hasWidth(room) ? room.width : std::numeric_limits<double>::infinity();
}

// The largest size of a text that is not broken.
double wholeSize(const TextBlock& block, const TextRoom& room) {
  return std::min(widthOf(room) / block.width, room.height / block.height);
}

bool fits(const TextBlock& block, const TextRoom& room, double size) {
  return size <= wholeSize(block, room);
}

// Finds the size at which all labels fit, each broken where that helps.
class WrappedFit {
 public:
  WrappedFit(TextShaper& shaper, const TextRoom& room, Wrapping wrapping, double most)
      : mShaper(shaper), mRoom(room), mFit{most, wrapping} {}

  // Makes the size smaller where the label needs it; `whole` is its unbroken text.
  void take(std::string_view label, const TextBlock& whole) {
    if (mFit.size <= kLeastSize || fitsAt(mFit.size, label, whole)) return;
    double fine = kLeastSize;
    double tooLarge = mFit.size;
    for (int step = 0; step < kSearchSteps; ++step) {
      const double middle = (fine + tooLarge) / 2;
      (fitsAt(middle, label, whole) ? fine : tooLarge) = middle;
    }
    mFit.size = fine;
  }

  const TextFit& fit() const { return mFit; }

 private:
  bool fitsAt(double size, std::string_view label, const TextBlock& whole) {
    if (fits(whole, mRoom, size)) return true;
    return fits(mShaper.shape(label, mFit.wrapping, mRoom.width / size), mRoom, size);
  }

  TextShaper& mShaper;
  const TextRoom& mRoom;
  TextFit mFit;
};

// The longest texts first: they set the size, and the others need one look.
std::vector<std::size_t> longestFirst(const std::vector<TextBlock>& blocks) {
  std::vector<std::size_t> order(blocks.size());
  std::iota(order.begin(), order.end(), 0);
  const auto area = [&](std::size_t at) { return blocks[at].width * blocks[at].height; };
  std::ranges::sort(order, std::greater(), area);
  return order;
}

}  // namespace

TextFit fitted(TextShaper& shaper, const std::vector<std::string_view>& labels,
               const TextRoom& room) {
  std::vector<TextBlock> blocks;
  blocks.reserve(labels.size());
  double whole = room.height;
  for (const std::string_view label : labels) {
    blocks.push_back(shaper.shape(label));
    whole = std::min(whole, wholeSize(blocks.back(), room));
  }
  if (whole >= kReadableSize || !hasWidth(room)) return {std::max(whole, kLeastSize)};
  const std::vector<std::size_t> order = longestFirst(blocks);
  for (const Wrapping wrapping : {Wrapping::words, Wrapping::anywhere}) {
    WrappedFit wrapped(shaper, room, wrapping, room.height);
    for (const std::size_t at : order) wrapped.take(labels[at], blocks[at]);
    if (wrapped.fit().size >= kReadableSize || wrapping == Wrapping::anywhere) return wrapped.fit();
  }
  return {kLeastSize, Wrapping::anywhere};
}

TextBlock shaped(TextShaper& shaper, std::string_view label, const TextFit& fit,
                 const TextRoom& room) {
  const TextBlock whole = shaper.shape(label);
  if (whole.width * fit.size <= widthOf(room) || fit.wrapping == Wrapping::none) return whole;
  return shaper.shape(label, fit.wrapping, room.width / fit.size);
}

}  // namespace cutline
