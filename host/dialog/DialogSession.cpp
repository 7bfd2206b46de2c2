#include "host/dialog/DialogSession.h"

#include <QEvent>
#include <QIcon>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <optional>
#include <thread>
#include <utility>

#include "cups/AskQueue.h"
#include "cups/Destinations.h"
#include "host/core/CommandLine.h"
#include "host/core/Installation.h"
#include "host/core/PluginLoader.h"
#include "host/core/PrinterSelection.h"
#include "host/dialog/ChosenSettings.h"
#include "host/dialog/DialogLanguage.h"
#include "host/dialog/HeldJobPrintServer.h"
#include "host/dialog/JobLeftBehind.h"
#include "host/dialog/ParentWindow.h"
#include "host/dialog/Remembered.h"
#include "host/dialog/StartTimes.h"
#include "host/dialog/WindowPixels.h"
#include "qt/QtText.h"

namespace cutline {

namespace {

std::optional<Error> problemOfDocuments(const std::vector<std::string>& paths) {
  std::error_code problem;
  for (const std::string& path : paths)
    if (!std::filesystem::is_regular_file(path, problem))
      return Error{Sentence(Phrase("host", "%1: there is no such document"), {path})};
  return std::nullopt;
}

bool namesPrinter(const CommandLine& line) { return line.ppdPath || line.destination; }

// Somebody looks at the dialog, so whatever is wrong can be said in it.
bool isForAPerson(const CommandLine& line) {
  return line.command == Command::dialog && !line.marks;
}

// What the environment names is as good as what the command line names.
bool isPrinterSaid(const CommandLine& line) {
  return namesPrinter(line) || !qEnvironmentVariableIsEmpty("LPDEST") ||
         !qEnvironmentVariableIsEmpty("PRINTER");
}

// The printer that was used last, while there is one of that name.
std::optional<PrinterChoice> lastUsedPrinter(const CommandLine& line) {
  if (!isForAPerson(line) || isPrinterSaid(line)) return std::nullopt;
  CommandLine named = line;
  named.destination = Remembered().lastPrinter();
  if (!named.destination) return std::nullopt;
  const Result<PrinterChoice> choice = selectPrinter(named);
  return choice ? std::optional<PrinterChoice>(*choice) : std::nullopt;
}

// An ask queue would bring the job back to the dialog, so its printer stands for it.
Result<PrinterChoice> selectBehindAskQueue(const CommandLine& line) {
  Result<PrinterChoice> choice = selectPrinter(line);
  if (!choice || !mayBeAskQueue(choice->destination.name.printer)) return choice;
  const Result<std::vector<AskQueue>> queues = askQueues(line.server);
  if (!queues) return choice;
  const auto found = std::ranges::find(*queues, choice->destination.name.printer, &AskQueue::name);
  if (found == queues->end()) return choice;
  CommandLine behind = line;
  behind.destination = DestinationName{found->printer, std::nullopt};
  return selectPrinter(behind);
}

}  // namespace

Result<PrinterChoice> findFirstPrinter(const CommandLine& line) {
  const std::optional<Error> problem = problemOfDocuments(line.files);
  if (problem && !isForAPerson(line)) return *problem;
  if (const auto last = lastUsedPrinter(line)) return *last;
  Result<PrinterChoice> choice = selectBehindAskQueue(line);
  if (choice || namesPrinter(line)) return choice;
  const Result<std::vector<Destination>> all = listDestinations(line.server);
  if (!all || all->empty()) return choice;
  CommandLine named = line;
  named.destination = all->front().name;
  return selectPrinter(named);
}

FirstPrinter startFindingFirstPrinter(const CommandLine& line) {
  std::packaged_task<Result<PrinterChoice>()> task([line] { return findFirstPrinter(line); });
  FirstPrinter printer = task.get_future().share();
  std::thread(std::move(task)).detach();
  return printer;
}

namespace {

// A server that takes longer is waited for with the dialog on the screen.
constexpr int kServerPatienceMilliseconds = 300;
// A server that takes so long may be none.
constexpr int kServerSilenceMilliseconds = 4000;
constexpr QSize kWindowSize{1120, 780};
constexpr int kScreenMargin = 40;
constexpr int kIconSides[] = {16, 24, 32, 48, 128, 256};

std::string jobTitle(const CommandLine& line) {
  if (line.title) return *line.title;
  return toUtf8(titleOf(line.files));
}

// As the desktop's theme has it, or else as it was installed beside the program.
QIcon windowIcon(const Installation& installation) {
  QIcon own;
  for (const int side : kIconSides) own.addFile(toQString(installation.iconPath(side)));
  return QIcon::fromTheme(QStringLiteral("cutline"), own);
}

void tell(const std::string& message) { std::cerr << "cutline: " << message << std::endl; }

}  // namespace

DialogSession::DialogSession(const DialogRequest& request, FirstPrinter printer)
    : mLine(*request.commandLine),
      mPlugIns(*request.plugIns),
      mInstallation(*request.installation),
      mPrinter(std::move(printer)),
      mPlatform(mToolkit),
      mModel(mPlugIns, mLine.asked) {
  mLeft = std::make_shared<JobLeftBehind>(server());
  mDialog = std::make_unique<PrintDialog>(mModel, mLeft, source());
  if (mLine.isOnce) mDialog->closeAfterJob();
  if (mLine.isChoosing) mDialog->chooseOnly();
  if (mLine.windowTitle) mDialog->setWindowTitle(toQString(*mLine.windowTitle));
  mDialog->installEventFilter(this);
  connect(mDialog.get(), &QDialog::finished, this, [this] {
    giveUpHeldJob();
    QApplication::exit(mDialog->exitStatus());
  });
  if (isForAPerson(mLine))
    connect(mDialog.get(), &PrintDialog::jobWentOut, this, &DialogSession::rememberJob);
  if (mLine.marks)
    connect(mDialog.get(), &PrintDialog::labelShown, this, [this] {
      if (!std::exchange(mHasLabel, true)) finishMeasuring();
    });
  if (mLine.marks) printTime("constructed");
}

DialogSession::~DialogSession() = default;

std::shared_ptr<PrintServer> DialogSession::server() {
  auto server = std::make_shared<CupsPrintServer>(mLine.server);
  if (!mLine.heldJob) return server;
  mHeldJob = std::make_shared<HeldJobPrintServer>(
      server, std::make_shared<CupsHeldJobServer>(mLine.server), *mLine.heldJob);
  return mHeldJob;
}

// Somebody closed the window about a job that waits, which says that it is not to be printed. A
// program that is killed never gets here.
void DialogSession::giveUpHeldJob() {
  if (!mHeldJob) return;
  if (const Result<Done> done = mHeldJob->giveUp(); !done) tell(done.error().message);
}

// Nobody would see how it ends.
void DialogSession::followJobLeftBehind() const {
  if (const std::optional<LeftJob> job = mLeft->job(); job && isForAPerson(mLine))
    followJob(mInstallation.helperDirectory(), *job, mLine.server.server);
}

PrintSource DialogSession::source() const {
  PrintSource source;
  source.paths = mLine.files;
  source.title = jobTitle(mLine);
  source.tools = documentToolsIn(mInstallation.helperDirectory());
  if (mHeldJob) source.tools = mHeldJob->watched(std::move(source.tools));
  source.isRaw = mLine.asked.isRaw();
  return source;
}

int DialogSession::run() {
  mSize = windowSize();
  if (mLine.command != Command::snapshot)
    mPixels = startPreparingPixels(mDialog->makeWindow(mSize));
  awaitPrinter();
  const int status = QApplication::exec();
  if (mLine.isChoosing && status == kExitDone)
    std::cout << chosenSettings(mModel).toStdString() << std::endl;
  if (isForAPerson(mLine) && !mDialog->isMaximized()) Remembered().setWindowSize(mDialog->size());
  mDialog.reset();
  followJobLeftBehind();
  return status;
}

// What was printed was meant; a window that was looked at and closed says nothing of the printer.
void DialogSession::rememberJob() {
  Remembered remembered;
  remembered.setLastPrinter(mModel.destination().name);
  if (mHeldJob) return;  // its document has no place where it could be found again
  for (const std::string& path : mDialog->documents()) remembered.addRecent(path);
  mDialog->setRecentDocuments(remembered.recentDocuments());
}

void DialogSession::awaitPrinter() {
  if (mPrinter.wait_for(std::chrono::seconds(0)) == std::future_status::ready)
    return QTimer::singleShot(0, this, [this] { takePrinter(mPrinter.get()); });
  mBackground.start([this, printer = mPrinter]() -> Background::Delivery {
    printer.wait();
    return [this, printer] { takePrinter(printer.get()); };
  });
  if (mLine.command == Command::snapshot) return;
  QTimer::singleShot(kServerPatienceMilliseconds, this, [this] {
    if (mIsComplete) return;
    mDialog->showWaiting(tr("Waiting for the print server..."));
    show();
  });
  QTimer::singleShot(kServerSilenceMilliseconds, this, [this] {
    if (mIsComplete) return;
    mDialog->showWaiting(
        tr("The print server does not answer yet. Is the computer that has the printer switched "
           "on and connected?"));
  });
}

void DialogSession::takePrinter(const Result<PrinterChoice>& printer) {
  if (printer) return open(*printer);
  fail(printer.error());
}

// A person can choose another printer; nobody else can.
void DialogSession::fail(const Error& error) {
  tell(error.message);
  if (!isForAPerson(mLine)) return QApplication::exit(kExitError);
  mIsComplete = true;
  mHasFailed = true;
  mDialog->showFailure(asLine(error.sentence));
  show();
  mDialog->startWatching();
}

void DialogSession::open(const PrinterChoice& printer) {
  mDialog->openPrinter(printer);
  const bool isPicture = mLine.command == Command::snapshot;
  // Read by programs of their own while this one draws itself.
  if (!isPicture) mDialog->loadDocument();
  for (const std::string& problem : mPlugIns.takeProblems()) tell(problem);
  if (const std::optional<Error> problem = problemOfDocuments(mLine.files)) {
    tell(problem->message);
    mDialog->noteFailure();
  }
  mIsComplete = true;
  if (isPicture) {
    connect(mDialog.get(), &PrintDialog::becameSettled, this, &DialogSession::takeSnapshot,
            Qt::QueuedConnection);
  }
  const bool wasVisible = mDialog->isVisible();
  show();
  if (wasVisible) mDialog->update();
}

// As it was left, or as large as there is room for.
QSize DialogSession::windowSize() const {
  QSize size = kWindowSize;
  if (isForAPerson(mLine)) {
    const QSize last = Remembered().windowSize();
    if (!last.isEmpty()) size = last;
  }
  if (mLine.command != Command::snapshot) {
    const QSize room = mDialog->screen()->availableSize() - QSize(kScreenMargin, kScreenMargin);
    size = size.boundedTo(room);
  }
  return size;
}

void DialogSession::show() {
  if (mDialog->isVisible()) return;
  mDialog->layOut(mSize);
  mPixels = {};
  if (mLine.parentWindow) setParentWindow(*mDialog, *mLine.parentWindow);
  mDialog->show();
}

bool DialogSession::eventFilter(QObject* watched, QEvent* event) {
  if (mIsComplete && !mHasPainted && event->type() == QEvent::Paint) {
    mHasPainted = true;
    QTimer::singleShot(0, this, &DialogSession::didPaintFirst);
  }
  return QObject::eventFilter(watched, event);
}

// Everything but the document has been drawn.
void DialogSession::didPaintFirst() {
  if (mLine.marks) {
    for (const char* name : {"painted", "complete"}) printTime(name);
    printPeakMemory();
  }
  mIsSeen = true;
  mDialog->completeForms();
  if (mLine.marks) return finishMeasuring();
  if (mLine.command == Command::snapshot) return mDialog->loadDocument();
  if (!mHasFailed) mDialog->startWatching();
  mDialog->setRecentDocuments(Remembered().recentDocuments());
  QApplication::setWindowIcon(windowIcon(mInstallation));
}

// The measuring programs look on until the first label is there.
void DialogSession::finishMeasuring() {
  if (!mIsSeen || (!mHasLabel && !mLine.files.empty())) return;
  if (mHasLabel) printTime("document");
  QApplication::exit(kExitDone);
}

void DialogSession::takeSnapshot() {
  const QString path = toQString(mLine.snapshotPath);
  if (mDialog->grab().save(path, "PNG")) return QApplication::exit(kExitDone);
  tell(mLine.snapshotPath + ": the picture cannot be written; name another file");
  QApplication::exit(kExitError);
}

}  // namespace cutline
