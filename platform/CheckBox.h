// A check box. Implemented by each toolkit adapter.
#pragma once

#include <string>

#include "platform/Button.h"

namespace cutline {

class CheckBox : public virtual Button {
 public:
  static constexpr int kOff = 0;
  static constexpr int kOn = 1;
  static constexpr int kMixed = -1;

  ~CheckBox() override;

  // 0 off, 1 on, -1 mixed. Setting runs no action.
  virtual int state() const noexcept = 0;
  virtual void setState(int state) noexcept = 0;

  // The PPD keyword whose choice the box stands for, as its interface file names it; empty when
  // it stands for none. The host uses it to hold boxes and marks together.
  virtual std::string ppdKeyword() const noexcept = 0;
  virtual void setPPDKeyword(const std::string& keyword) noexcept = 0;
};

}  // namespace cutline
