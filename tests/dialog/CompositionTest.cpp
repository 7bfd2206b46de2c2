// Documents on labels as the dialog shows them: what it says of them, and what its buttons do.
#include <gtest/gtest.h>

#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QUrl>

#include "host/dialog/NoticeView.h"
#include "host/dialog/StripView.h"
#include "host/dialog/mnemonics.h"
#include "tests/dialog/DialogTest.h"
#include "tests/dialog/window_checks.h"

namespace cutline {

namespace {

class CompositionTest : public DialogTest {
 protected:
  QStringList notices(NoticeTopic topic) {
    return dialog().findChild<NoticeView*>()->notices(topic);
  }
  StripView& strip() { return *dialog().findChild<StripView*>(); }
  // The button in the notices that says so, whichever letter is underlined.
  QPushButton* noticeButton(const QString& text) {
    for (QPushButton* button : dialog().findChild<NoticeView*>()->findChildren<QPushButton*>()) {
      if (QString(button->text()).remove(QLatin1Char('&')) == text) return button;
    }
    ADD_FAILURE() << "no button says " << text.toStdString();
    return nullptr;
  }
  bool drop(const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&dialog(), &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent event({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&dialog(), &event);
    return event.isAccepted();
  }
};

TEST_F(CompositionTest, EachLabelOfTheDocumentsIsShown) {
  composer().setPages(5);
  openQueue(samplePpd("tape-a"));
  EXPECT_EQ(strip().labelCount(), 5U);
  EXPECT_TRUE(notices(NoticeTopic::edges).isEmpty());
}

TEST_F(CompositionTest, AnotherPaperIsComposedForAndShown) {
  openQueue(samplePpd("tape-a"));
  ASSERT_TRUE(model().setPaper("W12H50"));
  EXPECT_TRUE(waitUntil([this] {
    const CompositionRequest last = composer().requests().back();
    return last.pages.most == 0 && last.label == model().label();
  }));
}

// Of a text only the first label is known at first.
TEST_F(CompositionTest, TheLabelThatIsLookedAtStaysWhileATextIsComposedAnew) {
  composer().setPartial();
  openQueue(samplePpd("tape-a"));
  strip().setCurrentLabel(3);
  composer().holdRest();
  const std::size_t asked = composer().requests().size();
  ASSERT_TRUE(model().setPaper("W24H100"));
  ASSERT_TRUE(waitUntil([&] { return composer().requests().size() == asked + 2; }));
  EXPECT_EQ(strip().labelCount(), 3U);
  EXPECT_EQ(strip().currentLabel(), 3U);
  composer().letGo();
}

TEST_F(CompositionTest, WhatWillBeCutOffIsNamedAndSavedAtAClick) {
  composer().setPages(1, {141.73, 68.03});
  composer().setBleed(3);
  openQueue(samplePpd("tape-a"));
  const QStringList lines = notices(NoticeTopic::edges);
  ASSERT_EQ(lines.size(), 1);
  EXPECT_TRUE(
      lines.front().startsWith(QStringLiteral("Edges will be cut off on label 1: shrink to ")))
      << lines.front().toStdString();
  composer().setBleed(0);
  click(noticeButton(QStringLiteral("Shrink")));
  const LayoutSettings placing = model().jobLayout().placing;
  EXPECT_EQ(placing.scaling, Scaling::percent);
  EXPECT_TRUE(lines.front().contains(QStringLiteral(" %1 %").arg(placing.percent)));
  EXPECT_TRUE(waitUntil([this] { return notices(NoticeTopic::edges).isEmpty(); }));
}

TEST_F(CompositionTest, SeveralLabelsThatWillBeCutOffAreCounted) {
  composer().setPages(4, {141.73, 68.03});
  composer().setBleed(3);
  openQueue(samplePpd("tape-a"));
  ASSERT_EQ(notices(NoticeTopic::edges).size(), 1);
  EXPECT_TRUE(notices(NoticeTopic::edges).front().contains(QStringLiteral("on 4 labels")));
}

TEST_F(CompositionTest, APaperOfThePagesSizeIsOfferedAndTakenAtAClick) {
  composer().setPages(1, {283.46, 68.03}, 0.5);
  openQueue(samplePpd("tape-a"));
  EXPECT_EQ(notices(NoticeTopic::paper),
            QStringList(QStringLiteral("Fits better: Tape 24 mm, label 100 mm")));
  click(noticeButton(QStringLiteral("Use it")));
  EXPECT_EQ(model().currentPaper().name, "W24H100");
  EXPECT_TRUE(waitUntil([this] { return notices(NoticeTopic::paper).isEmpty(); }));
}

TEST_F(CompositionTest, SheetsForLettersAreNamed) {
  composer().setPages(2, {595.28, 841.89}, 0.1059);
  openQueue(samplePpd("tape-a"));
  EXPECT_EQ(notices(NoticeTopic::paper),
            QStringList(QStringLiteral("The document has A4 pages; they are shrunk to 11 %")));
}

TEST_F(CompositionTest, AButtonOfANoticeHasALetterOfItsOwn) {
  composer().setPages(1, {141.73, 68.03});
  composer().setBleed(3);
  openQueue(samplePpd("tape-a"));
  const QChar letter = mnemonicIn(noticeButton(QStringLiteral("Shrink"))->text());
  ASSERT_FALSE(letter.isNull());
  expectNoSharedMnemonic(dialog());
  press(&dialog(), letter.unicode(), Qt::AltModifier);
  EXPECT_TRUE(
      waitUntil([this] { return model().jobLayout().placing.scaling == Scaling::percent; }));
}

TEST_F(CompositionTest, DroppedDocumentsReplaceTheOthers) {
  openQueue(samplePpd("tape-a"));
  const std::size_t asked = composer().requests().size();
  composer().setPages(2);
  EXPECT_TRUE(drop({QUrl::fromLocalFile(QStringLiteral("/nowhere/first.pdf")),
                    QUrl::fromLocalFile(QStringLiteral("/nowhere/second.pdf")),
                    QUrl::fromLocalFile(QStringLiteral("/nowhere/third.pdf"))}));
  EXPECT_TRUE(waitUntil([this] { return strip().labelCount() == 2U; }));
  EXPECT_EQ(composer().paths().size(), 3u);
  EXPECT_GT(composer().requests().size(), asked);
  EXPECT_EQ(dialog().windowTitle(), QStringLiteral("Print first.pdf and 2 more"));
}

TEST_F(CompositionTest, WhatIsNoFileIsNotTaken) {
  openQueue(samplePpd("tape-a"));
  EXPECT_FALSE(drop({QUrl(QStringLiteral("https://example.org/labels.pdf"))}));
  EXPECT_EQ(strip().labelCount(), 3U);
}

TEST_F(CompositionTest, NothingIsTakenWhileAJobIsOnItsWay) {
  openQueue(samplePpd("tape-a"));
  composer().hold();
  click(printButton());
  EXPECT_FALSE(drop({QUrl::fromLocalFile(QStringLiteral("/nowhere/first.pdf"))}));
  composer().letGo();
  EXPECT_TRUE(waitForPrinted());
}

TEST_F(CompositionTest, WithoutADocumentOneCanBeOpenedOrDropped) {
  setPaths({});
  openQueue(samplePpd("tape-a"));
  EXPECT_TRUE(shows(QStringLiteral("open one, or drop it here")));
  EXPECT_TRUE(buttonWithText<QPushButton>("&Open...")->isVisible());
  EXPECT_FALSE(printButton()->isEnabled());
  EXPECT_TRUE(drop({QUrl::fromLocalFile(QStringLiteral("/nowhere/first.pdf"))}));
  EXPECT_TRUE(waitUntil([this] { return strip().labelCount() == 3U; }));
  EXPECT_TRUE(printButton()->isEnabled());
  EXPECT_EQ(dialog().windowTitle(), QStringLiteral("Print first.pdf"));
}

TEST_F(CompositionTest, AnotherDocumentMendsOneThatCannotBeRead) {
  composer().fail("first.pdf: damaged");
  openQueue(samplePpd("tape-a"));
  EXPECT_EQ(notices(NoticeTopic::document), QStringList(QStringLiteral("first.pdf: damaged")));
  EXPECT_EQ(strip().labelCount(), 0U);
  composer().fail({});
  EXPECT_TRUE(drop({QUrl::fromLocalFile(QStringLiteral("/nowhere/second.pdf"))}));
  EXPECT_TRUE(waitUntil([this] { return strip().labelCount() == 3U; }));
  EXPECT_TRUE(notices(NoticeTopic::document).isEmpty());
  EXPECT_TRUE(printButton()->isEnabled());
}

// A press on Enter or Space must not do it twice, and the button's row goes with it.
TEST_F(CompositionTest, TheKeyboardReachesTheButtonsOfNotices) {
  composer().setPages(1, {283.46, 68.03}, 0.5);
  openQueue(samplePpd("tape-a"));
  QPushButton* use = noticeButton(QStringLiteral("Use it"));
  use->setFocus();
  press(use, Qt::Key_Space);
  EXPECT_EQ(model().currentPaper().name, "W24H100");
}

}  // namespace

}  // namespace cutline
