#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <array>

#include "host/dialog/ControlTexts.h"

namespace cutline {
namespace {

constexpr QRect kRoom(5, 3, 330, 44);
constexpr int kLabel =
    Qt::AlignLeft | Qt::TextWordWrap | Qt::TextExpandTabs | Qt::TextForceLeftToRight;
constexpr int kBox = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic;

struct TextCase {
  const char* name;
  const char* text;
  int flags;
};

void PrintTo(const TextCase& text, std::ostream* out) { *out << text.name; }

QImage ground(double ratio) {
  QImage picture(QSize(360, 60) * ratio, QImage::Format_RGB32);
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::white);
  return picture;
}

template <typename Drawing>
QImage drawn(double ratio, const QFont& font, Drawing drawing) {
  QImage picture = ground(ratio);
  QPainter painter(&picture);
  painter.setFont(font);
  painter.setPen(Qt::darkBlue);
  drawing(painter);
  return picture;
}

QImage drawnAsControl(ControlTexts& texts, const TextCase& text, double ratio, const QFont& font) {
  return drawn(ratio, font, [&](QPainter& painter) {
    EXPECT_TRUE(texts.draw(painter, kRoom, text.flags, QString::fromUtf8(text.text)));
  });
}

QImage drawnByToolkit(const TextCase& text, double ratio, const QFont& font) {
  return drawn(ratio, font, [&](QPainter& painter) {
    painter.drawText(kRoom, text.flags, QString::fromUtf8(text.text));
  });
}

class ControlTextsTest : public testing::TestWithParam<TextCase> {};

TEST_P(ControlTextsTest, LookAsTheToolkitDrawsThem) {
  ControlTexts texts;
  for (const double ratio : {1.0, 1.25, 2.0}) {
    for (const double size : {9.0, 12.5}) {
      QFont font;
      font.setPointSizeF(size);
      const QImage expected = drawnByToolkit(GetParam(), ratio, font);
      EXPECT_NE(expected, ground(ratio));
      for (int time = 0; time < 2; ++time)
        EXPECT_EQ(drawnAsControl(texts, GetParam(), ratio, font), expected)
            << ratio << " times, " << size << " pt";
    }
  }
}

const std::array kTexts = std::to_array<TextCase>({
    {"Box", "Half cut", kBox},
    {"Mnemonic", "&Half cut between labels", kBox},
    {"MnemonicWithin", "Chain printing (&saves tape)", kBox},
    {"WrittenSign", "Cut && print", kBox},
    {"SignAtTheEnd", "Cut &", kBox},
    {"SignWithoutMnemonics", "Cut & print", Qt::AlignLeft | Qt::AlignVCenter},
    {"Centred", "Print 12 labels", Qt::AlignCenter | Qt::TextShowMnemonic},
    {"RightBelow", "label(s)", Qt::AlignRight | Qt::AlignBottom},
    {"OneLine", "Tape 24 mm", Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine},
    {"Accents", "D\u00e9coupe \u00e0 mi-chair", kBox},
    {"Japanese", "\u30cf\u30fc\u30d5\u30ab\u30c3\u30c8(&H)", kBox},
    {"LabelOfAField", "&Copies:", kBox | Qt::TextForceLeftToRight},
    {"OneLineOfMany", "12 labels, cut after each label", kLabel},
    {"OneLineAbove", "12 labels, cut", kLabel | Qt::AlignTop},
    {"BlanksAround", " a b ", Qt::AlignCenter},
});

INSTANTIATE_TEST_SUITE_P(Texts, ControlTextsTest, testing::ValuesIn(kTexts),
                         [](const auto& info) { return std::string(info.param.name); });

class OtherTextsTest : public testing::TestWithParam<TextCase> {};

TEST_P(OtherTextsTest, AreLeftToTheToolkit) {
  ControlTexts texts;
  const QImage picture = drawn(1, QFont(), [&](QPainter& painter) {
    EXPECT_FALSE(texts.draw(painter, kRoom, GetParam().flags, QString::fromUtf8(GetParam().text)));
  });
  EXPECT_EQ(picture, ground(1));
}

const std::array kOthers = std::to_array<TextCase>({
    {"Empty", "", kBox},
    {"TwoLines", "one\ntwo", kBox},
    {"Tab", "one\ttwo", kBox},
    {"Wrapped", "12 labels, cut after each label, half cut between, 612 mm of tape", kLabel},
    {"HiddenMnemonic", "&Half cut", Qt::AlignLeft | Qt::TextHideMnemonic},
    {"FromRightToLeft", "\u05d7\u05d9\u05ea\u05d5\u05da", kBox},
    {"TooLong", "A text that is longer than all the room that there is for it in this test", kBox},
});

INSTANTIATE_TEST_SUITE_P(Texts, OtherTextsTest, testing::ValuesIn(kOthers),
                         [](const auto& info) { return std::string(info.param.name); });

// As of a window that is moved to another screen.
TEST(ControlTextsOfTwoScreens, AreAsLargeAsOnEach) {
  ControlTexts texts;
  const auto picture = [&texts](int dotsPerMetre, bool isControl) {
    QImage drawn = ground(1);
    drawn.setDotsPerMeterY(dotsPerMetre);
    drawn.setDotsPerMeterX(dotsPerMetre);
    QPainter painter(&drawn);
    painter.setFont(QFont(QFont(), &drawn));
    if (isControl)
      EXPECT_TRUE(texts.draw(painter, kRoom, kBox, QStringLiteral("&Half cut")));
    else
      painter.drawText(kRoom, kBox, QStringLiteral("&Half cut"));
    painter.end();
    return drawn;
  };
  for (const int dotsPerMetre : {3780, 5670, 3780})
    EXPECT_EQ(picture(dotsPerMetre, true), picture(dotsPerMetre, false)) << dotsPerMetre;
  EXPECT_NE(picture(3780, true), picture(5670, true));
}

TEST(ManyControlTexts, AreForgottenAndDrawnAgain) {
  ControlTexts texts;
  for (int i = 0; i < 2000; ++i) {
    const std::string words = "Label " + std::to_string(i % 700);
    const TextCase text{"Many", words.c_str(), kBox};
    if (i % 97 != 0) {
      drawnAsControl(texts, text, 1, QFont());
      continue;
    }
    EXPECT_EQ(drawnAsControl(texts, text, 1, QFont()), drawnByToolkit(text, 1, QFont())) << i;
  }
}

}  // namespace
}  // namespace cutline
