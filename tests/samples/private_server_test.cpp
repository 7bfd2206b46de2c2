// The print server of one's own, with real jobs through the system's filters.
#include <gtest/gtest.h>

#include "tests/support/Command.h"
#include "tests/support/Facts.h"
#include "tests/support/PngPicture.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

const std::string kScript = built("share/cutline/samples/server/private-server.sh");
const std::string kLabels = built("share/cutline/samples/documents/labels.pdf");

// A server in a folder, for as long as it lives.
class Server {
 public:
  explicit Server(const std::string& arguments = {}) { mStarted = script("start", arguments); }
  ~Server() { script("stop"); }

  const CommandResult& started() const { return mStarted; }
  const TemporaryFolder& folder() const { return mFolder; }
  std::string place() const { return mFolder / "s"; }
  CommandResult script(const std::string& verb, const std::string& arguments = {}) const {
    return run(quoted(kScript) + ' ' + verb + ' ' + place() + ' ' + arguments);
  }
  // A command of a shell that prints here.
  CommandResult client(const std::string& command) const {
    return run("eval \"$(" + quoted(kScript) + " env " + place() + ")\"; " + command);
  }
  // Prints, and waits until the printer is done.
  void print(const std::string& arguments) const {
    const CommandResult result = client("lp " + arguments);
    EXPECT_EQ(result.status, 0) << result.errors;
    const CommandResult idle = script("wait-idle", "30");
    EXPECT_EQ(idle.status, 0) << idle.errors;
  }
  std::string printed(const std::string& name) const { return place() + "/printed/" + name; }
  Facts facts(int job) const { return factsOf(printed("job-" + std::to_string(job) + ".txt")); }
  PngPicture picture(int job) const {
    return PngPicture(printed("job-" + std::to_string(job) + ".png"));
  }
  std::string log() const { return contentsOf(place() + "/log/error_log"); }

 private:
  TemporaryFolder mFolder;
  CommandResult mStarted;
};

// How many processes were started with, or work in, the server's folder.
std::string processesOf(const Server& server) {
  return run("grep -slF " + server.place() +
             "/ /proc/[0-9]*/cmdline /proc/[0-9]*/environ | grep -v self | "
             "while read -r f; do p=${f#/proc/}; p=${p%%/*}; "
             "grep -q '^State:.[^Z]' /proc/$p/status && { tr '\\0' ' ' </proc/$p/cmdline; echo; }; "
             "done | "
             "grep -v 'bash -c' | grep -v ^grep")
      .output;
}

TEST(PrivateServer, HasThreePrinters) {
  const Server server;
  ASSERT_EQ(server.started().status, 0) << server.started().errors;
  EXPECT_EQ(server.client("lpstat -e").output, "roll62\ntape24\ntapeb\n");
  EXPECT_EQ(server.client("lpstat -d").output, "system default destination: tape24\n");
}

TEST(PrivateServer, PrintsTheLabelsWithTheirOptions) {
  const Server server;
  server.print("-d tape24 -o LxHalfCut=ON " + kLabels);
  Facts facts = server.facts(1);
  EXPECT_EQ(facts["LxHalfCut"], "ON");
  EXPECT_NE(facts["options"].find("LxHalfCut=ON"), std::string::npos) << facts["options"];
  EXPECT_EQ(facts["LxMirror"], "OFF");
  EXPECT_EQ(facts["labels"], "12");
  EXPECT_EQ(facts["half-cuts"], "12");
  EXPECT_EQ(facts["full-cuts"], "1");
  const PngPicture strip = server.picture(1);
  for (int label = 1; label <= 12; ++label) {
    const auto place = placeOf(facts["label." + std::to_string(label)]);
    EXPECT_EQ(place.width, 354U);
    EXPECT_EQ(place.height, 170U);
    EXPECT_GT(strip.inkIn(place), 10'000U) << label;
  }
  EXPECT_FALSE(strip.isSame(placeOf(facts["label.1"]), strip, placeOf(facts["label.2"])));
}

TEST(PrivateServer, MirrorsThePrint) {
  const Server server;
  server.print("-d tape24 -P 1 " + kLabels);
  server.print("-d tape24 -P 1 -o LxMirror=ON " + kLabels);
  const auto plain = placeOf(server.facts(1)["label.1"]);
  const auto turned = placeOf(server.facts(2)["label.1"]);
  EXPECT_TRUE(server.picture(1).isSame(plain, server.picture(2), turned, true));
  EXPECT_FALSE(server.picture(1).isSame(plain, server.picture(2), turned));
}

TEST(PrivateServer, PrintsEveryCopyOnce) {
  const Server server;
  server.print("-d tape24 -P 1-2 -n 3 " + kLabels);
  EXPECT_EQ(server.facts(1)["labels"], "6");
}

TEST(PrivateServer, PrintsOnEveryPrinterAndSize) {
  const Server server;
  server.print("-d tapeb -P 1-2 -o PageSize=W12H50 -o Resolution=360dpi " + kLabels);
  server.print("-d roll62 -P 1-2 " + kLabels);
  Facts tape = server.facts(1);
  EXPECT_EQ(tape["PageSize"], "W12H50");
  EXPECT_EQ(placeOf(tape["label.1"]).height, 170U);  // 12 mm at 360 dots an inch
  EXPECT_FALSE(tape.contains("LxCutMark"));
  Facts roll = server.facts(2);
  EXPECT_EQ(roll["LxTapeType"], "WN");
  EXPECT_EQ(placeOf(roll["label.2"]).width, 439U);  // 62 mm at 180 dots an inch
  EXPECT_GT(placeOf(roll["label.2"]).y, placeOf(roll["label.1"]).y);
}

TEST(PrivateServer, PrintsPictures) {
  const Server server;
  server.print("-d tape24 " + built("share/cutline/samples/documents/label.png"));
  Facts facts = server.facts(1);
  EXPECT_EQ(facts["labels"], "1");
  EXPECT_GT(server.picture(1).inkIn(placeOf(facts["label.1"])), 1'000U);
}

TEST(PrivateServer, LeavesNothingOfACancelledJob) {
  const Server server("--pace 2000");
  server.client("lp -d tape24 " + kLabels);
  // The printer is at its first labels by now.
  const CommandResult busy = server.client(
      "for i in $(seq 100); do lpstat -p tape24 | grep -q printing && exit; sleep 0.05; done; exit "
      "1");
  EXPECT_EQ(busy.status, 0);
  EXPECT_EQ(server.client("sleep 0.5; cancel tape24-1").status, 0);
  EXPECT_EQ(server.script("wait-idle", "20").status, 0);
  EXPECT_TRUE(server.folder().names("s/printed").empty());
  server.print("-d tapeb -P 1 " + kLabels);
  EXPECT_EQ(server.facts(2)["labels"], "1");
}

TEST(PrivateServer, TellsOfAJobThatCannotBePrinted) {
  const Server server;
  server.print("-d tape24 -o raw " + kLabels);
  EXPECT_NE(server.log().find("The data was not made by the printer's driver."), std::string::npos);
  server.print("-d tape24 -P 50 " + kLabels);
  EXPECT_NE(server.client("lpstat -p tape24").output.find("The document has no pages to print."),
            std::string::npos);
  EXPECT_TRUE(server.folder().names("s/printed").empty());
}

TEST(PrivateServer, DoesNotWaitForAJobThatStopped) {
  const Server server;
  // A filter that fails although the printer got all.
  const std::string filter = server.place() + "/programs/filter/rastertocutline";
  ASSERT_EQ(run("mv " + filter + ' ' + filter + ".real").status, 0);
  writeFile(filter, "#!/bin/sh\n" + filter + ".real \"$@\"\nexit 1\n");
  ASSERT_EQ(run("chmod 755 " + filter).status, 0);
  ASSERT_EQ(server.client("lp -d tape24 -P 1 " + kLabels).status, 0);
  const CommandResult idle = server.script("wait-idle", "30");
  EXPECT_EQ(idle.status, 1);
  EXPECT_NE(idle.errors.find("job 1 stopped on an error"), std::string::npos) << idle.errors;
}

TEST(PrivateServer, RunsBesideOthers) {
  const Server first;
  const Server second("extra=" + source("tests/samples/ppd/tape-all-shown.ppd"));
  first.print("-d tape24 -P 1 " + kLabels);
  second.print("-d extra -P 1-2 " + kLabels);
  EXPECT_EQ(first.facts(1)["labels"], "1");
  EXPECT_EQ(second.facts(1)["labels"], "2");
  EXPECT_EQ(first.client("lpstat -e").output.find("extra"), std::string::npos);
  EXPECT_EQ(first.script("stop").status, 0);
  EXPECT_EQ(second.client("lpstat -r").output, "scheduler is running\n");
}

TEST(PrivateServer, LeavesNoProcessBehind) {
  const Server server("--pace 5000");
  server.client("lp -d tape24 " + kLabels + "; lp -d roll62 " + kLabels + "; sleep 0.7");
  EXPECT_NE(processesOf(server).find("cutline-strip"), std::string::npos);
  EXPECT_EQ(server.script("stop").status, 0);
  EXPECT_EQ(processesOf(server), "");
  EXPECT_EQ(server.script("stop").status, 0);  // once more does no harm
}

TEST(PrivateServer, StartsAgainInTheSameFolder) {
  const Server server;
  const CommandResult again = server.script("start");
  EXPECT_EQ(again.status, 1);
  EXPECT_NE(again.errors.find("a server runs already"), std::string::npos);
  EXPECT_EQ(server.script("stop").status, 0);
  EXPECT_EQ(server.script("start").status, 0);
  EXPECT_EQ(server.client("lpstat -r").output, "scheduler is running\n");
}

TEST(PrivateServer, RunsForAPlainUserToo) {
  // Root can become nobody; anyone else is plain already, and the other tests show it.
  const TemporaryFolder folder;
  const std::string place = folder / "s";
  run("mkdir -m 777 " + place);
  // The build can lie where only its owner may look, as below root's home.
  const std::string prefix = folder / "prefix";
  run("mkdir -p " + prefix + "/share " + prefix + "/lib/cutline && cp -r " +
      built("share/cutline") + ' ' + prefix + "/share/ && cp -r " + built("lib/cutline/printer") +
      ' ' + prefix + "/lib/cutline/ && chmod -R a+rX " + prefix);
  const std::string samples = prefix + "/share/cutline/samples/";
  const std::string script = quoted(samples + "server/private-server.sh");
  const std::string as =
      run("id -u").output == "0\n" ? "setpriv --reuid=65534 --regid=65534 --clear-groups " : "";
  const CommandResult result =
      run("cd /; export CUTLINE_PREFIX=" + prefix + "; " + as + script + " start " + place +
          " && eval \"$(" + script + " env " + place + ")\" && " + as + "lp -d tape24 -P 1 " +
          samples + "documents/labels.pdf && " + as + script + " wait-idle " + place + " 30; " +
          as + script + " stop " + place);
  EXPECT_EQ(factsOf(place + "/printed/job-1.txt")["labels"], "1") << result.errors;
}

TEST(PrivateServer, TakesThePrintersProgramsFromWhereItIsTold) {
  const TemporaryFolder folder;
  const CommandResult none = run("CUTLINE_PREFIX=/nonexistent bash -c " +
                                 quoted("cp " + kScript + ' ' + folder.path() + " && " +
                                        folder / "private-server.sh" + " start " + folder / "s"));
  EXPECT_EQ(none.status, 1);
  EXPECT_NE(none.errors.find("cannot find rastertocutline; looked in: /nonexistent"),
            std::string::npos)
      << none.errors;
}

TEST(PrivateServer, ExplainsWhatIsWrong) {
  const TemporaryFolder folder;
  const std::string deep = folder / std::string(90, 'x');
  EXPECT_NE(run(kScript + " start " + deep).errors.find("too long a name"), std::string::npos);
  EXPECT_NE(run(kScript + " start " + folder / "s" + " a=/nonexistent.ppd")
                .errors.find("/nonexistent.ppd: cannot be read"),
            std::string::npos);
  EXPECT_NE(run(kScript + " start '" + folder / "a b" + "'").errors.find("may hold no blank"),
            std::string::npos);
  EXPECT_NE(run(kScript + " wait-idle " + folder / "s").errors.find("no server runs"),
            std::string::npos);
  EXPECT_EQ(run(kScript).status, 2);
  EXPECT_EQ(run(kScript + " dance " + folder / "s").status, 2);
  EXPECT_EQ(run(kScript + " --help").status, 0);
}

TEST(PrivateServer, GivesUpWaiting) {
  const Server server("--pace 5000");
  server.client("lp -d tape24 " + kLabels);
  const CommandResult idle = server.script("wait-idle", "1");
  EXPECT_EQ(idle.status, 1);
  EXPECT_NE(idle.errors.find("not idle after 1 seconds: tape24-1"), std::string::npos);
}

}  // namespace
}  // namespace cutline::test
