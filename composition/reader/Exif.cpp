#include "composition/reader/Exif.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace cutline {
namespace {

constexpr unsigned kOrientation = 0x112;
constexpr unsigned kAcrossDensity = 0x11a;
constexpr unsigned kAlongDensity = 0x11b;
constexpr unsigned kDensityUnit = 0x128;
constexpr unsigned kShort = 3;
constexpr unsigned kRational = 5;
constexpr unsigned kCentimetre = 3;
constexpr std::size_t kEntrySize = 12;

class Block {
 public:
  explicit Block(std::string_view bytes) : mBytes(bytes), mIsBig(bytes.starts_with("MM")) {}

  bool has(std::size_t at, std::size_t size) const {
    return at <= mBytes.size() && size <= mBytes.size() - at;
  }

  // 0 beyond the end.
  std::uint32_t number(std::size_t at, std::size_t size) const {
    if (!has(at, size)) return 0;
    std::uint32_t value = 0;
    for (std::size_t byte = 0; byte < size; ++byte) {
      const std::size_t from = mIsBig ? at + byte : at + size - 1 - byte;
      value = value << 8 | static_cast<std::uint8_t>(mBytes[from]);
    }
    return value;
  }

 private:
  std::string_view mBytes;
  bool mIsBig;
};

// What an entry of the first directory says; nothing where it is of another form.
struct Entry {
  unsigned tag;
  unsigned form;
  std::size_t valueAt;
};

std::optional<unsigned> shortOf(const Block& block, const Entry& entry) {
  if (entry.form != kShort) return std::nullopt;
  return block.number(entry.valueAt, 2);
}

double rationalOf(const Block& block, const Entry& entry) {
  if (entry.form != kRational) return 0;
  const std::size_t at = block.number(entry.valueAt, 4);
  const double divisor = block.number(at + 4, 4);
  return divisor > 0 ? block.number(at, 4) / divisor : 0;
}

}  // namespace

void readExif(std::string_view bytes, PictureFacts& facts) {
  const Block block(bytes);
  const std::size_t directory = block.number(4, 4);
  const std::size_t count = block.number(directory, 2);
  double across = 0;
  double along = 0;
  double unit = 1;
  for (std::size_t index = 0; index < count; ++index) {
    const std::size_t at = directory + 2 + index * kEntrySize;
    if (!block.has(at, kEntrySize)) break;
    const Entry entry{block.number(at, 2), block.number(at + 2, 2), at + 8};
    if (entry.tag == kOrientation)
      facts.orientation = static_cast<int>(shortOf(block, entry).value_or(1));
    if (entry.tag == kAcrossDensity) across = rationalOf(block, entry);
    if (entry.tag == kAlongDensity) along = rationalOf(block, entry);
    if (entry.tag == kDensityUnit && shortOf(block, entry) == kCentimetre)
      unit = kCentimetresPerInch;
  }
  if (facts.acrossDensity > 0) return;
  facts.acrossDensity = across * unit;
  facts.alongDensity = along * unit;
}

}  // namespace cutline
