#include "host/core/ChoicesCommand.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "base/Visible.h"

namespace cutline {

namespace {

std::string withText(const std::string& name, const std::string& text) {
  return text == name ? name : name + '/' + text;
}

void write(const PpdOption& option, const std::string& marked, std::ostream& out) {
  out << visible(withText(option.keyword, option.text)) << ":\n";
  bool isListed = marked.empty();
  for (const OptionChoice& choice : option.choices) {
    const bool isMarked = choice.name == marked;
    isListed = isListed || isMarked;
    out << (isMarked ? "* " : "  ") << visible(withText(choice.name, choice.text)) << '\n';
  }
  // A value of the user's own, such as a size, is no choice of the list.
  if (!isListed) out << "* " << visible(marked) << '\n';
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
      write(option, valueIn(marked, option.keyword), streams.out);
  return Done{};
}

}  // namespace cutline
