// PDFs that are not composed, and what is said of them.
#include <gtest/gtest.h>

#include "tests/composition/Composed.h"
#include "tests/composition/PdfDocument.h"

namespace cutline::test {
namespace {

std::string encrypted(const char* password, qpdf_r3_print_e printing) {
  PdfDocument document;
  document.addPage("/MediaBox[0 0 100 200]", kCornerMark);
  return document.bytes([&](QPDFWriter& writer) {
    writer.setR6EncryptionParameters(password, "owner", true, true, true, true, true, true,
                                     printing, true);
  });
}

TEST(PdfRefusalTest, APdfThatNeedsAPasswordIsLocked) {
  EXPECT_EQ(Composed(encrypted("secret", qpdf_r3p_full)).problem(), DocumentProblem::locked);
  Composed readable(encrypted("", qpdf_r3p_full));
  ASSERT_EQ(readable.problem(), std::nullopt);
  EXPECT_TRUE(readable.isMarkedAt({0, 0, 10, 10}));
}

TEST(PdfRefusalTest, APdfWhoseOwnerForbidsPrintingIsNotPrinted) {
  EXPECT_EQ(Composed(encrypted("", qpdf_r3p_none)).problem(), DocumentProblem::unprintable);
  EXPECT_EQ(Composed(encrypted("", qpdf_r3p_low)).problem(), std::nullopt);
}

TEST(PdfRefusalTest, APdfWithoutPagesIsEmpty) {
  EXPECT_EQ(Composed(PdfDocument().bytes()).problem(), DocumentProblem::empty);
}

TEST(PdfRefusalTest, AStatedNumberOfPagesIsBelieved) {
  PdfDocument document;
  document.addPage("/MediaBox[0 0 100 200]");
  document.pdf().getRoot().getKey("/Pages").replaceKey("/Count",
                                                       QPDFObjectHandle::newInteger(20001));
  const Composed composed(document.bytes());
  ASSERT_EQ(composed.problem(), DocumentProblem::tooManyPages);
  EXPECT_EQ(composed.report().failure->detail, "20001");
}

// One page, listed again and again, in a tree that says it has one.
TEST(PdfRefusalTest, MorePagesThanStatedAreCounted) {
  PdfDocument document;
  QPDFObjectHandle page = document.addPage("/MediaBox[0 0 100 200]");
  QPDFObjectHandle tree = document.pdf().getRoot().getKey("/Pages");
  tree.replaceKey("/Kids", QPDFObjectHandle::newArray(std::vector<QPDFObjectHandle>(30000, page)));
  std::string bytes = document.bytes();
  EXPECT_EQ(Composed(bytes).problem(), DocumentProblem::tooManyPages);
}

TEST(PdfRefusalTest, APageThatNoPaperHasIsRefused) {
  for (const char* box :
       {"", "/MediaBox[0 0 0 0]", "/MediaBox[0 0 100 0]", "/MediaBox[0 0 14401 10]",
        "/MediaBox[0 0 1000000000 10]", "/MediaBox[0 0 nan 10]", "/MediaBox[0 0 100]",
        "/MediaBox[0 0 100 100]/UserUnit 1000", "/MediaBox null",
        "/MediaBox[0 0 99999999999999999999999999999999999999999 10]"}) {
    PdfDocument document;
    document.addPage("/MediaBox[0 0 10 10]");
    document.addPage("");
    // Written by hand: not all of it can be written by a library.
    std::string bytes = document.bytes([](QPDFWriter& writer) {
      writer.setObjectStreamMode(qpdf_o_disable);
      writer.setCompressStreams(false);
    });
    const std::size_t last = bytes.rfind("/Type /Page\n") != std::string::npos
                                 ? bytes.rfind("/Type /Page\n")
                                 : bytes.rfind("/Type /Page ");
    ASSERT_NE(last, std::string::npos) << bytes;
    bytes.insert(last, box);
    EXPECT_EQ(Composed(bytes).problem(), DocumentProblem::badSize) << box;
    CompositionRequest first = labelRequest();
    first.pages.most = 1;
    EXPECT_EQ(Composed(bytes, first).problem(), std::nullopt) << box;
  }
}

TEST(PdfRefusalTest, WhatIsNoPdfInsideIsDamaged) {
  for (const char* bytes :
       {"%PDF-1.7\n", "%PDF-1.7\n%%EOF\n", "%PDF-1.7\ntrailer<</Root 1 0 R>>\n%%EOF",
        "%PDF-1.7\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\ntrailer<</Root 1 0 R>>"}) {
    const auto problem = Composed(std::string(bytes)).problem();
    EXPECT_TRUE(problem == DocumentProblem::damaged || problem == DocumentProblem::empty) << bytes;
  }
}

TEST(PdfRefusalTest, ATreeThatHangsOnItselfEnds) {
  PdfDocument document;
  document.addPage("/MediaBox[0 0 100 200]");
  QPDFObjectHandle tree = document.pdf().getRoot().getKey("/Pages");
  tree.getKey("/Kids").appendItem(tree);
  tree.replaceKey("/Parent", tree);
  EXPECT_EQ(Composed(document.bytes()).problem(), DocumentProblem::damaged);
}

}  // namespace
}  // namespace cutline::test
