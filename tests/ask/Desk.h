// A plain user at a desk: a home, a session and a display of his own, and the programs that are
// started there.
#pragma once

#include <QProcess>
#include <memory>
#include <string>

#include "tests/support/PrivateServer.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/qt/Display.h"

namespace cutline::test {

// The print server of the tests, with the policy of the distribution's own, and an installation of
// the build that every user may enter.
PrivateServer& askServer();
const std::string& installed();
int runAllTestsWithAskServer();

class Desk {
 public:
  // Of a user whom the system has; nobody but root can be another one than himself.
  explicit Desk(const std::string& user);
  ~Desk();
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  const Display& display() const { return mDisplay; }
  void start(QProcess& process, const std::string& program, const QStringList& words) const;
  // Runs a program to its end; its output, or a failed test.
  std::string run(const std::string& program, const QStringList& words) const;

  // The service of the ask queues.
  void startService();
  void endService();
  // With its dialog.
  void killService();
  // The dialog that the service has opened is killed.
  void killDialog() const;

  // A program of this user's prints labels with Qt; the number of the job.
  int print(const std::string& queue, const std::string& title, int copies,
            const std::string& paper, const QStringList& labels) const;

 private:
  QStringList asUser(const std::string& program, const QStringList& words) const;

  std::string mUser;
  TemporaryFolder mFolder;
  Display mDisplay{Display::Users::all};
  std::unique_ptr<QProcess> mService;
};

}  // namespace cutline::test
