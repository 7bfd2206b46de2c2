#include "host/core/ChoicesCommand.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "base/Lists.h"

namespace cutline {

namespace {

std::string withText(const std::string& name, const std::string& text) {
  return text == name ? name : name + '/' + text;
}

// A value of the user's own is no choice of the list, and stands before it.
std::string choicesOf(const PpdOption& option, const std::string& marked) {
  const bool isListed =
      std::any_of(option.choices.begin(), option.choices.end(),
                  [&](const OptionChoice& choice) { return choice.name == marked; });
  std::vector<std::string> words;
  if (!isListed && !marked.empty()) words.push_back('*' + marked);
  for (const OptionChoice& choice : option.choices)
    words.push_back((choice.name == marked ? "*" : "") + withText(choice.name, choice.text));
  return listed(words);
}

std::string valueIn(const OptionList& options, const std::string& keyword) {
  const auto found = std::find_if(options.begin(), options.end(),
                                  [&](const auto& option) { return option.first == keyword; });
  return found == options.end() ? std::string() : found->second;
}

}  // namespace

Result<Done> showChoices(const CommandLine& line, PluginLoader& plugIns, const Streams& streams) {
  HeadlessSession session(line, plugIns, streams.notes);
  if (Result<Done> opened = session.openSelected(); !opened) return opened;
  const PpdFile& ppd = *session.model().ppdFile();
  const OptionList marked = ppd.markedOptions();
  for (const OptionGroup& group : ppd.optionGroups())
    for (const PpdOption& option : group.options)
      streams.out << withText(option.keyword, option.text) << ": "
                  << choicesOf(option, valueIn(marked, option.keyword)) << '\n';
  return Done{};
}

}  // namespace cutline
