// The backend itself, asked as the portal asks it.
#include <fcntl.h>
#include <unistd.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <filesystem>

#include "tests/portal/PortalTest.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/qt/waiting.h"

namespace cutline::test {
namespace {

constexpr char kService[] = "org.freedesktop.impl.portal.desktop.cutline";
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");

// A call and its answer, when it has come.
class Call {
 public:
  Call(const QString& method, const QVariantList& arguments,
       const QString& interface = QStringLiteral("org.freedesktop.impl.portal.Print"),
       const QString& path = kPath) {
    QDBusMessage message =
        QDBusMessage::createMethodCall(QLatin1String(kService), path, interface, method);
    message.setArguments(arguments);
    mReply = QDBusConnection::sessionBus().asyncCall(message, 60000);
  }
  bool isAnswered() {
    return waitUntil([this] { return mReply.isFinished(); });
  }
  // -1 for an error.
  int response() {
    if (!isAnswered() || mReply.isError()) return -1;
    return mReply.reply().arguments().at(0).toInt();
  }
  QVariantMap results() { return qdbus_cast<QVariantMap>(mReply.reply().arguments().value(1)); }

 private:
  QDBusPendingCall mReply = QDBusPendingCall::fromError(QDBusError());
};

class PortalBackend : public PortalTest {
 protected:
  QDBusObjectPath newHandle() {
    static int number = 0;
    return QDBusObjectPath(QStringLiteral("/org/example/request/%1").arg(++number));
  }
  Call prepare(const QDBusObjectPath& handle, const QString& appId,
               const QVariantMap& settings = {}, const QVariantMap& pageSetup = {}) {
    return {QStringLiteral("PreparePrint"),
            {QVariant::fromValue(handle), appId, QString(), QStringLiteral("Print"), settings,
             pageSetup, QVariantMap()}};
  }
  Call print(const QDBusObjectPath& handle, const QString& appId, const QVariantMap& options = {},
             const std::string& path = labels()) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const QDBusUnixFileDescriptor document(file);
    close(file);
    return {QStringLiteral("Print"),
            {QVariant::fromValue(handle), appId, QString(), QStringLiteral("Print"),
             QVariant::fromValue(document), options}};
  }
  quint32 token(const QString& appId) {
    Call chosen = prepare(newHandle(), appId);
    press(dialogWith("Continue"), "Continue");
    EXPECT_EQ(chosen.response(), 0);
    return chosen.results().value(QStringLiteral("token")).toUInt();
  }
  static QVariantMap with(quint32 token) { return {{QStringLiteral("token"), token}}; }
};

TEST_F(PortalBackend, ADocumentWithoutATokenIsPrintedToo) {
  Call printed = print(newHandle(), QStringLiteral("org.example.App"));
  press(dialogWith("Print 12 labels"), "Print 12 labels");
  EXPECT_EQ(printed.response(), 0);
  EXPECT_EQ(newJob().number("labels"), kLabels);
}

TEST_F(PortalBackend, ATokenIsForItsApplicationAndForOneJob) {
  const QString app = QStringLiteral("org.example.App");
  const quint32 mine = token(app);
  ASSERT_NE(mine, 0U);
  EXPECT_EQ(print(newHandle(), QStringLiteral("org.example.Other"), with(mine)).response(), 2);
  EXPECT_EQ(print(newHandle(), app, with(mine + 1)).response(), 2);
  EXPECT_TRUE(dialogs().empty());
  Call printed = print(newHandle(), app, with(mine));
  press(dialogWith("Print 12 labels"), "Print 12 labels");
  EXPECT_EQ(printed.response(), 0);
  EXPECT_EQ(newJob().number("labels"), kLabels);
  EXPECT_EQ(print(newHandle(), app, with(mine)).response(), 2);
  EXPECT_TRUE(nothingNew());
}

class PortalBackendAtOffice : public PortalBackend {
 protected:
  PortalBackendAtOffice() {
    std::filesystem::create_directories(server().home() + "/.cups");
    writeFile(server().home() + "/.cups/lpoptions", "Default office\n");
  }
};

TEST_F(PortalBackendAtOffice, WhoseDefaultPrinterIsNotForLabelsGetsTheOtherDialog) {
  Call chosen = prepare(newHandle(), {});
  EXPECT_EQ(chosen.response(), 0);
  EXPECT_EQ(otherDialog().calls.size(), 1U);
  EXPECT_TRUE(dialogs().empty());
  EXPECT_EQ(print(newHandle(), {}).response(), 0);
  ASSERT_EQ(otherDialog().calls.size(), 2U);
  EXPECT_EQ(otherDialog().calls.back().document, "%PDF-");
  EXPECT_EQ(otherDialog().calls.back().token, 0U);
}

TEST_F(PortalBackendAtOffice, ALabelPrinterCanBeNamed) {
  Call chosen = prepare(newHandle(), {}, {{QStringLiteral("printer"), QStringLiteral("roll62")}});
  press(dialogWith("Continue"), "Cancel");
  EXPECT_EQ(chosen.response(), 1);
  EXPECT_TRUE(otherDialog().calls.empty());
}

TEST_F(PortalBackendAtOffice, APageAsSmallAsALabelIsForALabelPrinter) {
  Call chosen = prepare(newHandle(), {}, {},
                        {{QStringLiteral("Width"), 62.0}, {QStringLiteral("Height"), 29.0}});
  press(dialogWith("Continue"), "Continue");
  EXPECT_EQ(chosen.response(), 0);
  EXPECT_TRUE(otherDialog().calls.empty());
}

TEST_F(PortalBackend, ClosedByThePortalTheDialogGoes) {
  const QDBusObjectPath handle = newHandle();
  Call printed = print(handle, {});
  dialogWith("Print 12 labels");
  Call close(QStringLiteral("Close"), {}, QStringLiteral("org.freedesktop.impl.portal.Request"),
             handle.path());
  EXPECT_TRUE(close.isAnswered());
  EXPECT_TRUE(waitForDialogs(0));
  EXPECT_NE(printed.response(), 0);
  EXPECT_TRUE(nothingNew());
}

TEST_F(PortalBackend, OneHandleIsOneRequest) {
  const QDBusObjectPath handle = newHandle();
  Call one = prepare(handle, {});
  EXPECT_EQ(prepare(handle, {}).response(), -1);
  press(dialogWith("Continue"), "Cancel");
  EXPECT_EQ(one.response(), 1);
}

TEST_F(PortalBackend, ADocumentThatIsNoneIsAnError) {
  EXPECT_EQ(print(newHandle(), {}, {}, "/dev/null").response(), 2);
  EXPECT_TRUE(dialogs().empty());
}

}  // namespace
}  // namespace cutline::test
