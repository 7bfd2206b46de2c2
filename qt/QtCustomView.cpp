#include "qt/QtCustomView.h"

#include <QPaintEvent>
#include <QPainter>

#include "qt/QtDrawingContext.h"

namespace cutline {

namespace {

Rect toViewRect(const QRect& rect, double viewHeight, bool flipped) {
  const double y = flipped ? rect.y() : viewHeight - rect.y() - rect.height();
  return {{static_cast<double>(rect.x()), y},
          {static_cast<double>(rect.width()), static_cast<double>(rect.height())}};
}

class ClientWidget : public QWidget {
 public:
  // Both are borrowed. Without a client nothing is drawn.
  void setClient(const View* view, CustomViewClient* client) {
    mView = view;
    mClient = client;
    update();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (!mClient) return;
    QPainter painter(this);
    const bool flipped = mClient->isFlipped();
    QtDrawingContext context(painter, *mView, flipped);
    mClient->drawRect(toViewRect(event->rect(), mView->frame().size.height, flipped), context);
  }

 private:
  const View* mView = nullptr;
  CustomViewClient* mClient = nullptr;
};

}  // namespace

QtCustomView::QtCustomView(const Rect& frame, CustomViewClient* client,
                           std::shared_ptr<QtActions> actions)
    : QtViewOf(new ClientWidget, frame, std::move(actions)) {
  QtCustomView::setClient(client);
}

// The widget may stay a little longer when the view goes inside an action.
QtCustomView::~QtCustomView() { QtCustomView::setClient(nullptr); }

void QtCustomView::setClient(CustomViewClient* client) noexcept {
  if (widget()) static_cast<ClientWidget*>(widget())->setClient(this, client);
}

void QtCustomView::drawSuper(const Rect&, DrawingContext&) noexcept {
  // A plain QWidget draws nothing of its own.
}

}  // namespace cutline
