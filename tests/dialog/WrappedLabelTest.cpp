#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <QVBoxLayout>

#include "host/dialog/WrappedLabel.h"

namespace cutline {

namespace {

constexpr int kNarrow = 80;
constexpr int kWide = 600;

const QString kLong = QStringLiteral("12 labels, cut after each label: 12 pieces, 612 mm of tape");

TEST(WrappedLabelTest, IsAsHighAsTheToolkitsOwn) {
  WrappedLabel label;
  QLabel plain;
  plain.setWordWrap(true);
  for (const QString& text : {kLong, QStringLiteral("1"), QString(), kLong + kLong}) {
    label.setText(text);
    plain.setText(text);
    for (const int width : {kNarrow, kWide, kNarrow})
      EXPECT_EQ(label.heightForWidth(width), plain.heightForWidth(width)) << width;
  }
}

TEST(WrappedLabelTest, FollowsItsFont) {
  WrappedLabel label;
  label.setText(kLong);
  const int before = label.heightForWidth(kWide);
  QFont larger = label.font();
  larger.setPointSizeF(larger.pointSizeF() * 3);
  label.setFont(larger);
  EXPECT_GT(label.heightForWidth(kWide), before);
}

// A window whose layout holds a room for a text, and notes when it is asked to lay out again.
class RoomWindow : public QWidget {
 public:
  RoomWindow() : mRoom(new LabelRoom(this)) {
    auto* column = new QVBoxLayout(this);
    column->addWidget(mRoom);
    column->addStretch(1);
  }

  LabelRoom& room() const { return *mRoom; }
  // Whether a new text has had the window laid out.
  bool isLaidOutFor(const QString& text) {
    QCoreApplication::processEvents();
    mIsLaidOut = false;
    mRoom->setText(text);
    QCoreApplication::processEvents();
    return mIsLaidOut;
  }

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::LayoutRequest) mIsLaidOut = true;
    return QWidget::event(event);
  }

 private:
  LabelRoom* mRoom;
  bool mIsLaidOut = false;
};

TEST(LabelRoomTest, AsksForHeightAlone) {
  RoomWindow window;
  window.resize(kWide, kWide);
  window.room().setText(kLong);
  window.show();
  const int oneLine = window.room().height();
  EXPECT_FALSE(window.isLaidOutFor(QStringLiteral("12 labels")));
  EXPECT_EQ(window.room().height(), oneLine);
  EXPECT_TRUE(window.isLaidOutFor(kLong + kLong + kLong));
  EXPECT_GT(window.room().height(), oneLine);
  EXPECT_TRUE(window.isLaidOutFor(kLong));
  EXPECT_EQ(window.room().height(), oneLine);
}

TEST(LabelRoomTest, IsAsLargeAsItsLabel) {
  RoomWindow window;
  window.room().setText(kLong);
  window.resize(kNarrow, kWide);
  window.show();
  const LabelRoom& room = window.room();
  EXPECT_EQ(room.label().geometry(), room.rect());
  EXPECT_EQ(room.height(), room.label().heightForWidth(room.width()));
}

TEST(LabelRoomTest, GrowsWithItsFont) {
  RoomWindow window;
  window.room().setText(kLong);
  window.resize(kWide, kWide);
  window.show();
  const int before = window.room().height();
  QFont larger = window.font();
  larger.setPointSizeF(larger.pointSizeF() * 2);
  window.setFont(larger);
  QCoreApplication::processEvents();
  EXPECT_GT(window.room().height(), before);
  EXPECT_EQ(window.room().label().font().pointSizeF(), larger.pointSizeF());
}

}  // namespace

}  // namespace cutline
