// The simple controls: label, push button, check box.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <memory>
#include <string>
#include <utility>

#include "platform/ports/Controls.h"
#include "qt/QtText.h"
#include "qt/QtView.h"

namespace cutline {

// A label on QLabel.
class QtLabel : public QtControlOf<Label, QLabel> {
 public:
  QtLabel(const Rect& frame, std::shared_ptr<QtActions> actions);
  ~QtLabel() override;

  std::string stringValue() const noexcept override { return mText; }
  void setStringValue(const std::string& text) noexcept override;
  TextColor textColor() const noexcept override { return mTextColor.color(); }
  void setTextColor(TextColor color) noexcept override { mTextColor.setColor(widget(), color); }

 private:
  std::string mText;
  QtTextColor mTextColor;
};

// The shared part of push button and check box: the title and the click.
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

// A button on QPushButton.
class QtButton : public QtButtonOf<Button, QPushButton> {
 public:
  QtButton(const Rect& frame, std::shared_ptr<QtActions> actions);
};

// A check box on QCheckBox.
class QtCheckBox : public QtButtonOf<CheckBox, QCheckBox> {
 public:
  QtCheckBox(const Rect& frame, std::shared_ptr<QtActions> actions);

  int state() const noexcept override { return mState; }
  void setState(int state) noexcept override;
  std::string ppdKeyword() const noexcept override { return mPPDKeyword; }
  void setPPDKeyword(const std::string& keyword) noexcept override { mPPDKeyword = keyword; }

 protected:
  void willPerformClick() noexcept override;
  void didClick() noexcept override;

 private:
  int mState = kOff;
  std::string mPPDKeyword;
};

}  // namespace cutline
