// A check box that tells what is done to it: its name for a reading of its state, the name with the
// state, as in "mirror=1", for a setting.
#pragma once

#include <string>
#include <vector>

#include "plain/PlainControls.h"

namespace cutline::test {

class ToldBox final : public virtual CheckBox, public PlainButton {
 public:
  ToldBox(std::string name, std::vector<std::string>& told)
      : PlainButton({}, std::make_shared<PlainActions>()), mName(std::move(name)), mTold(told) {}

  int state() const noexcept override {
    mTold.push_back(mName);
    return mState;
  }
  void setState(int state) noexcept override {
    mTold.push_back(mName + "=" + std::to_string(state));
    mState = state;
  }
  std::string ppdKeyword() const noexcept override { return {}; }
  void setPPDKeyword(const std::string& /*keyword*/) noexcept override {}

 private:
  std::string mName;
  std::vector<std::string>& mTold;
  int mState = kOff;
};

}  // namespace cutline::test
