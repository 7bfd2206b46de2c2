// The backend of org.freedesktop.impl.portal.Print, as a program that the session's bus starts.
#include <QCoreApplication>
#include <QDBusConnection>
#include <QTimer>
#include <iostream>

#include "host/core/Installation.h"
#include "portal/Names.h"
#include "portal/OtherBackend.h"
#include "portal/PrintBackend.h"

namespace {

using namespace cutline;
using namespace cutline::portal;

constexpr int kSessionMilliseconds = 10000;

QString usualOtherBackend() { return otherPrintBackend(backendFolders(), currentDesktops()); }

// The bus says nothing when it goes.
void endWithSession(QTimer& timer) {
  QObject::connect(&timer, &QTimer::timeout, [] {
    if (!QDBusConnection::sessionBus().isConnected()) QCoreApplication::quit();
  });
  timer.start(kSessionMilliseconds);
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const std::string dialog = Installation::ofThisProgram().prefix() + "/bin/cutline";
  PrintBackend backend(QString::fromStdString(dialog), usualOtherBackend);
  QDBusConnection bus = QDBusConnection::sessionBus();
  const bool isThere = bus.registerObject(QLatin1String(kBackendPath), &backend,
                                          QDBusConnection::ExportScriptableSlots) &&
                       bus.registerService(QLatin1String(kServiceName));
  if (!isThere) {
    std::cerr << "cutline-portal: " << bus.lastError().message().toStdString() << std::endl;
    return 1;
  }
  QTimer session;
  endWithSession(session);
  return QCoreApplication::exec();
}
