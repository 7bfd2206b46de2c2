#include "composition/reader/Picture.h"

#include <algorithm>
#include <array>
#include <utility>

#include "composition/reader/PdfNumbers.h"
#include "composition/reader/Refusal.h"

namespace cutline {
namespace {

constexpr std::uint64_t kMostPixels = 100'000'000;
constexpr double kPointsPerInch = 72;
constexpr int kFirstSideways = 5;

// Where the corners of the stored picture lie in the one that is looked at, both one by one large:
// the matrix from the one to the other, origin lower left.
constexpr std::array<std::array<double, 6>, 8> kOrientations = {{
    {1, 0, 0, 1, 0, 0},
    {-1, 0, 0, 1, 1, 0},
    {-1, 0, 0, -1, 1, 1},
    {1, 0, 0, -1, 0, 1},
    {0, -1, -1, 0, 1, 1},
    {0, -1, 1, 0, 0, 1},
    {0, 1, 1, 0, 0, 0},
    {0, 1, -1, 0, 1, 0},
}};

int knownOrientation(int orientation) {
  return orientation >= 1 && orientation <= static_cast<int>(kOrientations.size()) ? orientation
                                                                                   : 1;
}

}  // namespace

void refuseUnlikelySize(std::uint64_t width, std::uint64_t height) {
  if (width == 0 || height == 0) throw Refusal{DocumentProblem::badSize, {}};
  if (width > kMostPixels / height) throw Refusal{DocumentProblem::tooLarge, {}};
}

PageSize picturePage(const PictureFacts& facts) {
  PageSize page{static_cast<double>(facts.width), static_cast<double>(facts.height), false};
  if (facts.acrossDensity > 0 && facts.alongDensity > 0) {
    const double width = page.width * kPointsPerInch / facts.acrossDensity;
    const double height = page.height * kPointsPerInch / facts.alongDensity;
    if (std::max(width, height) <= kLargestPage) page = {width, height, true};
  }
  if (knownOrientation(facts.orientation) >= kFirstSideways) std::swap(page.width, page.height);
  return page;
}

DrawnPage drawnPicture(QPDF& pdf, const QPDFObjectHandle& image, const PictureFacts& facts) {
  const PageSize page = picturePage(facts);
  const auto& turn =
      kOrientations[static_cast<std::size_t>(knownOrientation(facts.orientation) - 1)];
  QPDFMatrix matrix(page.width, 0, 0, page.height, 0, 0);
  matrix.concat({turn[0], turn[1], turn[2], turn[3], turn[4], turn[5]});
  QPDFObjectHandle form = pdf.newStream("q " + concatenation(matrix) + "/Picture Do Q\n");
  QPDFObjectHandle dictionary = form.getDict();
  dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
  dictionary.replaceKey("/BBox", pdfBox({0, 0, page.width, page.height}));
  dictionary.replaceKey("/Resources", QPDFObjectHandle::parse("<</XObject<<>>>>"));
  dictionary.getKey("/Resources").getKey("/XObject").replaceKey("/Picture", image);
  return {form, {}};
}

}  // namespace cutline
