#include "qt/QtCheckBox.h"

#include <QHelpEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionButton>
#include <QToolTip>

namespace cutline {

namespace {

// Its frame is fixed by the panel's interface file: a longer text ends in an ellipsis, and the
// tool tip has the rest.
class ElidingCheckBox : public QCheckBox {
 protected:
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
  QString elided(const QStyleOptionButton& option) const {
    const QRect room = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
    return fontMetrics().elidedText(text(), Qt::ElideRight, room.width(), Qt::TextShowMnemonic);
  }
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
