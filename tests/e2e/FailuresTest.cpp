// When something is wrong it is said, nothing is printed, and the dialog goes on.
#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>
#include <filesystem>

#include "tests/e2e/DialogOnServer.h"
#include "tests/e2e/Program.h"
#include "tests/e2e/ServerInBetween.h"
#include "tests/support/EndToEndTest.h"
#include "tests/support/PdfFile.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {

namespace {

// Undoes a command on the server when the test ends, however it ends.
class QueueState {
 public:
  QueueState(const std::string& change, std::string back) : mBack(std::move(back)) {
    outputOf(change);
  }
  ~QueueState() { run(mBack); }
  QueueState(const QueueState&) = delete;
  QueueState& operator=(const QueueState&) = delete;

 private:
  std::string mBack;
};

CommandLine documentOn(const std::string& printer, const std::string& path) {
  CommandLine line = dialogOn(printer);
  line.files = {path};
  return line;
}

class Failures : public EndToEndTest {
 protected:
  // The dialog is as it was before Print, and takes a click.
  static void expectUsable(DialogOnServer& dialog) {
    EXPECT_TRUE(dialog.dialog().isVisible());
    EXPECT_TRUE(waitUntil([&] { return dialog.box("LxMirror")->isEnabled(); }));
    const std::string before = dialog.sent()["LxMirror"];
    click(dialog.box("LxMirror"));
    EXPECT_NE(dialog.sent()["LxMirror"], before);
  }

  static void expectFailureOf(const std::string& words, const std::string& part,
                              const std::string& environment = {}) {
    const CommandResult program = runProgram(words, environment);
    EXPECT_EQ(program.status, kExitError) << words;
    EXPECT_EQ(program.output, "") << words;
    EXPECT_TRUE(program.errors.starts_with("cutline: ")) << program.errors;
    EXPECT_EQ(std::count(program.errors.begin(), program.errors.end(), '\n'), 1) << program.errors;
    EXPECT_NE(program.errors.find(part), std::string::npos) << program.errors;
  }
};

TEST_F(Failures, WithoutAServerEachCommandSaysSo) {
  for (const char* command : {"--print ", "--options ", "--summary "})
    expectFailureOf(std::string(command) + "-d tape24 " + labels(), "no.sock",
                    "CUPS_SERVER=/nowhere/no.sock");
  expectFailureOf("--list", "no.sock", "CUPS_SERVER=/nowhere/no.sock");
}

TEST_F(Failures, AListThatNobodyCanReadIsAnError) {
  const CommandResult program = run(quoted(built("bin/cutline")) + " --list >/dev/full");
  EXPECT_EQ(program.status, kExitError);
  EXPECT_NE(program.errors.find("standard output cannot be written"), std::string::npos);
}

TEST_F(Failures, TheServerThatGoesIsNamedWhileTheDialogIdles) {
  PrivateServer ending;
  CommandLine line = dialogOn("tape24");
  line.server = ending.options();
  DialogOnServer dialog(line, std::make_shared<CupsPrintServer>(line.server));
  ASSERT_TRUE(dialog.willShow(QStringLiteral("Ready")));
  ending.stop();
  EXPECT_TRUE(dialog.willShow(QStringLiteral("The print server does not answer")));
}

TEST_F(Failures, AnUnknownPrinterIsNamed) {
  for (const char* command : {"--print ", "--options ", "--snapshot /nowhere/a.png "})
    expectFailureOf(std::string(command) + "-d nosuch " + labels(), "nosuch");
  EXPECT_TRUE(nothingNew());
}

TEST_F(Failures, AnUnknownChoiceIsNotPrinted) {
  expectFailureOf("--print -d tape24 -o LxHalfCut=MAYBE " + labels(), "MAYBE");
  expectFailureOf("--summary -d tape24 -o LxHalfCut=MAYBE " + labels(), "MAYBE");
  EXPECT_TRUE(nothingNew());
}

// The document's name is one that each refusal has to name.
TEST_F(Failures, ADocumentThatCannotBePrintedIsNotSent) {
  const TemporaryFolder folder;
  const std::string path = folder.path() + "/labels.pdf";
  const std::string jobs = outputOf("lpstat -W all");
  const auto expectRefusal = [&](const std::string& reason) {
    expectFailureOf("--print -d tape24 " + path, "cannot read the document \"" + path + "\": ");
    expectFailureOf("--print -d tape24 - <" + path, reason);
    DialogOnServer dialog(documentOn("tape24", path));
    EXPECT_TRUE(dialog.willShow(QString::fromStdString(reason)));
  };
  writePdf(path, 2, {"secret", true, true});
  expectRefusal("locked with a password");
  writePdf(path, 2, {"", false, true});
  expectRefusal("locked against printing");
  writePdf(path, 0);
  expectRefusal("has no pages");
  std::filesystem::copy_file(labels(), path, std::filesystem::copy_options::overwrite_existing);
  std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
  expectRefusal("it is damaged");
  EXPECT_EQ(outputOf("lpstat -W all"), jobs);
}

TEST_F(Failures, PagesThatTheDocumentLacksAreNotSent) {
  const std::string jobs = outputOf("lpstat -W all");
  for (const char* pages : {"13", "1-13", "2,20-"}) {
    const std::string option = std::string("-P ") + pages + " ";
    expectFailureOf("--print -d tape24 " + option + labels(), "the document has 12 pages");
  }
  expectFailureOf("--print -d tape24 -P 2 " + built("share/cutline/samples/documents/label.png"),
                  "the document has 1 page only");
  CommandLine line = dialogOn("tape24");
  line.asked.pageRanges = "13";
  DialogOnServer dialog(line);
  EXPECT_TRUE(dialog.willShow(QStringLiteral("the document has 12 pages")));
  click(dialog.printButton());
  EXPECT_EQ(outputOf("lpstat -W all"), jobs);
  EXPECT_EQ(runProgram("--print -d tape24 -P 12- " + labels()).status, kExitDone);
  EXPECT_EQ(newJob().number("labels"), 1);
}

TEST_F(Failures, WaitingEndsWhenTheLabelsAreOut) {
  const CommandResult done = runProgram("--print --wait -d tape24 -P 1 " + labels());
  EXPECT_EQ(done.status, kExitDone) << done.errors;
  // The server has nothing left to do by then.
  EXPECT_EQ(outputOf("lpstat -W not-completed"), "");
  EXPECT_EQ(newJob().number("labels"), 1);
}

TEST_F(Failures, WaitingForAJobThatSomebodyCancelsIsAnError) {
  const QueueState stopped("cupsdisable tape24", "cupsenable tape24");
  // Cancelled when the program has told that its job waits.
  const CommandResult result =
      run("{ env QT_QPA_PLATFORM=offscreen " + quoted(built("bin/cutline")) +
          " --print --wait -d tape24 " + labels() +
          " 2>&1; echo status $?; } | while read -r line; do echo \"$line\"; case $line in "
          "*'is paused'*) cancel -a tape24;; esac; done");
  EXPECT_NE(result.output.find("was cancelled"), std::string::npos) << result.output;
  EXPECT_NE(result.output.find("status 1"), std::string::npos) << result.output;
  EXPECT_TRUE(nothingNew());
}

TEST_F(Failures, WrongUsageIsToldApart) {
  const CommandResult program = runProgram("--print -d tape24 -n 0 " + labels());
  EXPECT_EQ(program.status, kExitUsage);
  EXPECT_TRUE(nothingNew());
}

TEST_F(Failures, ARejectingQueueIsShownAndRefusesUntilItAcceptsAgain) {
  DialogOnServer dialog("tape24");
  {
    const QueueState closed("cupsreject tape24", "cupsaccept tape24");
    click(dialog.printButton());
    EXPECT_TRUE(dialog.willShow(QStringLiteral("not accepting jobs")));
    expectUsable(dialog);
    EXPECT_TRUE(nothingNew());
  }
  DialogOnServer::waitForClicks();
  dialog.print();
  EXPECT_EQ(newJob().options().at("LxMirror"), "ON");
}

TEST_F(Failures, ADialogOnARejectingQueueSaysSoBeforePrinting) {
  const QueueState closed("cupsreject tapeb", "cupsaccept tapeb");
  const DialogOnServer dialog("tapeb");
  EXPECT_TRUE(dialog.willShow(QStringLiteral("tapeb does not accept jobs")));
}

TEST_F(Failures, AStoppedQueueIsShownAndItsJobMayBeLeftThere) {
  {
    const QueueState stopped("cupsdisable tape24", "cupsenable tape24");
    DialogOnServer dialog("tape24");
    EXPECT_TRUE(dialog.willShow(QStringLiteral("tape24 does not print now")));
    click(dialog.printButton());
    ASSERT_TRUE(dialog.willShow(QStringLiteral("the printer is paused")));
    dialog.press("Close and &let it print");
    EXPECT_TRUE(dialog.waitForClose());
    EXPECT_EQ(dialog.dialog().exitStatus(), kExitDone);
  }
  EXPECT_EQ(newJob().number("labels"), kLabels);
}

TEST_F(Failures, AServerThatEndsWhileTheDialogIsOpenIsNamed) {
  PrivateServer ending;
  CommandLine line = dialogOn("tape24");
  line.server = ending.options();
  DialogOnServer dialog(line);
  ending.stop();
  click(dialog.printButton());
  EXPECT_TRUE(dialog.willShow(QString::fromStdString(*line.server.server)));
  expectUsable(dialog);
  EXPECT_TRUE(ending.printedJobs().empty());
}

TEST_F(Failures, ADocumentThatVanishesBeforePrintIsNamed) {
  const TemporaryFolder folder;
  CommandLine line = dialogOn("tape24");
  line.files = {folder.path() + "/gone.pdf"};
  std::filesystem::copy_file(labels(), line.files.front());
  DialogOnServer dialog(line);
  ASSERT_TRUE(dialog.willShow(QStringLiteral("Label 1 of 12")));
  std::filesystem::remove(line.files.front());
  click(dialog.printButton());
  EXPECT_TRUE(dialog.willShow(QStringLiteral("Cannot read the document")));
  expectUsable(dialog);
  EXPECT_TRUE(nothingNew());
  std::filesystem::copy_file(labels(), line.files.front());
  EXPECT_TRUE(dialog.willShow(QStringLiteral("Label 1 of 12")));
  EXPECT_TRUE(waitUntil([&] { return dialog.canPrint(); }));
  DialogOnServer::waitForClicks();
  dialog.print();
  EXPECT_EQ(newJob().number("labels"), kLabels);
}

// What is printed is read when it is printed: the preview must not show what was there before.
TEST_F(Failures, ADocumentThatIsWrittenAnewIsShownAnew) {
  const TemporaryFolder folder;
  CommandLine line = dialogOn("tape24");
  line.files = {folder.path() + "/labels.pdf"};
  std::filesystem::copy_file(labels(), line.files.front());
  DialogOnServer dialog(line);
  ASSERT_TRUE(dialog.willShow(QStringLiteral("Label 1 of 12")));
  writePdf(line.files.front(), 3);
  EXPECT_TRUE(dialog.willShow(QStringLiteral("Label 1 of 3")));
}

TEST_F(Failures, EscapePrintsNothing) {
  DialogOnServer dialog("tape24");
  click(dialog.box("LxHalfCut"));
  QTest::keyClick(&dialog.dialog(), Qt::Key_Escape);
  EXPECT_TRUE(dialog.waitForClose());
  EXPECT_EQ(dialog.dialog().exitStatus(), kExitCancelled);
  EXPECT_TRUE(nothingNew());
}

// Sends half of a document, and then goes on only when it has been given up.
class HalfwayServer : public ServerInBetween {
 public:
  Result<int> submit(const PrintRequest& request, const SpoolProgress& progress) override {
    return ServerInBetween::submit(request, [&](std::uint64_t sent, std::uint64_t total) {
      if (sent < total / 2) return progress(sent, total);
      waitInBackground([&] { return !progress(sent, total); });
      return false;
    });
  }
};

TEST_F(Failures, CancellingWhileTheDocumentIsSentLeavesNoJob) {
  DialogOnServer dialog(dialogOn("tape24"), std::make_shared<HalfwayServer>());
  click(dialog.printButton());
  ASSERT_TRUE(dialog.willShow(QStringLiteral("Sending to tape24")));
  dialog.press("Cancel &job");
  EXPECT_TRUE(dialog.willShow(QStringLiteral("The job was cancelled")));
  EXPECT_EQ(outputOf("lpstat -o"), "");
  expectUsable(dialog);
  EXPECT_TRUE(nothingNew());
}

TEST_F(Failures, AJobThatIsCancelledAfterSendingIsNotPrinted) {
  const PrivateServer slow("--pace 1000");
  CommandLine line = dialogOn("tape24");
  line.server = slow.options();
  DialogOnServer dialog(line);
  click(dialog.printButton());
  ASSERT_TRUE(dialog.willShow(QStringLiteral("Printing: label ")));
  dialog.press("Cancel &job");
  EXPECT_TRUE(dialog.willShow(QStringLiteral("The job was cancelled")));
  expectUsable(dialog);
  slow.waitUntilIdle();
  EXPECT_TRUE(slow.printedJobs().empty());
}

}  // namespace

}  // namespace cutline::test
