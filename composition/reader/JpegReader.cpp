#include "composition/reader/JpegReader.h"

#include <csetjmp>
#include <cstdio>
// The library's headers need the two above.
#include <jerror.h>
#include <jpeglib.h>

#include <algorithm>
#include <array>
#include <vector>

#include "composition/reader/Exif.h"
#include "composition/reader/Refusal.h"

namespace cutline {
namespace {

constexpr int kExifMarker = JPEG_APP0 + 1;
constexpr unsigned kLongestMarker = 0xffff;
constexpr std::string_view kExifStart{"Exif\0\0", 6};
constexpr int kInk = 4;
constexpr unsigned kRoughly = 8;  // an eighth of the size takes an eighth of the time, or less

// With these the library makes up what is missing.
constexpr std::array kDamage = {JWRN_HIT_MARKER, JWRN_HUFF_BAD_CODE, JWRN_JPEG_EOF,
                                JWRN_MUST_RESYNC};

struct Problems {
  jpeg_error_mgr manager;
  std::jmp_buf jump;
  bool isDamaged = false;
};

Problems& problemsOf(j_common_ptr jpeg) { return *reinterpret_cast<Problems*>(jpeg->err); }

[[noreturn]] void onError(j_common_ptr jpeg) { std::longjmp(problemsOf(jpeg).jump, 1); }

void onMessage(j_common_ptr jpeg, int level) {
  const bool isWarning = level < 0;
  if (isWarning && std::ranges::find(kDamage, jpeg->err->msg_code) != kDamage.end())
    problemsOf(jpeg).isDamaged = true;
}

// The library leaves these by a jump where it finds an error: they own nothing. No for an error.

bool readHeader(jpeg_decompress_struct& jpeg, Problems& problems) {
  if (setjmp(problems.jump) != 0) return false;
  jpeg_save_markers(&jpeg, kExifMarker, kLongestMarker);
  return jpeg_read_header(&jpeg, TRUE) == JPEG_HEADER_OK;
}

bool start(jpeg_decompress_struct& jpeg, Problems& problems) {
  if (setjmp(problems.jump) != 0) return false;
  jpeg.scale_num = 1;
  jpeg.scale_denom = kRoughly;
  jpeg.dct_method = JDCT_IFAST;
  jpeg.do_fancy_upsampling = FALSE;
  return jpeg_start_decompress(&jpeg) == TRUE;
}

bool readAll(jpeg_decompress_struct& jpeg, Problems& problems, JSAMPROW row) {
  if (setjmp(problems.jump) != 0) return false;
  while (jpeg.output_scanline < jpeg.output_height) jpeg_read_scanlines(&jpeg, &row, 1);
  return jpeg_finish_decompress(&jpeg) == TRUE;
}

class Decoder {
 public:
  explicit Decoder(std::string_view bytes) {
    mJpeg.err = jpeg_std_error(&mProblems.manager);
    mProblems.manager.error_exit = onError;
    mProblems.manager.emit_message = onMessage;
    jpeg_create_decompress(&mJpeg);
    jpeg_mem_src(&mJpeg, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
  }
  ~Decoder() { jpeg_destroy_decompress(&mJpeg); }
  Decoder(const Decoder&) = delete;
  Decoder& operator=(const Decoder&) = delete;

  const jpeg_decompress_struct& jpeg() const { return mJpeg; }
  bool header() { return readHeader(mJpeg, mProblems); }

  bool isWhole() {
    if (!header() || !start(mJpeg, mProblems)) return false;
    std::vector<JSAMPLE> row(std::size_t{mJpeg.output_width} *
                             static_cast<std::size_t>(mJpeg.output_components));
    return readAll(mJpeg, mProblems, row.data()) && !mProblems.isDamaged;
  }

 private:
  jpeg_decompress_struct mJpeg{};
  Problems mProblems{};
};

void readDensity(const jpeg_decompress_struct& jpeg, PictureFacts& facts) {
  constexpr int kPerInch = 1;
  constexpr int kPerCentimetre = 2;
  if (!jpeg.saw_JFIF_marker) return;
  if (jpeg.density_unit != kPerInch && jpeg.density_unit != kPerCentimetre) return;
  const double unit = jpeg.density_unit == kPerCentimetre ? kCentimetresPerInch : 1;
  facts.acrossDensity = jpeg.X_density * unit;
  facts.alongDensity = jpeg.Y_density * unit;
}

}  // namespace

JpegFacts jpegFacts(std::string_view bytes) {
  Decoder decoder(bytes);
  if (!decoder.header()) throw Refusal{DocumentProblem::damaged, {}};
  const jpeg_decompress_struct& jpeg = decoder.jpeg();
  // A PDF holds neither arithmetic coding nor other numbers of colours.
  const bool isKnown =
      jpeg.num_components == 1 || jpeg.num_components == 3 || jpeg.num_components == kInk;
  if (!isKnown || jpeg.arith_code) throw Refusal{DocumentProblem::unknownKind, {}};
  JpegFacts facts;
  facts.picture.width = jpeg.image_width;
  facts.picture.height = jpeg.image_height;
  facts.components = jpeg.num_components;
  facts.isInverted = jpeg.num_components == kInk && jpeg.saw_Adobe_marker;
  readDensity(jpeg, facts.picture);
  for (auto* marker = jpeg.marker_list; marker != nullptr; marker = marker->next) {
    const std::string_view block(reinterpret_cast<const char*>(marker->data), marker->data_length);
    if (block.starts_with(kExifStart)) readExif(block.substr(kExifStart.size()), facts.picture);
  }
  return facts;
}

bool isWholeJpeg(std::string_view bytes) { return Decoder(bytes).isWhole(); }

}  // namespace cutline
