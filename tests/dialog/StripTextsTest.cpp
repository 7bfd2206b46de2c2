#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetricsF>
#include <QImage>

#include "host/dialog/StripTexts.h"

namespace cutline {

namespace {

QImage drawn(StripTexts& texts, const QString& text) {
  QImage image(200, 40, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  texts.draw(painter, QPointF(10, 5), text);
  return image;
}

TEST(StripTextsTest, AreAsWideAsTheirLetters) {
  StripTexts texts;
  texts.setFont(QApplication::font());
  const QFontMetricsF metrics(QApplication::font());
  for (const QString& text : {QStringLiteral("1"), QStringLiteral("600"), QStringLiteral("7, x")})
    EXPECT_NEAR(texts.width(text), metrics.horizontalAdvance(text), 1) << text.toStdString();
}

TEST(StripTextsTest, LookTheSameEachTimeAndAfterManyOthers) {
  StripTexts texts;
  texts.setFont(QApplication::font());
  const QImage first = drawn(texts, QStringLiteral("12"));
  QImage empty(first.size(), first.format());
  empty.fill(Qt::white);
  EXPECT_NE(first, empty);
  EXPECT_NE(drawn(texts, QStringLiteral("21")), first);
  for (int number = 0; number < 2000; ++number) texts.width(QString::number(number));
  EXPECT_EQ(drawn(texts, QStringLiteral("12")), first);
}

TEST(StripTextsTest, FollowTheirFont) {
  StripTexts texts;
  texts.setFont(QApplication::font());
  const double before = texts.width(QStringLiteral("600"));
  QFont larger = QApplication::font();
  larger.setPointSizeF(larger.pointSizeF() * 2);
  texts.setFont(larger);
  EXPECT_GT(texts.width(QStringLiteral("600")), before * 1.5);
}

TEST(StripTextsTest, AreNoMarkup) {
  StripTexts texts;
  texts.setFont(QApplication::font());
  EXPECT_GT(texts.width(QStringLiteral("<b>1</b>")), 2 * texts.width(QStringLiteral("1")));
}

}  // namespace

}  // namespace cutline
