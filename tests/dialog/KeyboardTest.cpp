#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QTest>
#include <map>
#include <set>

#include "host/dialog/PanelViews.h"
#include "host/dialog/mnemonics.h"
#include "platform/ports/Controls.h"
#include "qt/QtText.h"
#include "tests/dialog/DialogTest.h"
#include "tests/dialog/window_checks.h"

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

class KeyboardTest : public DialogTest, public testing::WithParamInterface<std::string> {
 protected:
  void open() {
    openQueue(GetParam());
    server().addInstance("tape", "halfcut", {{"LxHalfCut", "ON"}});
    click(buttonWithText<QPushButton>("&More printer options"));
  }
};

// Neither for the panel nor for those who hear it.
void expectPlainTitles(const View& view) {
  for (const std::shared_ptr<View>& subview : view.subviews()) {
    expectPlainTitles(*subview);
    const auto* box = dynamic_cast<const CheckBox*>(subview.get());
    if (!box || box->isHidden()) continue;
    EXPECT_EQ(box->title().find('&'), std::string::npos) << box->title();
    QAccessibleInterface* accessible =
        QAccessible::queryAccessibleInterface(QtToolkit::widgetOf(*subview));
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->text(QAccessible::Name).toStdString(), box->title());
  }
}

TEST_P(KeyboardTest, TheTabKeyReachesEveryControl) {
  open();
  expectTabReachesEveryControl(dialog());
}

TEST_P(KeyboardTest, TheTabKeyGoesFromThePrinterThroughThePanelToPrint) {
  open();
  named<QWidget>("Printer")->setFocus();
  std::vector<QString> names;
  for (std::size_t i = 0; i < controlsOf(dialog()).size(); ++i) {
    const QWidget* focus = QApplication::focusWidget();
    names.push_back(focus->accessibleName());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  const auto place = [&](const char* name) {
    return std::find(names.begin(), names.end(), QLatin1String(name)) - names.begin();
  };
  EXPECT_EQ(place("Printer"), 0);
  EXPECT_LT(place("Preset"), place("Copies"));
  EXPECT_LT(place("Copies"), place("Pages"));
  EXPECT_LT(place("Pages"), place("Paper"));
  EXPECT_LT(place("Paper"), place("Preview of the labels"));
  named<QWidget>("Printer")->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
  EXPECT_EQ(QApplication::focusWidget(), printButton());
}

TEST_P(KeyboardTest, EveryControlHasAnAccessibleName) {
  open();
  for (QWidget* control : controlsOf(dialog())) {
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(control);
    ASSERT_NE(accessible, nullptr) << describe(*control);
    EXPECT_FALSE(accessible->text(QAccessible::Name).trimmed().isEmpty()) << describe(*control);
  }
}

TEST_P(KeyboardTest, NoTwoControlsShareAMnemonic) {
  open();
  expectNoSharedMnemonic(dialog());
}

TEST_P(KeyboardTest, EveryBoxOfThePanelHasAMnemonic) {
  open();
  for (const QCheckBox* each : dialog().findChild<PanelFrame*>()->findChildren<QCheckBox*>()) {
    if (!each->isVisible()) continue;
    EXPECT_FALSE(mnemonicIn(each->text()).isNull()) << describe(*each);
  }
}

TEST_P(KeyboardTest, AMnemonicOfThePanelTicksItsBox) {
  open();
  auto* mirror = qobject_cast<QCheckBox*>(box("LxMirror"));
  const std::string before = sent()["LxMirror"];
  press(&dialog(), mnemonicIn(mirror->text()).unicode(), Qt::AltModifier);
  EXPECT_TRUE(waitUntil([&] { return sent()["LxMirror"] != before; }));
}

TEST_P(KeyboardTest, MnemonicsOfThePanelAreNotInItsTitles) {
  open();
  for (const PanelEntry& panel : model().panels()) expectPlainTitles(*panel.view);
}

TEST_P(KeyboardTest, SpaceTicksABoxOfThePanel) {
  open();
  QWidget* mirror = box("LxMirror");
  mirror->setFocus();
  const std::string before = sent()["LxMirror"];
  press(mirror, Qt::Key_Space);
  EXPECT_NE(sent()["LxMirror"], before);
}

TEST_P(KeyboardTest, MnemonicsReachTheirControls) {
  open();
  const std::map<int, const char*> expected = {{Qt::Key_P, "Printer"},
                                               {Qt::Key_E, "Preset"},
                                               {Qt::Key_C, "Copies"},
                                               {Qt::Key_A, "Pages"},
                                               {Qt::Key_R, "Paper"}};
  for (const auto& [key, name] : expected) {
    press(&dialog(), key, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), QLatin1String(name));
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, KeyboardTest,
                         testing::Values(samplePpd("tape-a"), samplePpd("tape-b"),
                                         samplePpd("roll")),
                         [](const auto& sample) {
                           const std::string& path = sample.param;
                           std::string name = path.substr(path.rfind('/') + 1);
                           name = name.substr(0, name.find('.'));
                           name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
                           return name;
                         });

}  // namespace

}  // namespace cutline
