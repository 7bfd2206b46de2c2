// The first labels of a PDF of many pages, composed before all of it has been looked at.
#include <gtest/gtest.h>

#include "tests/composition/Composed.h"
#include "tests/composition/PdfDocument.h"

namespace cutline::test {
namespace {

constexpr char kSmallPage[] = "/MediaBox[0 0 40 80]";
constexpr int kMany = 120;

CompositionRequest firstLabels(int most) {
  CompositionRequest request = labelRequest();
  request.pages.most = most;
  return request;
}

// Every page has its mark at another place.
PdfDocument& addPages(PdfDocument& document, int count) {
  for (int page = 0; page < count; ++page)
    document.addPage(kSmallPage, std::to_string(page % 3 * 10) + " 0 10 10 re f");
  return document;
}

QPDFObjectHandle treeOf(PdfDocument& document) { return document.pdf().getRoot().getKey("/Pages"); }

TEST(PdfFirstPagesTest, TheyAreTheFirstLabelsOfAll) {
  PdfDocument document;
  const std::string bytes = addPages(document, kMany).bytes();
  Composed whole(bytes);
  Composed first(bytes, firstLabels(3));
  ASSERT_EQ(first.problem(), std::nullopt);
  EXPECT_EQ(first.pages(), 3);
  EXPECT_TRUE(first.report().isPartial);
  EXPECT_EQ(first.report().documentPages, kMany);
  EXPECT_FALSE(whole.report().isPartial);
  EXPECT_EQ(whole.report().documentPages, kMany);
  for (int page = 0; page < 3; ++page) {
    for (double x = 35; x < 60; x += 10)
      EXPECT_EQ(first.isBlackAt(x, 65, page), whole.isBlackAt(x, 65, page)) << page << ' ' << x;
    EXPECT_EQ(first.report().pages[0].size, whole.report().pages[0].size);
  }
}

// What is soon composed is not composed twice.
TEST(PdfFirstPagesTest, AllComeAtOnceWhereTheyAreFewAndThatIsAskedFor) {
  CompositionRequest request = firstLabels(1);
  request.takesAllWhereFew = true;
  const struct {
    int pages;
    int composed;
    bool isPartial;
  } rows[] = {{2, 2, false}, {20, 20, false}, {21, 1, false}, {kMany, 1, true}};
  for (const auto& row : rows) {
    PdfDocument document;
    const Composed composed(addPages(document, row.pages).bytes(), request);
    EXPECT_EQ(composed.pages(), row.composed) << row.pages;
    EXPECT_EQ(composed.report().isPartial, row.isPartial) << row.pages;
    EXPECT_EQ(composed.report().documentPages, row.pages);
  }
}

TEST(PdfFirstPagesTest, FewPagesOfALargeFileAreNotAllComposedAtOnce) {
  CompositionRequest request = firstLabels(1);
  request.takesAllWhereFew = true;
  PdfDocument document;
  document.addPage(kSmallPage, std::string(300'000, '\n'));
  document.addPage(kSmallPage, kCornerMark);
  const std::string bytes =
      document.bytes([](QPDFWriter& writer) { writer.setCompressStreams(false); });
  EXPECT_EQ(Composed(bytes, request).pages(), 1);
}

TEST(PdfFirstPagesTest, ADocumentOfFewPagesIsReadWhole) {
  PdfDocument document;
  const Composed first(addPages(document, 100).bytes(), firstLabels(1));
  EXPECT_FALSE(first.report().isPartial);
  EXPECT_EQ(first.report().documentPages, 100);
}

TEST(PdfFirstPagesTest, OtherPagesThanTheFirstNeedAllOfThem) {
  PdfDocument document;
  const std::string bytes = addPages(document, kMany).bytes();
  CompositionRequest last = firstLabels(1);
  last.pages.isReversed = true;
  const Composed composed(bytes, last);
  EXPECT_FALSE(composed.report().isPartial);
  EXPECT_EQ(composed.pages(), 1);
}

// The pages hang on branches, which say what they inherit.
TEST(PdfFirstPagesTest, TheyAreFoundInATreeOfBranches) {
  PdfDocument document;
  addPages(document, kMany);
  QPDFObjectHandle tree = treeOf(document);
  QPDFObjectHandle branches = QPDFObjectHandle::newArray();
  for (int at = 0; at < kMany; ++at) {
    QPDFObjectHandle page = tree.getKey("/Kids").getArrayItem(at);
    page.removeKey("/MediaBox");
    QPDFObjectHandle branch = document.add("<</Type/Pages/Count 1/MediaBox[0 0 20 80]/Parent " +
                                           tree.unparse() + "/Kids[" + page.unparse() + "]>>");
    page.replaceKey("/Parent", branch);
    branches.appendItem(branch);
  }
  tree.replaceKey("/Kids", branches);
  const Composed composed(document.bytes(), firstLabels(2));
  ASSERT_EQ(composed.problem(), std::nullopt);
  EXPECT_TRUE(composed.report().isPartial);
  EXPECT_EQ(composed.report().documentPages, kMany);
  ASSERT_EQ(composed.report().pages.size(), 2U);
  EXPECT_EQ(composed.report().pages[1].size.width, 20);
}

// Only a look at all of them tells that the number is wrong.
TEST(PdfFirstPagesTest, TheNumberThatIsStatedIsBelievedUntilThen) {
  PdfDocument document;
  addPages(document, 5);
  treeOf(document).replaceKey("/Count", QPDFObjectHandle::newInteger(kMany));
  const std::string bytes = document.bytes();
  const Composed first(bytes, firstLabels(1));
  EXPECT_TRUE(first.report().isPartial);
  EXPECT_EQ(first.report().documentPages, kMany);
  EXPECT_EQ(Composed(bytes).report().documentPages, 5);
}

TEST(PdfFirstPagesTest, WhereTheyAreNotInOrderAllAreLookedAt) {
  const char* const kids[] = {
      "[]",
      "[null 7]",
      "[<</Type/Page/MediaBox[0 0 40 80]>>]",  // without a number
      "[PAGE PAGE]",                           // twice the same
      "[TREE PAGE]",                           // leads back to itself
      "[<</Type/Pages/Kids[PAGE]/Count 1>>]",  // a branch without a number
  };
  for (const std::string text : kids) {
    PdfDocument document;
    const std::string page = document.addPage(kSmallPage, kCornerMark).unparse();
    QPDFObjectHandle tree = treeOf(document);
    std::string own = text;
    for (const auto& [name, object] :
         {std::pair<std::string, std::string>{"PAGE", page}, {"TREE", tree.unparse()}}) {
      for (auto at = own.find(name); at != own.npos; at = own.find(name))
        own.replace(at, name.size(), object);
    }
    tree.replaceKey("/Kids", QPDFObjectHandle::parse(&document.pdf(), own));
    tree.replaceKey("/Count", QPDFObjectHandle::newInteger(kMany));
    const std::string bytes = document.bytes();
    const Composed first(bytes, firstLabels(2));
    const Composed whole(bytes);
    EXPECT_FALSE(first.report().isPartial) << text;
    EXPECT_EQ(first.problem(), whole.problem()) << text;
    EXPECT_EQ(first.report().documentPages, whole.report().documentPages) << text;
  }
}

TEST(PdfFirstPagesTest, MorePagesThanAJobMayHaveAreRefusedAtOnce) {
  PdfDocument document;
  addPages(document, 2);
  treeOf(document).replaceKey("/Count", QPDFObjectHandle::newInteger(20001));
  EXPECT_EQ(Composed(document.bytes(), firstLabels(1)).problem(), DocumentProblem::tooManyPages);
}

}  // namespace
}  // namespace cutline::test
