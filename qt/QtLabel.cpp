#include "qt/QtLabel.h"

#include <QEvent>

#include "qt/QtText.h"

namespace cutline {

namespace {

// Tells the core how high a line of text is.
class LineLabel : public QLabel {
 public:
  void setCore(QtViewCore* core) {
    mCore = core;
    tellHeight();
  }

 protected:
  void changeEvent(QEvent* event) override {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) tellHeight();
  }

 private:
  void tellHeight() {
    if (mCore) mCore->setMinimumHeight(fontMetrics().height());
  }

  QtViewCore* mCore = nullptr;
};

}  // namespace

QtLabel::QtLabel(const Rect& frame, std::shared_ptr<QtActions> actions)
    : QtControlOf(new LineLabel, frame, std::move(actions)),
      mTextColor(*widget(), QPalette::WindowText) {
  // Texts of a PPD are never markup.
  widget()->setTextFormat(Qt::PlainText);
  static_cast<LineLabel*>(widget())->setCore(&core());
}

// The widget may stay a little longer when the view goes inside an action.
QtLabel::~QtLabel() {
  if (widget()) static_cast<LineLabel*>(widget())->setCore(nullptr);
}

void QtLabel::setStringValue(const std::string& text) noexcept {
  mText = text;
  if (widget()) widget()->setText(toQString(text));
}

}  // namespace cutline
