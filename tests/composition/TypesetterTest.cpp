#include <gtest/gtest.h>
#include <poppler-document.h>
#include <poppler-font.h>
#include <poppler-page-renderer.h>
#include <poppler-page.h>

#include <algorithm>
#include <ctime>
#include <memory>
#include <optional>

#include "composition/typeset/LibraryTypesetter.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

constexpr double kScale = 4;  // dots a point
constexpr TextRoom kRoom{140, 62, false};
const TextSettings kLines{TextUnit::line, "", 0};

struct Ink {
  double left, top, right, bottom;  // points from the page's upper left corner
};

// A PDF that was set, as a reader of PDFs sees it.
class SetPages {
 public:
  explicit SetPages(TypesetPages pages)
      : mPages(std::move(pages)),
        mDocument(poppler::document::load_from_raw_data(mPages.pdf.data(),
                                                        static_cast<int>(mPages.pdf.size()))) {}

  bool isStated() const { return mPages.isStated; }
  int count() const { return mDocument ? mDocument->pages() : 0; }
  poppler::rectf size(int page = 0) const { return this->page(page)->page_rect(); }
  std::string text(int page = 0) const {
    const poppler::byte_array bytes = this->page(page)->text().to_utf8();
    std::string text(bytes.begin(), bytes.end());
    while (text.ends_with('\n') || text.ends_with('\f')) text.pop_back();
    return text;
  }

  // Nothing where the page is white.
  std::optional<Ink> ink(int page = 0) const {
    const poppler::image image = draw(page);
    int left = image.width(), top = image.height(), right = -1, bottom = -1;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) {
        if (isWhite(image, x, y)) continue;
        left = std::min(left, x);
        right = std::max(right, x);
        top = std::min(top, y);
        bottom = std::max(bottom, y);
      }
    if (right < 0) return std::nullopt;
    return Ink{left / kScale, top / kScale, (right + 1) / kScale, (bottom + 1) / kScale};
  }
  bool isWhiteAt(double x, double y) const {
    return isWhite(draw(0), static_cast<int>(x * kScale), static_cast<int>(y * kScale));
  }

  // The sizes of the text's letters on a page, one of each.
  std::vector<double> letterSizes(int page) const {
    std::vector<double> sizes;
    for (const poppler::text_box& box :
         this->page(page)->text_list(poppler::page::text_list_include_font))
      sizes.push_back(box.get_font_size());
    return sizes;
  }
  bool hasEmbeddedFonts() const {
    const auto fonts = mDocument->fonts();
    return !fonts.empty() && std::ranges::all_of(fonts, &poppler::font_info::is_embedded);
  }
  std::string firstFont() const { return mDocument->fonts().front().name(); }

 private:
  std::unique_ptr<poppler::page> page(int number) const {
    return std::unique_ptr<poppler::page>(mDocument->create_page(number));
  }
  poppler::image draw(int number) const {
    poppler::page_renderer renderer;
    renderer.set_image_format(poppler::image::format_argb32);
    return renderer.render_page(page(number).get(), 72 * kScale, 72 * kScale);
  }
  static bool isWhite(const poppler::image& image, int x, int y) {
    const auto* row =
        reinterpret_cast<const unsigned*>(image.const_data() + y * image.bytes_per_row());
    return (row[x] & 0xffffffU) == 0xffffffU;
  }

  TypesetPages mPages;
  std::unique_ptr<poppler::document> mDocument;
};

SetPages textSet(std::string_view text, const TextSettings& settings = {},
                 const TextRoom& room = kRoom, int most = 0) {
  LibraryTypesetter typesetter;
  TypesetPages pages;
  TypesetProblem problem;
  EXPECT_TRUE(typesetter.setText(text, room, settings, most, pages, problem)) << problem.detail;
  return SetPages(std::move(pages));
}

std::optional<DocumentProblem> problemOfText(std::string_view text,
                                             TextUnit unit = TextUnit::paragraph) {
  LibraryTypesetter typesetter;
  TypesetPages pages;
  TypesetProblem problem;
  if (typesetter.setText(text, kRoom, {unit, "", 0}, 0, pages, problem)) return std::nullopt;
  EXPECT_TRUE(pages.pdf.empty());
  return problem.problem;
}

SetPages drawingSet(const std::string& svg) {
  LibraryTypesetter typesetter;
  TypesetPages pages;
  TypesetProblem problem;
  EXPECT_TRUE(typesetter.setDrawing(svg, pages, problem))
      << static_cast<int>(problem.problem) << svg;
  return SetPages(std::move(pages));
}

std::optional<DocumentProblem> problemOfDrawing(const std::string& svg) {
  LibraryTypesetter typesetter;
  TypesetPages pages;
  TypesetProblem problem;
  if (typesetter.setDrawing(svg, pages, problem)) return std::nullopt;
  return problem.problem;
}

std::string drawing(const std::string& attributes, const std::string& contents) {
  return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' " +
         attributes + ">" + contents + "</svg>";
}

void expectInside(const SetPages& pages, const TextRoom& room) {
  for (int page = 0; page < pages.count(); ++page) {
    const std::optional<Ink> ink = pages.ink(page);
    ASSERT_TRUE(ink) << page;
    EXPECT_GT(ink->left, 0) << page;
    EXPECT_GT(ink->top, 0) << page;
    EXPECT_LT(ink->right, room.width) << page;
    EXPECT_LT(ink->bottom, room.height) << page;
  }
}

TEST(TypesetText, MakesALabelOfEachParagraph) {
  const SetPages pages = textSet("\xef\xbb\xbfShelf 12\r\nleft\r\n\r\n \t\n\nShelf 13\n");
  ASSERT_EQ(pages.count(), 2);
  EXPECT_EQ(pages.text(0), "Shelf 12\nleft");
  EXPECT_EQ(pages.text(1), "Shelf 13");
  EXPECT_NEAR(pages.size().width(), kRoom.width, 0.01);
  EXPECT_NEAR(pages.size().height(), kRoom.height, 0.01);
}

TEST(TypesetText, MakesALabelOfEachLine) {
  const SetPages pages = textSet("Shelf 12\nShelf 13\n\n\nShelf 14", kLines);
  ASSERT_EQ(pages.count(), 3);
  EXPECT_EQ(pages.text(1), "Shelf 13");
}

TEST(TypesetText, AFormFeedEndsALabel) {
  EXPECT_EQ(textSet("Shelf 12\fShelf 13\f").count(), 2);
  EXPECT_EQ(textSet("Shelf 12\fShelf 13\n", kLines).count(), 2);
}

TEST(TypesetText, ReadsEachKindOfLineEnd) {
  const SetPages pages = textSet("Shelf 12\rShelf 13\r\nShelf 14\nShelf 15\r", kLines);
  ASSERT_EQ(pages.count(), 4);
  EXPECT_EQ(pages.text(1), "Shelf 13");
  EXPECT_EQ(pages.text(3), "Shelf 15");
}

TEST(TypesetText, LeavesControlCharactersOut) {
  EXPECT_EQ(textSet("Shelf\x07 1\x7f"
                    "2\x1b")
                .text(0),
            "Shelf 12");
}

struct Script {
  const char* name;
  const char* text;
};
constexpr std::array kScripts = std::to_array<Script>({
    {"Latin", "Mikroskop Ång fjord"},
    {"italics that lean out", "fjord jag"},
    {"Arabic", "مجهر رقم ١٢"},
    {"Hebrew", "מיקרוסקופ"},
    {"Japanese", "顕微鏡 第三棚"},
    {"Thai", "กล้องจุลทรรศน์ที่นี้"},
    {"Devanagari", "सूक्ष्मदर्शी"},
    {"several", "Shelf 顕微鏡 مجهر"},
});

TEST(TypesetText, FitsTheRoomInAnyScript) {
  for (const Script& script : kScripts) {
    SCOPED_TRACE(script.name);
    for (const std::string& text :
         {std::string(script.text), std::string(script.text) + "\n" + script.text,
          std::string(script.text) + "\n\n" + script.text + " " + script.text})
      expectInside(textSet(text), kRoom);
  }
}

TEST(TypesetText, UsesTheRoom) {
  const std::optional<Ink> wide = textSet("A long name of a thing").ink();
  EXPECT_GT(wide->right - wide->left, 0.95 * kRoom.width);
  const std::optional<Ink> high = textSet("|").ink();
  EXPECT_GT(high->bottom - high->top, 0.8 * kRoom.height);
}

TEST(TypesetText, IsOfTheSameSizeOnAllLabels) {
  const SetPages pages = textSet("Shelf\n\nA long name of a thing\n\nTwo\nlines");
  ASSERT_EQ(pages.count(), 3);
  const double size = pages.letterSizes(1).front();
  for (const int page : {0, 2})
    for (const double letter : pages.letterSizes(page)) EXPECT_NEAR(letter, size, 0.01);
}

TEST(TypesetText, TheFirstLabelsAreTheSameWithoutTheOthers) {
  const std::string text = "Shelf\n\nDrawer\n\nA long name of a thing";
  const SetPages all = textSet(text);
  const SetPages first = textSet(text, {}, kRoom, 2);
  EXPECT_EQ(first.count(), 2);
  EXPECT_EQ(first.letterSizes(1), all.letterSizes(1));
}

TEST(TypesetText, StaysWholeWhileItCanBeRead) {
  EXPECT_EQ(textSet("A thing whose name is quite long").text(), "A thing whose name is quite long");
}

TEST(TypesetText, IsBrokenBetweenWordsWhereItWouldBeTooSmall) {
  std::string text;
  for (int word = 0; word < 40; ++word) text += "word" + std::to_string(word % 10) + ' ';
  const SetPages pages = textSet(text);
  expectInside(pages, kRoom);
  EXPECT_GT(pages.letterSizes(0).front(), 6);
  const std::string broken = pages.text();
  EXPECT_NE(broken.find('\n'), std::string::npos);
  for (std::size_t end = broken.find('\n'); end != std::string::npos;
       end = broken.find('\n', end + 1))
    EXPECT_TRUE(broken[end - 1] >= '0' && broken[end - 1] <= '9') << broken;
}

TEST(TypesetText, AWordIsBrokenWhereNothingElseHelps) {
  const SetPages pages = textSet("https://example.org/" + std::string(150, 'a'));
  expectInside(pages, kRoom);
  EXPECT_NE(pages.text().find('\n'), std::string::npos);
}

TEST(TypesetText, ASingleLineIsInTheMiddle) {
  const SetPages pages = textSet("Tip\n\nA long name of a thing");
  const Ink ink = *pages.ink(0);
  EXPECT_NEAR(ink.left, kRoom.width - ink.right, 1);
}

TEST(TypesetText, SeveralLinesBeginWhereTheirScriptDoes) {
  const Ink latin = *textSet("Tip\nA\n\nA long name of a thing").ink(0);
  EXPECT_LT(latin.left, 2);
  EXPECT_LT(latin.right, kRoom.width / 2);
  const Ink arabic = *textSet("مجهر\nرقم\n\nA long name of a thing").ink(0);
  EXPECT_GT(arabic.right, kRoom.width - 2);
  EXPECT_GT(arabic.left, kRoom.width / 2);
}

TEST(TypesetText, HasTheSizeAndTheFontThatWereAskedFor) {
  const SetPages pages = textSet("Shelf", {TextUnit::paragraph, "DejaVu Sans Mono", 9});
  EXPECT_NEAR(pages.letterSizes(0).front(), 9, 0.01);
  EXPECT_NE(pages.firstFont().find("DejaVuSansMono"), std::string::npos) << pages.firstFont();
  EXPECT_TRUE(pages.hasEmbeddedFonts());
}

TEST(TypesetText, AFontThatIsMissingGivesWay) {
  EXPECT_EQ(textSet("Shelf", {TextUnit::paragraph, "No such font", 0}).text(), "Shelf");
}

TEST(TypesetText, ASizeThatIsTooLargeIsCutOff) {
  const SetPages pages = textSet("Shelf", {TextUnit::paragraph, "", 200});
  EXPECT_NEAR(pages.size().width(), kRoom.width, 0.01);
  EXPECT_EQ(pages.ink()->bottom, kRoom.height);
}

TEST(TypesetText, AnEndlessLabelIsAsLongAsItsText) {
  const TextRoom endless{0, 62, true};
  const SetPages pages = textSet("Tip\n\nA long name of a thing", {}, endless);
  ASSERT_EQ(pages.count(), 2);
  EXPECT_LT(pages.size(0).width(), 140);
  EXPECT_GT(pages.size(1).width(), 400);
  for (int page = 0; page < 2; ++page) {
    const Ink ink = *pages.ink(page);
    EXPECT_GT(ink.left, 0);
    EXPECT_LT(ink.right, pages.size(page).width());
    EXPECT_GT(ink.right - ink.left, 0.95 * pages.size(page).width() - 5);
  }
}

TEST(TypesetText, AnEndlessLabelIsNoLongerThanItMayBe) {
  const TextRoom endless{300, 62, true};
  std::string text;
  for (int word = 0; word < 200; ++word) text += "word ";
  for (const std::string& label : {std::string("A long name of a thing"), text})
    EXPECT_LE(textSet(label, {}, endless).size().width(), 300.01);
  expectInside(textSet(text, {}, endless), endless);
}

TEST(TypesetText, RefusesWhatIsNoText) {
  EXPECT_EQ(problemOfText(""), DocumentProblem::empty);
  EXPECT_EQ(problemOfText(" \n\t\r\n\f"), DocumentProblem::empty);
  EXPECT_EQ(problemOfText("caf\xe9"), DocumentProblem::unknownKind);
}

TEST(TypesetText, RefusesTooMuch) {
  EXPECT_EQ(problemOfText(std::string(10'001, 'a')), DocumentProblem::tooLarge);
  std::string lines;
  for (int line = 0; line < 20'001; ++line) lines += "a\n";
  EXPECT_EQ(problemOfText(lines, TextUnit::line), DocumentProblem::tooManyPages);
}

TEST(TypesetText, SetsTenThousandLinesInSeconds) {
  std::string lines;
  for (int line = 0; line < 10'000; ++line)
    lines += "Room " + std::to_string(line) + ", shelf " + std::to_string(line % 7) + '\n';
  const std::clock_t start = std::clock();
  EXPECT_EQ(textSet(lines, kLines).count(), 10'000);
  const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  RecordProperty("seconds", std::to_string(seconds));
  std::printf("10,000 lines in %.2f s of the processor\n", seconds);
#ifndef __SANITIZE_ADDRESS__
  EXPECT_LT(seconds, 5);
#endif
}

TEST(TypesetDrawing, IsOfTheSizeThatItStates) {
  const SetPages pages =
      drawingSet(drawing("width='1in' height='48'", "<rect width='48' height='48'/>"));
  EXPECT_TRUE(pages.isStated());
  EXPECT_NEAR(pages.size().width(), 72, 0.01);
  EXPECT_NEAR(pages.size().height(), 36, 0.01);
  EXPECT_FALSE(pages.isWhiteAt(34, 18));
  EXPECT_TRUE(pages.isWhiteAt(38, 18));
}

TEST(TypesetDrawing, HasProportionsWhereItStatesNoSize) {
  const SetPages pages = drawingSet(
      drawing("viewBox='10 10 200 100'", "<rect x='10' y='10' width='100' height='100'/>"));
  EXPECT_FALSE(pages.isStated());
  EXPECT_NEAR(pages.size().width() / pages.size().height(), 2, 0.001);
  EXPECT_FALSE(pages.isWhiteAt(pages.size().width() * 0.48, 1));
  EXPECT_TRUE(pages.isWhiteAt(pages.size().width() * 0.52, 1));
}

TEST(TypesetDrawing, IsAsLargeAsWhatIsDrawnWhereItSaysNothing) {
  const SetPages pages = drawingSet(drawing("", "<rect x='50' y='50' width='80' height='40'/>"));
  EXPECT_FALSE(pages.isStated());
  EXPECT_NEAR(pages.size().width() / pages.size().height(), 2, 0.001);
  EXPECT_FALSE(pages.isWhiteAt(1, 1));
}

TEST(TypesetDrawing, RefusesWhatIsNoDrawing) {
  EXPECT_EQ(problemOfDrawing("<svg"), DocumentProblem::damaged);
  EXPECT_EQ(problemOfDrawing("<html/>"), DocumentProblem::damaged);
  EXPECT_EQ(problemOfDrawing(""), DocumentProblem::damaged);
  EXPECT_EQ(problemOfDrawing(drawing("width='1e9' height='1'", "")), DocumentProblem::badSize);
  EXPECT_EQ(problemOfDrawing(drawing("width='0' height='1'", "")), DocumentProblem::badSize);
  EXPECT_EQ(problemOfDrawing(drawing("width='1' height='0'", "")), DocumentProblem::badSize);
  EXPECT_EQ(problemOfDrawing(drawing("", "")), DocumentProblem::badSize);
}

// The whole page would be black if anything of the file were shown.
TEST(TypesetDrawing, ShowsNothingOfOtherFiles) {
  const test::TemporaryFolder folder;
  const std::string other = folder.write(
      "other.svg", drawing("width='48' height='48'", "<rect id='all' width='48' height='48'/>"));
  const std::string secret = folder.write("secret", "SECRET");
  const std::string entity = "<!DOCTYPE svg [<!ENTITY e SYSTEM 'file://" + secret + "'>]>";
  for (const std::string& contents :
       {"<image width='48' height='48' xlink:href='file://" + other + "'/>",
        "<image width='48' height='48' xlink:href='" + other + "'/>",
        "<use xlink:href='file://" + other + "#all'/>",
        "<xi:include xmlns:xi='http://www.w3.org/2001/XInclude' href='" + other + "'/>",
        std::string("<style>@import url('file:///etc/passwd');</style>")}) {
    const SetPages pages = drawingSet(drawing("width='48' height='48'", contents));
    EXPECT_FALSE(pages.ink()) << contents;
  }
  EXPECT_EQ(problemOfDrawing(entity + drawing("width='96' height='96'", "<text y='40'>&e;</text>")),
            DocumentProblem::damaged);
}

}  // namespace
}  // namespace cutline
