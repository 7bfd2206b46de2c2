#include <gtest/gtest.h>

#include "plain/PlainImage.h"
#include "plain/PlainView.h"
#include "plain/RecordingDrawingContext.h"
#include "tests/support/Printers.h"

namespace cutline {
namespace {

class RecordingDrawingContextTest : public testing::Test {
 protected:
  RecordingDrawingContext context;
  PlainView view{{}};
  PlainView other{{}};
};

TEST_F(RecordingDrawingContextTest, KeepsWhatWasDrawnOnWhichView) {
  const PlainImage image("/tape.svg", {264, 84});
  context.lockFocus(view);
  context.drawAtPoint(image, {3, 4}, {{1, 1}, {2, 2}}, CompositingOperation::sourceOver, 0.5);
  context.unlockFocus(view);
  ASSERT_EQ(context.drawnImages().size(), 1U);
  const DrawnImage& drawn = context.drawnImages()[0];
  EXPECT_EQ(drawn.path, "/tape.svg");
  EXPECT_EQ(drawn.point, (Point{3, 4}));
  EXPECT_EQ(drawn.fromRect, (Rect{{1, 1}, {2, 2}}));
  EXPECT_EQ(drawn.operation, CompositingOperation::sourceOver);
  EXPECT_EQ(drawn.fraction, 0.5);
  EXPECT_EQ(drawn.focusedView, &view);
}

TEST_F(RecordingDrawingContextTest, IsBalancedWhenEveryCallHasItsPartner) {
  EXPECT_TRUE(context.isBalanced());
  context.saveGraphicsState();
  context.lockFocus(view);
  EXPECT_FALSE(context.isBalanced());
  context.unlockFocus(view);
  EXPECT_FALSE(context.isBalanced());
  context.restoreGraphicsState();
  EXPECT_TRUE(context.isBalanced());
}

TEST_F(RecordingDrawingContextTest, ARestoreTooManyStaysAMismatch) {
  context.restoreGraphicsState();
  context.saveGraphicsState();
  EXPECT_FALSE(context.isBalanced());
}

TEST_F(RecordingDrawingContextTest, UnlockingAnotherViewIsAMismatch) {
  context.lockFocus(view);
  context.unlockFocus(other);
  context.unlockFocus(view);
  EXPECT_FALSE(context.isBalanced());
}

}  // namespace
}  // namespace cutline
