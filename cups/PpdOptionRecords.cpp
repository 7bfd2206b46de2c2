#include "cups/PpdOptionRecords.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace cutline {

namespace {

template <std::size_t Size>
void copy(char (&place)[Size], std::string_view text) {
  place[text.copy(place, Size - 1)] = '\0';
}

// Null where there is no memory.
char* newText(std::string_view text) {
  auto* memory = static_cast<char*>(std::malloc(text.size() + 1));
  if (memory) memory[text.copy(memory, text.size())] = '\0';
  return memory;
}

std::string_view textFor(const OptionBlock::Choice& choice) {
  if (!choice.text.empty()) return choice.text;
  if (choice.name == "True") return "Yes";
  if (choice.name == "False") return "No";
  return choice.name;
}

bool fill(ppd_choice_t& record, const OptionBlock::Choice& choice) {
  copy(record.choice, choice.name);
  copy(record.text, textFor(choice));
  record.code = newText(choice.code);
  return record.code != nullptr;
}

}  // namespace

bool fillOption(ppd_option_t& option, const OptionBlock& block) {
  copy(option.keyword, block.keyword);
  copy(option.defchoice, block.defaultChoice);
  copy(option.text, block.text.empty() ? block.keyword : block.text);
  option.ui = block.ui;
  option.section = block.section;
  option.order = block.order;
  if (block.choices.empty()) return true;
  option.choices =
      static_cast<ppd_choice_t*>(std::calloc(block.choices.size(), sizeof(ppd_choice_t)));
  if (!option.choices) return false;
  option.num_choices = static_cast<int>(block.choices.size());
  for (std::size_t i = 0; i < block.choices.size(); ++i) {
    option.choices[i].option = &option;
    if (!fill(option.choices[i], block.choices[i])) return false;
  }
  return true;
}

ppd_attr_t* newDefault(const ppd_option_t& option) {
  auto* attribute = static_cast<ppd_attr_t*>(std::calloc(1, sizeof(ppd_attr_t)));
  if (!attribute) return nullptr;
  copy(attribute->name, std::string("Default") + option.keyword);
  attribute->value = newText(option.defchoice);
  if (attribute->value) return attribute;
  std::free(attribute);
  return nullptr;
}

}  // namespace cutline
