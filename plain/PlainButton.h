// A button in memory.
#pragma once

#include <string>

#include "plain/PlainControl.h"
#include "platform/ports/Controls.h"

namespace cutline {

class PlainButton : public virtual Button, public PlainControl {
 public:
  using PlainControl::PlainControl;

  std::string title() const noexcept override { return mTitle; }
  void setTitle(const std::string& title) noexcept override { mTitle = title; }
  void performClick() noexcept override;

 protected:
  // What a click changes before the action runs.
  virtual void advanceState() noexcept {}

 private:
  std::string mTitle;
};

}  // namespace cutline
