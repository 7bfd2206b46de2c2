#include <gtest/gtest.h>

#include "plain/PlainImage.h"
#include "plain/PlainView.h"
#include "plain/RecordingDrawingContext.h"
#include "tests/support/Printers.h"

namespace cutline {
namespace {

std::shared_ptr<PlainView> viewAt(double x, double y, double width, double height) {
  return std::make_shared<PlainView>(Rect{{x, y}, {width, height}});
}

class PlainViewTest : public testing::Test {
 protected:
  std::shared_ptr<PlainView> panel = viewAt(0, 0, 560, 284);
  std::shared_ptr<PlainView> first = viewAt(16, 246, 256, 22);
  std::shared_ptr<PlainView> second = viewAt(280, 154, 264, 84);
};

TEST_F(PlainViewTest, KeepsTheFlagsApart) {
  first->setHidden(true);
  EXPECT_TRUE(first->isHidden());
  panel->addSubview(second);
  panel->setHidden(true);
  EXPECT_FALSE(second->isHidden());
}

TEST_F(PlainViewTest, RemembersThatItIsToBeDrawn) {
  EXPECT_FALSE(first->needsDisplay());
  first->setNeedsDisplay(true);
  EXPECT_TRUE(first->needsDisplay());
}

TEST_F(PlainViewTest, OwnsItsSubviewsInOrder) {
  panel->addSubview(first);
  panel->addSubview(second);
  EXPECT_EQ(panel->subviews(), (std::vector<std::shared_ptr<View>>{first, second}));
  EXPECT_EQ(first->superview(), panel.get());
}

TEST_F(PlainViewTest, ASubviewMovesFromOneSuperviewToAnother) {
  const auto other = viewAt(0, 0, 10, 10);
  panel->addSubview(first);
  other->addSubview(first);
  EXPECT_TRUE(panel->subviews().empty());
  EXPECT_EQ(first->superview(), other.get());
}

TEST_F(PlainViewTest, ASubviewThatOutlivesItsSuperviewIsInNoTree) {
  panel->addSubview(first);
  panel.reset();
  EXPECT_EQ(first->superview(), nullptr);
}

TEST_F(PlainViewTest, NoViewGoesIntoItself) {
  panel->addSubview(first);
  panel->addSubview(panel);
  first->addSubview(panel);
  panel->addSubview(nullptr);
  EXPECT_EQ(panel->superview(), nullptr);
  EXPECT_TRUE(first->subviews().empty());
  EXPECT_EQ(panel->subviews().size(), 1U);
}

TEST_F(PlainViewTest, ReplacingPutsTheNewViewInTheOldOnesPlace) {
  const auto preview = viewAt(0, 0, 1, 1);
  panel->addSubview(first);
  panel->addSubview(second);
  panel->replaceSubview(first.get(), preview);
  EXPECT_EQ(panel->subviews(), (std::vector<std::shared_ptr<View>>{preview, second}));
  EXPECT_EQ(first->superview(), nullptr);
  EXPECT_EQ(preview->superview(), panel.get());
}

TEST_F(PlainViewTest, ReplacingBySiblingLeavesOneOfThem) {
  panel->addSubview(first);
  panel->addSubview(second);
  panel->replaceSubview(second.get(), first);
  EXPECT_EQ(panel->subviews(), (std::vector<std::shared_ptr<View>>{first}));
  EXPECT_EQ(second->superview(), nullptr);
}

TEST_F(PlainViewTest, ReplacingWhatIsNoSubviewDoesNothing) {
  panel->addSubview(first);
  panel->replaceSubview(second.get(), viewAt(0, 0, 1, 1));
  panel->replaceSubview(nullptr, second);
  panel->replaceSubview(first.get(), nullptr);
  panel->replaceSubview(first.get(), first);
  EXPECT_EQ(panel->subviews(), (std::vector<std::shared_ptr<View>>{first}));
  EXPECT_EQ(first->superview(), panel.get());
}

TEST_F(PlainViewTest, AControlOfTheInterfaceFileKeepsItsDistanceToTheTop) {
  first->setAutoresizing(Autoresizing::minYMargin);
  panel->addSubview(first);
  panel->setFrameSize({560, 180});
  EXPECT_EQ(first->frame(), (Rect{{16, 142}, {256, 22}}));
  panel->setFrameSize({560, 284});
  EXPECT_EQ(first->frame(), (Rect{{16, 246}, {256, 22}}));
}

TEST_F(PlainViewTest, AViewMadeInCodeKeepsItsOrigin) {
  panel->addSubview(second);
  panel->setFrameSize({560, 180});
  EXPECT_EQ(second->frame().origin, (Point{280, 154}));
}

TEST_F(PlainViewTest, MovingOrWideningASuperviewMovesNothingInIt) {
  first->setAutoresizing(Autoresizing::minYMargin);
  panel->addSubview(first);
  panel->setFrame({{50, 60}, {800, 284}});
  EXPECT_EQ(first->frame().origin, (Point{16, 246}));
}

TEST_F(PlainViewTest, OriginAndSizeAreSetOneWithoutTheOther) {
  first->setFrameOrigin({1, 2});
  EXPECT_EQ(first->frame(), (Rect{{1, 2}, {256, 22}}));
  first->setFrameSize({3, 4});
  EXPECT_EQ(first->frame(), (Rect{{1, 2}, {3, 4}}));
}

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
