// One request of an application, from its call to the answer: as an object on the bus it can be
// closed, and it answers once, by our dialog or by the desktop's own.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <functional>

#include "base/FileDescriptor.h"
#include "portal/DialogProcess.h"

namespace cutline::portal {

// The answers that portals know.
enum class Response : uint { done = 0, cancelled = 1, failed = 2 };

class PortalRequest : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Request")

 public:
  // `handle` is the object's path. The object goes when it has answered.
  PortalRequest(const QDBusConnection& bus, const QDBusMessage& call, const QString& handle,
                QObject* parent);
  ~PortalRequest() override;

  // False where an object is there already; then there is no answer but an error.
  bool appear();

  // What the dialog wrote becomes the results of a request that it was done with.
  using Results = std::function<std::optional<QVariantMap>(const QByteArray& output)>;
  void showDialog(const QString& program, const QStringList& words, FileDescriptor document,
                  Results results);

  // Has another backend do the same; `results` may change what it answered.
  using ForeignResults = std::function<QVariantMap(QVariantMap)>;
  void handOn(const QString& backend, const QVariantList& arguments, ForeignResults results);

  void answer(Response response, const QVariantMap& results = {});

  // Whether nobody waits for the answer any more.
  bool isClosed() const noexcept { return mIsClosed; }

 public slots:
  Q_SCRIPTABLE void Close();

 private:
  void takeDialogsEnd(int exitStatus, const QByteArray& output);
  void takeForeignAnswer(const QDBusMessage& reply);
  void end(const QDBusMessage& reply);

  QDBusConnection mBus;
  QDBusMessage mCall;
  QString mHandle;
  QString mForeign;  // the backend that has the request now
  DialogProcess* mDialog = nullptr;
  Results mResults;
  ForeignResults mForeignResults;
  bool mIsClosed = false;
  bool mHasAppeared = false;
};

}  // namespace cutline::portal
