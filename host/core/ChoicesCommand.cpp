#include "host/core/ChoicesCommand.h"

#include <map>
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

using Values = std::map<std::string, std::string>;

std::string valueIn(const Values& values, const std::string& keyword) {
  const auto found = values.find(keyword);
  return found == values.end() ? std::string() : found->second;
}

}  // namespace

Result<Done> showChoices(const CommandLine& line, PluginLoader& plugIns, const Streams& streams) {
  HeadlessSession session(line, plugIns, streams.notes);
  if (Result<Done> opened = session.openSelected(); !opened) return opened;
  const PpdFile& ppd = *session.model().ppdFile();
  const OptionList options = ppd.markedOptions();
  const Values marked(options.begin(), options.end());
  for (const OptionGroup& group : ppd.optionGroups())
    for (const PpdOption& option : group.options)
      write(option, valueIn(marked, option.keyword), streams.out);
  return Done{};
}

}  // namespace cutline
