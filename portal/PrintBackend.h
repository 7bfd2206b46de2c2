// The print dialog of applications that ask the desktop for one: the object that the portal calls.
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QVariantMap>
#include <functional>

#include "portal/MeantPrinter.h"
#include "portal/PortalRequest.h"
#include "portal/Tickets.h"

namespace cutline::portal {

// Both calls answer when a person has: 0 done, 1 cancelled, 2 neither, and the results.
class PrintBackend : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Print")

 public:
  // `dialog` is the program; `otherBackend` answers the bus name of the desktop's own dialog, empty
  // where it has none.
  PrintBackend(QString dialog, std::function<QString()> otherBackend, QObject* parent = nullptr);

 public slots:
  // Settings and paper for a document that the application is about to draw. Results: "settings",
  // "page-setup", "token".
  Q_SCRIPTABLE uint PreparePrint(const QDBusObjectPath& handle, const QString& appId,
                                 const QString& parentWindow, const QString& title,
                                 const QVariantMap& settings, const QVariantMap& pageSetup,
                                 const QVariantMap& options, QVariantMap& results);
  // Prints the document, with what was chosen before where the options have its token.
  Q_SCRIPTABLE uint Print(const QDBusObjectPath& handle, const QString& appId,
                          const QString& parentWindow, const QString& title,
                          const QDBusUnixFileDescriptor& document, const QVariantMap& options,
                          QVariantMap& results);

 private:
  // Who asks for what, as every call begins.
  struct Asker {
    QDBusObjectPath handle;
    QString appId, parentWindow;
    QString title;     // of the dialog
    QString jobTitle;  // empty where nobody has named the document
    QVariantList arguments() const;
    // For our dialog.
    QStringList words() const;
  };
  using Then = std::function<void(const MeantPrinter&)>;

  PortalRequest* newRequest(const QDBusObjectPath& handle);
  void withMeantPrinter(PortalRequest* request, const QVariantMap& settings,
                        const QVariantMap& pageSetup, Then then);
  // The desktop's own dialog for what is not for labels; empty where ours is to be shown.
  QString backendFor(const MeantPrinter& printer) const;
  PortalRequest::Results chosenResults(const Asker& asker, const QVariantMap& settings);
  PortalRequest::ForeignResults foreignResults(const QString& appId);
  void print(PortalRequest& request, const Asker& asker, const QStringList& words,
             const QDBusUnixFileDescriptor& document) const;
  void printWith(PortalRequest& request, const Ticket& ticket, Asker asker,
                 const QDBusUnixFileDescriptor& document, QVariantMap options);

  QString mDialog;
  std::function<QString()> mOtherBackend;
  Tickets mTickets;
};

}  // namespace cutline::portal
