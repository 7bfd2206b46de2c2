// What the form says reaches the model, and what the model has is what the form says.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QPushButton>
#include <QTest>
#include <cmath>

#include "host/dialog/LayoutForm.h"
#include "tests/dialog/DialogTest.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {

namespace {

class LayoutFormTest : public DialogTest {
 protected:
  void open(const std::string& ppd = "tape-a") {
    openQueue(samplePpd(ppd));
    click(named<QPushButton>("Change the layout"));
  }
  void choose(const char* list, const char* entry) {
    auto* combo = named<QComboBox>(list);
    ASSERT_TRUE(combo->isVisible()) << list;
    const int index = combo->findText(QString::fromUtf8(entry));
    ASSERT_GE(index, 0) << entry;
    combo->setCurrentIndex(index);
    emit combo->activated(index);
  }
  void type(const char* number, double value) {
    auto* field = named<QDoubleSpinBox>(number);
    ASSERT_TRUE(field->isVisible()) << number;
    field->setValue(value);
  }
  std::string shown(const char* list) {
    return named<QComboBox>(list)->currentText().toStdString();
  }
  LayoutSettings placing() { return model().jobLayout().placing; }
  template <typename Change>
  void setLayout(Change change) {
    JobLayout layout = model().jobLayout();
    change(layout);
    model().setJobLayout(layout);
  }
};

struct SizeRow {
  const char* title;
  Scaling scaling;
};
constexpr SizeRow kSizes[] = {{"Actual size", Scaling::actual},
                              {"Fit the label", Scaling::fit},
                              {"Fill the label", Scaling::fill},
                              {"Percent", Scaling::percent},
                              {"Automatic", Scaling::automatic}};

TEST_F(LayoutFormTest, EachSizeReachesTheModelAndTheComposer) {
  open();
  for (const SizeRow& row : kSizes) {
    choose("Size", row.title);
    EXPECT_EQ(placing().scaling, row.scaling);
    EXPECT_TRUE(waitUntil([&] {
      return composer().requests().back().layout.scaling == row.scaling;
    })) << row.title;
  }
}

TEST_F(LayoutFormTest, EachSizeOfTheModelIsShown) {
  open();
  for (const SizeRow& row : kSizes) {
    setLayout([&](JobLayout& layout) { layout.placing.scaling = row.scaling; });
    EXPECT_EQ(shown("Size"), row.title);
  }
}

TEST_F(LayoutFormTest, ThePercentageIsAskedForWhereItCounts) {
  open();
  EXPECT_FALSE(named<QWidget>("Percent of the document's size")->isVisible());
  choose("Size", "Percent");
  type("Percent of the document's size", 92);
  EXPECT_EQ(placing().percent, 92);
  setLayout([](JobLayout& layout) { layout.placing.percent = 35; });
  EXPECT_EQ(named<QDoubleSpinBox>("Percent of the document's size")->value(), 35);
}

struct TurnRow {
  const char* title;
  Turn onTape;
  Turn onRoll;
};
constexpr TurnRow kTurns[] = {
    {"0\u00b0", Turn::reverseLandscape, Turn::portrait},
    {"90\u00b0", Turn::reversePortrait, Turn::reverseLandscape},
    {"180\u00b0", Turn::landscape, Turn::reversePortrait},
    {"270\u00b0", Turn::portrait, Turn::landscape},
    {"Automatic", Turn::automatic, Turn::automatic},
};

TEST_F(LayoutFormTest, TurnsStartFromWhatAReaderHoldsUpright) {
  for (const bool isTape : {true, false}) {
    open(isTape ? "tape-a" : "roll");
    ASSERT_EQ(model().label().upright, isTape ? 90 : 0);
    for (const TurnRow& row : kTurns) {
      const Turn turn = isTape ? row.onTape : row.onRoll;
      choose("Turn", row.title);
      EXPECT_EQ(placing().turn, turn) << row.title;
      setLayout([](JobLayout& layout) { layout.placing.turn = Turn::automatic; });
      setLayout([&](JobLayout& layout) { layout.placing.turn = turn; });
      EXPECT_EQ(shown("Turn"), row.title);
    }
    closeDialog();
  }
}

struct PlaceOnStrip {
  const char* title;
  Position onTape;
  Position onRoll;
};
constexpr PlaceOnStrip kPlacesOnStrip[] = {
    {"Top", Position::right, Position::top},
    {"Bottom", Position::left, Position::bottom},
    {"Left", Position::top, Position::left},
    {"Right", Position::bottom, Position::right},
    {"Top left", Position::topRight, Position::topLeft},
    {"Top right", Position::bottomRight, Position::topRight},
    {"Bottom left", Position::topLeft, Position::bottomLeft},
    {"Bottom right", Position::bottomLeft, Position::bottomRight},
    {"Centre", Position::center, Position::center},
};

TEST_F(LayoutFormTest, PlacesAreThoseOnTheStrip) {
  for (const bool isTape : {true, false}) {
    open(isTape ? "tape-a" : "roll");
    for (const PlaceOnStrip& row : kPlacesOnStrip) {
      const Position place = isTape ? row.onTape : row.onRoll;
      choose("Place", row.title);
      EXPECT_EQ(placing().position, place) << row.title;
      setLayout([](JobLayout& layout) { layout.placing.position = Position::center; });
      setLayout([&](JobLayout& layout) { layout.placing.position = place; });
      EXPECT_EQ(shown("Place"), row.title);
    }
    closeDialog();
  }
}

TEST_F(LayoutFormTest, TextsHaveSettingsOfTheirOwn) {
  const test::TemporaryFolder folder;
  setPaths({folder.write("notes.txt", "one\n\ntwo\n")});
  open();
  choose("Labels", "One a line");
  EXPECT_EQ(model().jobLayout().text.unit, TextUnit::line);
  type("Text size", 14);
  EXPECT_EQ(model().jobLayout().text.size, 14);
  auto* fonts = named<QComboBox>("Font");
  ASSERT_GT(fonts->count(), 1);
  const std::string font = fonts->itemData(1).toString().toStdString();
  choose("Font", font.c_str());
  EXPECT_EQ(model().jobLayout().text.font, font);
  setLayout([](JobLayout& layout) { layout.text = {}; });
  EXPECT_EQ(shown("Labels"), "One a paragraph");
  EXPECT_EQ(shown("Font"), "Automatic");
  EXPECT_EQ(named<QDoubleSpinBox>("Text size")->text(), QStringLiteral("Automatic"));
}

TEST_F(LayoutFormTest, OtherDocumentsHaveNone) {
  open();
  for (const char* name : {"Labels", "Font", "Text size"})
    EXPECT_FALSE(named<QWidget>(name)->isVisible()) << name;
}

TEST_F(LayoutFormTest, ALengthOfOnesOwnBecomesThePaper) {
  open();
  ASSERT_TRUE(model().customLengths());
  EXPECT_EQ(shown("Length"), "Of the paper");
  choose("Length", "Fixed");
  type("Length in millimetres", 73);
  EXPECT_NEAR(model().currentPaper().length, 73 * kPointsPerMillimetre, 0.01);
  EXPECT_NEAR(model().currentPaper().width, 68.03, 0.01);
  EXPECT_EQ(shown("Length"), "Fixed");
  EXPECT_FALSE(shown("Paper").empty());
  choose("Length", "Of the paper");
  EXPECT_EQ(model().currentPaper().name, "W24H50");
  EXPECT_EQ(named<QComboBox>("Paper")->findData(QStringLiteral("Custom.68x283.5")), -1);
}

TEST_F(LayoutFormTest, TheContentsLengthBecomesThePapers) {
  composer().setContentLength(200);
  open();
  choose("Length", "Of the content");
  EXPECT_TRUE(model().jobLayout().followsContent);
  EXPECT_TRUE(waitUntil([this] { return std::abs(model().currentPaper().length - 200) < 0.01; }));
  const std::size_t asked = composer().requests().size();
  QTest::qWait(50);
  EXPECT_EQ(composer().requests().size(), asked) << "its own answer is no new question";
  EXPECT_EQ(shown("Length"), "Of the content");
}

TEST_F(LayoutFormTest, APaperThatIsChosenBringsItsLength) {
  open();
  choose("Length", "Of the content");
  choose("Paper", "Tape 24 mm, label 30 mm");
  EXPECT_FALSE(model().jobLayout().followsContent);
  EXPECT_EQ(model().currentPaper().name, "W24H30");
  EXPECT_EQ(shown("Length"), "Of the paper");
}

TEST_F(LayoutFormTest, APrinterOfNamedSizesOffersNoLength) {
  open("roll");
  if (model().customLengths()) GTEST_SKIP() << "this printer takes any length";
  EXPECT_FALSE(named<QWidget>("Length")->isVisible());
}

TEST_F(LayoutFormTest, TheLineSaysWhatIsChosen) {
  open();
  EXPECT_TRUE(shows(QStringLiteral("Automatic \u00b7 Centre")));
  choose("Size", "Percent");
  type("Percent of the document's size", 92);
  choose("Turn", "180\u00b0");
  choose("Place", "Top left");
  EXPECT_TRUE(shows(QStringLiteral("92 % \u00b7 180\u00b0 \u00b7 Top left")));
}

TEST_F(LayoutFormTest, IsShownAtAClickAndHiddenAtAnother) {
  openQueue(samplePpd("tape-a"));
  auto* form = dialog().findChild<LayoutForm*>();
  EXPECT_FALSE(form->isVisible());
  click(named<QPushButton>("Change the layout"));
  EXPECT_TRUE(form->isVisible());
  click(named<QPushButton>("Change the layout"));
  EXPECT_FALSE(form->isVisible());
}

TEST_F(LayoutFormTest, WhatWasAskedForIsShown) {
  AskedSettings asked;
  asked.options = {{"natural-scaling", "60"}};
  openQueue(samplePpd("tape-a"), asked);
  EXPECT_TRUE(shows(QStringLiteral("60 %")))
      << dialog().findChild<LayoutForm*>()->words().toStdString();
}

}  // namespace

}  // namespace cutline
