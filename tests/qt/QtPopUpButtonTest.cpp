#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QHelpEvent>
#include <QToolTip>
#include <QWheelEvent>

#include "platform/ports/PopUpButton.h"
#include "tests/qt/QtPanelFixture.h"

namespace cutline {
namespace {

class QtPopUpButtonTest : public QtPanelFixture {
 protected:
  QtPopUpButtonTest() {
    pictures.addPlain("red.svg", "#ff0000");
    popUp->addItem({"A", 4, pictures.addPlain("green.svg", "#00ff00"), "No cut"});
    popUp->addItem({"B", 6, pictures.addPlain("blue.svg", "#0000ff"), "Half cut"});
    popUp->addItem({"C", 8, pictures.addPlain("red.svg", "#ff0000"), "Automatic cut"});
    popUp->setAccessibilityLabel("Preset");
    popUp->setAction(recorded());
  }
  void clearTitles() {
    for (std::size_t i = 0; i < popUp->items().size(); ++i) popUp->setTitleOfItem(i, "");
  }
  QString spokenName() const {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
  }
  QAbstractItemView* openList() {
    show();
    widget->showPopup();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(widget->view()->window()));
    return widget->view();
  }
  void clickRow(QAbstractItemView* list, int row) {
    // The list takes a release for the end of the click that has opened it, for a moment.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    const QPoint at = list->visualRect(list->model()->index(row, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
  }
  static int countOf(const QImage& image, QRgb colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == colour;
    }
    return count;
  }
  void turnWheelDown() {
    const QPointF at = widget->rect().center();
    QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
  }

  PictureFiles pictures;
  std::shared_ptr<PopUpButton> popUp = toolkit.createPopUpButton({{20, 150}, {264, 32}});
  QComboBox* widget = put<QComboBox>(popUp);
};

constexpr QRgb kGreenItem = 0xff00ff00;
constexpr QRgb kBlueItem = 0xff0000ff;
constexpr QRgb kRedItem = 0xffff0000;

TEST_F(QtPopUpButtonTest, WhatIsChosenAlreadyIsNotDrawnAgain) {
  show();
  popUp->selectItemWithTag(6);
  QApplication::processEvents();
  PaintCount paints(widget);
  popUp->selectItemWithTag(6);
  EXPECT_EQ(paints.afterAll(), 0);
  popUp->selectItemWithTag(8);
  EXPECT_EQ(paints.afterAll(), 1);
  EXPECT_EQ(widget->currentIndex(), 2);
}

TEST_F(QtPopUpButtonTest, FirstEntryIsSelected) {
  EXPECT_EQ(popUp->selectedTag(), 4);
  EXPECT_EQ(widget->currentIndex(), 0);
  EXPECT_TRUE(events.empty());
}

TEST_F(QtPopUpButtonTest, TagWithoutAnEntryChangesNothing) {
  ASSERT_TRUE(popUp->selectItemWithTag(6));
  EXPECT_FALSE(popUp->selectItemWithTag(13));
  EXPECT_FALSE(popUp->performSelection(13));
  EXPECT_EQ(popUp->selectedTag(), 6);
  EXPECT_EQ(widget->currentIndex(), 1);
  EXPECT_TRUE(events.empty());
}

TEST_F(QtPopUpButtonTest, UsersChoiceInTheListRunsTheAction) {
  clickRow(openList(), 2);
  EXPECT_EQ(popUp->selectedTag(), 8);
  EXPECT_EQ(events, (Events{"action", "observer"}));
  EXPECT_EQ(actionSender, popUp.get());
}

TEST_F(QtPopUpButtonTest, ChoosingTheSameEntryAgainRunsTheActionToo) {
  clickRow(openList(), 0);
  EXPECT_EQ(popUp->selectedTag(), 4);
  EXPECT_EQ(events, (Events{"action", "observer"}));
}

TEST_F(QtPopUpButtonTest, KeysChoose) {
  show();
  widget->setFocus();
  QTest::keyClick(widget, Qt::Key_Down);
  EXPECT_EQ(popUp->selectedTag(), 6);
  EXPECT_EQ(events, (Events{"action", "observer"}));
}

TEST_F(QtPopUpButtonTest, ActionMaySelectAnotherEntry) {
  popUp->setAction([this](View*) { popUp->selectItemWithTag(4); });
  show();
  widget->setFocus();
  QTest::keyClick(widget, Qt::Key_Down);
  EXPECT_EQ(popUp->selectedTag(), 4);
  EXPECT_EQ(widget->currentIndex(), 0);
}

TEST_F(QtPopUpButtonTest, PerformSelectionIsAUsersChoice) {
  EXPECT_TRUE(popUp->performSelection(8));
  EXPECT_EQ(widget->currentIndex(), 2);
  EXPECT_EQ(events, (Events{"action", "observer"}));
  popUp->setEnabled(false);
  EXPECT_FALSE(popUp->performSelection(4));
  EXPECT_EQ(popUp->selectedTag(), 8);
}

TEST_F(QtPopUpButtonTest, WheelInPassingChoosesNothing) {
  show();
  widget->clearFocus();
  turnWheelDown();
  EXPECT_EQ(popUp->selectedTag(), 4);
  widget->setFocus();
  turnWheelDown();
  EXPECT_EQ(popUp->selectedTag(), 6);
}

TEST_F(QtPopUpButtonTest, RemovingTheSelectedEntrySelectsTheFirstOneLeft) {
  popUp->selectItemWithTag(8);
  popUp->removeItemWithTitle("C");
  EXPECT_EQ(popUp->selectedTag(), 4);
  EXPECT_EQ(widget->currentIndex(), 0);
}

TEST_F(QtPopUpButtonTest, RemovingAnotherEntryKeepsTheSelection) {
  popUp->selectItemWithTag(8);
  popUp->removeItemWithTitle("A");
  popUp->removeItemWithTitle("A");
  EXPECT_EQ(popUp->selectedTag(), 8);
  EXPECT_EQ(widget->currentIndex(), 1);
  EXPECT_EQ(widget->count(), 2);
  EXPECT_TRUE(events.empty());
}

TEST_F(QtPopUpButtonTest, RemovingAllLeavesNothingSelected) {
  for (const char* title : {"A", "B", "C"}) popUp->removeItemWithTitle(title);
  EXPECT_EQ(popUp->selectedTag(), 0);
  EXPECT_EQ(widget->currentIndex(), -1);
  popUp->addItem({"D", 9, {}, {}});
  EXPECT_EQ(popUp->selectedTag(), 9);
}

TEST_F(QtPopUpButtonTest, IsAnnouncedInWordsWhenTheTitlesAreCleared) {
  clearTitles();
  EXPECT_EQ(spokenName(), "Preset: No cut");
  popUp->selectItemWithTag(6);
  EXPECT_EQ(spokenName(), "Preset: Half cut");
  EXPECT_EQ(popUp->accessibilityLabel(), "Preset");
  popUp->performSelection(8);
  EXPECT_EQ(spokenName(), "Preset: Automatic cut");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(widget)->role(), QAccessible::ComboBox);
}

TEST_F(QtPopUpButtonTest, EntriesAreAnnouncedInWords) {
  clearTitles();
  for (int row = 0; row < 3; ++row) {
    EXPECT_EQ(widget->itemData(row, Qt::AccessibleTextRole).toString().toStdString(),
              popUp->items()[static_cast<std::size_t>(row)].accessibilityLabel);
  }
  QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(openList());
  ASSERT_NE(list, nullptr);
  ASSERT_EQ(list->childCount(), 3);
  EXPECT_EQ(list->child(1)->text(QAccessible::Name), "Half cut");
  widget->hidePopup();
}

TEST_F(QtPopUpButtonTest, EntryWithoutWordsIsAnnouncedByItsTitleEvenLater) {
  popUp->addItem({"Plain", 9, {}, {}});
  popUp->selectItemWithTag(9);
  clearTitles();
  EXPECT_EQ(widget->itemData(3, Qt::AccessibleTextRole).toString(), "Plain");
}

TEST_F(QtPopUpButtonTest, ClosedButtonShowsTheCurrentPictureOnly) {
  show();
  const QImage shown = widget->grab().toImage();
  EXPECT_GT(countOf(shown, kGreenItem), 100);
  EXPECT_EQ(countOf(shown, kBlueItem), 0);
  popUp->selectItemWithTag(6);
  EXPECT_GT(countOf(widget->grab().toImage(), kBlueItem), 100);
}

TEST_F(QtPopUpButtonTest, OpenListShowsEveryPictureLarger) {
  const QImage closed = (show(), widget->grab().toImage());
  QAbstractItemView* const list = openList();
  const QImage shown = list->grab().toImage();
  for (const QRgb colour : {kGreenItem, kBlueItem, kRedItem}) {
    EXPECT_GT(countOf(shown, colour), 2 * countOf(closed, kGreenItem));
  }
  widget->hidePopup();
}

TEST_F(QtPopUpButtonTest, PicturesAreNotReadBeforeTheyAreShown) {
  show();
  widget->grab();
  // Would be seen in the list if it had been read before now.
  pictures.addPlain("blue.svg", "#ff0000");
  QAbstractItemView* const list = openList();
  const QImage shown = list->grab().toImage();
  EXPECT_EQ(countOf(shown, kBlueItem), 0);
  EXPECT_GT(countOf(shown, kRedItem), 0);
  EXPECT_GT(countOf(shown, kGreenItem), 0);
  widget->hidePopup();
}

TEST_F(QtPopUpButtonTest, PictureThatIsMissingLeavesTheWords) {
  popUp->addItem({"", 9, "/nonexistent/picture.svg", "Special tape"});
  popUp->selectItemWithTag(9);
  show();
  const QImage shown = widget->grab().toImage();
  EXPECT_EQ(countOf(shown, kGreenItem), 0);
  QAbstractItemView* const list = openList();
  EXPECT_GT(list->visualRect(list->model()->index(3, 0)).height(), 0);
  widget->hidePopup();
}

TEST_F(QtPopUpButtonTest, ToolTipHasTheWordsInFull) {
  clearTitles();
  show();
  const QPoint at = widget->rect().center();
  QHelpEvent event(QEvent::ToolTip, at, widget->mapToGlobal(at));
  QApplication::sendEvent(widget, &event);
  EXPECT_EQ(QToolTip::text(), "No cut");
  QToolTip::hideText();
}

TEST_F(QtPopUpButtonTest, SelectionOutlivesTheWindow) {
  popUp->selectItemWithTag(6);
  window.reset();
  EXPECT_EQ(popUp->selectedTag(), 6);
  EXPECT_TRUE(popUp->selectItemWithTag(8));
  popUp->removeItemWithTitle("A");
  popUp->setTitleOfItem(0, "");
  EXPECT_EQ(popUp->selectedTag(), 8);
}

TEST_F(QtPopUpButtonTest, WithNothingSelectedItShowsAndSaysThePlaceholder) {
  clearTitles();
  popUp->setPlaceholder("Something else");
  popUp->deselect();
  EXPECT_EQ(popUp->selectedTag(), 0);
  EXPECT_EQ(widget->currentIndex(), -1);
  EXPECT_EQ(spokenName(), "Preset: Something else");
  show();
  const QImage words = widget->grab().toImage();
  EXPECT_EQ(countOf(words, qRgb(0, 255, 0)), 0) << "no entry's picture";
  popUp->setPlaceholder("");
  EXPECT_NE(widget->grab().toImage(), words);
  EXPECT_TRUE(popUp->selectItemWithTag(6));
  EXPECT_EQ(spokenName(), "Preset: Half cut");
}

TEST_F(QtPopUpButtonTest, AssistiveTechnologyHearsTheEntryAsTheValue) {
  const auto value = [&] {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Value).toStdString();
  };
  clearTitles();
  popUp->selectItemWithTag(6);
  EXPECT_EQ(value(), "Half cut");
  popUp->setPlaceholder("Something else");
  popUp->deselect();
  EXPECT_EQ(value(), "Something else");
}

TEST_F(QtPopUpButtonTest, FromNothingSelectedTheKeyboardGetsToTheFirstEntry) {
  popUp->deselect();
  show();
  widget->setFocus();
  QTest::keyClick(widget, Qt::Key_Up);
  EXPECT_EQ(popUp->selectedTag(), 0);
  EXPECT_TRUE(events.empty());
  QTest::keyClick(widget, Qt::Key_Down);
  EXPECT_EQ(widget->currentIndex(), 0);
  EXPECT_EQ(popUp->selectedTag(), popUp->items().front().tag);
  EXPECT_EQ(events, (Events{"action", "observer"}));
}

TEST_F(QtPopUpButtonTest, AnEntryIsReplacedInItsPlace) {
  popUp->selectItemWithTag(6);
  popUp->setItem(1, {"", 6, pictures.addPlain("red.svg", "#ff0000"), "Cut, too"});
  EXPECT_EQ(popUp->selectedTag(), 6);
  EXPECT_EQ(spokenName(), "Preset: Cut, too");
  show();
  EXPECT_GT(countOf(widget->grab().toImage(), qRgb(255, 0, 0)), 0);
  popUp->setItem(3, {"D", 1, {}, ""});
  EXPECT_EQ(popUp->items().size(), 3U);
  EXPECT_EQ(widget->count(), 3);
}

}  // namespace
}  // namespace cutline
