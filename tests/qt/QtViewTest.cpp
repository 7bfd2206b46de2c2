#include <QPointer>

#include "platform/ports/Controls.h"
#include "tests/qt/QtPanelFixture.h"
#include "tests/support/Printers.h"

namespace cutline {
namespace {

class QtViewTest : public QtPanelFixture {
 protected:
  std::shared_ptr<View> addedView(const Rect& frame, Autoresizing autoresizing) {
    auto view = toolkit.createView(frame);
    view->setAutoresizing(autoresizing);
    root->addSubview(view);
    return view;
  }
  static QRect placeOf(View& view) { return QtToolkit::widgetOf(view)->geometry(); }
};

TEST_F(QtViewTest, FramesGrowUpwardsWidgetsDownwards) {
  const auto view = addedView({{10, 20}, {30, 40}}, Autoresizing::none);
  EXPECT_EQ(placeOf(*view), QRect(10, 200 - 20 - 40, 30, 40));
  view->setFrameOrigin({11, 0});
  EXPECT_EQ(placeOf(*view), QRect(11, 160, 30, 40));
  view->setFrameSize({5, 200});
  EXPECT_EQ(placeOf(*view), QRect(11, 0, 5, 200));
  EXPECT_EQ(view->frame(), (Rect{{11, 0}, {5, 200}}));
}

TEST_F(QtViewTest, ControlsOfAnInterfaceFileStayAtTheTopWhenThePanelShrinks) {
  const auto box = addedView({{0, 162}, {20, 22}}, Autoresizing::minYMargin);
  const auto preview = addedView({{0, 50}, {20, 30}}, Autoresizing::none);
  root->setFrameSize({300, 150});
  EXPECT_EQ(box->frame().origin.y, 112);
  EXPECT_EQ(placeOf(*box).y(), 16);
  EXPECT_EQ(preview->frame().origin.y, 50);
  EXPECT_EQ(placeOf(*preview).y(), 150 - 50 - 30);
}

TEST_F(QtViewTest, SubviewsAreReplacedAtOnceThoughNothingIsShownYet) {
  const auto middle = addedView({{0, 0}, {100, 100}}, Autoresizing::none);
  const auto inner = toolkit.createView({{0, 0}, {10, 10}});
  middle->addSubview(inner);
  EXPECT_EQ(placeOf(*inner).y(), 90);
  middle->setFrameSize({100, 60});
  EXPECT_EQ(placeOf(*inner).y(), 50);
}

TEST_F(QtViewTest, TouchingFramesKeepTouchingAtFractions) {
  const auto lower = addedView({{0, 0.5}, {10, 10.3}}, Autoresizing::none);
  const auto upper = addedView({{0, 10.8}, {10, 10.3}}, Autoresizing::none);
  EXPECT_EQ(placeOf(*upper).bottom() + 1, placeOf(*lower).top());
}

TEST_F(QtViewTest, RootTakesTheSizeOfItsFrameInTheWindow) {
  show();
  EXPECT_EQ(placeOf(*root).size(), QSize(300, 200));
  root->setFrameSize({300, 150});
  QApplication::processEvents();
  EXPECT_EQ(placeOf(*root).size(), QSize(300, 150));
}

TEST_F(QtViewTest, HiddenAndEnabledAreIndependent) {
  const auto box = toolkit.createCheckBox({{0, 0}, {50, 22}});
  auto* const widget = put<QWidget>(box);
  show();
  box->setEnabled(false);
  EXPECT_FALSE(box->isHidden());
  EXPECT_TRUE(widget->isVisible());
  box->setHidden(true);
  box->setEnabled(true);
  EXPECT_TRUE(box->isHidden());
  EXPECT_FALSE(widget->isVisible());
  EXPECT_TRUE(box->isEnabled());
  box->setHidden(false);
  EXPECT_TRUE(widget->isVisible());
}

TEST_F(QtViewTest, HidingAViewDoesNotChangeTheFlagOfItsSubviews) {
  const auto middle = addedView({{0, 0}, {100, 100}}, Autoresizing::none);
  const auto inner = toolkit.createView({{0, 0}, {10, 10}});
  middle->addSubview(inner);
  show();
  middle->setHidden(true);
  EXPECT_FALSE(inner->isHidden());
  EXPECT_FALSE(QtToolkit::widgetOf(*inner)->isVisible());
  middle->setHidden(false);
  EXPECT_TRUE(QtToolkit::widgetOf(*inner)->isVisible());
}

TEST_F(QtViewTest, ViewAddedWhileTheWindowIsShownIsSeen) {
  show();
  const auto view = addedView({{0, 0}, {10, 10}}, Autoresizing::none);
  EXPECT_TRUE(QtToolkit::widgetOf(*view)->isVisible());
}

TEST_F(QtViewTest, UnhidingARootWithoutAWindowOpensNone) {
  const auto free = toolkit.createView({{0, 0}, {10, 10}});
  free->setHidden(true);
  free->setHidden(false);
  EXPECT_FALSE(QtToolkit::widgetOf(*free)->isVisible());
  window->layout()->addWidget(QtToolkit::widgetOf(*free));
  show();
  EXPECT_TRUE(QtToolkit::widgetOf(*free)->isVisible());
}

TEST_F(QtViewTest, HiddenRootStaysHiddenInTheWindow) {
  root->setHidden(true);
  show();
  EXPECT_FALSE(QtToolkit::widgetOf(*root)->isVisible());
  root->setHidden(false);
  EXPECT_TRUE(QtToolkit::widgetOf(*root)->isVisible());
}

TEST_F(QtViewTest, ReplacementTakesThePlaceInTheOrder) {
  const auto first = addedView({{0, 0}, {10, 10}}, Autoresizing::none);
  const auto placeholder = addedView({{0, 0}, {10, 10}}, Autoresizing::none);
  const auto last = addedView({{0, 0}, {10, 10}}, Autoresizing::none);
  const auto preview = toolkit.createView({{0, 0}, {10, 10}});
  root->replaceSubview(placeholder.get(), preview);
  EXPECT_EQ(root->subviews(), (std::vector<std::shared_ptr<View>>{first, preview, last}));
  EXPECT_EQ(placeholder->superview(), nullptr);
  EXPECT_EQ(QtToolkit::widgetOf(*placeholder)->parentWidget(), nullptr);
  EXPECT_FALSE(QtToolkit::widgetOf(*placeholder)->isVisible());
  EXPECT_EQ(preview->superview(), root.get());
  const QObjectList order = QtToolkit::widgetOf(*root)->children();
  EXPECT_LT(order.indexOf(QtToolkit::widgetOf(*preview)),
            order.indexOf(QtToolkit::widgetOf(*last)));
  EXPECT_GT(order.indexOf(QtToolkit::widgetOf(*preview)),
            order.indexOf(QtToolkit::widgetOf(*first)));
}

TEST_F(QtViewTest, ReplacingWhatIsNoSubviewDoesNothing) {
  const auto stranger = toolkit.createView({{0, 0}, {10, 10}});
  const auto preview = toolkit.createView({{0, 0}, {10, 10}});
  root->replaceSubview(stranger.get(), preview);
  root->replaceSubview(nullptr, preview);
  EXPECT_TRUE(root->subviews().empty());
  EXPECT_EQ(preview->superview(), nullptr);
}

TEST_F(QtViewTest, ViewMovesToItsNewSuperview) {
  const auto middle = addedView({{0, 0}, {100, 100}}, Autoresizing::none);
  const auto moving = addedView({{0, 0}, {10, 10}}, Autoresizing::none);
  middle->addSubview(moving);
  EXPECT_EQ(root->subviews().size(), 1U);
  EXPECT_EQ(moving->superview(), middle.get());
  EXPECT_EQ(placeOf(*moving).y(), 90);
}

TEST_F(QtViewTest, ViewNeverBecomesItsOwnSuperview) {
  const auto middle = addedView({{0, 0}, {100, 100}}, Autoresizing::none);
  middle->addSubview(root);
  middle->addSubview(middle);
  middle->addSubview(nullptr);
  EXPECT_TRUE(middle->subviews().empty());
  EXPECT_EQ(root->superview(), nullptr);
}

TEST_F(QtViewTest, SubviewHeldElsewhereOutlivesItsSuperview) {
  const auto inner = toolkit.createLabel({{0, 0}, {10, 10}});
  {
    const auto middle = toolkit.createView({{0, 0}, {100, 100}});
    middle->addSubview(inner);
  }
  EXPECT_EQ(inner->superview(), nullptr);
  ASSERT_NE(QtToolkit::widgetOf(*inner), nullptr);
  root->addSubview(inner);
  EXPECT_EQ(QtToolkit::widgetOf(*inner)->parentWidget(), QtToolkit::widgetOf(*root));
}

TEST_F(QtViewTest, AdapterThatDiesFirstTakesItsWidgetOutOfTheWindow) {
  const auto box = toolkit.createCheckBox({{0, 0}, {50, 22}});
  const QPointer<QWidget> boxWidget = put<QWidget>(box);
  const QPointer<QWidget> rootWidget = QtToolkit::widgetOf(*root);
  show();
  root.reset();
  EXPECT_TRUE(rootWidget.isNull());
  EXPECT_FALSE(boxWidget.isNull());
  EXPECT_EQ(window->layout()->count(), 0);
}

TEST_F(QtViewTest, WindowThatDiesFirstLeavesTheValues) {
  const auto box = toolkit.createCheckBox({{0, 0}, {50, 22}});
  box->setState(1);
  box->setTitle("Half cut");
  put<QWidget>(box);
  show();
  window.reset();
  EXPECT_EQ(QtToolkit::widgetOf(*box), nullptr);
  EXPECT_EQ(box->state(), 1);
  EXPECT_EQ(box->title(), "Half cut");
  box->setState(0);
  box->setHidden(true);
  box->setFrame({{1, 2}, {3, 4}});
  box->setNeedsDisplay(true);
  root->addSubview(toolkit.createLabel({{0, 0}, {10, 10}}));
  EXPECT_EQ(box->state(), 0);
  EXPECT_EQ(root->subviews().size(), 2U);
}

TEST_F(QtViewTest, PanelThatGoesInsideItsOwnActionIsSafe) {
  auto box = toolkit.createCheckBox({{0, 0}, {50, 22}});
  const QPointer<QWidget> widget = put<QWidget>(box);
  box->setAction([this](View*) { root.reset(); });
  box.reset();
  show();
  QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, 11));
  EXPECT_TRUE(events.empty());  // there is no sender left to tell of
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(widget.isNull());
}

TEST_F(QtViewTest, LowLabelIsGivenRoomForItsText) {
  const auto label = toolkit.createLabel({{0, 100}, {50, 2}});
  auto* const widget = put<QWidget>(label);
  EXPECT_GE(widget->height(), widget->fontMetrics().height());
  EXPECT_NEAR(widget->geometry().center().y(), 200 - 101, 1);
  EXPECT_EQ(label->frame().size.height, 2);
}

}  // namespace
}  // namespace cutline
