// Follows a job whose window is closed, and tells the desktop when it fails or stands still. Ends
// with the job.
//
// Usage: cutline-follow PRINTER JOB TITLE [SERVER]
#include <QCoreApplication>
#include <QTimer>
#include <filesystem>

#include "cups/Destinations.h"
#include "follow/JobFollower.h"
#include "follow/Notification.h"
#include "host/core/Installation.h"
#include "host/dialog/DialogLanguage.h"
#include "platform/lib/Languages.h"
#include "qt/QtText.h"

namespace {

using namespace cutline;

constexpr int kBetweenLooks = 2000;
// A job that waits over a weekend is no news any more.
constexpr int kMostLooks = 8 * 3600 * 1000 / kBetweenLooks;
constexpr int kLeastWords = 4;
constexpr int kUsage = 2;

struct Followed {
  DestinationName printer;
  int job;
  ServerOptions server;
};

// PREFIX/lib/cutline/PROGRAM gives PREFIX/lib to programs beside the first one.
Installation installation() {
  const std::filesystem::path beside = Installation::ofThisProgram().prefix();
  return Installation(beside.parent_path().string());
}

// What the printer needs from somebody.
Sentence troubleOf(const Followed& followed) {
  const auto printer = findDestination(followed.server, followed.printer);
  return printer && printer->needsAttention() ? printer->stateText() : Sentence();
}

int follow(const Followed& followed, JobFollower follower) {
  unsigned message = 0;
  int looks = 0;
  const auto look = [&] {
    const auto status = jobStatus(followed.server, followed.printer, followed.job);
    const bool goesOn = status && !status->isFinal();
    const auto news = follower.take(status, goesOn ? troubleOf(followed) : Sentence());
    if (news) message = showMessage(asLine(news->what), asLine(news->why), message);
    if (follower.isOver() || ++looks > kMostLooks) QCoreApplication::exit();
  };
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, look);
  timer.start(kBetweenLooks);
  QTimer::singleShot(0, look);
  return QCoreApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList words = QCoreApplication::arguments();
  if (words.size() < kLeastWords) return kUsage;
  const QString tables = toQString(installation().translationDirectory());
  const LanguageInForce inForce(chooseLanguage(preferredLocalizations(), tables), tables);
  Followed followed{{toUtf8(words[1]), std::nullopt}, words[2].toInt(), {}};
  if (words.size() > kLeastWords) followed.server.server = toUtf8(words[4]);
  return follow(followed, JobFollower(toUtf8(words[3])));
}
