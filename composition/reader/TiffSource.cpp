#include "composition/reader/TiffSource.h"

#include <tiffio.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "base/FileDescriptor.h"
#include "composition/reader/LabelWriter.h"
#include "composition/reader/PixelImage.h"
#include "composition/reader/Refusal.h"

namespace cutline {
namespace {

constexpr tmsize_t kMostMemory = tmsize_t{512} * 1024 * 1024;
constexpr std::uint32_t kOpaqueAlpha = 255;

int onMessage(TIFF*, void*, const char*, const char*, va_list) { return 1; }

struct FreeOptions {
  void operator()(TIFFOpenOptions* options) const { TIFFOpenOptionsFree(options); }
};

// Null for what is no TIFF. Takes the descriptor over.
TIFF* openFile(FileDescriptor descriptor) {
  const std::unique_ptr<TIFFOpenOptions, FreeOptions> options(TIFFOpenOptionsAlloc());
  TIFFOpenOptionsSetErrorHandlerExtR(options.get(), onMessage, nullptr);
  TIFFOpenOptionsSetWarningHandlerExtR(options.get(), onMessage, nullptr);
  TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(), kMostMemory);
  // Not mapped into memory: the file may become shorter meanwhile.
  TIFF* const file = TIFFFdOpenExt(descriptor.get(), "document", "rm", options.get());
  if (file != nullptr) descriptor.release();
  return file;
}

template <typename Number>
Number tag(TIFF* file, std::uint32_t which, Number otherwise) {
  Number value{};
  return TIFFGetFieldDefaulted(file, which, &value) == 1 ? value : otherwise;
}

PictureFacts statedFacts(TIFF* file) {
  PictureFacts facts;
  facts.width = tag<std::uint32_t>(file, TIFFTAG_IMAGEWIDTH, 0);
  facts.height = tag<std::uint32_t>(file, TIFFTAG_IMAGELENGTH, 0);
  facts.orientation = tag<std::uint16_t>(file, TIFFTAG_ORIENTATION, 1);
  const auto unit = tag<std::uint16_t>(file, TIFFTAG_RESOLUTIONUNIT, RESUNIT_NONE);
  if (unit != RESUNIT_INCH && unit != RESUNIT_CENTIMETER) return facts;
  const double perInch = unit == RESUNIT_CENTIMETER ? kCentimetresPerInch : 1;
  facts.acrossDensity = tag<float>(file, TIFFTAG_XRESOLUTION, 0) * perInch;
  facts.alongDensity = tag<float>(file, TIFFTAG_YRESOLUTION, 0) * perInch;
  return facts;
}

bool isGrey(TIFF* file) {
  const auto kind = tag<std::uint16_t>(file, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
  return tag<std::uint16_t>(file, TIFFTAG_SAMPLESPERPIXEL, 1) == 1 &&
         (kind == PHOTOMETRIC_MINISWHITE || kind == PHOTOMETRIC_MINISBLACK);
}

bool isBlackAndWhite(TIFF* file) {
  return isGrey(file) && tag<std::uint16_t>(file, TIFFTAG_BITSPERSAMPLE, 1) == 1;
}

// The library gives colours that are weakened by their opacity already: on white.
std::uint8_t onWhite(std::uint32_t colour, std::uint32_t pixel) {
  return static_cast<std::uint8_t>(std::min(colour + kOpaqueAlpha - TIFFGetA(pixel), kOpaqueAlpha));
}

// A row of pixels as bits, white as 1.
void addBits(const std::uint32_t* pixels, std::uint32_t width, PixelPlane& plane) {
  std::vector<std::uint8_t> row((width + 7) / 8);
  for (std::uint32_t x = 0; x < width; ++x) {
    if (TIFFGetG(pixels[x]) > kOpaqueAlpha / 2)
      row[x / 8] |= static_cast<std::uint8_t>(0x80 >> x % 8);
  }
  plane.add(row.data(), row.size());
}

void addBytes(const std::uint32_t* pixels, std::uint32_t width, int components, PixelPlane& plane) {
  std::vector<std::uint8_t> row;
  row.reserve(std::size_t{width} * static_cast<std::size_t>(components));
  for (std::uint32_t x = 0; x < width; ++x) {
    const std::uint32_t pixel = pixels[x];
    if (components == 3) row.push_back(onWhite(TIFFGetR(pixel), pixel));
    row.push_back(onWhite(TIFFGetG(pixel), pixel));
    if (components == 3) row.push_back(onWhite(TIFFGetB(pixel), pixel));
  }
  plane.add(row.data(), row.size());
}

std::vector<std::uint32_t> pixelsOf(TIFF* file, const PictureFacts& facts) {
  char reason[1024] = {};
  if (TIFFRGBAImageOK(file, reason) == 0) throw Refusal{DocumentProblem::unknownKind, reason};
  std::vector<std::uint32_t> pixels(std::size_t{facts.width} * facts.height);
  // Asked for as they are stored: the page turns them.
  if (TIFFReadRGBAImageOriented(file, facts.width, facts.height, pixels.data(), facts.orientation,
                                /*stop_on_error=*/1) == 0)
    throw Refusal{DocumentProblem::damaged, {}};
  return pixels;
}

QPDFObjectHandle imageOf(QPDF& pdf, TIFF* file, const PictureFacts& facts) {
  const std::vector<std::uint32_t> pixels = pixelsOf(file, facts);
  const int bits = isBlackAndWhite(file) ? 1 : 8;
  const int components = isGrey(file) ? 1 : 3;
  PixelPlane plane;
  for (std::size_t y = 0; y < facts.height; ++y) {
    const std::uint32_t* row = pixels.data() + y * facts.width;
    bits == 1 ? addBits(row, facts.width, plane) : addBytes(row, facts.width, components, plane);
  }
  return plane.image(pdf, facts.width, facts.height, components, bits);
}

}  // namespace

void TiffSource::Close::operator()(tiff* file) const { TIFFClose(file); }

TiffSource::TiffSource(int descriptor) {
  FileDescriptor own(::dup(descriptor));
  if (!own) throw Refusal{DocumentProblem::broken, std::strerror(errno)};
  ::lseek(own.get(), 0, SEEK_SET);
  mFile.reset(openFile(std::move(own)));
  if (!mFile) throw Refusal{DocumentProblem::damaged, {}};
  readPages();
}

void TiffSource::readPages() {
  do {
    if (mPages.size() == kMostPages)
      throw Refusal{DocumentProblem::tooManyPages, std::to_string(kMostPages + 1)};
    mPages.push_back(statedFacts(mFile.get()));
    refuseUnlikelySize(mPages.back().width, mPages.back().height);
  } while (TIFFReadDirectory(mFile.get()) == 1);
}

DrawnPage TiffSource::draw(int page, LabelWriter& labels) {
  if (TIFFSetDirectory(mFile.get(), static_cast<tdir_t>(page)) == 0)
    throw Refusal{DocumentProblem::damaged, {}};
  return drawnPicture(labels.pdf(), imageOf(labels.pdf(), mFile.get(), factsOf(page)),
                      factsOf(page));
}

}  // namespace cutline
