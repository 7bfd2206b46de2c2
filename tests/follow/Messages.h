// The part of a desktop that shows messages, on the session's bus of this process.
#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace cutline::test {

class Messages : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

 public:
  // Throws where the bus has somebody else who does that.
  Messages();

  struct Message {
    QString title, text;
    uint inPlaceOf;
  };
  const QList<Message>& shown() const noexcept { return mShown; }

 public slots:
  Q_SCRIPTABLE uint Notify(const QString& program, uint inPlaceOf, const QString& icon,
                           const QString& title, const QString& text, const QStringList& actions,
                           const QVariantMap& hints, int time);

 private:
  QList<Message> mShown;
};

}  // namespace cutline::test
