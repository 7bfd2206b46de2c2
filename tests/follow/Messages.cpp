#include "tests/follow/Messages.h"

#include <QDBusConnection>
#include <stdexcept>

namespace cutline::test {

Messages::Messages() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  const bool isThere = bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                                          QDBusConnection::ExportScriptableSlots) &&
                       bus.registerService(QStringLiteral("org.freedesktop.Notifications"));
  if (!isThere) throw std::runtime_error("messages are shown by somebody else");
}

uint Messages::Notify(const QString& /*program*/, uint inPlaceOf, const QString& /*icon*/,
                      const QString& title, const QString& text, const QStringList& /*actions*/,
                      const QVariantMap& /*hints*/, int /*time*/) {
  mShown.append({title, text, inPlaceOf});
  return static_cast<uint>(mShown.size());
}

}  // namespace cutline::test
