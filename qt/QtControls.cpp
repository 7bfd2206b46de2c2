#include "qt/QtControls.h"

#include <QEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionButton>
#include <QToolTip>
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

QtButton::QtButton(const Rect& frame, std::shared_ptr<QtActions> actions)
    : QtButtonOf(new QPushButton, frame, std::move(actions)) {
  // In a dialog every push button would want to be the one that Return presses.
  widget()->setAutoDefault(false);
}

namespace {

// Its frame is fixed by the panel's interface file: a longer text ends in an ellipsis, and the
// tool tip has the rest.
//
// The toolkit draws a box at once when it is pressed, and again when it is let go of, before it
// tells of the click; here it is drawn with all that the click changes.
class ElidingCheckBox : public QCheckBox {
 public:
  ElidingCheckBox() {
    connect(this, &QCheckBox::released, this, [this] { setUpdatesEnabled(true); });
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    setUpdatesEnabled(false);
    QCheckBox::mousePressEvent(event);
    setUpdatesEnabled(true);
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    const QPointer<QWidget> self(this);
    setUpdatesEnabled(false);
    QCheckBox::mouseReleaseEvent(event);
    if (self) setUpdatesEnabled(true);
  }

  void initStyleOption(QStyleOptionButton* option) const override {
    QCheckBox::initStyleOption(option);
    option->text = elided(*option);
  }

  bool event(QEvent* event) override {
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty()) return QCheckBox::event(event);
    QStyleOptionButton option;
    QCheckBox::initStyleOption(&option);
    const bool fits = elided(option) == text();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       fits ? QString() : withoutMark(text()), this);
    return true;
  }

 private:
  // To measure a text takes longer than to draw it, and a box is drawn more often than it changes.
  QString elided(const QStyleOptionButton& option) const {
    const QRect room = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
    const Measured asked{text(), font(), room.width()};
    if (mMeasured == asked) return mElided;
    mMeasured = asked;
    mElided = fontMetrics().elidedText(text(), Qt::ElideRight, room.width(), Qt::TextShowMnemonic);
    return mElided;
  }

  struct Measured {
    QString text;
    QFont font;
    int room = -1;
    friend bool operator==(const Measured&, const Measured&) = default;
  };
  mutable Measured mMeasured;
  mutable QString mElided;
};

Qt::CheckState toCheckState(int state) {
  if (state == CheckBox::kMixed) return Qt::PartiallyChecked;
  return state == CheckBox::kOn ? Qt::Checked : Qt::Unchecked;
}

}  // namespace

QtCheckBox::QtCheckBox(const Rect& frame, std::shared_ptr<QtActions> actions)
    : QtButtonOf(new ElidingCheckBox, frame, std::move(actions)) {}

// Mixed is never a user's choice: the third state exists only while the box shows it.
void QtCheckBox::setState(int state) noexcept {
  mState = state < 0 ? kMixed : state > 0 ? kOn : kOff;
  if (!widget()) return;
  const QSignalBlocker quiet(widget());
  widget()->setTristate(mState == kMixed);
  widget()->setCheckState(toCheckState(mState));
}

void QtCheckBox::willPerformClick() noexcept { setState(mState == kOn ? kOff : kOn); }

void QtCheckBox::didClick() noexcept { setState(widget()->isChecked() ? kOn : kOff); }

}  // namespace cutline
