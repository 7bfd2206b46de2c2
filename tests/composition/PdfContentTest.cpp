// What of a PDF's pages is drawn on labels, and what goes along for it.
#include <gtest/gtest.h>

#include <qpdf/Buffer.hh>

#include "tests/composition/Composed.h"
#include "tests/composition/PdfDocument.h"

namespace cutline::test {
namespace {

constexpr char kPage[] = "/MediaBox[0 0 100 200]";
constexpr Area kCorner = {0, 0, 10, 10};

// How many streams of a PDF are of this kind.
int countOf(const Composed& composed, const std::string& subtype) {
  QPDF pdf;
  pdf.processMemoryFile("labels", composed.pdf().data(), composed.pdf().size());
  int count = 0;
  for (QPDFObjectHandle object : pdf.getAllObjects())
    count += object.isStream() && object.getDict().getKey("/Subtype").isNameAndEquals(subtype);
  return count;
}

TEST(PdfContentTest, SeveralContentStreamsAreOne) {
  PdfDocument document;
  const std::string first = document.addStream("0 0 10");
  const std::string second = document.addStream("10 re f");
  document.addPage(kPage + ("/Contents[" + first + " null 7 " + second + "]"));
  Composed composed(document.bytes());
  ASSERT_EQ(composed.problem(), std::nullopt);
  EXPECT_TRUE(composed.isMarkedAt(kCorner));
}

TEST(PdfContentTest, APageWithoutContentIsAnEmptyLabel) {
  for (const char* contents : {"", "/Contents null", "/Contents[]", "/Contents 7"}) {
    PdfDocument document;
    document.addPage(std::string(kPage) + contents);
    Composed composed(document.bytes());
    EXPECT_EQ(composed.pages(), 1) << contents;
    EXPECT_TRUE(composed.isWhiteAt(5, 5)) << contents;
  }
}

// A page that would fill the memory once it were unpacked stays packed.
TEST(PdfContentTest, ContentOfOneStreamStaysAsItIs) {
  PdfDocument document;
  document.addPage(kPage, kCornerMark + std::string(1000, '\n'));
  const std::string bytes = document.bytes();
  QPDF before;
  before.processMemoryFile("before", bytes.data(), bytes.size());
  QPDFObjectHandle page = before.getAllPages().at(0);
  const auto raw = page.getKey("/Contents").getRawStreamData();
  const Composed composed(bytes);
  QPDF after;
  after.processMemoryFile("after", composed.pdf().data(), composed.pdf().size());
  QPDFObjectHandle label = after.getAllPages().at(0);
  QPDFObjectHandle form = label.getKey("/Resources").getKey("/XObject").getKey("/Page");
  const auto kept = form.getRawStreamData();
  ASSERT_EQ(kept->getSize(), raw->getSize());
  EXPECT_EQ(std::string(reinterpret_cast<char*>(kept->getBuffer()), kept->getSize()),
            std::string(reinterpret_cast<char*>(raw->getBuffer()), raw->getSize()));
}

TEST(PdfContentTest, WhatPagesShareGoesAlongOnce) {
  PdfDocument document;
  const std::string shared =
      document.addStream(kCornerMark,
                         "/Type/XObject/Subtype/Image/Width 1/Height 1/BitsPerComponent 8"
                         "/ColorSpace/DeviceGray");
  const std::string content = document.addStream(kCornerMark);
  for (int page = 0; page < 5; ++page)
    document.addPage(kPage + ("/Contents " + content) + "/Resources<</XObject<</I " + shared +
                     ">>>>");
  for (int page = 0; page < 5; ++page)
    document.addPage(std::string(kPage) + "/Resources<</XObject<</I " + shared + ">>>>",
                     kCornerMark);
  const Composed composed(document.bytes());
  EXPECT_EQ(composed.pages(), 10);
  EXPECT_EQ(countOf(composed, "/Form"), 6);
  EXPECT_EQ(countOf(composed, "/Image"), 1);
}

QPDFObjectHandle labelOf(QPDF& pdf, const Composed& composed, std::size_t page) {
  pdf.processMemoryFile("labels", composed.pdf().data(), composed.pdf().size());
  return pdf.getAllPages().at(page);
}

// What is placed alike is drawn by the same few words.
TEST(PdfContentTest, LabelsThatArePlacedAlikeShareWhatPlacesThem) {
  PdfDocument document;
  for (int page = 0; page < 3; ++page) document.addPage(kPage, kCornerMark);
  document.addPage("/MediaBox[0 0 20 20]", kCornerMark);
  const Composed composed(document.bytes());
  QPDF pdf;
  QPDFObjectHandle first = labelOf(pdf, composed, 0).getKey("/Contents");
  std::vector<QPDFObjectHandle> labels = pdf.getAllPages();
  EXPECT_EQ(first.getObjGen(), labels[2].getKey("/Contents").getObjGen());
  EXPECT_NE(first.getObjGen(), labels[3].getKey("/Contents").getObjGen());
}

// What several streams draw is packed again when they become one.
TEST(PdfContentTest, JoinedContentIsPacked) {
  PdfDocument document;
  const std::string part = document.addStream(std::string(5000, '\n'));
  document.addPage(kPage + ("/Contents[" + part + ' ' + part + "]"));
  const Composed composed(document.bytes());
  QPDF pdf;
  QPDFObjectHandle form =
      labelOf(pdf, composed, 0).getKey("/Resources").getKey("/XObject").getKey("/Page");
  EXPECT_LT(form.getRawStreamData()->getSize(), 200U);
  EXPECT_EQ(form.getStreamData()->getSize(), 10002U);
}

// Resources may stand in the page itself, and refer to others from anywhere within.
TEST(PdfContentTest, ResourcesWithoutANumberOfTheirOwnGoAlong) {
  PdfDocument document;
  const std::string space = document.add("[/Indexed /DeviceRGB 1 <ff0000 000000>]").unparse();
  document.addPage(std::string(kPage) + "/Resources<</ColorSpace<</S[/Pattern " + space + "]/T " +
                       space + ">>/ExtGState<</G<</ca 1/D[[2 1] 0]>>>>>>",
                   "/G gs /T cs 0 sc 0 0 10 10 re f");
  Composed composed(document.bytes());
  ASSERT_EQ(composed.problem(), std::nullopt);
  EXPECT_EQ(composed.colourAt(5, 5), 0xff0000U);
  QPDF pdf;
  QPDFObjectHandle form =
      labelOf(pdf, composed, 0).getKey("/Resources").getKey("/XObject").getKey("/Page");
  QPDFObjectHandle spaces = form.getDict().getKey("/Resources").getKey("/ColorSpace");
  EXPECT_EQ(spaces.getKey("/S").getArrayItem(1).getObjGen(), spaces.getKey("/T").getObjGen());
}

TEST(PdfContentTest, PagesThatAreNotChosenAreLeftBehind) {
  PdfDocument document;
  for (int page = 0; page < 10; ++page) document.addPage(kPage, kCornerMark);
  CompositionRequest request = labelRequest();
  request.pages.most = 1;
  const Composed composed(document.bytes(), request);
  EXPECT_EQ(composed.report().documentPages, 10);
  EXPECT_EQ(composed.pages(), 1);
  EXPECT_EQ(countOf(composed, "/Form"), 1);
}

TEST(PdfContentTest, TheSameDocumentGivesTheSameBytes) {
  const std::string document = markedPdf(40, 80);
  EXPECT_EQ(Composed(document).pdf(), Composed(document).pdf());
}

struct AnnotationRow {
  const char* entries;
  bool isDrawn;
};

TEST(PdfContentTest, AnnotationsAreDrawnWhereTheyArePrinted) {
  const AnnotationRow rows[] = {
      {"/Subtype/Stamp/F 4", true},         {"/Subtype/Stamp", false},
      {"/Subtype/Stamp/F 6", false},        {"/Subtype/Stamp/F 5", true},
      {"/Subtype/Stamp/F 36", true},        {"/Subtype/Popup/F 4", false},
      {"/Subtype/Widget/FT/Sig/F 4", true}, {"/Subtype/FreeText/F 4", true},
  };
  for (const AnnotationRow& row : rows) {
    PdfDocument document;
    const std::string look = document.addStream("0 0 1 1 re f", "/BBox[0 0 1 1]");
    document.addPage(std::string(kPage) + "/Annots[<</Type/Annot/Rect[0 0 10 10]/AP<</N " + look +
                         ">>" + row.entries + ">>]",
                     "50 50 10 10 re f");
    Composed composed(document.bytes());
    ASSERT_EQ(composed.problem(), std::nullopt) << row.entries;
    EXPECT_TRUE(composed.isMarkedAt({50, 50, 60, 60})) << row.entries;
    EXPECT_EQ(composed.isBlackAt(5, 5), row.isDrawn) << row.entries;
  }
}

// One of them has a note above it: the content that they share is drawn as before on the other.
TEST(PdfContentTest, PagesMayShareTheirContentButNotTheirAnnotations) {
  PdfDocument document;
  const std::string look = document.addStream("0 0 1 1 re f", "/BBox[0 0 1 1]");
  const std::string content = document.addStream("50 50 10 10 re f");
  const std::string page = std::string(kPage) + "/Rotate 180/Contents " + content;
  document.addPage(page + "/Annots[<</Type/Annot/Subtype/Stamp/F 4/Rect[0 0 10 10]/AP<</N " + look +
                   ">>>>]");
  document.addPage(page);
  Composed composed(document.bytes());
  EXPECT_TRUE(composed.isMarkedAt({40, 140, 50, 150}, 0));
  EXPECT_TRUE(composed.isMarkedAt({90, 190, 100, 200}, 0));
  EXPECT_TRUE(composed.isMarkedAt({40, 140, 50, 150}, 1));
  EXPECT_TRUE(composed.isWhiteAt(95, 195, 1));
}

std::string formWithoutAppearances(const char* needAppearances) {
  PdfDocument document;
  QPDFObjectHandle font = document.add("<</Type/Font/Subtype/Type1/BaseFont/Helvetica-Bold>>");
  QPDFObjectHandle page = document.addPage(kPage);
  QPDFObjectHandle field = document.add(
      "<</Type/Annot/Subtype/Widget/FT/Tx/T(a)/V(MMMMMM)/F 4/Rect[0 0 100 30]"
      "/DA(/F 24 Tf 0 g)>>");
  page.replaceKey("/Annots", QPDFObjectHandle::newArray({field}));
  document.pdf().getRoot().replaceKey(
      "/AcroForm",
      QPDFObjectHandle::parse(&document.pdf(), "<</Fields[" + field.unparse() + "]/DR<</Font<</F " +
                                                   font.unparse() + ">>>>/DA(/F 24 Tf 0 g)" +
                                                   needAppearances + ">>"));
  return document.bytes();
}

bool hasInk(Composed& composed, const Area& area) {
  for (double x = area.left; x < area.right; x += 0.5) {
    for (double y = area.bottom; y < area.top; y += 0.5) {
      if (composed.isBlackAt(x, y)) return true;
    }
  }
  return false;
}

TEST(PdfContentTest, AFieldThatNeedsItsLookMadeGetsIt) {
  Composed needed(formWithoutAppearances("/NeedAppearances true"));
  ASSERT_EQ(needed.problem(), std::nullopt);
  EXPECT_TRUE(hasInk(needed, {0, 0, 100, 30}));
  EXPECT_FALSE(hasInk(needed, {0, 31, 100, 200}));
  Composed unneeded(formWithoutAppearances(""));
  EXPECT_FALSE(hasInk(unneeded, {0, 0, 100, 30}));
}

// A page with a mark in its lower left corner that is on a layer.
std::string layeredPdf(const std::string& settings, const std::string& layer = {}) {
  PdfDocument document;
  QPDFObjectHandle added = document.add("<</Type/OCG/Name(a)" + layer + ">>");
  const std::string reference = added.unparse();
  std::string withReference = settings;
  for (std::size_t at; (at = withReference.find('@')) != std::string::npos;)
    withReference.replace(at, 1, reference);
  document.pdf().getRoot().replaceKey(
      "/OCProperties", QPDFObjectHandle::parse(&document.pdf(), "<</OCGs[" + reference + "]/D<<" +
                                                                    withReference + ">>>>"));
  document.addPage(std::string(kPage) + "/Resources<</Properties<</L " + reference + ">>>>",
                   "/OC /L BDC 0 0 10 10 re f EMC");
  return document.bytes();
}

TEST(PdfContentTest, HiddenLayersStayHidden) {
  const struct {
    const char* settings;
    const char* layer;
    bool isShown;
  } rows[] = {
      {"", "", true},
      {"/ON[@]", "", true},
      {"/OFF[@]", "", false},
      {"/BaseState/OFF", "", false},
      {"/BaseState/OFF/ON[@]", "", true},
      {"/OFF[@]/AS[<</Event/Print/Category[/Print]/OCGs[@]>>]",
       "/Usage<</Print<</PrintState/ON>>>>", true},
      {"/AS[<</Event/Print/Category[/Print]/OCGs[@]>>]", "/Usage<</Print<</PrintState/OFF>>>>",
       false},
      {"/AS[<</Event/View/Category[/Print]/OCGs[@]>>]", "/Usage<</Print<</PrintState/OFF>>>>",
       true},
      // What says nothing of printing, or nothing that can be understood.
      {"/AS[<</Event/Print/OCGs[7 @]>>]", "", true},
      {"/AS[<</Event/Print/OCGs[@]>>]", "/Usage<</Print<<>>>>", true},
      {"/OFF[@]/AS[<</Event/Print/OCGs[@]>>]", "/Usage<</Print<</PrintState(ON)>>>>", false},
      {"/OFF[@]/AS[7]", "", false},
  };
  for (const auto& row : rows) {
    Composed composed(layeredPdf(row.settings, row.layer));
    ASSERT_EQ(composed.problem(), std::nullopt) << row.settings;
    EXPECT_EQ(composed.isBlackAt(5, 5), row.isShown) << row.settings;
  }
}

TEST(PdfContentTest, TheLayersOfSeveralDocumentsStayApart) {
  const std::string shown = layeredPdf("");
  const std::string hidden = layeredPdf("/OFF[@]");
  Composed composed({shown, hidden, shown});
  EXPECT_TRUE(composed.isBlackAt(5, 5, 0));
  EXPECT_TRUE(composed.isWhiteAt(5, 5, 1));
  EXPECT_TRUE(composed.isBlackAt(5, 5, 2));
}

TEST(PdfContentTest, TheLayersOfADocumentThatNobodyAsksForStayBehind) {
  CompositionRequest request = labelRequest();
  request.pages.ranges = *PageRanges::parse("2");
  const Composed composed({layeredPdf(""), layeredPdf("/OFF[@]")}, request);
  EXPECT_EQ(composed.pages(), 1);
  const std::size_t layer = composed.pdf().find("/Type /OCG");
  ASSERT_NE(layer, std::string::npos);
  EXPECT_EQ(composed.pdf().find("/Type /OCG", layer + 1), std::string::npos);
}

TEST(PdfContentTest, AnAnnotationOnAHiddenLayerStaysHidden) {
  for (const char* settings : {"/OFF[", "/ON["}) {
    PdfDocument document;
    const std::string layer = document.add("<</Type/OCG/Name(a)>>").unparse();
    document.pdf().getRoot().replaceKey(
        "/OCProperties", QPDFObjectHandle::parse(&document.pdf(), "<</OCGs[" + layer + "]/D<<" +
                                                                      settings + layer + "]>>>>"));
    const std::string look = document.addStream("0 0 1 1 re f", "/BBox[0 0 1 1]");
    document.addPage(std::string(kPage) +
                     "/Annots[<</Type/Annot/Subtype/Stamp/F 4/Rect[0 0 10 10]/AP<</N " + look +
                     ">>/OC " + layer + ">>]");
    Composed composed(document.bytes());
    EXPECT_EQ(composed.isBlackAt(5, 5), std::string(settings) == "/ON[");
  }
}

}  // namespace
}  // namespace cutline::test
