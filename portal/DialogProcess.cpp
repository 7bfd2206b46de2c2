#include "portal/DialogProcess.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <utility>

namespace cutline::portal {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 5s;
// What the dialog keeps of a document, however much an application sends.
constexpr rlim_t kLargestFile = rlim_t{1} << 30U;
constexpr qint64 kLongestAnswer = 1 << 20;

}  // namespace

DialogProcess::DialogProcess(QString program, QObject* parent)
    : QObject(parent), mProgram(std::move(program)) {
  mProcess.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  mProcess.setStandardInputFile(QProcess::nullDevice());
  mProcess.setChildProcessModifier([this] { prepareChild(); });
  mPatience.setSingleShot(true);
  mPatience.setInterval(kPatience);
  connect(&mPatience, &QTimer::timeout, &mProcess, &QProcess::kill);
  connect(&mProcess, &QProcess::finished, this, &DialogProcess::takeEnd);
  connect(&mProcess, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) emit ended(-1, {});
  });
}

// Nobody waits for an answer any more.
DialogProcess::~DialogProcess() {
  mProcess.disconnect(this);
  mProcess.kill();
  mProcess.waitForFinished(1000);
}

void DialogProcess::start(const QStringList& words, FileDescriptor document) {
  mDocument = std::move(document);
  mProcess.start(mProgram, words, QIODevice::ReadOnly);
  mDocument = FileDescriptor();
}

void DialogProcess::close() {
  if (mProcess.state() == QProcess::NotRunning) return;
  mProcess.terminate();
  mPatience.start();
}

// In the child, between its two system calls of birth: only what is allowed there.
void DialogProcess::prepareChild() {
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  if (mDocument) dup2(mDocument.get(), STDIN_FILENO);
  const rlimit limit{kLargestFile, kLargestFile};
  setrlimit(RLIMIT_FSIZE, &limit);
  signal(SIGXFSZ, SIG_IGN);  // a document that is too large is an error, no sudden end
}

void DialogProcess::takeEnd(int exitStatus, QProcess::ExitStatus how) {
  mPatience.stop();
  emit ended(how == QProcess::NormalExit ? exitStatus : -1, mProcess.read(kLongestAnswer));
}

}  // namespace cutline::portal
