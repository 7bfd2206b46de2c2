#include "tests/composition/Composed.h"

#include <poppler-document.h>
#include <poppler-page-renderer.h>
#include <poppler-page.h>

#include <map>
#include <stdexcept>

#include "composition/LabelInk.h"
#include "composition/reader/DocumentComposer.h"
#include "composition/reader/LibraryPictureReader.h"
#include "tests/composition/MemoryFile.h"

namespace cutline::test {
namespace {

constexpr double kScale = 4;  // dots a point
constexpr double kPointsPerInch = 72;

std::optional<Ink> inkOn(const poppler::image& drawn, const LabelPage& label) {
  PageImage image{drawn.width(), drawn.height(), {}};
  for (int row = 0; row < image.height; ++row) {
    const auto* pixels =
        reinterpret_cast<const std::uint32_t*>(drawn.const_data() + row * drawn.bytes_per_row());
    image.pixels.insert(image.pixels.end(), pixels, pixels + image.width);
  }
  return inkOf(image, kScale, label);
}

}  // namespace

CompositionRequest labelRequest() {
  CompositionRequest request;
  request.seeksInk = true;
  request.label = {100, 200, 10, 20, 90, 180, 0, 90};
  return request;
}

struct Composed::Drawn {
  std::unique_ptr<poppler::document> document;
  std::map<int, poppler::image> pages;

  const poppler::image& page(int number) {
    auto& image = pages[number];
    if (image.is_valid()) return image;
    if (!document) throw std::runtime_error("nothing was composed");
    const std::unique_ptr<poppler::page> page(document->create_page(number));
    if (!page) throw std::runtime_error("no such page");
    image = poppler::page_renderer().render_page(page.get(), kPointsPerInch * kScale,
                                                 kPointsPerInch * kScale);
    return image;
  }
};

Composed::Composed(const std::vector<std::string>& documents, const CompositionRequest& request,
                   Typesetter* typesetter)
    : mDrawn(std::make_unique<Drawn>()) {
  std::vector<MemoryFile> files;
  std::vector<int> descriptors;
  for (const std::string& document : documents)
    descriptors.push_back(files.emplace_back(document).descriptor());
  const MemoryFile output;
  LibraryPictureReader pictures;
  mReport = DocumentComposer().compose(request, descriptors, output.descriptor(),
                                       {typesetter, &pictures});
  if (!mReport.failure) mPdf = output.bytes();
  // Who looks at all pages knows better than who believes what is stated.
  if (!mReport.isPartial) expectTheSameReadAhead(request, descriptors, {typesetter, &pictures});
  if (mReport.failure) return;
  mDrawn->document.reset(
      poppler::document::load_from_raw_data(mPdf.data(), static_cast<int>(mPdf.size())));
  expectPrintableInk();
}

void Composed::expectPrintableInk() {
  for (std::size_t page = 0; page < mReport.pages.size(); ++page) {
    if (!mReport.pages[page].hasPrintableInk) continue;
    const auto ink = inkOn(mDrawn->page(static_cast<int>(page)), mReport.label);
    EXPECT_TRUE(!ink || isPrintable(ink->surely, mReport.label)) << "page " << page + 1;
  }
}

void Composed::expectTheSameReadAhead(const CompositionRequest& request,
                                      const std::vector<int>& documents,
                                      const ReaderModules& modules) const {
  const MemoryFile output;
  DocumentComposer composer;
  composer.readAhead(documents, [] { return false; });
  const CompositionReport report =
      composer.compose(request, documents, output.descriptor(), modules);
  EXPECT_EQ(report.asText(), mReport.asText());
  if (!report.failure) EXPECT_TRUE(output.bytes() == mPdf) << "read ahead, it is another PDF";
}

Composed::Composed(const std::string& document, const CompositionRequest& request,
                   Typesetter* typesetter)
    : Composed(std::vector<std::string>{document}, request, typesetter) {}

Composed::~Composed() = default;

std::optional<DocumentProblem> Composed::problem() const {
  if (!mReport.failure) return std::nullopt;
  return mReport.failure->problem;
}

int Composed::pages() const { return mDrawn->document ? mDrawn->document->pages() : 0; }

unsigned Composed::colourAt(double x, double y, int page) {
  const poppler::image& image = mDrawn->page(page);
  const int across = static_cast<int>(x * kScale);
  const int down = image.height() - 1 - static_cast<int>(y * kScale);
  if (across < 0 || across >= image.width() || down < 0 || down >= image.height())
    throw std::out_of_range("not on the label");
  const auto* row =
      reinterpret_cast<const unsigned*>(image.const_data() + down * image.bytes_per_row());
  return row[across] & 0xffffff;
}

testing::AssertionResult Composed::isMarkedAt(const Area& mark, int page, double near) {
  const double middle = (mark.bottom + mark.top) / 2;
  const double centre = (mark.left + mark.right) / 2;
  const struct {
    double x, y;
    bool isBlack;
  } places[] = {
      {mark.left + near, mark.bottom + near, true},
      {mark.right - near, mark.bottom + near, true},
      {mark.left + near, mark.top - near, true},
      {mark.right - near, mark.top - near, true},
      {mark.left - near, middle, false},
      {mark.right + near, middle, false},
      {centre, mark.bottom - near, false},
      {centre, mark.top + near, false},
  };
  const poppler::image& image = mDrawn->page(page);
  for (const auto& place : places) {
    const bool isOnLabel = place.x > 0 && place.y > 0 && place.x * kScale < image.width() &&
                           place.y * kScale < image.height();
    if (!isOnLabel) continue;
    if (place.isBlack ? !isBlackAt(place.x, place.y, page) : !isWhiteAt(place.x, place.y, page))
      return testing::AssertionFailure() << "not " << (place.isBlack ? "black" : "white") << " at "
                                         << place.x << ", " << place.y;
  }
  return testing::AssertionSuccess();
}

}  // namespace cutline::test
