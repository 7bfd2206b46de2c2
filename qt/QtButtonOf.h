// The shared part of push button and check box: the title and the click.
#pragma once

#include <QAbstractButton>
#include <memory>
#include <string>
#include <utility>

#include "qt/QtText.h"
#include "qt/QtViewOf.h"

namespace cutline {

template <class Port, class Widget>
class QtButtonOf : public QtControlOf<Port, Widget> {
 public:
  std::string title() const noexcept override { return mTitle; }
  void setTitle(const std::string& title) noexcept override {
    mTitle = title;
    if (this->widget()) this->widget()->setText(withoutMnemonics(toQString(title)));
  }

  // Not QAbstractButton::click(): that one also refuses while the host has greyed out the whole
  // panel, and a click of the host would be lost.
  void performClick() noexcept override {
    if (!this->isEnabled()) return;
    willPerformClick();
    this->runAction();
  }

 protected:
  QtButtonOf(Widget* widget, const Rect& frame, std::shared_ptr<QtActions> actions)
      : QtControlOf<Port, Widget>(widget, frame, std::move(actions)) {
    QObject::connect(widget, &QAbstractButton::clicked, this->core().connectionContext(), [this] {
      didClick();
      this->runAction();
    });
  }

  // Changes the state as a click does.
  virtual void willPerformClick() noexcept {}
  // Takes over the state that the user's click has left in the widget.
  virtual void didClick() noexcept {}

 private:
  std::string mTitle;
};

}  // namespace cutline
