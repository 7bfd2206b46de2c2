#include "plain/PlainCheckBox.h"

namespace cutline {

void PlainCheckBox::setState(int state) noexcept {
  // As toolkits do: any other number stands for the state that has its sign.
  mState = state < 0 ? kMixed : state > 0 ? kOn : kOff;
}

}  // namespace cutline
