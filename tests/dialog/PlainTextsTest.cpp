// Texts of drivers, files and people that look like HTML are shown as they are.
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QToolTip>
#include <regex>

#include "host/dialog/PresetBar.h"
#include "tests/dialog/DialogTest.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

constexpr char kMarked[] = "<b>Bold</b><img src=\"x.png\">";

// The sample whose options all have such a text. A PPD has "<" as its number in such signs.
std::string markedPpd(const test::TemporaryFolder& folder) {
  const std::regex titles("(\\*OpenUI \\*\\w+)/[^:]*:");
  const std::string marked = std::regex_replace(kMarked, std::regex("<"), "<3C>");
  return folder.write("marked.ppd", std::regex_replace(test::contentsOf(samplePpd("tape-a")),
                                                       titles, "$1/" + marked + ":"));
}

class PlainTexts : public DialogTest {
 protected:
  // All labels there are, in whichever window.
  static QList<QLabel*> labels() {
    QList<QLabel*> found;
    for (QWidget* widget : QApplication::allWidgets())
      if (auto* label = qobject_cast<QLabel*>(widget); label && label->isVisible()) found << label;
    return found;
  }
  static QStringList readAsHtml() {
    QStringList texts;
    for (const QLabel* label : labels())
      if (label->textFormat() != Qt::PlainText) texts << label->text();
    return texts;
  }
  static int marked() {
    int count = 0;
    for (const QLabel* label : labels()) count += label->text().contains(QLatin1String(kMarked));
    return count;
  }
  const test::TemporaryFolder mFolder;
};

TEST_F(PlainTexts, OfADriver) {
  openQueue(markedPpd(mFolder));
  click(buttonWithText<QPushButton>("&More printer options"));
  ASSERT_TRUE(waitUntil([] { return marked() > 0; }));
  EXPECT_EQ(readAsHtml(), QStringList());
}

TEST_F(PlainTexts, OfAReaderOfDocuments) {
  composer().fail(kMarked);
  openQueue(samplePpd("tape-a"));
  EXPECT_TRUE(waitUntil([] { return marked() > 0; }));
  EXPECT_EQ(readAsHtml(), QStringList());
}

TEST_F(PlainTexts, OfAQuestion) {
  openQueue(samplePpd("tape-a"));
  auto* bar = dialog().findChild<PresetBar*>();
  bar->setPresets({QString::fromLatin1(kMarked)}, QString::fromLatin1(kMarked));
  click(bar->findChildren<QPushButton*>().at(1));
  ASSERT_TRUE(waitUntil([this] { return dialog().findChild<QMessageBox*>() != nullptr; }));
  EXPECT_GT(marked(), 0);
  EXPECT_EQ(readAsHtml(), QStringList());
}

TEST_F(PlainTexts, OfAToolTip) {
  openQueue(samplePpd("tape-a"));
  QToolTip::showText(dialog().mapToGlobal(QPoint(9, 9)), QString::fromLatin1(kMarked), &dialog());
  ASSERT_TRUE(waitUntil([] { return QToolTip::isVisible(); }));
  EXPECT_GT(marked(), 0);
  EXPECT_EQ(readAsHtml(), QStringList());
}

}  // namespace
}  // namespace cutline
