#include "tests/access/SessionBus.h"

#include <stdexcept>

#include "tests/support/qt/child_process.h"

namespace cutline::test {

namespace {

constexpr int kStartPatience = 20000;
// Of a session that may be going on around the tests.
constexpr const char* kForeign[] = {"DISPLAY", "WAYLAND_DISPLAY", "AT_SPI_BUS_ADDRESS"};

}  // namespace

SessionBus::SessionBus() {
  for (const char* name : kForeign) qunsetenv(name);
  qputenv("XDG_RUNTIME_DIR", mRuntimeDirectory.path().toLocal8Bit());
  qputenv("XDG_STATE_HOME", mRuntimeDirectory.filePath(QStringLiteral("state")).toLocal8Bit());
  endWithUs(mDaemon);
  mDaemon.setStandardErrorFile(QProcess::nullDevice());
  mDaemon.start(QStringLiteral("dbus-daemon"),
                {QStringLiteral("--session"), QStringLiteral("--nofork"),
                 QStringLiteral("--nopidfile"), QStringLiteral("--print-address")});
  while (!mDaemon.canReadLine() && mDaemon.waitForReadyRead(kStartPatience)) {
  }
  const QByteArray address = mDaemon.readLine().trimmed();
  if (address.isEmpty()) throw std::runtime_error("no message bus: is dbus-daemon installed?");
  qputenv("DBUS_SESSION_BUS_ADDRESS", address);
}

SessionBus::~SessionBus() {
  mDaemon.terminate();
  if (!mDaemon.waitForFinished(kStartPatience)) mDaemon.kill();
  mDaemon.waitForFinished(kStartPatience);
}

}  // namespace cutline::test
