#include "cups/PpdOptionRecords.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <utility>

#include "cups/PpdRecords.h"

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

// No where there is no memory.
bool makeChoices(ppd_option_t& option, const std::vector<OptionBlock::Choice>& choices) {
  if (choices.empty()) return true;
  option.choices = static_cast<ppd_choice_t*>(std::calloc(choices.size(), sizeof(ppd_choice_t)));
  if (!option.choices) return false;
  option.num_choices = static_cast<int>(choices.size());
  for (std::size_t i = 0; i < choices.size(); ++i)
    if (!fill(option.choices[i], choices[i])) return false;
  return true;
}

}  // namespace

OptionRecords::OptionRecords(OptionRecords&& other) noexcept
    : mOptions(std::exchange(other.mOptions, nullptr)),
      mCount(std::exchange(other.mCount, 0)),
      mRoom(std::exchange(other.mRoom, 0)),
      mPlaces(std::move(other.mPlaces)) {}

OptionRecords::~OptionRecords() {
  for (const ppd_option_t& option : all()) {
    for (const ppd_choice_t& choice : choicesOf(option)) std::free(choice.code);
    std::free(option.choices);
  }
  std::free(mOptions);
}

bool OptionRecords::add(const OptionBlock& block) {
  ppd_option_t* option = addEmpty(block.keyword);
  if (!option) return false;
  copy(option->defchoice, block.defaultChoice);
  copy(option->text, block.text.empty() ? block.keyword : block.text);
  option->ui = block.ui;
  option->section = block.section;
  option->order = block.order;
  return makeChoices(*option, block.choices);
}

bool OptionRecords::addPlace(std::string_view keyword) {
  mPlaces.push_back(mCount);
  return addEmpty(keyword) != nullptr;
}

ppd_option_t* OptionRecords::release() noexcept {
  mCount = mRoom = 0;
  return std::exchange(mOptions, nullptr);
}

ppd_option_t* OptionRecords::addEmpty(std::string_view keyword) {
  constexpr std::size_t kFirstRoom = 16;
  if (mCount == mRoom) {
    const std::size_t room = std::max(2 * mRoom, kFirstRoom);
    auto* more = static_cast<ppd_option_t*>(std::realloc(mOptions, room * sizeof(ppd_option_t)));
    if (!more) return nullptr;
    mOptions = more;
    mRoom = room;
  }
  ppd_option_t* option = new (mOptions + mCount) ppd_option_t{};
  ++mCount;
  copy(option->keyword, keyword);
  return option;
}

ppd_attr_t* newDefault(const ppd_option_t& option) {
  constexpr std::string_view kStart = "Default";
  auto* attribute = static_cast<ppd_attr_t*>(std::calloc(1, sizeof(ppd_attr_t)));
  if (!attribute) return nullptr;
  char* end = std::ranges::copy(kStart, attribute->name).out;
  const std::string_view keyword = option.keyword;
  keyword.copy(end, sizeof(attribute->name) - kStart.size() - 1);
  attribute->value = newText(option.defchoice);
  if (attribute->value) return attribute;
  std::free(attribute);
  return nullptr;
}

}  // namespace cutline
