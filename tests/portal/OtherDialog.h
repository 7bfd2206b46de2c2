// The print dialog of another desktop, as a portal backend: it notes what it is asked and agrees to
// everything at once.
#pragma once

#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QVariantMap>
#include <string>
#include <vector>

namespace cutline::test {

class OtherDialog : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Print")

 public:
  static constexpr char kName[] = "org.example.OtherDialog";
  static constexpr quint32 kToken = 77;

  struct Call {
    std::string method, title;
    QVariantMap settings;  // of PreparePrint
    quint32 token = 0;     // of Print
    std::string document;  // its first bytes
  };

  // On the session's bus; throws where its name is taken.
  OtherDialog();
  ~OtherDialog() override;

  std::vector<Call> calls;

 public Q_SLOTS:
  Q_SCRIPTABLE uint PreparePrint(const QDBusObjectPath& handle, const QString& appId,
                                 const QString& parentWindow, const QString& title,
                                 const QVariantMap& settings, const QVariantMap& pageSetup,
                                 const QVariantMap& options, QVariantMap& results);
  Q_SCRIPTABLE uint Print(const QDBusObjectPath& handle, const QString& appId,
                          const QString& parentWindow, const QString& title,
                          const QDBusUnixFileDescriptor& document, const QVariantMap& options,
                          QVariantMap& results);
};

}  // namespace cutline::test
