// The object that an interface file is loaded for. Implemented by panels; called by the interface
// file's loader.
#pragma once

#include <memory>
#include <string>

#include "platform/Control.h"
#include "platform/NotificationCenter.h"
#include "platform/View.h"

namespace cutline {

class InterfaceClasses;

class InterfaceOwner {
 public:
  virtual ~InterfaceOwner();

  // Stores a control in the owner's field of that name. The view tree owns the control; only the
  // top-level view is to be kept. False when the owner has no such field or the control is of
  // another kind; loading goes on.
  virtual bool connectOutlet(const std::string& name,
                             const std::shared_ptr<View>& view) noexcept = 0;

  // The owner's action of that full name ("changeOption:"); empty when it has none.
  virtual ActionHandler actionNamed(const std::string& name) noexcept = 0;

  // The owner's bundle's own classes, for views of the file that name one; null when it has none.
  // Borrowed: it outlives the loading.
  virtual const InterfaceClasses* interfaceClasses() const noexcept { return nullptr; }

  // controlTextDidChange:  For text fields that name the owner as their delegate; the
  // notification's object is the field.
  virtual void controlTextDidChange(const Notification& notification) noexcept = 0;

  // Called once, when every outlet and action is connected.
  virtual void awakeFromNib() noexcept = 0;
};

}  // namespace cutline
