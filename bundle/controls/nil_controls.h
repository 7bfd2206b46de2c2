// Questions to controls that may be missing: an interface file need not have every outlet, and a
// control that isn't there answers zero and takes orders silently.
#pragma once

#include "platform/ports/Controls.h"

namespace cutline {

inline int stateOf(const CheckBox* box) noexcept { return box ? box->state() : CheckBox::kOff; }

inline bool isHidden(const View* view) noexcept { return view && view->isHidden(); }

// A view that isn't there is not shown either.
inline bool isShown(const View* view) noexcept { return view && !view->isHidden(); }

inline bool isEnabled(const Control* control) noexcept { return control && control->isEnabled(); }

// On as the user sees it: shown and ticked; the mixed state is not on.
inline bool isShownAndOn(const CheckBox* box) noexcept {
  return !isHidden(box) && stateOf(box) == CheckBox::kOn;
}

inline void setState(CheckBox* box, int state) noexcept {
  if (box) box->setState(state);
}

inline void setHidden(View* view, bool hidden) noexcept {
  if (view) view->setHidden(hidden);
}

inline void setEnabled(Control* control, bool enabled) noexcept {
  if (control) control->setEnabled(enabled);
}

}  // namespace cutline
