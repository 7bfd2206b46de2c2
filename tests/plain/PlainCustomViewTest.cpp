#include <gtest/gtest.h>

#include "plain/PlainCustomView.h"
#include "plain/PlainImage.h"
#include "plain/RecordingDrawingContext.h"
#include "tests/support/Printers.h"

namespace cutline {
namespace {

class Client : public CustomViewClient {
 public:
  bool isFlipped() const noexcept override { return false; }
  void drawRect(const Rect& dirty, DrawingContext& context) noexcept override {
    ++draws;
    lastDirty = dirty;
    const PlainImage image("/tape.svg", {264, 84});
    context.drawAtPoint(image, {1, 2}, {}, CompositingOperation::sourceOver, 1);
  }
  std::string accessibilityLabel() const noexcept override { return words; }
  int draws = 0;
  std::string words;
  Rect lastDirty;
};

class PlainCustomViewTest : public testing::Test {
 protected:
  Client client;
  PlainCustomView view{{{280, 154}, {264, 84}}, &client};
  RecordingDrawingContext context;
};

TEST_F(PlainCustomViewTest, DrawsThroughItsClientInItsOwnCoordinates) {
  view.setNeedsDisplay(true);
  EXPECT_EQ(client.draws, 0);  // never inside of setNeedsDisplay
  view.draw(context);
  EXPECT_EQ(client.lastDirty, (Rect{{0, 0}, {264, 84}}));
  ASSERT_EQ(context.drawnImages().size(), 1U);
  EXPECT_EQ(context.drawnImages()[0].path, "/tape.svg");
  EXPECT_FALSE(view.needsDisplay());
}

TEST_F(PlainCustomViewTest, DrawsNothingWithoutAClientOrHidden) {
  view.setHidden(true);
  view.draw(context);
  view.setHidden(false);
  view.setClient(nullptr);
  view.draw(context);
  EXPECT_TRUE(context.drawnImages().empty());
}

TEST_F(PlainCustomViewTest, TheViewClassItselfDrawsNothing) {
  view.drawSuper({}, context);
  EXPECT_EQ(client.draws, 0);
  EXPECT_TRUE(context.drawnImages().empty());
}

TEST_F(PlainCustomViewTest, SaysWhatItsClientShowsNow) {
  EXPECT_EQ(view.accessibilityLabel(), "");
  client.words = "Auto cut on";
  EXPECT_EQ(view.accessibilityLabel(), "Auto cut on");
  client.words = "Auto cut off";
  EXPECT_EQ(view.accessibilityLabel(), "Auto cut off");
  view.setClient(nullptr);
  EXPECT_EQ(view.accessibilityLabel(), "");
}

TEST_F(PlainCustomViewTest, ALabelThatWasSetGoesBeforeTheClientsWords) {
  client.words = "Auto cut on";
  view.setAccessibilityLabel("Tape");
  EXPECT_EQ(view.accessibilityLabel(), "Tape");
  view.setAccessibilityLabel("");
  EXPECT_EQ(view.accessibilityLabel(), "Auto cut on");
}

}  // namespace
}  // namespace cutline
