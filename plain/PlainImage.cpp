#include "plain/PlainImage.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

#include "base/Numbers.h"
#include "platform/lib/ResourceFile.h"

namespace cutline {
namespace {

constexpr std::string_view kPngStart("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
constexpr std::string_view kBlanks = " \t\r\n";

std::uint32_t bigEndian(std::string_view bytes) {
  std::uint32_t value = 0;
  for (int i = 0; i < 4; ++i) value = (value << 8) | static_cast<unsigned char>(bytes[i]);
  return value;
}

// One pixel counts as one point.
std::optional<Size> pngSize(std::string_view bytes) {
  if (!bytes.starts_with(kPngStart) || bytes.size() < kPngStart.size() + 8) return std::nullopt;
  bytes.remove_prefix(kPngStart.size());
  const Size size{static_cast<double>(bigEndian(bytes)),
                  static_cast<double>(bigEndian(bytes.substr(4)))};
  return size.width * size.height <= kMostPicturePixels ? std::optional(size) : std::nullopt;
}

// What stands between the opening `<svg` and its `>`.
std::string_view svgTag(std::string_view bytes) {
  const auto start = bytes.find("<svg");
  if (start == bytes.npos) return {};
  bytes.remove_prefix(start + 4);
  const auto end = bytes.find('>');
  if (end == bytes.npos || kBlanks.find(bytes.front()) == kBlanks.npos) return {};
  return bytes.substr(0, end);
}

std::string_view attribute(std::string_view tag, std::string_view name) {
  for (auto at = tag.find(name); at != tag.npos; at = tag.find(name, at + 1)) {
    if (at == 0 || kBlanks.find(tag[at - 1]) == kBlanks.npos) continue;
    const std::string_view rest = tag.substr(at + name.size());
    if (!rest.starts_with("=\"") && !rest.starts_with("='")) continue;
    return rest.substr(2, rest.find(rest[1], 2) - 2);
  }
  return {};
}

// Takes a number and the blanks or comma before it from the start of `text`.
std::optional<double> takeNext(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(" ,\t\r\n"), text.size()));
  return takeNumber(text);
}

// A length in user units, of which each is a point; nothing when it is given in another unit.
std::optional<double> length(std::string_view text) {
  const auto value = takeNext(text);
  return text.empty() || text == "px" || text == "pt" ? value : std::nullopt;
}

std::optional<Size> viewBoxSize(std::string_view viewBox) {
  std::array<double, 4> numbers{};
  for (double& number : numbers) {
    const auto value = takeNext(viewBox);
    if (!value) return std::nullopt;
    number = *value;
  }
  return Size{numbers[2], numbers[3]};
}

std::optional<Size> svgSize(std::string_view bytes) {
  const std::string_view tag = svgTag(bytes);
  const auto width = length(attribute(tag, "width"));
  const auto height = length(attribute(tag, "height"));
  if (width && height) return Size{*width, *height};
  return viewBoxSize(attribute(tag, "viewBox"));
}

Size sizeIn(const std::string& path) {
  const auto bytes = readResource(path);
  if (!bytes) return {};
  auto size = pngSize(*bytes);
  if (!size) size = svgSize(*bytes);
  return size && size->width > 0 && size->height > 0 ? *size : Size{};
}

}  // namespace

std::shared_ptr<Image> PlainImage::of(const std::string& path) {
  return isResourceFile(path) ? std::make_shared<PlainImage>(path) : nullptr;
}

PlainImage::PlainImage(std::string path) : mPath(std::move(path)) {}

PlainImage::PlainImage(std::string path, const Size& size) : mPath(std::move(path)), mSize(size) {}

Size PlainImage::size() const noexcept {
  if (!mSize) mSize = sizeIn(mPath);
  return *mSize;
}

}  // namespace cutline
