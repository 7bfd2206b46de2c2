#include "tests/e2e/SampleOptions.h"

#include "host/core/CutRules.h"
#include "host/core/OptionTable.h"
#include "tests/support/EndToEndTest.h"

namespace cutline::test {

namespace {

struct PpdRow {
  const char* printer;
  const char* file;
};
constexpr PpdRow kPpds[] = {{"tape24", "tape-a"}, {"tapeb", "tape-b"}, {"roll62", "roll"}};

}  // namespace

PluginLoader& plugIns() {
  static PluginLoader loader({built("lib/cutline/plugins")});
  return loader;
}

std::shared_ptr<PpdFile> samplePpd(const std::string& printer) {
  for (const PpdRow& row : kPpds)
    if (printer == row.printer)
      return *PpdFile::open(built("share/cutline/samples/ppd/") + row.file + ".ppd");
  return nullptr;
}

Choices cutDefaults(const PpdFile& ppd) {
  Choices choices;
  const OptionTable table(ppd);
  for (const std::string_view keyword : kCutKeywords)
    if (const PpdOption* option = table.find(std::string(keyword)))
      choices[option->keyword] = option->defaultChoice;
  return choices;
}

std::vector<std::string> cutSwitches(const PpdFile& ppd) {
  std::vector<std::string> keywords;
  for (const std::string_view keyword : kCutKeywords)
    if (keyword != "LxCutLabel" && keyword != "LxSpecialTape" &&
        ppd.hasOption(std::string(keyword)))
      keywords.emplace_back(keyword);
  if (ppd.hasOption("LxSpecialTape")) keywords.emplace_back("LxSpecialTape");
  return keywords;
}

Choices asChoices(const OptionList& options) {
  Choices choices;
  for (const auto& [name, value] : options) choices[name] = value;
  return choices;
}

OptionList asList(const Choices& choices) { return {choices.begin(), choices.end()}; }

Choices only(const Choices& options, const Choices& names) {
  Choices chosen;
  for (const auto& [name, value] : options)
    if (names.contains(name)) chosen[name] = value;
  return chosen;
}

}  // namespace cutline::test
