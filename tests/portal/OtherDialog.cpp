#include "tests/portal/OtherDialog.h"

#include <unistd.h>

#include <QDBusConnection>
#include <array>
#include <stdexcept>

namespace cutline::test {
namespace {

const QString kOtherPath = QStringLiteral("/org/freedesktop/portal/desktop");

std::string beginningOf(const QDBusUnixFileDescriptor& document) {
  std::array<char, 5> bytes{};
  const ssize_t count = pread(document.fileDescriptor(), bytes.data(), bytes.size(), 0);
  return {bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
}

}  // namespace

OtherDialog::OtherDialog() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.registerObject(kOtherPath, this, QDBusConnection::ExportScriptableSlots) ||
      !bus.registerService(QLatin1String(kName)))
    throw std::runtime_error("the other dialog has no place on the bus");
}

OtherDialog::~OtherDialog() {
  QDBusConnection::sessionBus().unregisterService(QLatin1String(kName));
  QDBusConnection::sessionBus().unregisterObject(kOtherPath);
}

uint OtherDialog::PreparePrint(const QDBusObjectPath& /*handle*/, const QString& /*appId*/,
                               const QString& /*parentWindow*/, const QString& title,
                               const QVariantMap& settings, const QVariantMap& pageSetup,
                               const QVariantMap& /*options*/, QVariantMap& results) {
  calls.push_back({"PreparePrint", title.toStdString(), settings, 0, {}});
  results = {{QStringLiteral("settings"), settings},
             {QStringLiteral("page-setup"), pageSetup},
             {QStringLiteral("token"), kToken}};
  return 0;
}

uint OtherDialog::Print(const QDBusObjectPath& /*handle*/, const QString& /*appId*/,
                        const QString& /*parentWindow*/, const QString& title,
                        const QDBusUnixFileDescriptor& document, const QVariantMap& options,
                        QVariantMap& /*results*/) {
  calls.push_back({"Print",
                   title.toStdString(),
                   {},
                   options.value(QStringLiteral("token")).toUInt(),
                   beginningOf(document)});
  return 0;
}

}  // namespace cutline::test
