#include "bundle/ppd/PDEUtilsMethod13.h"

#include <charconv>
#include <string_view>

#include "bundle/ppd/text_bytes.h"
#include "platform/ports/Controls.h"

namespace cutline {
namespace {

// Takes the next number out of the text; 0 when there is none.
double takeCoordinate(std::string_view& text) noexcept {
  const auto start = text.find_first_of("+-.0123456789");
  if (start == std::string_view::npos) return 0;
  text.remove_prefix(start);
  if (text.front() == '+') text.remove_prefix(1);
  double value = 0;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, value);
  text = std::string_view(result.ptr, static_cast<std::size_t>(end - result.ptr));
  return result.ec == std::errc() ? value : 0;
}

// As the platform's NSPointFromString reads it: two numbers, whatever stands around them.
Point pointFromString(std::string_view text) noexcept {
  const double x = takeCoordinate(text);
  const double y = takeCoordinate(text);
  return {x, y};
}

}  // namespace

bool PDEUtilsMethod13::runningOn105OrLater() noexcept { return true; }

std::optional<std::string> PDEUtilsMethod13::ppdAttrValStr(ppd_file_t* ppd,
                                                           const char* cStrKey) noexcept {
  const ppd_attr_t* attribute = ppdFindAttr(ppd, cStrKey, nullptr);
  if (!attribute) return std::nullopt;
  return decodedText(attribute->value, TextEncoding::system);
}

std::optional<std::string> PDEUtilsMethod13::ppdOptionTextStr(ppd_file_t* ppd,
                                                              const char* cStrKey) noexcept {
  const ppd_option_t* option = ppdFindOption(ppd, cStrKey);
  if (!option) return std::nullopt;
  return decodedText(option->text, TextEncoding::system);
}

bool PDEUtilsMethod13::isSupportedItem(ppd_file_t* ppd, const char* cStrKey) noexcept {
  return ppdAttrValStr(ppd, cStrKey) == "False";
}

Point PDEUtilsMethod13::originItem(ppd_file_t* ppd, const char* cStrKey) noexcept {
  return pointFromString(ppdAttrValStr(ppd, cStrKey).value_or(""));
}

std::unique_ptr<ChoiceList> PDEUtilsMethod13::arrayFromPPDOption(ppd_option_t* option) noexcept {
  if (!option) return nullptr;
  auto choices = std::make_unique<ChoiceList>();
  choices->reserve(static_cast<std::size_t>(option->num_choices));
  for (int i = 0; i < option->num_choices; ++i) {
    choices->push_back(PDEChoice::choiceWithChoice(&option->choices[i]));
  }
  return choices;
}

PDEChoice* PDEUtilsMethod13::findChoiceForString(const std::optional<std::string>& keyword,
                                                 const ChoiceList* choices) noexcept {
  if (!choices) return nullptr;
  for (const auto& choice : *choices) {
    if (keyword ? choice->ppdTitle() == keyword : choice->isDefaultChoice()) return choice.get();
  }
  return nullptr;
}

std::optional<std::string> PDEUtilsMethod13::newOptionTitle(const ppd_option_t* option) noexcept {
  return decodedText(option ? option->text : nullptr, TextEncoding::utf8);
}

std::optional<std::string> PDEUtilsMethod13::newChoiceTitle(const ppd_choice_t* choice) noexcept {
  return decodedText(choice ? choice->text : nullptr, TextEncoding::utf8);
}

void PDEUtilsMethod13::setEnabledForText(int enabled, Control* item) noexcept {
  auto* text = dynamic_cast<TextColored*>(item);
  if (!text) return;
  text->setTextColor(enabled == 1 ? TextColor::controlText : TextColor::disabledControlText);
}

}  // namespace cutline
