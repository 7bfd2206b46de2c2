// The boxes of what contents draw: as told, and beside what a reader of PDFs draws.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>
#include <sstream>

#include "composition/reader/ContentInk.h"
#include "composition/reader/InkBounds.h"
#include "tests/composition/Composed.h"
#include "tests/composition/DrawnPdf.h"
#include "tests/composition/PdfDocument.h"

namespace cutline::test {
namespace {

// The square of 500 units of "a", of a font of 1,000 to the size, after which 600 are left free.
constexpr char kFont[] =
    "<</Type/Font/Subtype/Type3/FontBBox[0 0 0 0]/FontMatrix[.001 0 0 .001 0 0]/FirstChar 97"
    "/LastChar 98/Widths[600 300]/Encoding<</Differences[97/square/blank]>>/Resources<<>>"
    "/CharProcs<</square SQUARE/blank BLANK>>>>";

class InkBoundsTest : public testing::Test {
 protected:
  // A form of 100 by 50 points with this content; `entries` are its resources.
  QPDFObjectHandle form(const std::string& content, const std::string& resources = {}) {
    const std::string reference = mDocument.addStream(
        content, "/Subtype/Form/BBox[0 0 100 50]/Resources<<" + resources + ">>");
    return mDocument.pdf().getObjectByID(std::stoi(reference), 0);
  }

  std::optional<Area> boxOf(QPDFObjectHandle drawn) {
    InkWork work;
    try {
      const InkArea ink = ContentInk(work, QPDFObjectHandle::newNull(), {}).ofForm(drawn);
      return ink.isEmpty() ? Area{} : ink.area();
    } catch (const std::exception&) {
      return std::nullopt;
    }
  }

  std::optional<Area> boxOf(const std::string& content, const std::string& resources = {}) {
    return boxOf(form(content, resources));
  }

  // Resources with the font above as /F.
  std::string font() {
    std::string text = kFont;
    const auto put = [&](const std::string& name, const std::string& glyph) {
      text.replace(text.find(name), name.size(), mDocument.addStream(glyph));
    };
    put("SQUARE", "600 0 0 0 500 500 d1 0 0 500 500 re f");
    put("BLANK", "300 0 d0");
    mFont = mDocument.add(text).unparse();
    return "/Font<</F " + mFont + ">>";
  }

  std::string everything() {
    std::string fonts = font();
    fonts.resize(fonts.size() - 2);
    fonts +=
        "/Standard<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>"
        "/NoMatrix<</Type/Font/Subtype/Type3>>"
        "/NoNames<</Type/Font/Subtype/Type3/FontMatrix[1 0 0 1 0 0]>>>>";
    const std::string forms =
        "/Image " + mDocument.addStream("x", "/Subtype/Image/Width 1/Height 1") + " /Form " +
        mDocument.addStream("0 0 50 50 re f", "/Subtype/Form/BBox[0 1 10 5]/Matrix[1 0 0 1 10 0]") +
        " /Boxless " + mDocument.addStream("", "/Subtype/Form") + " /Other " +
        mDocument.addStream("", "/Subtype/PS") + " /Itself " + itself();
    return fonts + "/XObject<<" + forms +
           ">>/ExtGState<</Thick<</LW 10/LJ 0/ML 2>>/WithFont<</Font[" + mFont + " 8]>>>>";
  }

  // A form that draws itself.
  std::string itself() {
    const std::string reference = mDocument.addStream("/X Do", "/Subtype/Form/BBox[0 0 9 9]");
    QPDFObjectHandle form = mDocument.pdf().getObjectByID(std::stoi(reference), 0);
    form.getDict().replaceKey(
        "/Resources",
        QPDFObjectHandle::parse(&mDocument.pdf(), "<</XObject<</X " + reference + ">>>>"));
    return reference;
  }

  std::string mFont;
  PdfDocument mDocument;
};

struct Case {
  std::string name;
  std::string content;
  Area box;
};

const double kHalfSquare = std::numbers::sqrt2;  // of a line of 2 points

const std::vector<Case> kCases = {
    {"Nothing", "", {}},
    {"NothingPainted", "10 10 m 20 20 l n 1 g BT ET q Q /Mark BMC EMC", {}},
    {"Rectangle", "10 20 30 5 re f", {10, 20, 40, 25}},
    {"RectangleFromItsFarCorner", "40 25 -30 -5 re f*", {10, 20, 40, 25}},
    {"SignsAndFractions", "+10. 20 .5 -.25 re f", {10, 19.75, 10.5, 20}},
    {"PathsTogether", "10 20 5 5 re 30 10 m 40 10 l 40 15 l f", {10, 10, 40, 25}},
    {"CurveWithinItsPoints", "10 10 m 10 40 60 45 60 12 c F", {10, 10, 60, 45}},
    {"ShortCurves", "10 10 m 30 40 40 20 v 50 5 60 30 y B", {5, 0, 65, 45}},
    {"Line",
     "2 w 10 10 m 30 10 l S",
     {10 - kHalfSquare, 10 - kHalfSquare, 30 + kHalfSquare, 10 + kHalfSquare}},
    {"FrameOfRightAngles",
     "2 w 10 10 20 20 re s",
     {10 - kHalfSquare, 10 - kHalfSquare, 30 + kHalfSquare, 30 + kHalfSquare}},
    {"PointedCorners", "2 w 20 20 m 30 20 l 25 30 l h S", {10, 10, 40, 40}},
    {"PointedCornersUpTo", "2 w 3 M 20 20 m 30 20 l 25 30 l b", {17, 17, 33, 33}},
    {"RoundCorners",
     "2 w 1 j 20 20 m 30 20 l 25 30 l b*",
     {20 - kHalfSquare, 20 - kHalfSquare, 30 + kHalfSquare, 30 + kHalfSquare}},
    {"ThinnestLine", "0 w 10 10 m 30 10 l S", {9.8, 9.8, 30.2, 10.2}},
    {"LineScaledOtherwiseEachWay",
     "2 w 3 0 0 1 0 0 cm 10 10 m 20 10 l S",
     {30 - 3 * kHalfSquare, 10 - kHalfSquare, 60 + 3 * kHalfSquare, 10 + kHalfSquare}},
    {"ParametersOfLines",
     "/Thick gs 20 20 10 10 re S",
     {20 - 5 * kHalfSquare, 20 - 5 * kHalfSquare, 30 + 5 * kHalfSquare, 30 + 5 * kHalfSquare}},
    {"Clipped", "0 0 20 20 re W n 10 10 50 50 re f", {10, 10, 20, 20}},
    {"ClippedTwice", "0 0 20 20 re W* n 5 5 50 50 re W n 0 0 99 49 re f", {5, 5, 20, 20}},
    {"ClippedAway", "0 0 20 20 re W n 30 30 5 5 re W n 0 0 99 49 re f", {}},
    {"ClippedOnlyWithin", "q 0 0 20 20 re W n Q 10 10 50 30 re f", {10, 10, 60, 40}},
    {"BeyondTheForm", "-50 -50 500 500 re f", {0, 0, 100, 50}},
    {"Moved", "2 0 0 3 5 6 cm 0 0 10 10 re f", {5, 6, 25, 36}},
    {"Turned", "0 1 -1 0 50 10 cm 0 0 10 20 re f", {30, 10, 50, 20}},
    {"Shading", "10 10 20 20 re W n /Any sh", {10, 10, 30, 30}},
    {"InlineImage", "20 0 0 10 5 6 cm BI /W 1 /H 1 /CS /G /BPC 8 ID \x01 EI", {5, 6, 25, 16}},
    {"Image", "q 20 0 0 10 5 6 cm /Image Do Q /None Do", {5, 6, 25, 16}},
    {"Form", "2 0 0 2 10 10 cm /Form Do", {30, 12, 50, 20}},
    {"Text", "BT /F 10 Tf 20 30 Td (a) Tj ET", {20, 30, 25, 35}},
    {"TextOfBlanks", "BT /F 10 Tf 20 30 Td (bbz) Tj ET", {}},
    {"TextAdvances", "BT /F 10 Tf 20 30 Td (aba) Tj ET", {20, 30, 34, 35}},
    {"TextInPieces", "BT /F 10 Tf 20 30 Td [(a) -1000 (b) 100 (a)] TJ ET", {20, 30, 43, 35}},
    {"TextSpaced", "BT /F 10 Tf 2 Tc 20 30 Td (aa) Tj ET", {20, 30, 33, 35}},
    {"TextWordsSpaced", "BT /F 10 Tf 7 Tw 20 30 Td (a a) Tj ET", {20, 30, 38, 35}},
    {"TextStretched", "BT /F 10 Tf 200 Tz 20 30 Td (aa) Tj ET", {20, 30, 42, 35}},
    {"TextRaised", "BT /F 10 Tf 3 Ts 20 30 Td (a) Tj ET", {20, 33, 25, 38}},
    {"TextMatrix", "BT /F 1 Tf 10 0 0 20 20 30 Tm (a) Tj ET", {20, 30, 25, 40}},
    {"TextBelow", "BT /F 10 Tf 12 TL 20 30 Td (a) Tj T* (a) Tj ET", {20, 18, 25, 35}},
    {"TextBelowWithLeading", "BT /F 10 Tf 20 40 Td 1 -12 TD T* (a) ' ET", {21, 4, 26, 9}},
    {"TextBelowSpaced", "BT /F 10 Tf 10 TL 20 30 Td 7 2 (a a) \" ET", {20, 20, 42, 25}},
    {"TextInvisible", "BT 3 Tr /F 10 Tf 20 30 Td (a) Tj ET", {}},
    {"TextOutlined",
     "BT 2 w 1 j 1 Tr /F 10 Tf 20 30 Td (a) Tj ET",
     {20 - kHalfSquare, 30 - kHalfSquare, 25 + kHalfSquare, 35 + kHalfSquare}},
    {"TextWithFontOfParameters", "BT /WithFont gs 20 30 Td (a) Tj ET", {20, 30, 24, 34}},
};

class InkBoxes : public InkBoundsTest, public testing::WithParamInterface<Case> {};

TEST_P(InkBoxes, AreTold) {
  constexpr double kNear = 1e-6;
  const auto box = boxOf(GetParam().content, everything());
  ASSERT_TRUE(box);
  EXPECT_NEAR(box->left, GetParam().box.left, kNear);
  EXPECT_NEAR(box->bottom, GetParam().box.bottom, kNear);
  EXPECT_NEAR(box->right, GetParam().box.right, kNear);
  EXPECT_NEAR(box->top, GetParam().box.top, kNear);
}

INSTANTIATE_TEST_SUITE_P(Contents, InkBoxes, testing::ValuesIn(kCases),
                         [](const auto& tested) { return tested.param.name; });

class UnknownInk : public InkBoundsTest, public testing::WithParamInterface<std::string> {};

TEST_P(UnknownInk, IsNotGuessed) { EXPECT_FALSE(boxOf(GetParam(), everything())); }

INSTANTIATE_TEST_SUITE_P(
    Contents, UnknownInk,
    testing::Values("10 20 30 re f", "(10) 20 30 5 re f", "10 20 30 5", "magic", "Q", "(never ends",
                    "[1 2", "<</A 1", "BI /W 1 ID \x01", "BT (a) Tj ET", "BT /F Tf (a) Tj ET",
                    "BT /Standard 10 Tf (a) Tj ET", "BT /None 10 Tf (a) Tj ET", "/Boxless Do",
                    "/Other Do", "/Itself Do", "Do", "1e5 0 0 1 0 0 cm", "BT /NoMatrix 10 Tf ET",
                    "BT /NoNames 10 Tf ET",
                    // Past the largest number, and back to none.
                    "q " + std::string(400, '9') + " 0 0 1 0 0 cm 0 0 1 1 re f Q"));

TEST_F(InkBoundsTest, WhatTakesTooLongIsNotTold) {
  std::string content;
  for (int count = 0; count < 60'000; ++count) content += "n ";
  EXPECT_FALSE(boxOf(content));
  EXPECT_FALSE(boxOf("%" + std::string((4U << 20U) + 1, 'x')));
}

TEST_F(InkBoundsTest, TooManyFontsAreNotTold) {
  const std::string resources = everything();
  std::string content;
  // A font without a number of its own is another one each time.
  for (int count = 0; count < 101; ++count) content += "/Direct 1 Tf ";
  const std::string direct = mDocument.pdf().getObjectByID(std::stoi(mFont), 0).unparseResolved();
  EXPECT_FALSE(boxOf(content, "/Font<</Direct " + direct + ">>"));
  EXPECT_TRUE(boxOf("/Direct 1 Tf", "/Font<</Direct " + direct + ">>"));
}

TEST_F(InkBoundsTest, PrintableWhereTheMatrixPutsIt) {
  const LabelPage label{100, 200, 10, 20, 90, 180, 0, 90};
  InkBounds bounds;
  QPDFObjectHandle drawn = form("0 0 20 20 re f");
  EXPECT_FALSE(bounds.arePrintable(drawn, {}, label));
  EXPECT_TRUE(bounds.arePrintable(drawn, {1, 0, 0, 1, 10, 20}, label));
  EXPECT_TRUE(bounds.arePrintable(drawn, {4, 0, 0, 8, 10, 20}, label));
  EXPECT_FALSE(bounds.arePrintable(drawn, {4.1, 0, 0, 8, 10, 20}, label));
  EXPECT_TRUE(bounds.arePrintable(form(""), {}, label));
  EXPECT_FALSE(bounds.arePrintable(form("magic"), {1, 0, 0, 1, 10, 20}, label));
}

// A label of the page's size, of which the printer does not reach its margins.
CompositionRequest margins(double margin) {
  CompositionRequest request = labelRequest();
  request.label = {100, 50, margin, margin, 100 - margin, 50 - margin, 0, 90};
  return request;
}

TEST_F(InkBoundsTest, ReportsPagesWhoseInkIsPrintable) {
  const std::string document =
      drawnPdf({{100, 50, "10 10 80 30 re f"}, {100, 50, "9 10 80 30 re f"}, {100, 50, "magic"}});
  const auto told = [&](const CompositionRequest& request) {
    std::vector<bool> pages;
    const Composed composed(document, request);
    for (const ComposedPage& page : composed.report().pages) pages.push_back(page.hasPrintableInk);
    return pages;
  };
  EXPECT_EQ(told(margins(10)), (std::vector{true, false, false}));
  // Nobody asks there.
  EXPECT_EQ(told(margins(0)), (std::vector{false, false, false}));
  CompositionRequest quiet = margins(10);
  quiet.seeksInk = false;
  EXPECT_EQ(told(quiet), (std::vector{false, false, false}));
}

TEST_F(InkBoundsTest, FollowsTheMirror) {
  CompositionRequest request = margins(10);
  request.label.right = 95;
  const std::string document = drawnPdf({{100, 50, "10 10 85 30 re f"}});
  EXPECT_TRUE(Composed(document, request).report().pages.front().hasPrintableInk);
  request.isMirrored = true;
  EXPECT_FALSE(Composed(document, request).report().pages.front().hasPrintableInk);
}

// Contents at random; Composed looks at each page of which all is said to be printable.
class RandomInk : public InkBoundsTest {
 protected:
  std::string content() {
    std::string text;
    const int pieces = whole(1, 4);
    for (int piece = 0; piece < pieces; ++piece) text += "q " + turn() + paint() + " Q\n";
    return text;
  }

  int whole(int least, int most) { return std::uniform_int_distribution(least, most)(mRandom); }

 private:
  std::string number(int least, int most) { return std::to_string(whole(least, most)) + ' '; }
  std::string point() { return number(25, 75) + number(12, 38); }

  std::string turn() {
    constexpr double kDegree = std::numbers::pi / 180;
    const double angle = whole(-20, 20) * kDegree;
    std::ostringstream text;
    text << std::fixed << std::cos(angle) << ' ' << std::sin(angle) << ' ' << -std::sin(angle)
         << ' ' << std::cos(angle) << ' ' << whole(-9, 9) << ' ' << whole(-9, 9) << " cm ";
    return text.str();
  }

  std::string paint() {
    switch (whole(0, 4)) {
      case 0:
        return point() + number(-20, 20) + number(-10, 10) + "re f";
      case 1:
        return number(0, 3) + "w " + number(0, 2) + "j " + number(0, 2) + "J " + number(2, 6) +
               "M " + point() + "m " + point() + "l " + point() + "l " + point() + "l s";
      case 2:
        return point() + "m " + point() + point() + point() + "c B";
      case 3:
        return "BT /F " + number(4, 16) + "Tf " + number(0, 2) + "Tr " + number(80, 120) + "Tz " +
               number(-2, 4) + "Tc " + point() + "Td [(aba) " + number(-300, 300) + "(a)] TJ ET";
      default:
        return point() + number(1, 20) + number(1, 10) + "re W n " + point() + "m " + point() +
               "l " + point() + "l f";
    }
  }

  std::mt19937 mRandom{4711};
};

TEST_F(RandomInk, IsWhereItIsTold) {
  constexpr int kPages = 200;
  const std::string resources = "/MediaBox[0 0 100 50]/Resources<<" + font() + ">>";
  for (int page = 0; page < kPages; ++page) mDocument.addPage(resources, content());
  const std::string document = mDocument.bytes();
  int told = 0;
  for (const double margin : {4, 8, 12}) {
    const Composed composed(document, margins(margin));
    for (const ComposedPage& page : composed.report().pages) told += page.hasPrintableInk ? 1 : 0;
  }
  // Most of what is drawn so is well within the smallest of these margins.
  EXPECT_GT(told, kPages / 2);
}

}  // namespace
}  // namespace cutline::test
