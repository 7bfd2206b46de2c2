// Where the pages of a PDF come to lie on labels of 100 by 200 points.
#include <gtest/gtest.h>

#include "tests/composition/Composed.h"
#include "tests/composition/PdfDocument.h"

namespace cutline::test {
namespace {

TEST(PdfPagesTest, APageOfTheLabelsSizeCoversIt) {
  Composed composed(markedPdf(100, 200));
  ASSERT_EQ(composed.problem(), std::nullopt);
  EXPECT_EQ(composed.pages(), 1);
  EXPECT_TRUE(composed.isBlackAt(9, 9));
  EXPECT_TRUE(composed.isWhiteAt(11, 11));
  EXPECT_EQ(composed.blackQuarters(), "a");
}

TEST(PdfPagesTest, LabelsAreExactlyAsLargeAsTheirPaper) {
  CompositionRequest request = labelRequest();
  request.label.width = 68.03149606299213;
  request.label.length = 141.7322834645669;
  const Composed composed(markedPdf(10, 20), request);
  QPDF pdf;
  pdf.processMemoryFile("labels", composed.pdf().data(), composed.pdf().size());
  QPDFObjectHandle page = pdf.getAllPages().at(0);
  QPDFObjectHandle box = page.getKey("/MediaBox");
  EXPECT_EQ(box.getArrayItem(2).getNumericValue(), 68.03149606299213);
  EXPECT_EQ(box.getArrayItem(3).getNumericValue(), 141.7322834645669);
}

}  // namespace
}  // namespace cutline::test
