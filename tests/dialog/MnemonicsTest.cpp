// Letters for titles that come without.
#include <gtest/gtest.h>

#include <set>

#include "host/dialog/mnemonics.h"
#include "qt/QtText.h"

namespace cutline {

namespace {

QString letter(QChar character) { return character.isNull() ? QString() : QString(character); }

TEST(Mnemonics, TheLetterOfATextIsReadInUpperCase) {
  EXPECT_EQ(mnemonicIn(QStringLiteral("Pr&int")), QLatin1Char('I'));
  EXPECT_EQ(mnemonicIn(QStringLiteral("\u5370\u5237(&P)")), QLatin1Char('P'));
  EXPECT_TRUE(mnemonicIn(QStringLiteral("Black && white")).isNull());
  EXPECT_TRUE(mnemonicIn(QString()).isNull());
}

TEST(Mnemonics, TheFirstLetterIsTaken) {
  EXPECT_EQ(withMnemonics({QStringLiteral("Half cut")}, {}),
            QStringList(QStringLiteral("&Half cut")));
}

TEST(Mnemonics, TheStartOfAWordComesBeforeItsMiddle) {
  EXPECT_EQ(withMnemonics({QStringLiteral("Half cut")}, QStringLiteral("H")),
            QStringList(QStringLiteral("Half &cut")));
  EXPECT_EQ(withMnemonics({QStringLiteral("Half cut")}, QStringLiteral("HC")),
            QStringList(QStringLiteral("H&alf cut")));
}

TEST(Mnemonics, ATitleWhoseLettersAreAllTakenHasNone) {
  EXPECT_EQ(withMnemonics({QStringLiteral("Abba")}, QStringLiteral("AB")),
            QStringList(QStringLiteral("Abba")));
}

TEST(Mnemonics, ATitleGivesItsLetterUpToOneThatHasNoOther) {
  const QStringList texts = withMnemonics({QStringLiteral("ab"), QStringLiteral("aa")}, {});
  EXPECT_EQ(texts, (QStringList{QStringLiteral("a&b"), QStringLiteral("&aa")}));
}

TEST(Mnemonics, AnAmpersandOfTheTitleStaysWhatItIs) {
  const QStringList texts = withMnemonics({QStringLiteral("A & B")}, QStringLiteral("A"));
  EXPECT_EQ(texts, QStringList(QStringLiteral("A && &B")));
  EXPECT_EQ(withoutMark(texts.front()), QStringLiteral("A & B"));
}

TEST(Mnemonics, ATitleWithoutLatinLettersGetsAFreeOneBehindIt) {
  const QStringList texts = withMnemonics(
      {QStringLiteral("\u81ea\u52d5"), QStringLiteral("Cut"), QStringLiteral("\u7528\u7d19:")},
      QStringLiteral("A"));
  EXPECT_EQ(texts, (QStringList{QStringLiteral("\u81ea\u52d5(&B)"), QStringLiteral("&Cut"),
                                QStringLiteral("\u7528\u7d19(&D):")}));
}

TEST(Mnemonics, LettersThatNoKeyHasAreNotTaken) {
  EXPECT_EQ(withMnemonics({QStringLiteral("\u00c9tiquette")}, {}),
            QStringList(QStringLiteral("\u00c9&tiquette")));
}

TEST(Mnemonics, WithoutFreeLettersNothingIsPutBehind) {
  EXPECT_EQ(
      withMnemonics({QStringLiteral("\u81ea\u52d5")}, QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ")),
      QStringList(QStringLiteral("\u81ea\u52d5")));
}

TEST(Mnemonics, MoreTitlesThanLettersShareNone) {
  QStringList titles;
  for (int i = 0; i < 40; ++i) titles.append(QStringLiteral("Option number"));
  std::multiset<QString> letters;
  for (const QString& text : withMnemonics(titles, QStringLiteral("XYZ"))) {
    letters.insert(letter(mnemonicIn(text)));
  }
  letters.erase(QString());
  EXPECT_EQ(letters.size(), 10u);  // o p t i n u m b e r
  for (const QString& each : letters) EXPECT_EQ(letters.count(each), 1u) << each.toStdString();
}

}  // namespace

}  // namespace cutline
