#include "bundle/textinput/PDETextField13_v400_.h"

#include "platform/ports/NotificationCenter.h"
#include "platform/ports/TextField.h"

namespace cutline {

void PDETextField13_v400_::sendFirstResponderNotification(bool flag) noexcept {
  if (flag) return;
  const View* view = &mField;
  NotificationCenter::defaultCenter().postNotificationName(
      kTextFieldResignFirstResponderNotification, static_cast<const void*>(view));
}

bool PDETextField13_v400_::becomeFirstResponder() noexcept {
  const bool hasBecome = mField.superBecomeFirstResponder();
  if (hasBecome) sendFirstResponderNotification(true);
  return hasBecome;
}

void PDETextField13_v400_::textDidEndEditing(const Notification& notification) {
  mField.superTextDidEndEditing(notification);
  if (mField.superResignFirstResponder()) sendFirstResponderNotification(true);
}

void PDETextField13_v400_::selectText(View* /*sender*/) noexcept {
  sendFirstResponderNotification(false);
}

void PDETextField13_v400_::textDidChange(const Notification& /*notification*/) noexcept {
  sendFirstResponderNotification(false);
}

}  // namespace cutline
