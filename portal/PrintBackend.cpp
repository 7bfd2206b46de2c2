#include "portal/PrintBackend.h"

#include <fcntl.h>

#include <QPointer>
#include <QThreadPool>
#include <memory>
#include <utility>

#include "portal/PortalSettings.h"

namespace cutline::portal {
namespace {

const QString kToken = QStringLiteral("token");

QStringList wordsFor(const MeantPrinter& printer) {
  QStringList words;
  const AskedSettings& asked = printer.asked;
  if (printer.name) words << QStringLiteral("-d") << QString::fromStdString(printer.name->text());
  if (asked.copies) words << QStringLiteral("-n") << QString::number(*asked.copies);
  if (asked.pageRanges) words << QStringLiteral("-P") << QString::fromStdString(*asked.pageRanges);
  for (const auto& [name, value] : asked.options)
    words << QStringLiteral("-o")
          << optionWord(QString::fromStdString(name), QString::fromStdString(value));
  return words;
}

FileDescriptor copyOf(const QDBusUnixFileDescriptor& document) {
  return FileDescriptor(fcntl(document.fileDescriptor(), F_DUPFD_CLOEXEC, 0));
}

QVariantMap unchanged(QVariantMap results) { return results; }

std::optional<QVariantMap> noResults(const QByteArray& /*output*/) { return QVariantMap(); }

}  // namespace

QVariantList PrintBackend::Asker::arguments() const {
  return {QVariant::fromValue(handle), appId, parentWindow, title};
}

QStringList PrintBackend::Asker::words() const {
  QStringList words = {QStringLiteral("-t"), jobTitle.isEmpty() ? title : jobTitle};
  if (!title.isEmpty()) words << QStringLiteral("--window-title") << title;
  if (!parentWindow.isEmpty()) words << QStringLiteral("--parent") << parentWindow;
  return words;
}

PrintBackend::PrintBackend(QString dialog, std::function<QString()> otherBackend, QObject* parent)
    : QObject(parent), mDialog(std::move(dialog)), mOtherBackend(std::move(otherBackend)) {}

// Null, with the call answered, where the handle is taken.
PortalRequest* PrintBackend::newRequest(const QDBusObjectPath& handle) {
  auto request = std::make_unique<PortalRequest>(connection(), message(), handle.path(), this);
  if (!request->appear()) {
    sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("this handle is in use"));
    return nullptr;
  }
  setDelayedReply(true);
  return request.release();
}

// The print server may take its time.
void PrintBackend::withMeantPrinter(PortalRequest* request, const QVariantMap& settings,
                                    const QVariantMap& pageSetup, Then then) {
  QThreadPool::globalInstance()->start(
      [this, request = QPointer(request), settings, pageSetup, then = std::move(then)] {
        const MeantPrinter printer = findMeantPrinter({}, settings, pageSetup);
        const auto goOn = [request, printer, then] {
          if (request && !request->isClosed()) then(printer);
        };
        QMetaObject::invokeMethod(this, goOn, Qt::QueuedConnection);
      });
}

QString PrintBackend::backendFor(const MeantPrinter& printer) const {
  return printer.isForLabels ? QString() : mOtherBackend();
}

PortalRequest::Results PrintBackend::chosenResults(const Asker& asker,
                                                   const QVariantMap& settings) {
  return [this, asker, settings](const QByteArray& output) -> std::optional<QVariantMap> {
    const std::optional<ChosenJob> job = ChosenJob::parse(output);
    if (!job) return std::nullopt;
    return QVariantMap{{QStringLiteral("settings"), job->settings(settings)},
                       {QStringLiteral("page-setup"), job->pageSetup()},
                       {kToken, mTickets.give(asker.appId, OwnTicket{*job, asker.jobTitle})}};
  };
}

// Tokens of other makers could be the same as ours.
PortalRequest::ForeignResults PrintBackend::foreignResults(const QString& appId) {
  return [this, appId](QVariantMap results) {
    const auto token = results.find(kToken);
    if (token != results.end()) *token = mTickets.give(appId, ForeignTicket{token->toUInt()});
    return results;
  };
}

uint PrintBackend::PreparePrint(const QDBusObjectPath& handle, const QString& appId,
                                const QString& parentWindow, const QString& title,
                                const QVariantMap& settings, const QVariantMap& pageSetup,
                                const QVariantMap& options, QVariantMap& /*results*/) {
  PortalRequest* const request = newRequest(handle);
  if (request == nullptr) return 0;
  const Asker asker{handle, appId, parentWindow, title, documentNamed(settings)};
  withMeantPrinter(request, settings, pageSetup, [=, this](const MeantPrinter& printer) {
    const QString other = backendFor(printer);
    if (!other.isEmpty()) {
      return request->handOn(other, asker.arguments() + QVariantList{settings, pageSetup, options},
                             foreignResults(appId));
    }
    request->showDialog(mDialog, QStringList("--choose") + asker.words() + wordsFor(printer),
                        FileDescriptor(), chosenResults(asker, settings));
  });
  return 0;
}

uint PrintBackend::Print(const QDBusObjectPath& handle, const QString& appId,
                         const QString& parentWindow, const QString& title,
                         const QDBusUnixFileDescriptor& document, const QVariantMap& options,
                         QVariantMap& /*results*/) {
  PortalRequest* const request = newRequest(handle);
  if (request == nullptr) return 0;
  const Asker asker{handle, appId, parentWindow, title, {}};
  if (options.contains(kToken)) {
    const std::optional<Ticket> ticket = mTickets.take(options.value(kToken).toUInt(), appId);
    if (ticket)
      printWith(*request, *ticket, asker, document, options);
    else
      request->answer(Response::failed);
    return 0;
  }
  withMeantPrinter(request, {}, {}, [=, this](const MeantPrinter& printer) {
    const QString other = backendFor(printer);
    if (other.isEmpty()) return print(*request, asker, wordsFor(printer), document);
    request->handOn(other, asker.arguments() + QVariantList{QVariant::fromValue(document), options},
                    unchanged);
  });
  return 0;
}

void PrintBackend::printWith(PortalRequest& request, const Ticket& ticket, Asker asker,
                             const QDBusUnixFileDescriptor& document, QVariantMap options) {
  if (const auto* own = std::get_if<OwnTicket>(&ticket)) {
    asker.jobTitle = own->title;
    return print(request, asker, own->job.words(), document);
  }
  const QString other = mOtherBackend();
  if (other.isEmpty()) return request.answer(Response::failed);
  options.insert(kToken, std::get<ForeignTicket>(ticket).token);
  request.handOn(other, asker.arguments() + QVariantList{QVariant::fromValue(document), options},
                 unchanged);
}

void PrintBackend::print(PortalRequest& request, const Asker& asker, const QStringList& words,
                         const QDBusUnixFileDescriptor& document) const {
  FileDescriptor copy = copyOf(document);
  if (!copy) return request.answer(Response::failed);
  request.showDialog(mDialog, QStringList("--once") + asker.words() + words + QStringList("-"),
                     std::move(copy), noResults);
}

}  // namespace cutline::portal
