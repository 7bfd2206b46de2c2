#include "cups/PpdChoice.h"

#include <strings.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include "base/Lists.h"
#include "cups/CustomSize.h"
#include "cups/PpdLimits.h"
#include "cups/PpdRecords.h"

namespace cutline {

namespace {

std::string valueOf(const ppd_cparam_t& parameter) {
  switch (parameter.type) {
    case PPD_CUSTOM_INT:
      return std::to_string(parameter.current.custom_int);
    case PPD_CUSTOM_PASSCODE:
    case PPD_CUSTOM_PASSWORD:
    case PPD_CUSTOM_STRING: {
      const char* text = parameter.current.custom_string;
      return text ? text : "";
    }
    default:
      return decimalText(parameter.current.custom_real);
  }
}

// Custom.VALUE, or {NAME=VALUE ...} where the option takes several.
std::string customValue(ppd_coption_t* custom) {
  if (cupsArrayCount(custom->params) == 1) {
    return std::string(kCustomChoice) + '.' + valueOf(*ppdFirstCustomParam(custom));
  }
  std::string text;
  for (ppd_cparam_t* p = ppdFirstCustomParam(custom); p; p = ppdNextCustomParam(custom)) {
    text += (text.empty() ? "{" : " ") + std::string(p->name) + '=' + valueOf(*p);
  }
  return text.empty() ? kCustomChoice : text + '}';
}

// A custom choice names its values, so that it says the same on the server.
std::string choiceToSend(ppd_file_t* ppd, const ppd_option_t& option, const ppd_choice_t& choice) {
  if (std::strcmp(choice.choice, kCustomChoice) != 0) return choice.choice;
  if (std::strcmp(option.keyword, kPageSizeKeyword) == 0) {
    const ppd_size_t* size = markedSize(ppd);
    return size ? CustomSize{size->width, size->length}.choice() : kCustomChoice;
  }
  ppd_coption_t* custom = ppdFindCustomOption(ppd, option.keyword);
  return custom ? customValue(custom) : kCustomChoice;
}

Sentence choiceNames(const ppd_option_t& option) {
  std::vector<std::string> names;
  for (const ppd_choice_t& choice : choicesOf(option)) names.emplace_back(choice.choice);
  if (names.empty()) return Phrase("cups", "it has none");
  return {Phrase("cups", "its choices are %1"), {listed(names)}};
}

// PPDs round their points, so that 24 mm can be a little more than their 24 mm.
bool isWithin(double measure, double least, double most) {
  constexpr double kRounding = 0.1;
  return measure >= least - kRounding && measure <= most + kRounding;
}

Result<Done> checkCustomSize(const ppd_file_t* ppd, const std::string& choice) {
  const auto size = CustomSize::parse(choice);
  if (!size) {
    return Error{Sentence(
        Phrase("cups", "\"%1\" is no paper size: write it as Custom.WIDTHxLENGTHmm"), {choice})};
  }
  const double mostWidth = std::min<double>(ppd->custom_max[0], kLongestPaper);
  const double mostLength = std::min<double>(ppd->custom_max[1], kLongestPaper);
  if (isWithin(size->width, ppd->custom_min[0], mostWidth) &&
      isWithin(size->length, ppd->custom_min[1], mostLength))
    return Done{};
  return Error{Sentence(Phrase("cups", "the printer does not take paper of %1: it takes %2 to %3"),
                        {size->text(), CustomSize{ppd->custom_min[0], ppd->custom_min[1]}.text(),
                         CustomSize{ppd->custom_max[0], ppd->custom_max[1]}.text()})};
}

Error noPaper(const std::string& choice) {
  return Sentence(Phrase("cups", "the paper \"%1\" has measures that no paper has"), {choice});
}

Result<Done> checkCustom(ppd_file_t* ppd, const ppd_option_t& option, const std::string& choice) {
  if (std::strcmp(option.keyword, kPageSizeKeyword) == 0) return checkCustomSize(ppd, choice);
  return Done{};
}

// Null for none. Choices that differ in capitals alone are different to whoever writes one exactly.
const ppd_choice_t* choiceNamed(const ppd_option_t& option, const std::string& name) {
  const ppd_choice_t* found = nullptr;
  for (const ppd_choice_t& choice : choicesOf(option)) {
    if (name == choice.choice) return &choice;
    if (!found && strcasecmp(choice.choice, name.c_str()) == 0) found = &choice;
  }
  return found;
}

std::string spelledOne(const ppd_option_t& option, const std::string& name) {
  const ppd_choice_t* choice = choiceNamed(option, name);
  return choice ? choice->choice : name;
}

bool isCustomValue(const std::string& choice) {
  return choice.starts_with("Custom.") || choice.starts_with('{');
}

bool isList(const ppd_option_t& option, const std::string& choice) {
  return option.ui == PPD_UI_PICKMANY && choice.find(',') != std::string::npos;
}

}  // namespace

std::string markedText(ppd_file_t* ppd, const ppd_option_t& option) {
  std::string text;
  for (const ppd_choice_t& choice : choicesOf(option)) {
    if (!choice.marked) continue;
    if (!text.empty()) text += ',';
    text += choiceToSend(ppd, option, choice);
    if (option.ui != PPD_UI_PICKMANY) break;
  }
  return text;
}

bool isAtDefault(const ppd_option_t& option) {
  const bool mayBeCustom = option.defchoice[0] == kCustomChoice[0];
  return std::ranges::all_of(choicesOf(option), [&option, mayBeCustom](const ppd_choice_t& choice) {
    return choice.marked == 0 || (std::strcmp(choice.choice, option.defchoice) == 0 &&
                                  !(mayBeCustom && std::strcmp(choice.choice, kCustomChoice) == 0));
  });
}

std::string spelledChoice(const ppd_option_t& option, const std::string& choice) {
  if (isCustomValue(choice)) return choice;
  if (option.ui != PPD_UI_PICKMANY) return spelledOne(option, choice);
  std::string text;
  for (const std::string& part : partsBetweenCommas(choice))
    text += (text.empty() ? "" : ",") + spelledOne(option, part);
  return text;
}

Result<Done> checkChoiceOf(ppd_file_t* ppd, const ppd_option_t& option, const std::string& choice) {
  if (isCustomValue(choice) && ppdFindCustomOption(ppd, option.keyword)) {
    return checkCustom(ppd, option, choice);
  }
  if (isUnusableSize(ppd, option.keyword, choice)) return noPaper(choice);
  const auto isKnown = [&](const std::string& name) {
    return choiceNamed(option, name) != nullptr;
  };
  if (isList(option, choice) ? std::ranges::all_of(partsBetweenCommas(choice), isKnown)
                             : isKnown(choice))
    return Done{};
  return Error{Sentence(Phrase("cups", "the option %1 has no choice \"%2\": %3"),
                        {std::string(option.keyword), choice, choiceNames(option)})};
}

// libcups' list of what is marked finds a choice by its option, and has it as often as it was
// marked where the option takes several.
void unmark(ppd_file_t* ppd, ppd_option_t& option) {
  ppd_choice_t any{};
  any.option = &option;
  while (auto* found = static_cast<ppd_choice_t*>(cupsArrayFind(ppd->marked, &any))) {
    found->marked = '\0';
    cupsArrayRemove(ppd->marked, found);
  }
  for (ppd_choice_t& each : choicesOf(option)) each.marked = '\0';
}

bool markList(ppd_file_t* ppd, const std::string& keyword, const std::string& choice) {
  ppd_option_t* option = ppdFindOption(ppd, keyword.c_str());
  if (!option || !isList(*option, choice)) return false;
  unmark(ppd, *option);
  for (const std::string& part : partsBetweenCommas(choice))
    ppdMarkOption(ppd, option->keyword, part.c_str());
  return true;
}

}  // namespace cutline
