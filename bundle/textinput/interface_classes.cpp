#include "bundle/textinput/interface_classes.h"

#include <string_view>

#include "bundle/textinput/PDEFormatter.h"
#include "bundle/textinput/PDETextField13_v400_.h"
#include "platform/lib/InterfaceFile.h"

namespace cutline {
namespace {

std::shared_ptr<Formatter> makeFormatter(const FormatterDescription& description) {
  auto formatter = std::make_shared<PDEFormatter>();
  formatter->init();
  if (description.formatString) formatter->setFormatString(description.formatString);
  if (description.textStyle) formatter->setTextStyle(*description.textStyle);
  if (description.maxLength) formatter->setMaxLength(*description.maxLength);
  if (description.minValue) formatter->setMinValue(*description.minValue);
  if (description.maxValue) formatter->setMaxValue(*description.maxValue);
  for (const std::string& string : description.invalidCharacters) {
    formatter->addInvalidCharacter(string);
  }
  return formatter;
}

std::shared_ptr<TextFieldClient> makeTextField(TextField& field) {
  return std::make_shared<PDETextField13_v400_>(field);
}

template <typename Maker>
struct NamedClass {
  std::string_view name;
  Maker make;
};

constexpr NamedClass<decltype(&makeFormatter)> kFormatters[] = {{"PDEFormatter", makeFormatter}};
constexpr NamedClass<decltype(&makeTextField)> kTextFields[] = {
    {"PDETextField13_v400_", makeTextField}};

// What the class of that name makes; null without such a class.
template <typename Classes, typename Argument>
auto makeNamed(const Classes& classes, std::string_view name, Argument& argument)
    -> decltype(classes[0].make(argument)) {
  for (const auto& row : classes) {
    if (row.name == name) return row.make(argument);
  }
  return nullptr;
}

class OwnClasses final : public InterfaceClasses {
 public:
  std::shared_ptr<Formatter> formatter(
      const FormatterDescription& description) const noexcept override {
    return makeNamed(kFormatters, description.className, description);
  }
  std::shared_ptr<TextFieldClient> textField(const std::string& className,
                                             TextField& field) const noexcept override {
    return makeNamed(kTextFields, className, field);
  }
};

}  // namespace

const InterfaceClasses& bundleInterfaceClasses() noexcept {
  static const OwnClasses classes;
  return classes;
}

}  // namespace cutline
