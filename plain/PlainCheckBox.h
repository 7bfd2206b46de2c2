// A check box in memory.
#pragma once

#include <string>

#include "plain/PlainButton.h"
#include "platform/ports/Controls.h"

namespace cutline {

class PlainCheckBox final : public virtual CheckBox, public PlainButton {
 public:
  using PlainButton::PlainButton;

  int state() const noexcept override { return mState; }
  void setState(int state) noexcept override;
  std::string ppdKeyword() const noexcept override { return mPPDKeyword; }
  void setPPDKeyword(const std::string& keyword) noexcept override { mPPDKeyword = keyword; }

 protected:
  void advanceState() noexcept override { mState = mState == kOn ? kOff : kOn; }

 private:
  int mState = kOff;
  std::string mPPDKeyword;
};

}  // namespace cutline
