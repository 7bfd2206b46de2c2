#include "follow/Notification.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>

namespace cutline {

unsigned showMessage(const QString& title, const QString& text, unsigned inPlaceOf) {
  constexpr int kNever = 0;  // milliseconds until it goes by itself
  constexpr uchar kNormal = 1;
  QDBusMessage call = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.Notifications"),
      QStringLiteral("/org/freedesktop/Notifications"),
      QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
  const QVariantMap hints{{QStringLiteral("desktop-entry"), QStringLiteral("cutline")},
                          {QStringLiteral("urgency"), QVariant::fromValue(kNormal)}};
  // Texts may have marks like those of HTML there.
  call.setArguments({QStringLiteral("Cutline"), inPlaceOf, QStringLiteral("cutline"), title,
                     text.toHtmlEscaped(), QStringList(), hints, kNever});
  const QDBusMessage answer = QDBusConnection::sessionBus().call(call);
  return answer.arguments().value(0).toUInt();
}

}  // namespace cutline
