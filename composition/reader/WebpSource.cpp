#include "composition/reader/WebpSource.h"

#include <webp/decode.h>

#include <memory>

#include "composition/reader/DocumentBytes.h"
#include "composition/reader/LabelWriter.h"
#include "composition/reader/PixelImage.h"
#include "composition/reader/Refusal.h"

namespace cutline {
namespace {

constexpr int kChannels = 4;

const std::uint8_t* bytesOf(const std::string& bytes) {
  return reinterpret_cast<const std::uint8_t*>(bytes.data());
}

struct FreePixels {
  void operator()(std::uint8_t* pixels) const { WebPFree(pixels); }
};

}  // namespace

WebpSource::WebpSource(int descriptor) : mBytes(contentsOf(descriptor)) {
  WebPBitstreamFeatures features;
  if (WebPGetFeatures(bytesOf(mBytes), mBytes.size(), &features) != VP8_STATUS_OK)
    throw Refusal{DocumentProblem::damaged, {}};
  if (features.has_animation != 0) throw Refusal{DocumentProblem::unknownKind, {}};
  mFacts.width = static_cast<std::uint32_t>(features.width);
  mFacts.height = static_cast<std::uint32_t>(features.height);
  refuseUnlikelySize(mFacts.width, mFacts.height);
}

DrawnPage WebpSource::draw(int, LabelWriter& labels) {
  int width = 0;
  int height = 0;
  const std::unique_ptr<std::uint8_t, FreePixels> pixels(
      WebPDecodeRGBA(bytesOf(mBytes), mBytes.size(), &width, &height));
  if (!pixels) throw Refusal{DocumentProblem::damaged, {}};
  PixelImage image(mFacts.width, mFacts.height, kChannels);
  for (std::size_t y = 0; y < mFacts.height; ++y)
    image.addRow(pixels.get() + y * mFacts.width * kChannels);
  return drawnPicture(labels.pdf(), image.image(labels.pdf()), mFacts);
}

}  // namespace cutline
