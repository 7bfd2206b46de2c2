// The views that a bundle draws itself.
#pragma once

#include <QString>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "platform/ports/Drawing.h"
#include "qt/QtView.h"

class QPainter;

namespace cutline {

// The drawing context of a view that paints itself, on the view's QPainter.
class QtDrawingContext : public DrawingContext {
 public:
  // `painter` is borrowed and paints on the widget of `view`; `flipped` says that the client's
  // coordinates grow downwards.
  QtDrawingContext(QPainter& painter, const View& view, bool flipped) noexcept;
  // What was left saved or locked is restored.
  ~QtDrawingContext() override;

  void saveGraphicsState() noexcept override;
  void restoreGraphicsState() noexcept override;
  void lockFocus(const View& view) noexcept override;
  void unlockFocus(const View& view) noexcept override;
  void drawAtPoint(const Image& image, const Point& point, const Rect& fromRect,
                   CompositingOperation operation, double fraction) noexcept override;

 private:
  QPainter& mPainter;
  bool mFlipped;
  int mSaved = 0;
  std::vector<const View*> mFocused;  // the drawn view first
};

// The native widget of a custom view: its client draws it and says what the drawing shows.
class ClientWidget : public QWidget {
 public:
  // Both are borrowed. Without a client nothing is drawn and nothing is said.
  void setClient(const View* view, CustomViewClient* client);

  // What the drawing shows, as the client says it now.
  QString words() const;
  // Lets assistive technology know, once what is going on now has ended, if the words are others
  // than they were. Many calls in a row make one announcement, or none.
  void announceNewWordsSoon();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void announceNewWords();

  const View* mView = nullptr;
  CustomViewClient* mClient = nullptr;
  QString mAnnouncedWords;
  bool mWillAnnounce = false;
};

// A widget whose drawing is a client's.
class QtCustomView : public QtViewOf<CustomView, ClientWidget> {
 public:
  QtCustomView(const Rect& frame, CustomViewClient* client, std::shared_ptr<QtActions> actions);
  ~QtCustomView() override;

  void setClient(CustomViewClient* client) noexcept override;
  void drawSuper(const Rect& dirty, DrawingContext& context) noexcept override;
  void setNeedsDisplay(bool needsDisplay) noexcept override;
  // The label that was set, or else what the client says of its drawing.
  std::string accessibilityLabel() const noexcept override;

 private:
  CustomViewClient* mClient;
};

}  // namespace cutline
