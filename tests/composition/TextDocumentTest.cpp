// Text and drawings, which a typesetter makes pages of, on labels of 100 by 200 points.
#include <gtest/gtest.h>

#include "tests/composition/Composed.h"
#include "tests/composition/FakeTypesetter.h"

namespace cutline::test {
namespace {

constexpr char kDrawing[] = "<svg xmlns=\"http://www.w3.org/2000/svg\"/>";

TEST(TextDocumentTest, TextHasTheRoomThatItsReaderSees) {
  const struct {
    int upright;
    Turn turn;
    double width, height;
    int degrees;
    Area mark;
  } rows[] = {
      {0, Turn::automatic, 80, 160, 0, {10, 20, 20, 30}},
      {90, Turn::automatic, 160, 80, 90, {10, 170, 20, 180}},
      {270, Turn::automatic, 160, 80, 270, {80, 20, 90, 30}},
      {90, Turn::portrait, 80, 160, 0, {10, 20, 20, 30}},
      {0, Turn::reverseLandscape, 160, 80, 90, {10, 170, 20, 180}},
      {0, Turn::landscape, 160, 80, 270, {80, 20, 90, 30}},
      {90, Turn::reversePortrait, 80, 160, 180, {80, 170, 90, 180}},
  };
  for (const auto& row : rows) {
    CompositionRequest request = labelRequest();
    request.label.upright = row.upright;
    request.layout.turn = row.turn;
    FakeTypesetter typesetter;
    Composed composed("one\ntwo\n", request, &typesetter);
    ASSERT_EQ(composed.pages(), 2);
    EXPECT_EQ(typesetter.mRoom.width, row.width);
    EXPECT_EQ(typesetter.mRoom.height, row.height);
    EXPECT_FALSE(typesetter.mRoom.isEndless);
    EXPECT_EQ(composed.report().pages[1].turn, row.degrees);
    EXPECT_TRUE(composed.isMarkedAt(row.mark, 1)) << row.upright << ' ' << row.degrees;
  }
}

// Even a text whose room is square, or wider than high, on a tape that is read along.
TEST(TextDocumentTest, TextOnAShortLabelIsStillReadAlongTheTape) {
  CompositionRequest request = labelRequest();
  request.label = {100, 60, 10, 10, 90, 50, 90, 90};
  FakeTypesetter typesetter;
  Composed composed("one\n", request, &typesetter);
  EXPECT_EQ(typesetter.mRoom.width, 40);
  EXPECT_EQ(composed.report().pages.at(0).turn, 90);
  EXPECT_TRUE(composed.isMarkedAt({10, 40, 20, 50}));
}

TEST(TextDocumentTest, TextOnContinuousTapeIsAsLongAsItIs) {
  CompositionRequest request = labelRequest();
  request.label.upright = 90;
  request.label.isContinuous = true;
  request.lengthBounds = {30, 1000};
  FakeTypesetter typesetter;
  Composed composed("one\n", request, &typesetter);
  EXPECT_TRUE(typesetter.mRoom.isEndless);
  EXPECT_EQ(typesetter.mRoom.width, 960);
  EXPECT_EQ(typesetter.mRoom.height, 80);
  EXPECT_DOUBLE_EQ(composed.report().label.length, 190);
  EXPECT_TRUE(composed.isMarkedAt({10, 160, 20, 170}));
}

TEST(TextDocumentTest, NoMoreIsSetThanIsNeeded) {
  struct Row {
    PageSelection pages;
    int most;
  };
  Row rows[] = {{{}, 0}, {{}, 2}, {{}, 0}, {{}, 0}, {{}, 0}};
  for (Row& row : rows) row.pages.most = 2;
  rows[0].pages.most = 0;
  rows[2].pages.isReversed = true;
  rows[3].pages.set = PageSet::even;
  rows[4].pages.ranges = *PageRanges::parse("2-3");
  for (const Row& row : rows) {
    CompositionRequest request = labelRequest();
    request.pages = row.pages;
    request.text = {TextUnit::line, "Serif", 9};
    FakeTypesetter typesetter;
    const Composed composed("one\ntwo\nthree\nfour\n", request, &typesetter);
    EXPECT_EQ(typesetter.mMost, row.most);
    EXPECT_EQ(typesetter.mSettings, request.text);
    EXPECT_EQ(composed.report().isPartial, row.most > 0);
    EXPECT_EQ(composed.problem(), std::nullopt);
  }
}

TEST(TextDocumentTest, ADrawingIsAPageLikeAnyOther) {
  FakeTypesetter typesetter;
  Composed stated(kDrawing, labelRequest(), &typesetter);
  EXPECT_TRUE(stated.isMarkedAt({30, 60, 40, 70}));
  typesetter.mIsStated = false;
  Composed unstated(kDrawing, labelRequest(), &typesetter);
  EXPECT_TRUE(unstated.isMarkedAt({10, 20, 30, 40}));
}

TEST(TextDocumentTest, WhatATypesetterRefusesIsRefused) {
  FakeTypesetter typesetter;
  typesetter.mProblem = TypesetProblem{DocumentProblem::tooLarge, "9000"};
  for (const char* document : {"one\n", kDrawing}) {
    const Composed composed({markedPdf(10, 10), document}, labelRequest(), &typesetter);
    ASSERT_EQ(composed.problem(), DocumentProblem::tooLarge);
    EXPECT_EQ(composed.report().failure->document, 1);
    EXPECT_EQ(composed.report().failure->detail, "9000");
  }
}

// Its labels are as large as fits all of them: the first alone might be larger.
TEST(TextDocumentTest, AShortTextIsSetAtOnceWhereThatIsAskedFor) {
  for (const bool isShort : {true, false}) {
    CompositionRequest request = labelRequest();
    request.text.unit = TextUnit::line;
    request.pages.most = 1;
    request.takesAllWhereFew = true;
    FakeTypesetter typesetter;
    const std::string text = isShort ? "one\ntwo\n" : std::string(600, 'a') + "\ntwo\n";
    const Composed composed(text, request, &typesetter);
    EXPECT_EQ(composed.report().isPartial, !isShort);
    EXPECT_EQ(composed.pages(), isShort ? 2 : 1);
  }
}

TEST(TextDocumentTest, WithoutATypesetterTheModuleIsMissing) {
  for (const char* document : {"one\n", kDrawing})
    EXPECT_EQ(Composed(document).problem(), DocumentProblem::missingModule);
}

}  // namespace
}  // namespace cutline::test
