#include "tests/portal/PortalSession.h"

#include <atspi/atspi.h>

#include <filesystem>
#include <stdexcept>

#include "tests/support/Command.h"
#include "tests/support/qt/child_process.h"

namespace cutline::test {
namespace {

// In milliseconds, for each question to a program.
constexpr int kSessionPatience = 5000;
constexpr int kPatienceAtTheStart = 20000;

PortalSession* theSession = nullptr;

void set(const char* name, const std::string& value) { qputenv(name, value.c_str()); }

}  // namespace

PortalSession& PortalSession::current() { return *theSession; }

void PortalSession::SetUp() {
  theSession = this;
  writeFiles();
  for (const char* foreign : {"WAYLAND_DISPLAY", "AT_SPI_BUS_ADDRESS"}) qunsetenv(foreign);
  set("XDG_RUNTIME_DIR", mFolder / "run");
  set("XDG_DATA_DIRS", built("share") + ":/usr/local/share:/usr/share");
  set("XDG_DESKTOP_PORTAL_DIR", mFolder / "portals");
  set("XDG_CURRENT_DESKTOP", "GNOME");
  set("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
  set("LC_ALL", "C.UTF-8");
  mDisplay = std::make_unique<Display>();
  startBus();
  mOther = std::make_unique<OtherDialog>();
  atspi_init();
  atspi_set_timeout(kSessionPatience, kPatienceAtTheStart);
}

void PortalSession::TearDown() {
  atspi_exit();
  mOther.reset();
  mBus.terminate();
  if (!mBus.waitForFinished(kSessionPatience)) mBus.kill();
  mBus.waitForFinished(kSessionPatience);
  mDisplay.reset();
}

void PortalSession::writeFiles() const {
  const std::string run = mFolder / "run";
  std::filesystem::create_directory(run);
  std::filesystem::permissions(run, std::filesystem::perms::owner_all);
  mFolder.write("portals/cutline.portal",
                contentsOf(built("share/xdg-desktop-portal/portals/cutline.portal")));
  // The portal takes the first file by its name.
  mFolder.write("portals/other.portal", "[portal]\nDBusName=" + std::string(OtherDialog::kName) +
                                            "\nInterfaces=org.freedesktop.impl.portal.Print;\n"
                                            "UseIn=gnome\n");
}

// What the bus starts has its environment.
void PortalSession::startBus() {
  mBus.setStandardErrorFile(QProcess::nullDevice());
  mDisplay->start(mBus, QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--session"), QStringLiteral("--nofork"),
                   QStringLiteral("--nopidfile"), QStringLiteral("--print-address")});
  while (!mBus.canReadLine() && mBus.waitForReadyRead(kPatienceAtTheStart)) {
  }
  const QByteArray address = mBus.readLine().trimmed();
  if (address.isEmpty()) throw std::runtime_error("no message bus: is dbus-daemon installed?");
  qputenv("DBUS_SESSION_BUS_ADDRESS", address);
}

}  // namespace cutline::test
