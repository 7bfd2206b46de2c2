// What applications ask for, and what of it a printer has.
#include <gmock/gmock.h>

#include "portal/PortalSettings.h"
#include "tests/support/Command.h"

namespace cutline::portal {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::Pair;

std::shared_ptr<PpdFile> tape() { return *PpdFile::open(test::source("samples/ppd/tape-a.ppd")); }

AskedSettings asked(const QVariantMap& settings) { return askedOf(settings, {}, *tape()); }

OptionList paperFor(const QVariantMap& pageSetup) {
  return askedOf({}, pageSetup, *tape()).options;
}

QVariantMap page(double width, double length) {
  return {{QStringLiteral("Width"), width}, {QStringLiteral("Height"), length}};
}

TEST(PortalSettings, NothingAskedIsNothingAsked) {
  const AskedSettings none = asked({});
  EXPECT_THAT(none.options, IsEmpty());
  EXPECT_FALSE(none.copies);
  EXPECT_FALSE(none.pageRanges);
}

TEST(PortalSettings, ChoicesOfThePrinterGetThrough) {
  const AskedSettings some = asked({{"cups-LxHalfCut", "ON"}, {"cups-lxcutlabel", "5"}});
  EXPECT_THAT(some.options,
              testing::UnorderedElementsAre(Pair("LxHalfCut", "ON"), Pair("LxCutLabel", "5")));
}

TEST(PortalSettings, WhatThePrinterDoesNotHaveIsLeftOut) {
  EXPECT_THAT(asked({{"cups-LxHalfCut", "MAYBE"},
                     {"cups-Duplex", "DuplexTumble"},
                     {"cups-raw", "true"},
                     {"cups-copies", "99"},
                     {"cups-", "x"},
                     {"LxHalfCut", "ON"},
                     {"cups-LxMirror", QVariantMap()}})
                  .options,
              IsEmpty());
}

// The page setup says which paper it is.
TEST(PortalSettings, ThePaperIsNoOption) {
  EXPECT_THAT(asked({{"cups-PageSize", "W24H50"}, {"cups-PageRegion", "W24H50"}}).options,
              IsEmpty());
}

TEST(PortalSettings, CopiesCountFromOne) {
  EXPECT_EQ(asked({{"n-copies", "3"}}).copies, 3);
  for (const char* wrong : {"0", "-1", "many", "", "10000", "3x"})
    EXPECT_FALSE(asked({{"n-copies", wrong}}).copies) << wrong;
}

TEST(PortalSettings, PortalsCountPagesFromZero) {
  EXPECT_EQ(asked({{"print-pages", "ranges"}, {"page-ranges", "0-2,4"}}).pageRanges, "1-3,5");
  EXPECT_FALSE(asked({{"print-pages", "all"}, {"page-ranges", "0-2"}}).pageRanges);
  for (const char* wrong : {"", "2-0", "-", "a", "2147483647", "-1", "1-2-3"})
    EXPECT_FALSE(asked({{"print-pages", "ranges"}, {"page-ranges", wrong}}).pageRanges) << wrong;
}

TEST(PortalSettings, OrderIsAnOptionOfTheJob) {
  EXPECT_THAT(asked({{"collate", "true"}}).options, Contains(Pair("collate", "true")));
  EXPECT_THAT(asked({{"reverse", "true"}}).options, Contains(Pair("outputorder", "reverse")));
  EXPECT_THAT(asked({{"page-set", "odd"}}).options, Contains(Pair("page-set", "odd")));
  EXPECT_THAT(asked({{"reverse", "false"}, {"page-set", "all"}}).options, IsEmpty());
}

TEST(PortalSettings, APaperIsKnownByItsName) {
  EXPECT_THAT(paperFor({{"PPDName", "W24H50"}}), Contains(Pair("PageSize", "W24H50")));
}

TEST(PortalSettings, APaperIsKnownByItsSizeWhicheverWayItLies) {
  EXPECT_THAT(paperFor(page(24.3, 49.8)), Contains(Pair("PageSize", "W24H50")));
  EXPECT_THAT(paperFor(page(50, 24)), Contains(Pair("PageSize", "W24H50")));
}

TEST(PortalSettings, AnotherLengthOfTheTapeIsASizeOfItsOwn) {
  const OptionList options = paperFor(page(24, 67));
  ASSERT_EQ(options.size(), 1U);
  EXPECT_EQ(options.front().second.substr(0, 7), "Custom.");
}

TEST(PortalSettings, ASheetIsLeftToThePrintersOwnPaper) {
  EXPECT_THAT(paperFor(page(210, 297)), IsEmpty());
  EXPECT_THAT(paperFor(page(0, 50)), IsEmpty());
  EXPECT_THAT(paperFor(page(std::nan(""), 50)), IsEmpty());
  EXPECT_THAT(paperFor({{"Width", "wide"}, {"Height", -3}}), IsEmpty());
}

TEST(PortalSettings, LabelsAreNarrowerThanSheets) {
  EXPECT_TRUE(isLabelPage(page(62, 100)));
  EXPECT_TRUE(isLabelPage(page(300, 24)));
  EXPECT_FALSE(isLabelPage(page(100, 148)));
  EXPECT_FALSE(isLabelPage({}));
}

TEST(PortalSettings, APrinterAndADocumentCanBeNamed) {
  EXPECT_EQ(printerNamed({{"printer", "tape24/half"}}), "tape24/half");
  EXPECT_EQ(printerNamed({}), "");
  EXPECT_EQ(documentNamed({{"output-basename", "labels"}}), QStringLiteral("labels"));
}

}  // namespace
}  // namespace cutline::portal
