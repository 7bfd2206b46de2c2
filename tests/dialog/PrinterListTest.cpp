// The list of printers, however many there are.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include "host/dialog/PrinterBar.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {
namespace {

constexpr int kPrinters = 60;

std::string nameOf(int number) {
  return (number < 10 ? "queue0" : "queue") + std::to_string(number);
}

std::vector<Destination> manyPrinters() {
  std::vector<Destination> printers;
  for (int i = 0; i < kPrinters; ++i) {
    Destination printer;
    printer.name.printer = nameOf(i);
    printer.state = i == 7 ? PrinterState::stopped : PrinterState::idle;
    printer.acceptsJobs = i != 8;
    printer.isDefault = i == 30;
    printers.push_back(printer);
  }
  return printers;
}

class PrinterListTest : public testing::Test {
 protected:
  PrinterListTest() {
    mBar.setPrinters(manyPrinters());
    mBar.resize(400, 60);
    mBar.show();
    mBar.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&mBar));
    list().setFocus();
  }
  QComboBox& list() { return *mBar.findChild<QComboBox*>(); }
  // What the open list shows before the name, where the closed one shows nothing.
  QIcon iconOf(int row) {
    EXPECT_TRUE(list().itemIcon(row).isNull()) << row;
    return list().itemData(row, kPrinterIconRole).value<QIcon>();
  }
  QString spoken(int row) { return list().itemData(row, Qt::AccessibleTextRole).toString(); }

  PrinterBar mBar;
};

TEST_F(PrinterListTest, APpdFileIsNamedInThePlaceOfPrinters) {
  mBar.setPpdFile(QStringLiteral("tape-a.ppd"));
  EXPECT_EQ(list().currentText(), QStringLiteral("tape-a.ppd"));
}

TEST_F(PrinterListTest, ManyPrintersStayOnTheScreenAndScroll) {
  list().showPopup();
  const QWidget* window = list().view()->window();
  EXPECT_LE(window->height(), mBar.screen()->availableSize().height());
  EXPECT_GT(window->height(), 100);
  EXPECT_GT(list().view()->verticalScrollBar()->maximum(), 0);
  list().hidePopup();
}

TEST_F(PrinterListTest, EachSaysItsStateAndTheDefaultOneIsFirst) {
  ASSERT_EQ(list().count(), kPrinters);
  EXPECT_EQ(list().itemData(0).toString(), QString::fromStdString(nameOf(30)));
  EXPECT_EQ(spoken(1), QStringLiteral("queue00, Ready"));
  EXPECT_EQ(spoken(8), QStringLiteral("queue07, Paused"));
  EXPECT_EQ(spoken(9), QStringLiteral("queue08, Ready - not accepting jobs"));
  for (int row = 0; row < kPrinters; ++row) EXPECT_FALSE(iconOf(row).isNull()) << row;
}

TEST_F(PrinterListTest, TypingFindsAPrinter) {
  list().setCurrentIndex(0);
  QTest::keyClicks(&list(), "queue42");
  EXPECT_EQ(list().currentData().toString(), QStringLiteral("queue42"));
}

TEST_F(PrinterListTest, AListThatIsOpenKeepsItsPlaceWhenStatesAreNew) {
  list().showPopup();
  list().view()->setCurrentIndex(list().model()->index(40, 0));
  std::vector<Destination> printers = manyPrinters();
  printers[0].state = PrinterState::processing;
  mBar.setPrinters(printers);
  EXPECT_EQ(spoken(1), QStringLiteral("queue00, Printing"));
  EXPECT_EQ(list().view()->currentIndex().row(), 40);
  list().hidePopup();
}

}  // namespace
}  // namespace cutline
