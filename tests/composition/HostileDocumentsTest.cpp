// Documents that are cut short, or changed anywhere: they are refused or composed, and nothing else
// happens.
#include <gtest/gtest.h>
#include <tiffio.h>

#include <random>

#include "tests/composition/Composed.h"
#include "tests/composition/PdfDocument.h"
#include "tests/composition/Pictures.h"

namespace cutline::test {
namespace {

// A PDF with something of all that is read: layers, annotations, fields, several contents.
std::string richPdf(qpdf_object_stream_e objectStreams) {
  PdfDocument document;
  QPDFObjectHandle layer = document.add("<</Type/OCG/Name(a)>>");
  document.pdf().getRoot().replaceKey(
      "/OCProperties",
      QPDFObjectHandle::parse(&document.pdf(), "<</OCGs[" + layer.unparse() + "]/D<</OFF[" +
                                                   layer.unparse() + "]>>>>"));
  document.pdf().getRoot().replaceKey("/AcroForm",
                                      QPDFObjectHandle::parse("<</NeedAppearances true>>"));
  const std::string look = document.addStream("0 0 1 1 re f", "/BBox[0 0 1 1]");
  const std::string content = document.addStream(kCornerMark);
  for (int page = 0; page < 3; ++page)
    document.addPage(
        "/MediaBox[0 0 40 80]/Rotate 90/CropBox[0 0 30 40]/Resources<</Properties<</L " +
        layer.unparse() + ">>>>/Contents[" + content + ' ' + content +
        "]/Annots[<</Type/Annot/Subtype/Widget/FT/Tx/V(a)/F 4/Rect[0 0 9 9]/AP<</N " + look +
        ">>>>]");
  return document.bytes([&](QPDFWriter& writer) { writer.setObjectStreamMode(objectStreams); });
}

struct Kind {
  const char* name;
  std::string bytes;
  // Whether what is cut short can never be composed.
  bool isRefusedWhenCut;
};

std::vector<Kind> kinds() {
  TiffForm packed;
  packed.compression = COMPRESSION_LZW;
  return {
      {"pdf", richPdf(qpdf_o_disable), false},
      {"pdf with object streams", richPdf(qpdf_o_generate), false},
      {"png", pngOf(markedPixels(60, 50)), true},
      {"png interlaced", pngOf(markedPixels(60, 50, 4), {}, true), true},
      {"jpeg", jpegOf(markedPixels(60, 50), {}, exifOf(6, {100, 100})), true},
      {"tiff", tiffOf({markedPixels(60, 50), markedPixels(20, 20, 1)}, packed), false},
      {"webp", webpOf(markedPixels(60, 50, 4)), true},
  };
}

bool isHandled(const Composed& composed) {
  return composed.problem() || composed.pages() == static_cast<int>(composed.report().pages.size());
}

// With fewer bytes some are a text.
constexpr std::size_t kSignature = 12;

TEST(HostileDocumentsTest, CutShortAnywhere) {
  for (const Kind& kind : kinds()) {
    ASSERT_EQ(Composed(kind.bytes).problem(), std::nullopt) << kind.name;
    const std::size_t step =
        std::max<std::size_t>(1, std::min<std::size_t>(47, kind.bytes.size() / 60));
    for (std::size_t size = kSignature; size < kind.bytes.size(); size += step) {
      const Composed composed(kind.bytes.substr(0, size));
      EXPECT_TRUE(isHandled(composed)) << kind.name << " cut to " << size;
      if (kind.isRefusedWhenCut) {
        EXPECT_TRUE(composed.problem() == DocumentProblem::damaged ||
                    composed.problem() == DocumentProblem::unknownKind)
            << kind.name << " cut to " << size;
      }
    }
    if (kind.isRefusedWhenCut) {
      EXPECT_EQ(Composed(kind.bytes.substr(0, kind.bytes.size() - 1)).problem(),
                DocumentProblem::damaged)
          << kind.name;
    }
  }
}

TEST(HostileDocumentsTest, ChangedAnywhere) {
  std::mt19937 random(1);
  for (const Kind& kind : kinds()) {
    for (int round = 0; round < 150; ++round) {
      std::string changed = kind.bytes;
      for (int change = 0; change < 4; ++change)
        changed[random() % changed.size()] = static_cast<char>(random());
      EXPECT_TRUE(isHandled(Composed(changed))) << kind.name << " round " << round;
    }
  }
}

}  // namespace
}  // namespace cutline::test
