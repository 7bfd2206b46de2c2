// What a panel and its bundle give an interface file that is loaded for them.
#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ports/Controls.h"
#include "platform/ports/NotificationCenter.h"
#include "platform/ports/View.h"

namespace cutline {

class Formatter;
class TextField;
class TextFieldClient;

// The formatter of a text field, as an interface file gives it. What it doesn't say is left to the
// class.
struct FormatterDescription {
  // Names by the calendar's names of their lists, as "NSMonthNameArray".
  using NameLists = std::map<std::string, std::vector<std::string>>;

  std::string className;
  std::optional<std::string> formatString;
  std::optional<int> textStyle;
  std::optional<int> maxLength;          // bytes of the system's encoding; 0 means no limit
  std::optional<int> minValue;           // given: the class checks it, unless told not to
  std::optional<int> maxValue;           // likewise
  std::optional<bool> validityMinValue;  // whether the class checks it
  std::optional<bool> validityMaxValue;  // likewise
  std::vector<std::string> invalidCharacters;
  // What notifications of the formatter are about: a view or the owner (by the address of its
  // InterfaceOwner), neither of which it keeps alive, or a text.
  NotificationObject notificationObject;
  std::optional<std::chrono::sys_time<std::chrono::milliseconds>> calendarDate;
  std::optional<NameLists> calendarLocale;
};

// The classes of a bundle's own that its interface files name. Implemented by the bundle; asked by
// the interface file's loader.
class InterfaceClasses {
 public:
  virtual ~InterfaceClasses();

  // A new formatter of the class that the description names, with its settings; null when the
  // bundle has no such class.
  virtual std::shared_ptr<Formatter> formatter(
      const FormatterDescription& description) const noexcept = 0;

  // The behaviour of the named class for this field; null when the bundle has no such class. The
  // field is borrowed and will own the answer.
  virtual std::shared_ptr<TextFieldClient> textField(const std::string& className,
                                                     TextField& field) const noexcept = 0;
};

// The object that an interface file is loaded for. Implemented by panels; called by the interface
// file's loader.
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
