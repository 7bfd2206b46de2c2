#include "platform/lib/LocalNotificationCenter.h"
#include "platform/ports/Platform.h"
#include "qt/QtView.h"
#include "tests/qt/QtPanelFixture.h"

namespace cutline {
namespace {

constexpr const char* kName = "NSViewDidUpdateTrackingAreasNotification";

class QtWindowWatcherTest : public QtPanelFixture {
 protected:
  QtWindowWatcherTest() {
    Platform platform = currentPlatform();
    platform.notificationCenter = &center;
    before = setCurrentPlatform(platform);
    observe(root);
  }
  ~QtWindowWatcherTest() override { setCurrentPlatform(before); }
  void observe(const std::shared_ptr<View>& view) {
    const NotificationObject object = static_cast<const void*>(view.get());
    center.addObserver(
        this, [this](const Notification&) { ++posted; }, kName, object);
  }
  void resize(QWidget& resized, int height) {
    posted = 0;
    resized.resize(500, height);
    QApplication::processEvents();
  }

  LocalNotificationCenter center;
  Platform before;
  int posted = 0;
};

TEST_F(QtWindowWatcherTest, RootReportsThatItsWindowHasGrown) {
  show();
  resize(*window, 501);
  EXPECT_GE(posted, 1);
}

TEST_F(QtWindowWatcherTest, ReportsTheFirstSizeOfTheWindowToo) {
  show();
  EXPECT_GE(posted, 1);
}

TEST_F(QtWindowWatcherTest, RootDeepInTheWindowReportsToo) {
  auto* const middle = new QWidget(window.get());
  (new QVBoxLayout(middle))->addWidget(QtToolkit::widgetOf(*root));
  window->layout()->addWidget(middle);
  show();
  resize(*window, 501);
  EXPECT_GE(posted, 1);
}

TEST_F(QtWindowWatcherTest, FollowsItsParentIntoAnotherWindow) {
  auto* const middle = new QWidget(window.get());
  (new QVBoxLayout(middle))->addWidget(QtToolkit::widgetOf(*root));
  window->layout()->addWidget(middle);
  show();
  QWidget other;
  (new QVBoxLayout(&other))->addWidget(middle);
  middle->show();
  other.show();
  QApplication::processEvents();
  resize(*window, 501);
  EXPECT_EQ(posted, 0);
  resize(other, 502);
  EXPECT_GE(posted, 1);
  window->layout()->addWidget(middle);
}

TEST_F(QtWindowWatcherTest, SubviewHasNoNewsOfItsOwn) {
  const auto inner = toolkit.createView({{0, 0}, {10, 10}});
  root->addSubview(inner);
  center.removeObserver(this, kName, {});
  observe(inner);
  show();
  resize(*window, 501);
  EXPECT_EQ(posted, 0);
}

TEST_F(QtWindowWatcherTest, ObserverMayLetGoOfTheView) {
  show();
  center.addObserver(&events, [this](const Notification&) { root.reset(); }, kName, {});
  resize(*window, 501);
  EXPECT_EQ(root, nullptr);
}

}  // namespace
}  // namespace cutline
