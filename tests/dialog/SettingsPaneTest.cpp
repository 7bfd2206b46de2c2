#include <gtest/gtest.h>

#include <QScrollBar>
#include <QVBoxLayout>

#include "host/dialog/SettingsPane.h"

namespace cutline::test {

namespace {

QWidget* block(int width, int height) {
  auto* widget = new QWidget;
  widget->setFixedSize(width, height);
  return widget;
}

// Shown in a window of 1000 pixels; nothing that waits for the loop of events has come.
struct ShownPane {
  explicit ShownPane(int height)
      : pane(new SettingsPane(new QWidget, block(300, 200), block(200, 200))) {
    (new QVBoxLayout(&window))->addWidget(pane);
    window.resize(1000, height);
    window.show();
  }

  QWidget window;
  SettingsPane* pane;
};

TEST(SettingsPaneInItsFirstFrame, HasNoBarsWhereAllIsSeen) {
  const ShownPane shown(600);
  EXPECT_FALSE(shown.pane->horizontalScrollBar()->isVisible());
  EXPECT_FALSE(shown.pane->verticalScrollBar()->isVisible());
}

TEST(SettingsPaneInItsFirstFrame, HasABarWhereThereIsMore) {
  const ShownPane shown(150);
  EXPECT_TRUE(shown.pane->verticalScrollBar()->isVisible());
}

}  // namespace

}  // namespace cutline::test
