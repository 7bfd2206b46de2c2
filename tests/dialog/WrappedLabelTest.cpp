#include <gtest/gtest.h>

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

}  // namespace

}  // namespace cutline
