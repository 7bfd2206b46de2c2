// The real program, as a shell would run it.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "tests/support/OtherDrivers.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestPrinter.h"

namespace cutline {
namespace {

struct Outcome {
  int status;
  std::string out;
  std::string err;
};

class Program : public testing::Test {
 protected:
  Program() {
    writePpd("tape.ppd", test::fullTapePrinter());
    std::ofstream(file("labels.txt")) << "label\n";
  }

  void writePpd(const std::string& name, const test::TestPrinter& printer) {
    std::ofstream(file(name)) << test::ppdText(printer);
  }

  std::string file(const std::string& name) const { return mDirectory.path() + "/" + name; }

  // `words` as typed in a shell; the print server is one that does not run.
  Outcome run(const std::string& words, const std::string& environment = "") const {
    const std::string command =
        "cd " + mDirectory.path() + " && HOME=. CUPS_SERVER=" + file("no.sock") + " " +
        environment + " " CUTLINE_BUILD_DIR "/bin/cutline " + words + " >out 2>err </dev/null";
    const int status = std::system(command.c_str());
    return {WEXITSTATUS(status), contents("out"), contents("err")};
  }

  std::string contents(const std::string& name) const {
    std::ostringstream text;
    text << std::ifstream(file(name)).rdbuf();
    return text.str();
  }

  static std::map<std::string, std::string> pairs(const std::string& text) {
    std::map<std::string, std::string> pairs;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
      pairs[line.substr(0, line.find('='))] = line.substr(line.find('=') + 1);
    return pairs;
  }

  // One line "cutline: ..." on standard error, nothing on standard output.
  static void expectError(const Outcome& outcome, int status, const std::string& part) {
    EXPECT_EQ(outcome.status, status) << outcome.err;
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.err.starts_with("cutline: ")) << outcome.err;
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    EXPECT_NE(outcome.err.find(part), std::string::npos) << outcome.err;
  }

  test::TemporaryFolder mDirectory;
};

// Black from edge to edge of a label of 24 x 50 mm, whose edges cannot be printed.
constexpr char kEdgeToEdge[] =
    "<svg xmlns='http://www.w3.org/2000/svg' width='50mm' height='24mm'>"
    "<rect width='100%' height='100%'/></svg>";
constexpr char kKeep[] =
    "--dry-run out.pdf --ppd " CUTLINE_SOURCE_DIR "/samples/ppd/tape-a.ppd -o media=W24H50 ";

TEST_F(Program, SaysThatEdgesWillBeCutOffAndWhatKeepsThem) {
  std::ofstream(file("full.svg")) << kEdgeToEdge;
  const std::string warning = "cutline: edges will be cut off on label 1: -o ";
  const Outcome whole = run(kKeep + std::string("-o print-scaling=none full.svg"));
  EXPECT_EQ(whole.status, 0);
  ASSERT_TRUE(whole.err.starts_with(warning)) << whole.err;
  const auto end = whole.err.find(" keeps them\n");
  ASSERT_NE(end, std::string::npos) << whole.err;
  const std::string remedy = whole.err.substr(warning.size(), end - warning.size());
  EXPECT_EQ(run(kKeep + ("-o " + remedy) + " full.svg").err, "");
  EXPECT_EQ(run(kKeep + std::string("-q -o print-scaling=none full.svg")).err, "");
  EXPECT_EQ(run(kKeep + std::string("-o print-scaling=fill full.svg")).err, "");
}

TEST_F(Program, ShowsWhatWouldBeSent) {
  const Outcome outcome = run("--ppd tape.ppd --options -n 2 -P 1-3 -o 'LxHalfCut=ON media=W24'");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  auto sent = pairs(outcome.out);
  EXPECT_EQ(sent["LxHalfCut"], "ON");
  EXPECT_EQ(sent["LxMirror"], "OFF");
  EXPECT_EQ(sent["LxCutLabel"], "1");
  EXPECT_EQ(sent["PageSize"], "W24");
  EXPECT_EQ(sent["copies"], "2");
  EXPECT_EQ(sent["page-ranges"], "1-99999") << "the document that is sent has these pages only";
  EXPECT_EQ(sent["print-scaling"], "none");
}

TEST_F(Program, ShowsTheSummaryInDisplayOrder) {
  const Outcome outcome = run("--ppd tape.ppd --summary -o LxHalfCut=ON");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  std::istringstream lines(outcome.out);
  std::vector<std::string> summary;
  for (std::string line; std::getline(lines, line);) summary.push_back(line);
  ASSERT_EQ(summary.size(), 9U) << outcome.out;
  EXPECT_EQ(summary[0],
            "1 label, tape not cut, half cut beside the label: 1 piece, length not known");
  for (const std::string& line : summary) EXPECT_NE(line.find(": "), std::string::npos) << line;
  EXPECT_TRUE(summary[3].ends_with(": Yes")) << summary[3];
  EXPECT_TRUE(summary[4].ends_with(": No")) << summary[4];
}

TEST_F(Program, NamesOnStandardErrorWhatTheRulesChange) {
  for (const char* command : {"--options", "--summary"}) {
    const Outcome outcome =
        run(std::string("--ppd tape.ppd -o 'LxSpecialTape=ON LxHalfCut=ON' ") + command);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.err.starts_with("cutline: ")) << outcome.err;
    EXPECT_NE(outcome.err.find("HalfCut"), std::string::npos) << outcome.err;
    EXPECT_NE(outcome.err.find("special tape"), std::string::npos) << outcome.err;
  }
}

TEST_F(Program, AnUnknownChoiceListsTheChoices) {
  expectError(run("--ppd tape.ppd --options -o LxHalfCut=MAYBE"), 1, "OFF, ON");
}

TEST_F(Program, AnUnknownOptionNamesNearOnes) {
  expectError(run("--ppd tape.ppd --options -o LxHalfCat=ON"), 1, "LxHalfCut");
}

TEST_F(Program, WrongUsageIsStatusTwo) {
  expectError(run("--nonsense"), 2, "--nonsense");
  expectError(run("-n 0"), 2, "copies");
  expectError(run("--ppd tape.ppd --print labels.txt"), 2, "--ppd");
}

TEST_F(Program, AnUnreadablePpdIsNamed) {
  expectError(run("--ppd missing.ppd --options"), 1, "missing.ppd");
  expectError(run("--ppd labels.txt --options"), 1, "labels.txt");
}

TEST_F(Program, AnUnreadableDocumentIsNamedBeforeTheServerIsAsked) {
  expectError(run("-d tape --print missing.pdf"), 1, "missing.pdf");
  expectError(run("-d tape --print ."), 1, "it is a folder");
  std::ofstream(file("empty.pdf")) << "";
  expectError(run("-d tape --print empty.pdf"), 1, "empty");
}

TEST_F(Program, StandardInputIsReadWhenNoDocumentIsNamed) {
  expectError(run("-d tape --print"), 1, "standard input is empty");
  expectError(run("-d tape --print -"), 1, "standard input is empty");
}

TEST_F(Program, ASpooledDocumentLeavesNothingBehind) {
  const std::string temporary = file("tmp");
  std::filesystem::create_directory(temporary);
  const std::string command = "cd " + mDirectory.path() + " && echo text | TMPDIR=" + temporary +
                              " CUPS_SERVER=" + file("no.sock") +
                              " " CUTLINE_BUILD_DIR "/bin/cutline -d tape --print 2>err";
  EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 1);
  EXPECT_NE(contents("err").find("server"), std::string::npos) << contents("err");
  EXPECT_TRUE(std::filesystem::is_empty(temporary));
}

TEST_F(Program, NoServerIsAClearLine) {
  expectError(run("-d tape --print labels.txt"), 1, "server");
  expectError(run("--list"), 1, "server");
  expectError(run("-d tape --options"), 1, "server");
}

TEST_F(Program, HelpAndVersionGoToStandardOutput) {
  EXPECT_TRUE(run("--help").out.starts_with("Usage: cutline"));
  EXPECT_TRUE(run("--version").out.starts_with("cutline "));
  EXPECT_EQ(run("--help").status, 0);
}

TEST_F(Program, CommandsWithoutAWindowLoadNoGuiLibrary) {
  const Outcome outcome = run("--ppd tape.ppd --options", "LD_DEBUG=files");
  EXPECT_NE(outcome.err.find("libcutline-host.so"), std::string::npos);
  EXPECT_NE(outcome.err.find("/proc/self/fd/"), std::string::npos) << "no bundle was loaded";
  for (const char* library : {"libQt", "libpoppler", "libX11", "libwayland", "cutline-dialog"})
    EXPECT_EQ(outcome.err.find(library), std::string::npos) << library;
}

TEST_F(Program, AnotherDirectoryOfPanelsIsLookedAtFirst) {
  std::filesystem::create_directories(file("panels/CutOptions.plugin"));
  const Outcome outcome = run("--ppd tape.ppd --options --plugin-dir panels");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.err.find("panels/CutOptions.plugin"), std::string::npos) << outcome.err;
  EXPECT_EQ(pairs(outcome.out)["LxHalfCut"], "OFF") << "options are sent without a panel too";
}

// The rules are the host's own, too.
TEST_F(Program, TheRulesHoldWithoutThePanel) {
  std::filesystem::create_directories(file("panels/CutOptions.plugin"));
  const Outcome outcome =
      run("--ppd tape.ppd --options --plugin-dir panels -o 'LxSpecialTape=ON LxAutoTapeCut=ON "
          "LxHalfCut=ON LxCutMark=ON'");
  EXPECT_EQ(outcome.status, 0);
  auto sent = pairs(outcome.out);
  EXPECT_EQ(sent["LxSpecialTape"], "ON");
  for (const char* keyword : {"LxAutoTapeCut", "LxHalfCut", "LxCutMark"}) {
    EXPECT_EQ(sent[keyword], "OFF") << keyword;
  }
  EXPECT_NE(outcome.err.find("because special tape is on"), std::string::npos) << outcome.err;
}

TEST_F(Program, WhatCannotBeWrittenIsAnError) {
  for (const char* command :
       {"--ppd tape.ppd --options", "--ppd tape.ppd --summary", "--help", "--version"}) {
    const int status =
        std::system(("cd " + mDirectory.path() + " && HOME=. " CUTLINE_BUILD_DIR "/bin/cutline " +
                     command + " >/dev/full 2>err")
                        .c_str());
    EXPECT_EQ(WEXITSTATUS(status), 1) << command;
    EXPECT_EQ(contents("err"),
              "cutline: standard output cannot be written: No space left on device\n");
  }
}

TEST_F(Program, NothingFromOutsideReachesATerminalRaw) {
  std::string ppd = contents("tape.ppd");
  const std::string title = "*OpenUI *LxHalfCut/";
  ASSERT_NE(ppd.find(title), std::string::npos);
  ppd.insert(ppd.find(title) + title.size(), "<1B>[31m");
  std::ofstream(file("odd.ppd")) << ppd;
  const Outcome options = run("--ppd odd.ppd --options -o 'LxSpecialTape=ON LxHalfCut=ON'");
  EXPECT_EQ(options.err.find('\x1b'), std::string::npos) << options.err;
  EXPECT_NE(options.err.find("\\x1b[31m"), std::string::npos) << options.err;
  const Outcome forged = run("--ppd 'x\ncutline: printed\x1b[2J.ppd' --options");
  expectError(forged, 1, "x\\ncutline: printed\\x1b[2J.ppd");
}

TEST_F(Program, AKilledProgramLeavesNoDocumentBehind) {
  const std::string temporary = file("tmp");
  std::filesystem::create_directory(temporary);
  for (const char* signal : {"KILL", "INT", "TERM", "HUP"}) {
    const std::string command =
        "cd " + mDirectory.path() + " && mkfifo pipe; (TMPDIR=" + temporary +
        " CUPS_SERVER=/nowhere exec " CUTLINE_BUILD_DIR
        "/bin/cutline -d tape --print <pipe 2>err) & exec 9>pipe; echo text "
        ">&9; sleep 0.3; kill -" +
        signal + " $!; wait $!; rm pipe";
    std::system(("bash -c '" + command + "'").c_str());
    EXPECT_TRUE(std::filesystem::is_empty(temporary)) << signal;
  }
}

TEST_F(Program, APrinterWithoutCutOptionsHasNoPanelAndNoCutOptions) {
  writePpd("plain.ppd", test::TestPrinter());
  const Outcome outcome = run("--ppd plain.ppd --options");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_TRUE(outcome.out.starts_with("PageSize=W12\ncopies=1\nprint-scaling=none\n"))
      << outcome.out;
  EXPECT_EQ(outcome.out.find("Lx"), std::string::npos) << outcome.out;
  EXPECT_EQ(run("--ppd plain.ppd --summary").out, "1 label; this driver says nothing of cutting\n");
}

TEST_F(Program, ShowsThePlanOfADocument) {
  const Outcome outcome = run("--plan --ppd tape.ppd -o LxHalfCut=ON -n 2 labels.txt");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.out.substr(0, outcome.out.find('\n')),
            "2 labels, tape not cut, half cut between: 1 piece, length not known");
  EXPECT_EQ(outcome.err, "");
}

TEST_F(Program, ShowsThePlanOfOneLabelWithoutADocumentAndSaysSo) {
  const Outcome outcome = run("--plan --ppd tape.ppd");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(outcome.out.starts_with("1 label, tape not cut: 1 piece, length not known\n"));
  EXPECT_EQ(outcome.err, "cutline: no document is named: this is the plan of one label\n");
  EXPECT_NE(run("--plan --json --ppd tape.ppd").out.find("\"document\": false"), std::string::npos);
}

TEST_F(Program, TheSummaryBeginsWithThePlan) {
  const Outcome outcome = run("--summary --ppd tape.ppd -n 3 labels.txt");
  EXPECT_TRUE(outcome.out.starts_with("3 labels, tape not cut: 1 piece, length not known\n"))
      << outcome.out;
  EXPECT_EQ(outcome.err, "");
}

TEST_F(Program, TakesWordsOfTheUsersOwnAndNamesTheBrokenOnes) {
  writePpd("other.ppd", test::modePrinter());
  std::filesystem::create_directories(file("settings/cutline"));
  const std::string words = file("settings/cutline/cut-words.txt");
  std::ofstream(words) << "zePrintMode Peel cut=label\nzePrintMode Tear cut=perhaps\n";
  const std::string settings = "XDG_CONFIG_HOME=" + file("settings");
  const std::string plan = "--plan --ppd other.ppd -n 2 labels.txt -o zePrintMode=";
  EXPECT_EQ(run(plan + "Peel").out.find("2 labels, roll not cut"), 0U);
  const Outcome outcome = run(plan + "Peel", settings);
  EXPECT_EQ(outcome.out.find("2 labels, cut after each label: 2 pieces"), 0U) << outcome.out;
  EXPECT_EQ(outcome.err, "cutline: \"" + words +
                             "\", line 2, is left out: \"cut=perhaps\" means nothing there\n");
  EXPECT_EQ(run(plan + "Tear", settings).out.find("2 labels, roll not cut"), 0U);
}

TEST_F(Program, APlanOfADocumentThatIsNotThereIsAnError) {
  const Outcome outcome = run("--plan --ppd tape.ppd missing.pdf");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
}

TEST_F(Program, ListsChoicesWithTheMarkedOne) {
  const Outcome outcome = run("--choices --ppd tape.ppd -o LxHalfCut=ON -o LxCutLabel=2");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_NE(outcome.out.find("LxHalfCut/HalfCut:\n  OFF/Off\n* ON/On\n"), std::string::npos);
  EXPECT_NE(outcome.out.find("LxCutLabel:\n  1\n* 2\n  3\n"), std::string::npos) << outcome.out;
  EXPECT_NE(outcome.out.find("\n* W12/Paper W12\n  W24/Paper W24\n"), std::string::npos)
      << outcome.out;
}

}  // namespace
}  // namespace cutline
