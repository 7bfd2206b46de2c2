// A check box on QCheckBox.
#pragma once

#include <QCheckBox>
#include <memory>
#include <string>

#include "platform/ports/Controls.h"
#include "qt/QtButtonOf.h"

namespace cutline {

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
