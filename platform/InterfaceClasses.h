// The classes of a bundle's own that its interface files name. Implemented by the bundle; asked by
// the interface file's loader.
#pragma once

#include <memory>
#include <string>

namespace cutline {

class Formatter;
class TextField;
class TextFieldClient;
struct FormatterDescription;

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

}  // namespace cutline
