#include <gtest/gtest.h>

#include "plain/PlainPopUpButton.h"
#include "plain/PlainToolkit.h"
#include "tests/plain/ActionLog.h"

namespace cutline {
namespace {

class PlainPopUpButtonTest : public testing::Test {
 protected:
  void SetUp() override {
    toolkit.setActionObserver(&log);
    popUp->setAction(log.action());
  }

  void addThree() {
    popUp->addItem({"Off", 4, "/off.svg", "Cut by hand"});
    popUp->addItem({"On", 8, {}, "Cut automatically"});
    popUp->addItem({"Special", 12, {}, "Special tape"});
  }

  std::vector<int> tags() const {
    std::vector<int> result;
    for (const PopUpItem& item : popUp->items()) result.push_back(item.tag);
    return result;
  }

  ActionLog log;
  PlainToolkit toolkit;
  std::shared_ptr<PopUpButton> popUp = toolkit.createPopUpButton({});
};

TEST_F(PlainPopUpButtonTest, WithoutEntriesNothingIsSelected) {
  EXPECT_EQ(popUp->selectedTag(), 0);
  EXPECT_FALSE(popUp->selectItemWithTag(0));
}

TEST_F(PlainPopUpButtonTest, TheFirstEntryAddedIsSelected) {
  addThree();
  EXPECT_EQ(popUp->selectedTag(), 4);
}

TEST_F(PlainPopUpButtonTest, SelectsByTagWithoutAnAction) {
  addThree();
  EXPECT_TRUE(popUp->selectItemWithTag(12));
  EXPECT_EQ(popUp->selectedTag(), 12);
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainPopUpButtonTest, AnUnknownTagChangesNothing) {
  addThree();
  popUp->selectItemWithTag(8);
  EXPECT_FALSE(popUp->selectItemWithTag(5));
  EXPECT_FALSE(popUp->performSelection(5));
  EXPECT_EQ(popUp->selectedTag(), 8);
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainPopUpButtonTest, SelectsNothingWithoutAnAction) {
  addThree();
  EXPECT_EQ(popUp->placeholder(), "");
  popUp->setPlaceholder("Something else");
  popUp->deselect();
  EXPECT_EQ(popUp->selectedTag(), 0);
  EXPECT_EQ(popUp->placeholder(), "Something else");
  EXPECT_TRUE(log.lines.empty());
  popUp->removeItemWithTitle("Off");
  EXPECT_EQ(popUp->selectedTag(), 0);
  EXPECT_TRUE(popUp->selectItemWithTag(8));
}

TEST_F(PlainPopUpButtonTest, AnEntryIsReplacedInItsPlace) {
  addThree();
  popUp->selectItemWithTag(8);
  popUp->setItem(1, {"", 8, "/roll.svg", "Cut, too"});
  EXPECT_EQ(tags(), (std::vector<int>{4, 8, 12}));
  EXPECT_EQ(popUp->items()[1].imagePath, "/roll.svg");
  EXPECT_EQ(popUp->items()[1].accessibilityLabel, "Cut, too");
  EXPECT_EQ(popUp->selectedTag(), 8);
  popUp->setItem(3, {"D", 1, {}, ""});
  EXPECT_EQ(popUp->items().size(), 3U);
}

TEST_F(PlainPopUpButtonTest, AUsersChoiceRunsTheAction) {
  addThree();
  EXPECT_TRUE(popUp->performSelection(8));
  EXPECT_EQ(popUp->selectedTag(), 8);
  EXPECT_EQ(log.lines, kActedAndFinished);
}

TEST_F(PlainPopUpButtonTest, ADisabledPopUpOffersNoChoice) {
  addThree();
  popUp->setEnabled(false);
  EXPECT_FALSE(popUp->performSelection(8));
  EXPECT_EQ(popUp->selectedTag(), 4);
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(PlainPopUpButtonTest, RemovesTheFirstEntryOfATitle) {
  addThree();
  popUp->addItem({"On", 9, {}, ""});
  popUp->removeItemWithTitle("On");
  EXPECT_EQ(tags(), (std::vector<int>{4, 12, 9}));
}

TEST_F(PlainPopUpButtonTest, RemovingATitleThatIsNotThereDoesNothing) {
  addThree();
  popUp->removeItemWithTitle("Absent");
  EXPECT_EQ(tags(), (std::vector<int>{4, 8, 12}));
}

TEST_F(PlainPopUpButtonTest, RemovingTheSelectedEntrySelectsTheFirstLeft) {
  addThree();
  popUp->selectItemWithTag(12);
  popUp->removeItemWithTitle("Special");
  EXPECT_EQ(popUp->selectedTag(), 4);
}

TEST_F(PlainPopUpButtonTest, RemovingAnotherEntryKeepsTheSelection) {
  addThree();
  popUp->selectItemWithTag(8);
  popUp->removeItemWithTitle("Off");
  EXPECT_EQ(popUp->selectedTag(), 8);
  popUp->removeItemWithTitle("Special");
  EXPECT_EQ(popUp->selectedTag(), 8);
}

TEST_F(PlainPopUpButtonTest, RemovingTheLastEntrySelectsNothing) {
  popUp->addItem({"Off", 4, {}, ""});
  popUp->removeItemWithTitle("Off");
  EXPECT_EQ(popUp->selectedTag(), 0);
  popUp->addItem({"On", 8, {}, ""});
  EXPECT_EQ(popUp->selectedTag(), 8);
}

TEST_F(PlainPopUpButtonTest, AClearedTitleLeavesTagPictureAndWords) {
  addThree();
  popUp->setTitleOfItem(0, "");
  popUp->setTitleOfItem(99, "nowhere");
  const PopUpItem item = popUp->items()[0];
  EXPECT_EQ(item.title, "");
  EXPECT_EQ(item.tag, 4);
  EXPECT_EQ(item.imagePath, "/off.svg");
  EXPECT_EQ(item.accessibilityLabel, "Cut by hand");
}

}  // namespace
}  // namespace cutline
