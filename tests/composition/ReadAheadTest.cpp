// What is read before a request is known. That it makes no difference to what comes out, every test
// on Composed looks at.
#include <gtest/gtest.h>

#include "composition/reader/ReadAhead.h"
#include "tests/composition/Composed.h"
#include "tests/composition/DrawnPdf.h"
#include "tests/composition/MemoryFile.h"
#include "tests/composition/PdfDocument.h"

namespace cutline::test {
namespace {

std::string pdfOf(std::size_t pages, const std::string& contents = kCornerMark) {
  return drawnPdf(std::vector<DrawnPage>(pages, {40, 80, contents}));
}

class ReadAheadTest : public testing::Test {
 protected:
  // The pages of each that were read ahead; 0 for none.
  static std::vector<int> read(const std::vector<std::string>& documents) {
    std::vector<MemoryFile> files;
    std::vector<int> descriptors;
    for (const std::string& document : documents)
      descriptors.push_back(files.emplace_back(document).descriptor());
    ReadAhead ahead;
    std::vector<std::unique_ptr<PdfSource>> sources;
    LabelWriter labels;
    ahead.read(descriptors, labels);
    std::vector<int> pages;
    for (const int descriptor : descriptors) {
      sources.push_back(ahead.take(descriptor));
      pages.push_back(sources.back() ? sources.back()->pageCount() : 0);
      EXPECT_EQ(ahead.take(descriptor), nullptr);
    }
    return pages;
  }
};

TEST_F(ReadAheadTest, ReadsShortPdfs) {
  EXPECT_EQ(read({pdfOf(1), pdfOf(kFewLabels), pdfOf(kFewLabels + 1)}),
            (std::vector{1, kFewLabels, 0}));
}

TEST_F(ReadAheadTest, LeavesWhatIsLongAndWhatFollowsIt) {
  const std::string large = pdfOf(1, "% " + std::string(kSoonRead, 'x'));
  EXPECT_EQ(read({pdfOf(1), large, pdfOf(1)}), (std::vector{1, 0, 0}));
}

TEST_F(ReadAheadTest, LeavesOtherKindsAndWhatIsDamaged) {
  EXPECT_EQ(read({"Shelf 12", "%PDF-1.7\nnothing of it", pdfOf(2)}), (std::vector{0, 0, 2}));
}

// The page is too large for any label, and nobody asks for it.
TEST_F(ReadAheadTest, APageThatCannotBeDrawnHarmsNoOther) {
  PdfDocument document;
  document.addPage("/MediaBox[0 0 40 80]", kCornerMark);
  document.addPage("/MediaBox[0 0 90000 80]");
  const std::string bytes = document.bytes();
  EXPECT_EQ(read({bytes, pdfOf(1)}), (std::vector{0, 1}));
  CompositionRequest request = labelRequest();
  request.pages.ranges = *PageRanges::parse("1");
  const Composed composed(bytes, request);
  EXPECT_EQ(composed.problem(), std::nullopt);
  EXPECT_EQ(Composed(bytes).problem(), DocumentProblem::badSize);
}

}  // namespace
}  // namespace cutline::test
