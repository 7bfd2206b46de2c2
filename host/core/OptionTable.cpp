#include "host/core/OptionTable.h"

#include <strings.h>

namespace cutline {

bool OptionTable::Less::operator()(const std::string& one, const std::string& other) const {
  return strcasecmp(one.c_str(), other.c_str()) < 0;
}

const PpdOption* OptionTable::find(const std::string& keyword) const {
  auto asked = mAsked.find(keyword);
  if (asked == mAsked.end()) asked = mAsked.emplace(keyword, mPpd.option(keyword)).first;
  return asked->second ? &*asked->second : nullptr;
}

std::optional<int> OptionTable::position(const std::string& keyword,
                                         const std::string& choice) const {
  const PpdOption* option = find(keyword);
  if (option == nullptr) return std::nullopt;
  for (std::size_t i = 0; i < option->choices.size(); ++i)
    if (strcasecmp(option->choices[i].name.c_str(), choice.c_str()) == 0)
      return static_cast<int>(i);
  return std::nullopt;
}

std::optional<std::string> OptionTable::choiceAt(const std::string& keyword, int position) const {
  const PpdOption* option = find(keyword);
  if (option == nullptr || position < 0) return std::nullopt;
  const auto index = static_cast<std::size_t>(position);
  if (index >= option->choices.size()) return std::nullopt;
  return option->choices[index].name;
}

std::string OptionTable::optionText(const std::string& keyword) const {
  const PpdOption* option = find(keyword);
  return option != nullptr ? option->text : keyword;
}

std::string OptionTable::choiceText(const std::string& keyword, const std::string& choice) const {
  const std::optional<int> index = position(keyword, choice);
  return index ? find(keyword)->choices[static_cast<std::size_t>(*index)].text : choice;
}

}  // namespace cutline
