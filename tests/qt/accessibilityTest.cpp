#include <gtest/gtest.h>

#include <QLabel>
#include <QWidget>

#include "qt/accessibility.h"

namespace cutline {
namespace {

QAccessible::Role roleOf(QWidget& widget) {
  return QAccessible::queryAccessibleInterface(&widget)->role();
}

TEST(Accessibility, AWidgetIsWhatItIsSaidToBe) {
  QWidget graphic;
  setAccessibleRole(graphic, QAccessible::Graphic);
  tellAccessibleName(graphic, QStringLiteral("Tape"));
  tellAccessibleDescription(graphic, QStringLiteral("Cut twice"));
  QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(&graphic);
  EXPECT_EQ(spoken->role(), QAccessible::Graphic);
  EXPECT_EQ(spoken->text(QAccessible::Name), "Tape");
  EXPECT_EQ(spoken->text(QAccessible::Description), "Cut twice");
}

TEST(Accessibility, WhatNobodySaysAnythingOfIsLeftToQt) {
  QWidget plain;
  makeAccessible();
  makeAccessible();
  const QAccessible::Role qtsRole = roleOf(plain);
  EXPECT_NE(qtsRole, QAccessible::Graphic);
  QLabel label(QStringLiteral("Copies"));
  EXPECT_EQ(roleOf(label), QAccessible::StaticText);
}

}  // namespace
}  // namespace cutline
