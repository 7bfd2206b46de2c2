#include "bundle/textinput/interface_classes.h"

#include <string_view>
#include <utility>

#include "bundle/textinput/PDEFormatter.h"
#include "bundle/textinput/PDETextField13_v400_.h"
#include "platform/lib/CalendarDate.h"
#include "platform/lib/PropertyList.h"

namespace cutline {
namespace {

std::shared_ptr<const PropertyList> localeOf(const FormatterDescription& description) {
  if (!description.calendarLocale) return nullptr;
  PropertyList::Dictionary locale;
  for (const auto& [key, names] : *description.calendarLocale) {
    PropertyList::Array list;
    for (const std::string& name : names) list.emplace_back(PropertyList::Value(name));
    locale.emplace(key, PropertyList(std::move(list)));
  }
  return std::make_shared<const PropertyList>(std::move(locale));
}

void initialize(PDEFormatter& formatter, const FormatterDescription& description) {
  auto locale = localeOf(description);
  if (description.calendarDate) {
    auto date = std::make_shared<const CalendarDate>(*description.calendarDate);
    formatter.initWithCalendarDate(std::move(date), std::move(locale));
  } else {
    formatter.init();
    formatter.setCalendarLocale(std::move(locale));
  }
}

void setLimits(PDEFormatter& formatter, const FormatterDescription& description) {
  if (description.minValue) formatter.setMinValue(*description.minValue);
  if (description.maxValue) formatter.setMaxValue(*description.maxValue);
  // What is said of the check is more than what the value implies.
  if (description.validityMinValue) formatter.setValidityMinValue(*description.validityMinValue);
  if (description.validityMaxValue) formatter.setValidityMaxValue(*description.validityMaxValue);
}

std::shared_ptr<Formatter> makeFormatter(const FormatterDescription& description) {
  auto formatter = std::make_shared<PDEFormatter>();
  initialize(*formatter, description);
  if (description.formatString) formatter->setFormatString(description.formatString);
  if (description.textStyle) formatter->setTextStyle(*description.textStyle);
  if (description.maxLength) formatter->setMaxLength(*description.maxLength);
  setLimits(*formatter, description);
  formatter->setNotificationIdentity(description.notificationObject);
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
