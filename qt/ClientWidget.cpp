#include "qt/ClientWidget.h"

#include <QAccessible>
#include <QMetaObject>
#include <QPaintEvent>
#include <QPainter>

#include "qt/AccessibleDrawing.h"
#include "qt/QtDrawingContext.h"
#include "qt/QtText.h"

namespace cutline {

namespace {

Rect toViewRect(const QRect& rect, double viewHeight, bool flipped) {
  const double y = flipped ? rect.y() : viewHeight - rect.y() - rect.height();
  return {{static_cast<double>(rect.x()), y},
          {static_cast<double>(rect.width()), static_cast<double>(rect.height())}};
}

}  // namespace

void ClientWidget::setClient(const View* view, CustomViewClient* client) {
  mView = view;
  mClient = client;
  mAnnouncedWords = words();
  update();
}

QString ClientWidget::words() const {
  return mClient ? toQString(mClient->accessibilityLabel()) : QString();
}

void ClientWidget::announceNewWordsSoon() {
  if (mWillAnnounce) return;
  mWillAnnounce = true;
  QMetaObject::invokeMethod(
      this, [this] { announceNewWords(); }, Qt::QueuedConnection);
}

void ClientWidget::announceNewWords() {
  mWillAnnounce = false;
  const QString now = words();
  if (now == mAnnouncedWords) return;
  mAnnouncedWords = now;
  QAccessibleEvent event(this, AccessibleDrawing::whereWordsAre(*this) == QAccessible::Name
                                   ? QAccessible::NameChanged
                                   : QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&event);
}

void ClientWidget::paintEvent(QPaintEvent* event) {
  if (!mClient) return;
  QPainter painter(this);
  const bool flipped = mClient->isFlipped();
  QtDrawingContext context(painter, *mView, flipped);
  mClient->drawRect(toViewRect(event->rect(), mView->frame().size.height, flipped), context);
}

}  // namespace cutline
