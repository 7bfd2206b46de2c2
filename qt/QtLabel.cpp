#include "qt/QtLabel.h"

#include <QEvent>
#include <algorithm>

#include "qt/QtText.h"

namespace cutline {

namespace {

// Tells the core how high its line of text is: characters that only another font has may need more
// than the label's own.
class LineLabel : public QLabel {
 public:
  void setCore(QtViewCore* core) {
    mCore = core;
    tellHeight();
  }
  void setLine(const QString& text) {
    setText(text);
    tellHeight();
  }

 protected:
  void changeEvent(QEvent* event) override {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) tellHeight();
  }

 private:
  void tellHeight() {
    if (mCore) mCore->setMinimumHeight(std::max(fontMetrics().height(), sizeHint().height()));
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
  if (widget()) static_cast<LineLabel*>(widget())->setLine(toQString(text));
}

}  // namespace cutline
