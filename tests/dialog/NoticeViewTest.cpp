#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>

#include "host/dialog/NoticeView.h"

namespace cutline {
namespace {

QStringList linesShown(const NoticeView& view) {
  QStringList lines;
  for (const QLabel* label : view.findChildren<QLabel*>())
    if (!label->isHidden()) lines.append(label->text());
  return lines;
}

// What is replaced goes when the event loop runs; it is hidden until then.
TEST(NoticeViewTest, WhatTwoTopicsSayIsShownOnceAndStaysWhenOneIsGone) {
  NoticeView view;
  const QString gone = QStringLiteral("No print server answers");
  view.setNotice(NoticeTopic::failure, gone);
  view.setNotices(NoticeTopic::printer, QStringList{gone, QStringLiteral("Out of tape")});
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(linesShown(view), (QStringList{gone, QStringLiteral("Out of tape")}));
  view.clear(NoticeTopic::failure);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(linesShown(view), (QStringList{gone, QStringLiteral("Out of tape")}));
}

TEST(NoticeViewTest, ALineWithARemedyIsNotLeftOut) {
  NoticeView view;
  view.setNotice(NoticeTopic::failure, QStringLiteral("Too wide"));
  view.setNotices(NoticeTopic::paper,
                  {{QStringLiteral("Too wide"), {{QStringLiteral("Shrink"), QString(), [] {}}}}});
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(linesShown(view).size(), 2);
}

}  // namespace
}  // namespace cutline
