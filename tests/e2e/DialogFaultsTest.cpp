// Whatever happens to the print server while somebody uses the dialog: it says so, it goes on
// taking events, it can be closed, and the settings stay.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string_view>
#include <thread>

#include "host/core/Installation.h"
#include "host/dialog/DialogSession.h"
#include "host/dialog/PresetBar.h"
#include "tests/e2e/DialogOnServer.h"
#include "tests/e2e/FaultyWay.h"
#include "tests/e2e/Heartbeat.h"
#include "tests/e2e/Program.h"
#include "tests/e2e/SampleOptions.h"
#include "tests/support/EndToEndTest.h"

namespace cutline::test {

namespace {

enum class Moment { start, printerSwitch, presetSave, submit, watch };
constexpr std::array kMoments{Moment::start, Moment::printerSwitch, Moment::presetSave,
                              Moment::submit, Moment::watch};
constexpr std::array kMomentNames{"Start", "PrinterSwitch", "PresetSave", "Submit", "Watch"};

// What happens, and a part of what the dialog says then at each moment: "" where it goes on as
// ever, null where the two do not meet. The server tells in whole seconds when it set a printer up,
// so some wait for the next one.
struct ServerFault {
  const char* name;
  WayFault way;
  const char* happens;  // on the server, to "PRINTER"
  const char* undo;
  std::array<const char*, kMoments.size()> words;
};

constexpr char kGone[] = "no print server answers";
constexpr char kSilent[] = "print server does not answer";
constexpr char kDenied[] = "does not let you";
constexpr char kUnknownJob[] = "does not answer how it is";
constexpr char kAdd[] =
    "lpadmin -p PRINTER -v cutline-strip:$(realpath $CUPS_SERVERROOT/..)/printed?pace=1500 -P PPD "
    "-E";

constexpr std::array kServerFaults = std::to_array<ServerFault>({
    {"Refused", WayFault::refused, "", "", {kGone, kGone, "", kGone, kUnknownJob}},
    {"Silent", WayFault::silent, "", "", {kSilent, kSilent, "", kSilent, kUnknownJob}},
    {"ByteASecond", WayFault::byteASecond, "", "", {kSilent, kSilent, "", kSilent, kUnknownJob}},
    {"ResetInPpd",
     WayFault::resetInPpd,
     "",
     "",
     {"did not arrive whole", "did not arrive whole", nullptr, nullptr, nullptr}},
    {"StartedAnew",
     WayFault::none,
     "RESTART",
     "",
     {"Ready", "Ready", "", "Printing: label", "Printing: label"}},
    {"Deleted",
     WayFault::none,
     "lpadmin -x PRINTER",
     kAdd,
     {"has no printer", "has no printer", "", "does not exist", "was cancelled"}},
    {"SetUpAnew",
     WayFault::none,
     "sleep 1; sed 's/NickName: \"/&New /' PPD >$CUPS_SERVERROOT/../new.ppd; "
     "lpadmin -p PRINTER -P $CUPS_SERVERROOT/../new.ppd",
     "lpadmin -p PRINTER -P PPD",
     {nullptr, nullptr, "your settings were kept", "your settings were kept", ""}},
    {"PaperRemoved",
     WayFault::none,
     "sleep 1; sed /W24H30/d PPD >$CUPS_SERVERROOT/../new.ppd; "
     "lpadmin -p PRINTER -P $CUPS_SERVERROOT/../new.ppd",
     "lpadmin -p PRINTER -P PPD",
     {nullptr, nullptr, "no longer has: ", "no longer has: ", ""}},
    {"WantsAuthentication",
     WayFault::authentication,
     "",
     "",
     {kDenied, kDenied, "", kDenied, kDenied}},
    {"Paused",
     WayFault::none,
     "cupsdisable PRINTER",
     "cupsenable PRINTER",
     {"does not print now", "does not print now", "", "is paused", "is paused"}},
    {"Rejecting",
     WayFault::none,
     "cupsreject PRINTER",
     "cupsaccept PRINTER",
     {"does not accept jobs", "does not accept jobs", "", "not accepting jobs", ""}},
    {"Garbage",
     WayFault::garbage,
     "",
     "",
     {"was lost", "was lost", "", "was lost", "no longer tells"}},
});

struct FaultCase {
  const ServerFault* fault;
  std::size_t moment;

  Moment at() const { return kMoments[moment]; }
  QString words() const { return QString::fromLatin1(fault->words[moment]); }
  // The printer that the fault happens to.
  std::string printer() const { return at() == Moment::printerSwitch ? "roll62" : "tape24"; }
};

std::string nameOf(const FaultCase& each) {
  return std::string(each.fault->name) + "At" + kMomentNames[each.moment];
}

// One or two of each moment that take no time, and each that takes some, in another way.
constexpr std::array<std::string_view, 9> kQuickCases{"SilentAtWatch",
                                                      "RefusedAtSubmit",
                                                      "WantsAuthenticationAtStart",
                                                      "ResetInPpdAtPrinterSwitch",
                                                      "GarbageAtSubmit",
                                                      "DeletedAtPrinterSwitch",
                                                      "PaperRemovedAtSubmit",
                                                      "RejectingAtSubmit",
                                                      "SilentAtPresetSave"};

std::vector<FaultCase> faultCases() {
  const bool isLong = std::getenv("CUTLINE_LONG_TESTS") != nullptr;
  std::vector<FaultCase> cases;
  for (const ServerFault& fault : kServerFaults) {
    for (std::size_t moment = 0; moment < kMoments.size(); ++moment) {
      const FaultCase each{&fault, moment};
      const bool isMeant = isLong || std::ranges::count(kQuickCases, nameOf(each)) > 0;
      if (fault.words[moment] != nullptr && isMeant) cases.push_back(each);
    }
  }
  return cases;
}

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
  return text;
}

constexpr int kTimeToRead = 300;  // milliseconds, at the least

struct Figures {
  int stall = 0;
  int told = 0;
  int closed = 0;
};

PrintDialog* shownPrintDialog() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* dialog = qobject_cast<PrintDialog*>(window);
    if (dialog != nullptr && dialog->isVisible()) return dialog;
  }
  return nullptr;
}

bool showsText(const QString& part) {
  const PrintDialog* dialog = shownPrintDialog();
  if (dialog == nullptr) return false;
  const auto labels = dialog->findChildren<QLabel*>();
  return std::ranges::any_of(labels, [&](const QLabel* label) {
    return label->isVisible() && label->text().contains(part, Qt::CaseInsensitive);
  });
}

class DialogFaults : public EndToEndTest, public testing::WithParamInterface<FaultCase> {
 protected:
  static void SetUpTestSuite() { sServer = std::make_unique<PrivateServer>("--pace 1500"); }
  static void TearDownTestSuite() {
    sServer.reset();
    std::cout << "the longest stall: " << sMost.stall << " ms, until it was said: " << sMost.told
              << " ms, until it was closed: " << sMost.closed << " ms" << std::endl;
  }
  DialogFaults() : mWay(*sServer->options().server) {
    mLine = dialogOn("tape24");
    mLine.server = mWay.options();
  }
  ~DialogFaults() override {
    mWay.set(WayFault::none);
    tell(GetParam().fault->undo);
    tell("cancel -a");
  }

  static void tell(const std::string& command) {
    if (command.empty()) return;
    if (command == "RESTART") return sServer->restart();
    const std::string printer = GetParam().printer();
    const std::string ppd = printer == "roll62" ? "roll" : "tape-a";
    const std::string path = built("share/cutline/samples/ppd/" + ppd + ".ppd");
    run(sServer->environment() + "bash -c " +
        quoted(replaced(replaced(command, "PRINTER", printer), "PPD", path)));
  }
  // Without keeping this thread from taking events.
  void happen() {
    std::atomic<bool> isDone = false;
    std::thread telling([&] {
      tell(GetParam().fault->happens);
      isDone = true;
    });
    EXPECT_TRUE(waitUntil([&] { return isDone.load(); }));
    telling.join();
    mWay.set(GetParam().fault->way);
  }

  void open() {
    mDialog = std::make_unique<DialogOnServer>(mLine);
    ASSERT_TRUE(mDialog->willShow(QStringLiteral("Label 1 of 12")));
    click(mDialog->box("LxHalfCut"));
    choose(mDialog->named<QComboBox>("Paper"), QStringLiteral("W24H30"));
    auto* printers = mDialog->named<QComboBox>("Printer");
    ASSERT_TRUE(waitUntil([&] { return printers->findData(QStringLiteral("roll62")) >= 0; }));
  }
  void switchPrinter() {
    choose(mDialog->named<QComboBox>("Printer"), QStringLiteral("roll62"));
    if (GetParam().fault->way != WayFault::none) return;
    EXPECT_TRUE(waitUntil([&] { return !showsText(QStringLiteral("Opening")); }));
  }
  void savePreset() {
    click(mDialog->named<QPushButton>("Save these settings as a preset"));
    const auto* question = mDialog->dialog().findChild<PresetNameDialog*>();
    ASSERT_NE(question, nullptr);
    type(question->findChild<QLineEdit*>(), QStringLiteral("shelf"));
    for (QPushButton* each : question->findChildren<QPushButton*>())
      if (each->text().contains(QStringLiteral("Save"))) each->click();
    const auto* presets = mDialog->dialog().findChild<PresetBar*>();
    EXPECT_TRUE(waitUntil([&] { return presets->presets().contains(QStringLiteral("shelf")); }));
  }
  void submit() { click(mDialog->printButton()); }

  // What one does when it happens, or just before.
  void act() {
    switch (GetParam().at()) {
      case Moment::printerSwitch:
        return switchPrinter();
      case Moment::presetSave:
        return savePreset();
      case Moment::submit:
        return submit();
      default:
        return;
    }
  }

  void expectTold(Figures& figures) {
    QElapsedTimer time;
    time.start();
    const QString words = GetParam().words();
    EXPECT_TRUE(waitUntil([&] { return showsText(words); })) << words.toStdString();
    figures.told = static_cast<int>(time.elapsed());
    EXPECT_FALSE(showsText(QStringLiteral("Success")));
    QTest::qWait(kTimeToRead);
    EXPECT_TRUE(showsText(words)) << words.toStdString();
  }
  void expectSettingsKept() {
    if (mDialog->model().destination().name.printer != "tape24") return;
    EXPECT_EQ(mDialog->sent()["LxHalfCut"], "ON");
  }
  // A job that is being sent is cancelled first, and the dialog stays for another try.
  void expectToClose(Figures& figures) {
    PrintDialog& dialog = mDialog->dialog();
    QElapsedTimer time;
    time.start();
    dialog.reject();
    EXPECT_TRUE(
        waitUntil([&] { return !dialog.isVisible() || mDialog->printButton()->isVisible(); }));
    figures.closed = static_cast<int>(time.elapsed());
    expectSettingsKept();
    if (dialog.isVisible()) dialog.reject();
    EXPECT_FALSE(dialog.isVisible());
    time.start();
    mDialog.reset();
    figures.closed = std::max(figures.closed, static_cast<int>(time.elapsed()));
  }

  Figures inOpenDialog() {
    Figures figures;
    open();
    if (GetParam().at() == Moment::watch) {
      submit();
      EXPECT_TRUE(mDialog->willShow(QStringLiteral("Printing: label")));
    }
    Heartbeat heart;
    happen();
    act();
    expectTold(figures);
    expectSettingsKept();
    figures.stall = heart.longestStall();
    expectToClose(figures);
    return figures;
  }

  // The dialog of the program, from its start on.
  Figures atStart() {
    Figures figures;
    happen();
    const Installation installation(built(""));
    QElapsedTimer time;
    bool isTold = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
      PrintDialog* dialog = shownPrintDialog();
      const bool isOver = time.elapsed() > kLongWait;
      if (dialog == nullptr || isTold || !(isOver || showsText(GetParam().words()))) return;
      isTold = true;
      EXPECT_FALSE(isOver);
      figures.told = static_cast<int>(time.restart());
      dialog->reject();
    });
    watch.start(10);
    Heartbeat heart;
    time.start();
    testing::internal::CaptureStderr();
    DialogSession({&mLine, &plugIns(), &installation}, startFindingFirstPrinter(mLine)).run();
    testing::internal::GetCapturedStderr();
    figures.closed = static_cast<int>(time.elapsed());
    figures.stall = heart.longestStall();
    return figures;
  }

  static void note(const Figures& figures) {
    sMost = {std::max(sMost.stall, figures.stall), std::max(sMost.told, figures.told),
             std::max(sMost.closed, figures.closed)};
    RecordProperty("stall_ms", figures.stall);
    RecordProperty("told_ms", figures.told);
    RecordProperty("closed_ms", figures.closed);
  }

  static inline std::unique_ptr<PrivateServer> sServer;
  static inline Figures sMost;
  FaultyWay mWay;
  CommandLine mLine;
  std::unique_ptr<DialogOnServer> mDialog;
};

// Instrumented, the same takes several times as long.
#ifdef __SANITIZE_ADDRESS__
constexpr int kLongestStall = 500;
#else
constexpr int kLongestStall = 100;
#endif

TEST_P(DialogFaults, AreSaidAndNeitherStallNorHoldTheDialog) {
  constexpr int kLongestSilence = 10000;
  constexpr int kLongestClosing = 1000;
  const Figures figures = GetParam().at() == Moment::start ? atStart() : inOpenDialog();
  note(figures);
  std::cout << nameOf(GetParam()) << ": stall " << figures.stall << " ms, said after "
            << figures.told << " ms, closed after " << figures.closed << " ms" << std::endl;
  EXPECT_LT(figures.stall, kLongestStall);
  EXPECT_LT(figures.told, kLongestSilence);
  EXPECT_LT(figures.closed, kLongestClosing);
}

INSTANTIATE_TEST_SUITE_P(OnServer, DialogFaults, testing::ValuesIn(faultCases()),
                         [](const auto& info) { return nameOf(info.param); });

TEST(HeartbeatTest, TellsHowLongTheThreadWasKept) {
  constexpr int kKept = 150;
  Heartbeat heart;
  QTest::qWait(20);
  EXPECT_LT(heart.longestStall(), kKept / 2);
  QTest::qSleep(kKept);
  QTest::qWait(20);
  EXPECT_GE(heart.longestStall(), kKept - 10);
}

// What still waits for an answer is left behind, and must not be in the way of the program's end.
TEST_F(EndToEndTest, TheProgramThatIsClosedWhileTheServerIsSilentEndsAtOnce) {
  constexpr int kTimes = 3;
  constexpr int kLongestRun = 5000;
  const SocketServer silent(keepSilent);
  for (int i = 0; i < kTimes; ++i) {
    QElapsedTimer time;
    time.start();
    const CommandResult program = runProgram(
        "-d tape24 " + labels(), "QT_QPA_GENERIC_PLUGINS=presser:close QT_PLUGIN_PATH=" +
                                     built("tests/programs") + " CUPS_SERVER=" + silent.path());
    EXPECT_EQ(program.status, kExitCancelled) << program.errors;
    EXPECT_LT(time.elapsed(), kLongestRun);
  }
}

}  // namespace

}  // namespace cutline::test
