// The boxes of glyphs whose font a PDF has within.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "composition/reader/EmbeddedFont.h"
#include "composition/reader/GlyphShapes.h"
#include "tests/composition/Composed.h"
#include "tests/composition/PdfDocument.h"

namespace cutline::test {
namespace {

constexpr char kType1[] = "/usr/share/fonts/type1/urw-base35/NimbusSans-Regular.t1";
constexpr char kOpenType[] = "/usr/share/fonts/opentype/urw-base35/NimbusSans-Regular.otf";
constexpr char kTooManyGlyphs[] = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
// Of A, of a font of size 1.
constexpr double kAdvance = 0.667;
constexpr unsigned kLetterA = 34;  // its glyph

std::string bytesOf(const char* path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string readStream(QPDFObjectHandle stream) {
  const std::shared_ptr<Buffer> buffer = stream.getStreamData();
  return {reinterpret_cast<const char*>(buffer->getBuffer()), buffer->getSize()};
}

TEST(GlyphShapesTest, KnowsEachGlyphAndAll) {
  for (const char* path : {kType1, kOpenType}) {
    const GlyphShapes shapes(bytesOf(path));
    EXPECT_LT(shapes.inkOfAll().left, -0.1) << path;
    EXPECT_LT(shapes.inkOfAll().bottom, -0.2) << path;
    EXPECT_GT(shapes.inkOfAll().right, 0.9) << path;
    EXPECT_GT(shapes.inkOfAll().top, 0.9) << path;
    EXPECT_TRUE(isNowhere(shapes.inkOf(60000))) << path;
  }
  const Area letter = GlyphShapes(bytesOf(kOpenType)).inkOf(kLetterA);
  EXPECT_NEAR(letter.bottom, 0, 0.01);
  EXPECT_NEAR(letter.top, 0.73, 0.02);
  EXPECT_LT(letter.right, kAdvance);
}

TEST(GlyphShapesTest, RefusesWhatItCannotGoThrough) {
  EXPECT_THROW(GlyphShapes(""), std::runtime_error);
  EXPECT_THROW(GlyphShapes("no font at all"), std::runtime_error);
  EXPECT_THROW(GlyphShapes(bytesOf(kTooManyGlyphs)), std::runtime_error);
  const std::string font = bytesOf(kType1);
  EXPECT_THROW(GlyphShapes(font.substr(0, font.size() / 2)), std::runtime_error);
}

class EmbeddedFontTest : public testing::Test {
 protected:
  // A descriptor with this font's file under the key.
  std::string descriptor(const std::string& key, const char* path,
                         const std::string& entries = {}) {
    const std::string file = mDocument.addStream(bytesOf(path), entries);
    return "<</Type/FontDescriptor/FontName/F/Flags 32/MissingWidth 500/FontBBox[0 0 0 0]" + key +
           ' ' + file + ">>";
  }

  std::string type1(const std::string& entries = "/FirstChar 65/LastChar 66/Widths[667 667]") {
    const std::string sizes = "/Length1 " + std::to_string(bytesOf(kType1).size()) + "/Length2 0";
    return "<</Type/Font/Subtype/Type1/BaseFont/F/Encoding/WinAnsiEncoding" + entries +
           "/FontDescriptor" + descriptor("/FontFile", kType1, sizes) + ">>";
  }

  std::string composite(const std::string& widths,
                        const std::string& encoding = "/Encoding/Identity-H") {
    return "<</Type/Font/Subtype/Type0/BaseFont/F" + encoding +
           "/DescendantFonts[<</Type/Font/Subtype/CIDFontType0/BaseFont/F/CIDSystemInfo"
           "<</Registry(Adobe)/Ordering(Identity)/Supplement 0>>" +
           widths + "/FontDescriptor" + descriptor("/FontFile3", kOpenType, "/Subtype/OpenType") +
           ">>]>>";
  }

  EmbeddedFont font(const std::string& dictionary) {
    return {mDocument.add(dictionary), readStream};
  }
  void expectUnknown(const std::string& dictionary) {
    EXPECT_THROW(font(dictionary), std::exception) << dictionary.substr(0, 200);
  }

  // The pages of a text at places that come nearer to the upper right corner, of which all is said
  // to be printable; Composed looks whether that is so.
  std::vector<bool> printable(const std::string& font, const std::string& text) {
    const std::string resources =
        "/MediaBox[0 0 100 50]/Resources<</Font<</F " + mDocument.add(font).unparse() + ">>>>";
    for (int step = 0; step < 8; ++step)
      mDocument.addPage(resources, "BT /F 12 Tf " + std::to_string(30 + 6 * step) + ' ' +
                                       std::to_string(10 + 4 * step) + " Td " + text + " Tj ET");
    CompositionRequest request = labelRequest();
    request.label = {100, 50, 5, 5, 95, 45, 0, 90};
    const Composed composed(mDocument.bytes(), request);
    std::vector<bool> pages;
    for (const ComposedPage& page : composed.report().pages) pages.push_back(page.hasPrintableInk);
    return pages;
  }

  PdfDocument mDocument;
};

TEST_F(EmbeddedFontTest, HasWidthsByCode) {
  EmbeddedFont known = font(type1());
  EXPECT_EQ(known.codeBytes(), 1U);
  EXPECT_NEAR(known.glyph('A').advance, kAdvance, 1e-9);
  EXPECT_NEAR(known.glyph('z').advance, 0.5, 1e-9);
  EXPECT_GT(known.glyph('A').ink.top, 0.7);
}

TEST_F(EmbeddedFontTest, HasWidthsByRunsOfCodes) {
  EmbeddedFont known = font(composite("/DW 250/W[3[300 400]7 9 555]"));
  EXPECT_EQ(known.codeBytes(), 2U);
  const std::pair<unsigned, double> widths[] = {{2, 0.25},  {3, 0.3},   {4, 0.4},  {5, 0.25},
                                                {7, 0.555}, {9, 0.555}, {10, 0.25}};
  for (const auto& [code, width] : widths)
    EXPECT_NEAR(known.glyph(code).advance, width, 1e-9) << code;
  EXPECT_NEAR(font(composite("")).glyph(9).advance, 1, 1e-9);
}

TEST_F(EmbeddedFontTest, OtherFontsAreNotGuessed) {
  expectUnknown("<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>");
  expectUnknown("<</Type/Font/Subtype/TrueType/FontDescriptor<<>>/FirstChar 0/Widths[1]>>");
  expectUnknown(type1(""));
  expectUnknown(type1("/FirstChar -1/Widths[500]"));
  expectUnknown(type1("/FirstChar 65"));
  expectUnknown(composite("", "/Encoding/Identity-V"));
  expectUnknown(composite("", ""));
  expectUnknown("<</Type/Font/Subtype/Type0/Encoding/Identity-H>>");
  expectUnknown(composite("/W[70000[300]]"));
  expectUnknown(composite("/W[0 65535 300 0 65535 300]"));
}

TEST_F(EmbeddedFontTest, TextOfOneByteACode) {
  EXPECT_EQ(printable(type1(), "(AB)"),
            (std::vector{true, true, true, true, true, true, false, false}));
}

TEST_F(EmbeddedFontTest, TextOfTwoBytesACode) {
  EXPECT_EQ(printable(composite("/DW 600"), "<00220023>"),
            (std::vector{true, true, true, true, true, true, true, false}));
}

// Which glyph it is says a table, so it may be the tallest.
TEST_F(EmbeddedFontTest, TextWhoseGlyphsATableTells) {
  const std::string table = "/CIDToGIDMap " + mDocument.addStream(std::string(80, '\0'));
  EXPECT_EQ(printable(composite("/DW 600" + table), "<00220023>"),
            (std::vector{true, true, true, true, true, true, false, false}));
}

}  // namespace
}  // namespace cutline::test
