#include "portal/PortalRequest.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <limits>
#include <utility>

#include "host/core/CommandLine.h"
#include "portal/Names.h"

namespace cutline::portal {
namespace {

// A person takes as long as a person takes.
constexpr int kNoTimeout = std::numeric_limits<int>::max();

Response responseTo(int exitStatus) {
  if (exitStatus == kExitDone) return Response::done;
  return exitStatus == kExitCancelled ? Response::cancelled : Response::failed;
}

}  // namespace

PortalRequest::PortalRequest(const QDBusConnection& bus, const QDBusMessage& call,
                             const QString& handle, QObject* parent)
    : QObject(parent), mBus(bus), mCall(call), mHandle(handle) {}

PortalRequest::~PortalRequest() {
  if (mHasAppeared) mBus.unregisterObject(mHandle);
}

bool PortalRequest::appear() {
  mHasAppeared = mBus.registerObject(mHandle, this, QDBusConnection::ExportScriptableSlots);
  return mHasAppeared;
}

void PortalRequest::showDialog(const QString& program, const QStringList& words,
                               FileDescriptor document, Results results) {
  mResults = std::move(results);
  mDialog = new DialogProcess(program, this);
  connect(mDialog, &DialogProcess::ended, this, &PortalRequest::takeDialogsEnd);
  mDialog->start(words, std::move(document));
}

void PortalRequest::handOn(const QString& backend, const QVariantList& arguments,
                           ForeignResults results) {
  mForeign = backend;
  mForeignResults = std::move(results);
  QDBusMessage call = QDBusMessage::createMethodCall(
      backend, QLatin1String(kBackendPath), QLatin1String(kPrintInterface), mCall.member());
  call.setArguments(arguments);
  auto* watcher = new QDBusPendingCallWatcher(mBus.asyncCall(call, kNoTimeout), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this,
          [this](QDBusPendingCallWatcher* done) { takeForeignAnswer(done->reply()); });
}

void PortalRequest::takeForeignAnswer(const QDBusMessage& reply) {
  const QVariantList values = reply.arguments();
  if (reply.type() == QDBusMessage::ErrorMessage || values.size() != 2)
    return answer(Response::failed);
  const QVariantMap results = qdbus_cast<QVariantMap>(values.at(1));
  end(mCall.createReply({values.at(0), mForeignResults(results)}));
}

void PortalRequest::takeDialogsEnd(int exitStatus, const QByteArray& output) {
  const Response response = responseTo(exitStatus);
  if (response != Response::done) return answer(response);
  const std::optional<QVariantMap> results = mResults(output);
  if (!results) return answer(Response::failed);
  answer(response, *results);
}

void PortalRequest::answer(Response response, const QVariantMap& results) {
  end(mCall.createReply({static_cast<uint>(response), results}));
}

void PortalRequest::end(const QDBusMessage& reply) {
  mBus.send(reply);
  deleteLater();
}

// Whoever asked has gone, or gives up.
void PortalRequest::Close() {
  if (std::exchange(mIsClosed, true)) return;
  if (!mForeign.isEmpty()) {
    mBus.send(QDBusMessage::createMethodCall(mForeign, mHandle, QLatin1String(kRequestInterface),
                                             QStringLiteral("Close")));
    return;
  }
  if (mDialog != nullptr) return mDialog->close();
  answer(Response::cancelled);
}

}  // namespace cutline::portal
