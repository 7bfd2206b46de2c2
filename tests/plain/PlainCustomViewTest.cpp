#include <gtest/gtest.h>

#include "plain/PlainCustomView.h"
#include "plain/PlainImage.h"
#include "plain/RecordingDrawingContext.h"

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
  int draws = 0;
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

}  // namespace
}  // namespace cutline
