// What is printed without a window is what the dialog prints: for every combination of the cut
// options in the process, and for a sample of them through the program and the printer.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "host/core/CutRules.h"
#include "host/core/PrinterSelection.h"
#include "plain/PlainToolkit.h"
#include "tests/e2e/DialogOnServer.h"
#include "tests/e2e/Program.h"
#include "tests/e2e/SampleOptions.h"
#include "tests/support/EndToEndTest.h"

namespace cutline::test {

namespace {

// One paper without a rule, and one for each rule.
const std::vector<std::string> kTapePapers = {"W24H50", "DC24H50", "AV24H60", "HS24H50"};
const std::vector<std::string> kRollPapers = {"W62H29", "W62H100"};

// Every combination: a bit an option.
Choices combination(const std::vector<std::string>& keywords, unsigned number) {
  Choices choices;
  for (const std::string& keyword : keywords) {
    choices[keyword] = (number & 1U) != 0 ? "ON" : "OFF";
    number >>= 1U;
  }
  return choices;
}

// What is sent for these options: with PlainToolkit by `cutline --print`, with QtToolkit by a
// dialog that is opened with -o.
template <class Kit>
Choices sentBy(const std::string& printer, const Choices& asked) {
  Kit toolkit;
  const HostPlatform platform(toolkit);
  PrintModel model(plugIns(), {asList(asked), {}, {}});
  model.openPrinter(*selectPrinter(dialogOn(printer)));
  return asChoices(*model.prepareToPrint());
}

// Clicks each box that does not stand where it should. Special tape is turned off before: the boxes
// that it greys take no click.
void clickTo(DialogOnServer& dialog, const std::vector<std::string>& keywords,
             const Choices& wanted) {
  const CheckBox* special = dialog.checkBox("LxSpecialTape");
  if (special != nullptr && special->state() == CheckBox::kOn) click(dialog.box("LxSpecialTape"));
  for (const std::string& keyword : keywords) {
    const int state = wanted.at(keyword) == "ON" ? CheckBox::kOn : CheckBox::kOff;
    if (dialog.checkBox(keyword)->state() != state) click(dialog.box(keyword));
  }
}

class WithoutWindow : public EndToEndTest, public testing::WithParamInterface<const char*> {};
INSTANTIATE_TEST_SUITE_P(EachPrinter, WithoutWindow, testing::ValuesIn(kPrinters),
                         [](const auto& info) { return std::string(info.param); });

// What was clicked, and what the dialog would send then.
struct Pair {
  Choices wanted;
  Choices sent;
};

std::vector<Pair> clickEach(const std::string& printer) {
  DialogOnServer dialog(printer);
  std::vector<Pair> pairs;
  const std::vector<std::string> keywords = cutSwitches(*samplePpd(printer));
  for (unsigned number = 0; number < 1U << keywords.size(); ++number) {
    const Choices wanted = combination(keywords, number);
    clickTo(dialog, keywords, wanted);
    pairs.push_back({wanted, dialog.sent()});
  }
  return pairs;
}

TEST_P(WithoutWindow, SendsWhatIsClickedForEveryCombination) {
  // One platform serves one dialog at a time, so all the clicks come first.
  for (const auto& [wanted, sent] : clickEach(GetParam()))
    ASSERT_EQ(sent, sentBy<PlainToolkit>(GetParam(), wanted)) << testing::PrintToString(wanted);
}

// Each paper meets each pair of choices: there are more combinations than papers squared.
TEST_P(WithoutWindow, SendsWhatADialogWithTheSameOptionsSendsForEveryCombination) {
  const std::shared_ptr<PpdFile> ppd = samplePpd(GetParam());
  const std::vector<std::string>& papers = isLabelRoll(*ppd) ? kRollPapers : kTapePapers;
  const std::vector<std::string> keywords = cutSwitches(*samplePpd(GetParam()));
  for (unsigned number = 0; number < 1U << keywords.size(); ++number) {
    Choices wanted = combination(keywords, number);
    wanted["PageSize"] = papers[(number + number / papers.size()) % papers.size()];
    if (ppd->hasOption("LxCutLabel")) wanted["LxCutLabel"] = std::to_string(1 + number % 99);
    ASSERT_EQ(sentBy<QtToolkit>(GetParam(), wanted), sentBy<PlainToolkit>(GetParam(), wanted))
        << testing::PrintToString(wanted);
  }
}

// The same through the program, the server and the printer's driver, four combinations a printer
// that differ from each other in about half the options.
TEST_P(WithoutWindow, PrintsWhatTheDialogPrints) {
  const std::vector<std::string> keywords = cutSwitches(*samplePpd(GetParam()));
  for (const unsigned number : {0U, 0b01010101U, 0b00110011U, 0b01101110U}) {
    const Choices wanted = combination(keywords, number % (1U << keywords.size()));
    DialogOnServer dialog(GetParam());
    clickTo(dialog, keywords, wanted);
    dialog.print();
    const PrintedJob clicked = newJob();
    std::string words = std::string("--print -d ") + GetParam();
    for (const auto& [keyword, choice] : wanted) words += " -o " + keyword + "=" + choice;
    const CommandResult program = runProgram(words + " " + labels());
    ASSERT_EQ(program.status, kExitDone) << program.errors;
    const PrintedJob asked = newJob();
    EXPECT_EQ(asked.options(), clicked.options()) << "combination " << number;
    EXPECT_EQ(asked.number("labels"), clicked.number("labels"));
    EXPECT_EQ(asked.number("full-cuts"), clicked.number("full-cuts"));
    EXPECT_EQ(asked.number("half-cuts"), clicked.number("half-cuts"));
    EXPECT_EQ(asked.fact("picture"), clicked.fact("picture"));
  }
}

// A job is not kept waiting for what is said of it.
TEST_F(EndToEndTest, SaysWhatIsCutOffOfAJobThatWasSent) {
  const TemporaryFolder folder;
  const std::string full =
      folder.write("full.svg",
                   "<svg xmlns='http://www.w3.org/2000/svg' width='50mm' height='24mm'>"
                   "<rect width='100%' height='100%'/></svg>");
  const CommandResult cut = runProgram("--print -d tape24 -o print-scaling=none " + full);
  EXPECT_EQ(cut.status, kExitDone);
  EXPECT_NE(cut.output.find("request id is tape24-"), std::string::npos) << cut.output;
  EXPECT_TRUE(cut.errors.starts_with("cutline: edges will be cut off on label 1: ")) << cut.errors;
  EXPECT_EQ(runProgram("--print -d tape24 -o fit-to-page " + full).errors, "");
}

// Where a sanitizer watches, the programs that look at documents are heard, too.
#ifndef __SANITIZE_ADDRESS__
constexpr const char* kGuiLibraries[] = {"libQt6", "libX11", "libxcb", "libwayland", "libpoppler"};

TEST_F(EndToEndTest, CommandsWithoutAWindowLoadNoGuiLibrary) {
  const std::string document = labels();
  for (const std::string& command :
       {std::string("--list"), std::string("--options -d tape24"),
        std::string("--summary -d tape24"), "--print -d tape24 -P 1 " + document}) {
    const CommandResult result = runProgram(command, "LD_DEBUG=files");
    EXPECT_EQ(result.status, kExitDone) << command;
    EXPECT_NE(result.errors.find("libcutline-host.so"), std::string::npos) << command;
    for (const char* library : kGuiLibraries)
      EXPECT_EQ(result.errors.find(library), std::string::npos) << command << ": " << library;
  }
  // Documents are looked at in a process of their own.
  EXPECT_EQ(
      runProgram("--print -d tape24 -P 1 " + document, "LD_DEBUG=files").errors.find("libqpdf"),
      std::string::npos);
  // A command with a window does, so the names above are those to look for.
  const CommandResult shown = runProgram("--marks -d tape24", "LD_DEBUG=files");
  EXPECT_EQ(shown.status, kExitDone) << shown.output;
  EXPECT_NE(shown.errors.find("libQt6Widgets"), std::string::npos);
}
#endif

}  // namespace

}  // namespace cutline::test
