#include "host/core/ConflictResolution.h"

#include <optional>

#include "host/core/OpenPrinter.h"

namespace cutline {

namespace {

constexpr int kMaxChanges = 32;

Sentence sentence(const OpenPrinter& printer, const Conflict& conflict) {
  const OptionTable& options = printer.options();
  return {
      Phrase("host", "\"%1: %2\" cannot be used together with \"%3: %4\"."),
      {options.optionText(conflict.keyword), options.choiceText(conflict.keyword, conflict.choice),
       options.optionText(conflict.otherKeyword),
       options.choiceText(conflict.otherKeyword, conflict.otherChoice)}};
}

// Choices to try instead, the default first.
std::vector<std::string> alternatives(const PpdOption& option) {
  std::vector<std::string> names{option.defaultChoice};
  for (const OptionChoice& choice : option.choices)
    if (choice.name != option.defaultChoice) names.push_back(choice.name);
  return names;
}

// Marks the first alternative that leaves fewer conflicts; nothing marked when there is none.
std::optional<std::string> giveWay(const OpenPrinter& printer, const std::string& keyword) {
  const PpdOption* option = printer.options().find(keyword);
  if (option == nullptr || keyword == printer.lastChosen()) return std::nullopt;
  const std::string before = printer.ppd().markedChoice(keyword);
  const std::size_t conflictsBefore = printer.ppd().conflicts().size();
  for (const std::string& choice : alternatives(*option)) {
    printer.ppd().markChoice(keyword, choice);
    if (printer.ppd().conflicts().size() < conflictsBefore) return choice;
  }
  printer.ppd().markChoice(keyword, before);
  return std::nullopt;
}

std::optional<std::pair<std::string, std::string>> nextChange(const OpenPrinter& printer,
                                                              const Conflict& conflict) {
  for (const std::string& keyword : {conflict.otherKeyword, conflict.keyword})
    if (const auto choice = giveWay(printer, keyword)) return std::pair{keyword, *choice};
  return std::nullopt;
}

}  // namespace

std::vector<Sentence> conflictSentences(const OpenPrinter& printer) {
  std::vector<Sentence> sentences;
  for (const Conflict& conflict : printer.ppd().conflicts())
    sentences.push_back(sentence(printer, conflict));
  return sentences;
}

Result<Done> resolveConflicts(OpenPrinter& printer) {
  const OptionList marksBefore = printer.ppd().markedOptions();
  OptionList changes;
  for (int i = 0; i < kMaxChanges; ++i) {
    const std::vector<Conflict> conflicts = printer.ppd().conflicts();
    if (conflicts.empty()) {
      printer.chooseOptions(changes);
      return Done{};
    }
    const auto change = nextChange(printer, conflicts.front());
    if (!change) break;
    changes.push_back(*change);
  }
  for (const auto& [keyword, choice] : marksBefore) printer.ppd().markChoice(keyword, choice);
  return Error{
      Sentence(Phrase("host", "%1 Change one of them."), {conflictSentences(printer).front()})};
}

}  // namespace cutline
