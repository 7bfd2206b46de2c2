// The words of a command line, one a line: refused, or checked against a printer, opened with it,
// and sent.
#include <sstream>
#include <vector>

#include "base/Visible.h"
#include "host/core/HeadlessSession.h"
#include "host/core/JobPlan.h"
#include "host/core/OptionTable.h"
#include "tests/fuzz/BuiltPlugIns.h"
#include "tests/fuzz/Insist.h"
#include "tests/fuzz/MemoryPpd.h"
#include "tests/support/TestPrinter.h"

namespace {

using namespace cutline;

std::vector<std::string> wordsIn(std::string_view text) {
  std::vector<std::string> words = {"cutline"};
  std::istringstream lines{std::string(text.substr(0, text.find('\0')))};
  for (std::string line; std::getline(lines, line);) words.push_back(line);
  return words;
}

Result<CommandLine> commandLineOf(const std::vector<std::string>& words) {
  std::vector<const char*> pointers;
  for (const std::string& word : words) pointers.push_back(word.c_str());
  const auto count = static_cast<int>(pointers.size());
  pointers.push_back(nullptr);
  return parseCommandLine(count, pointers.data());
}

// What a command line asks for goes to a server in one line.
void insistIsSendable(const OptionList& options) {
  for (const auto& [name, value] : options)
    fuzz::insist(isPlainLine(name) && isPlainLine(value),
                 "is sendable: " + visible(name + "=" + value));
}

void openWith(const CommandLine& line) {
  static const std::shared_ptr<PpdFile> ppd = *fuzz::openPpd(ppdText(test::fullTapePrinter()));
  if (!checkOptions(*ppd, line.asked.options)) return;
  std::ostringstream notes;
  HeadlessSession session(line, fuzz::builtPlugIns(), notes);
  session.open({{}, ppd});
  const PrintModel& model = session.model();
  insistIsSendable(model.jobOptions());
  fuzz::insist(model.copies() >= 1, "there is at least one copy");
  fuzz::insist(CompositionRequest::parse(model.compositionRequest().asText()).has_value(),
               "the composer can be asked");
  planFor(model, 3);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto line = commandLineOf(wordsIn({reinterpret_cast<const char*>(data), size}));
  if (line)
    openWith(*line);
  else
    fuzz::insist(!line.error().message.empty(), "an error says something");
  return 0;
}
