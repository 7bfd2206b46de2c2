// How pictures come to lie on labels of 100 by 200 points, with margins of 10 and 20 points.
#include <gtest/gtest.h>
#include <tiffio.h>
#include <zlib.h>

#include <qpdf/QPDF.hh>

#include "tests/composition/Composed.h"
#include "tests/composition/Pictures.h"

namespace cutline::test {
namespace {

constexpr Density kDensity{144, 144};
constexpr Area kUpperLeft{30, 135, 40, 140};

// 80 by 160 dots, as large as stated, in the middle of the label.
void expectInMiddle(const std::string& picture, const char* what) {
  Composed composed(picture);
  ASSERT_EQ(composed.problem(), std::nullopt) << what;
  const PageSize size = composed.report().pages.at(0).size;
  EXPECT_TRUE(size.isStated) << what;
  EXPECT_NEAR(size.width, 40, 0.01) << what;
  EXPECT_NEAR(size.height, 80, 0.01) << what;
  EXPECT_TRUE(composed.isPictureMarkedAt(kUpperLeft)) << what;
}

TEST(PicturesTest, APictureIsAsLargeAsItStates) {
  for (const unsigned channels : {1U, 2U, 3U, 4U}) {
    expectInMiddle(pngOf(markedPixels(80, 160, channels), kDensity), "png");
    TiffForm form;
    form.density = kDensity;
    expectInMiddle(tiffOf({markedPixels(80, 160, channels)}, form), "tiff");
  }
  for (const unsigned channels : {1U, 3U})
    expectInMiddle(jpegOf(markedPixels(80, 160, channels), kDensity), "jpeg");
  // Four inks, of which the file states how much paper they leave free.
  Pixels inks = markedPixels(80, 160, 4);
  for (std::size_t at = 0; at < inks.bytes.size(); at += 4) inks.bytes[at + 3] = inks.bytes[at];
  expectInMiddle(jpegOf(inks, {}, exifOf(1, kDensity)), "inks");
}

TEST(PicturesTest, APictureMayHaveAnotherDensityAlongThanAcross) {
  const Density density{144, 288};
  TiffForm form;
  form.density = density;
  for (const std::string& picture :
       {pngOf(markedPixels(80, 320), density), jpegOf(markedPixels(80, 320), density),
        tiffOf({markedPixels(80, 320)}, form)}) {
    Composed composed(picture);
    EXPECT_TRUE(composed.isPictureMarkedAt({30, 137.5, 40, 140}));
  }
}

TEST(PicturesTest, APictureThatStatesNoSizeFillsTheLabel) {
  for (const std::string& picture :
       {pngOf(markedPixels(40, 80)), jpegOf(markedPixels(40, 80)), webpOf(markedPixels(40, 80)),
        webpOf(markedPixels(40, 80, 4)), tiffOf({markedPixels(40, 80)}),
        // One dot an inch: no page is that large.
        jpegOf(markedPixels(400, 800), {1, 1})}) {
    Composed composed(picture);
    ASSERT_EQ(composed.problem(), std::nullopt);
    EXPECT_FALSE(composed.report().pages[0].size.isStated);
    EXPECT_TRUE(composed.isPictureMarkedAt({10, 170, 30, 180}));
  }
}

// The stored picture's upper left mark is wider than high.
TEST(PicturesTest, APictureIsTurnedAsItWasTaken) {
  const struct {
    unsigned orientation;
    Area mark;
  } rows[] = {
      {0, kUpperLeft},         {1, kUpperLeft},       {2, {60, 135, 70, 140}},
      {3, {60, 60, 70, 65}},   {4, {30, 60, 40, 65}}, {5, {10, 110, 15, 120}},
      {6, {85, 110, 90, 120}}, {7, {85, 80, 90, 90}}, {8, {10, 80, 15, 90}},
      {9, kUpperLeft},
  };
  CompositionRequest request = labelRequest();
  request.layout.turn = Turn::portrait;
  const Pixels pixels = markedPixels(80, 160);
  for (const auto& row : rows) {
    for (const bool isBigEndian : {false, true}) {
      Composed jpeg(jpegOf(pixels, {}, exifOf(row.orientation, kDensity, isBigEndian)), request);
      EXPECT_TRUE(jpeg.isPictureMarkedAt(row.mark)) << "jpeg " << row.orientation;
    }
    if (row.orientation < 1 || row.orientation > 8) continue;
    TiffForm form;
    form.orientation = row.orientation;
    form.density = kDensity;
    Composed tiff(tiffOf({pixels}, form), request);
    EXPECT_TRUE(tiff.isPictureMarkedAt(row.mark)) << "tiff " << row.orientation;
  }
}

TEST(PicturesTest, ABlockOfExifMayBeAnything) {
  const std::string exif = exifOf(6, kDensity);
  for (std::size_t size = 0; size < exif.size(); ++size) {
    const Composed composed(jpegOf(markedPixels(16, 16), {}, exif.substr(0, size)));
    EXPECT_EQ(composed.problem(), std::nullopt) << size;
  }
  for (std::size_t at = 0; at < exif.size(); ++at) {
    std::string changed = exif;
    changed[at] = '\xff';
    EXPECT_EQ(Composed(jpegOf(markedPixels(16, 16), {}, changed)).problem(), std::nullopt) << at;
  }
}

TEST(PicturesTest, WhatIsSeenThroughStaysWhite) {
  for (const unsigned channels : {2U, 4U}) {
    Pixels pixels = markedPixels(80, 160, channels);
    // Black all over, seen through but for the mark, which is half seen through in its right half.
    for (std::size_t at = 0; at < pixels.bytes.size(); at += channels) {
      const bool isMark = pixels.bytes[at] == 0;
      const bool isRight = at / channels % 80 >= 10;
      for (unsigned channel = 0; channel + 1 < channels; ++channel) pixels.bytes[at + channel] = 0;
      pixels.bytes[at + channels - 1] = isMark ? (isRight ? 128 : 255) : 0;
    }
    TiffForm form;
    form.density = kDensity;
    for (const std::string& picture : {pngOf(pixels, kDensity), tiffOf({pixels}, form)}) {
      Composed composed(picture);
      EXPECT_TRUE(composed.isBlackAt(32, 137));
      EXPECT_NEAR(composed.colourAt(37, 137) & 0xff, 0x7f, 4);
      EXPECT_TRUE(composed.isWhiteAt(45, 137));
      EXPECT_TRUE(composed.isWhiteAt(32, 100));
    }
    if (channels != 4) continue;
    Composed webp(webpOf(pixels));
    EXPECT_TRUE(webp.isBlackAt(12, 178));
    EXPECT_TRUE(webp.isWhiteAt(50, 100));
  }
}

// The dictionary of the only image.
QPDFObjectHandle imageIn(QPDF& pdf, const Composed& composed) {
  pdf.processMemoryFile("labels", composed.pdf().data(), composed.pdf().size());
  for (QPDFObjectHandle object : pdf.getAllObjects()) {
    if (object.isStream() && object.getDict().getKey("/Subtype").isNameAndEquals("/Image"))
      return object.getDict();
  }
  throw std::runtime_error("no image");
}

TEST(PicturesTest, WhatIsOpaqueNeedsNoMask) {
  QPDF pdf;
  EXPECT_FALSE(imageIn(pdf, Composed(pngOf(markedPixels(8, 8, 4)))).hasKey("/SMask"));
}

TEST(PicturesTest, AJpegGoesAlongAsItIs) {
  const std::string jpeg = jpegOf(markedPixels(80, 160), kDensity);
  EXPECT_NE(Composed(jpeg).pdf().find(jpeg), std::string::npos);
}

TEST(PicturesTest, APngGoesAlongPackedWhereAPdfCanHoldIt) {
  const std::string png = pngOf(markedPixels(80, 160), kDensity);
  const std::size_t pixels = png.find("IDAT") + 4;
  const std::size_t end = png.find("IEND") - 8;
  EXPECT_NE(Composed(png).pdf().find(png.substr(pixels, end - pixels)), std::string::npos);
}

TEST(PicturesTest, APngMayHaveFewColours) {
  for (const int bits : {1, 2, 4, 8})
    expectInMiddle(palettePngOf(markedPixels(80, 160, 1), bits, kDensity), "palette");
}

TEST(PicturesTest, InterlacedPicturesAreWhole) {
  expectInMiddle(pngOf(markedPixels(80, 160), kDensity, /*isInterlaced=*/true), "interlaced");
}

TEST(PicturesTest, ColoursStayWhatTheyAre) {
  Pixels pixels = markedPixels(40, 80);
  for (std::size_t at = 0; at < pixels.bytes.size(); at += 3) {
    pixels.bytes[at] = 0x20;
    pixels.bytes[at + 1] = 0x80;
    pixels.bytes[at + 2] = 0xe0;
  }
  for (const std::string& picture : {pngOf(pixels), tiffOf({pixels}), webpOf(pixels)})
    EXPECT_EQ(Composed(picture).colourAt(50, 100), 0x2080e0U);
}

TEST(PicturesTest, PicturesOfBlackAndWhiteStaySmall) {
  for (const unsigned compression : {COMPRESSION_NONE, COMPRESSION_CCITTFAX4, COMPRESSION_LZW}) {
    TiffForm form;
    form.compression = compression;
    form.isBlackAndWhite = true;
    form.density = kDensity;
    const std::string tiff = tiffOf({markedPixels(80, 160, 1)}, form);
    expectInMiddle(tiff, "bits");
    QPDF pdf;
    EXPECT_EQ(imageIn(pdf, Composed(tiff)).getKey("/BitsPerComponent").getIntValue(), 1);
  }
}

TEST(PicturesTest, EachPictureOfATiffIsAPage) {
  TiffForm form;
  form.density = kDensity;
  form.compression = COMPRESSION_ADOBE_DEFLATE;
  const std::string tiff =
      tiffOf({markedPixels(80, 160), markedPixels(40, 80), markedPixels(80, 160)}, form);
  Composed composed(tiff);
  ASSERT_EQ(composed.pages(), 3);
  EXPECT_EQ(composed.report().pages[1].size, (PageSize{20, 40, true}));
  EXPECT_TRUE(composed.isPictureMarkedAt(kUpperLeft, 2));
  EXPECT_TRUE(composed.isPictureMarkedAt({40, 117.5, 45, 120}, 1));
}

void setNumber(std::string& bytes, std::size_t at, unsigned value) {
  for (unsigned byte = 0; byte < 4; ++byte)
    bytes.at(at + byte) = static_cast<char>(value >> 8 * (3 - byte) & 0xff);
}

TEST(PicturesTest, APictureThatPromisesTooMuchIsTooLarge) {
  std::string png = pngOf(markedPixels(8, 8));
  setNumber(png, 16, 100000);
  setNumber(png, 20, 100000);
  const auto* header = reinterpret_cast<const Bytef*>(png.data() + 12);
  setNumber(png, 29, static_cast<unsigned>(crc32(0, header, 17)));
  EXPECT_EQ(Composed(png).problem(), DocumentProblem::tooLarge);
  std::string jpeg = jpegOf(markedPixels(8, 8));
  const std::size_t frame = jpeg.find("\xff\xc0");
  jpeg.replace(frame + 5, 4, "\xff\xdc\xff\xdc");
  EXPECT_EQ(Composed(jpeg).problem(), DocumentProblem::tooLarge);
}

// Where the list of a TIFF's pictures leads back to its first.
TEST(PicturesTest, ATiffThatComesBackToItselfEnds) {
  std::string tiff = tiffOf({markedPixels(8, 8)});
  const auto number = [&](std::size_t at, unsigned size) {
    std::size_t value = 0;
    for (unsigned byte = size; byte > 0; --byte)
      value = value << 8 | static_cast<unsigned char>(tiff.at(at + byte - 1));
    return value;
  };
  const std::size_t first = number(4, 4);
  const std::size_t next = first + 2 + 12 * number(first, 2);
  tiff.replace(next, 4, tiff.substr(4, 4));
  EXPECT_EQ(Composed(tiff).pages(), 1);
}

// A JPEG states it in its first block, after the name of its form and its version.
std::string jpegWithUnit(std::string jpeg, char unit) {
  jpeg.at(jpeg.find("JFIF") + 7) = unit;
  return jpeg;
}

TEST(PicturesTest, ADensityMayBeThatOfACentimetre) {
  constexpr Density kOfCentimetre{100, 100};
  TiffForm form;
  form.density = kOfCentimetre;
  form.isOfCentimetre = true;
  const Pixels pixels = markedPixels(80, 160);
  for (const std::string& picture :
       {jpegWithUnit(jpegOf(pixels, kOfCentimetre), 2), tiffOf({pixels}, form),
        jpegOf(pixels, {}, exifOf(1, kOfCentimetre, false, 3))}) {
    const Composed composed(picture);
    ASSERT_EQ(composed.problem(), std::nullopt);
    EXPECT_NEAR(composed.report().pages.at(0).size.width, 80 / 254.0 * 72, 0.01);
  }
}

TEST(PicturesTest, ADensityWithoutAUnitIsNoSize) {
  const Pixels pixels = markedPixels(40, 80);
  for (const char unit : {'\0', '\x7'}) {
    Composed composed(jpegWithUnit(jpegOf(pixels, kDensity), unit));
    ASSERT_EQ(composed.problem(), std::nullopt);
    EXPECT_FALSE(composed.report().pages[0].size.isStated);
  }
}

TEST(PicturesTest, APicturesOwnDensityGoesBeforeTheCamerasOne) {
  expectInMiddle(jpegOf(markedPixels(80, 160), kDensity, exifOf(1, {300, 300})), "both");
}

TEST(PicturesTest, APngIsTurnedAsItWasTaken) {
  CompositionRequest request = labelRequest();
  request.layout.turn = Turn::portrait;
  Composed composed(pngOf(markedPixels(80, 160), kDensity, false, exifOf(3)), request);
  EXPECT_TRUE(composed.isPictureMarkedAt({60, 60, 70, 65}));
}

// None of these can be stored in a PDF, or as one page of it.
TEST(PicturesTest, PicturesThatNoPageCanHaveAreRefused) {
  std::string arithmetic = jpegOf(markedPixels(8, 8));
  arithmetic.at(arithmetic.find("\xff\xc0") + 1) = '\xc9';
  EXPECT_EQ(Composed(arithmetic).problem(), DocumentProblem::unknownKind);
  const std::string moving("RIFF\x16\0\0\0WEBPVP8X\x0a\0\0\0\x02\0\0\0\x07\0\0\x07\0\0", 30);
  EXPECT_EQ(Composed(moving).problem(), DocumentProblem::unknownKind);
}

}  // namespace
}  // namespace cutline::test
