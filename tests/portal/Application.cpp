#include "tests/portal/Application.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "tests/portal/PortalSession.h"
#include "tests/support/Command.h"
#include "tests/support/qt/waiting.h"

namespace cutline::test {
namespace {

constexpr int kPatience = 5000;

Application::Report read(const QByteArray& json) {
  const QJsonObject object = QJsonDocument::fromJson(json).object();
  Application::Report report;
  report.result = object.value(QStringLiteral("result")).toString().toStdString();
  const QJsonObject settings = object.value(QStringLiteral("settings")).toObject();
  for (auto each = settings.begin(); each != settings.end(); ++each)
    report.settings[each.key().toStdString()] = each.value().toString().toStdString();
  for (const QJsonValue& page : object.value(QStringLiteral("drawn")).toArray())
    report.pages.emplace_back(page.toArray().at(0).toDouble(), page.toArray().at(1).toDouble());
  return report;
}

}  // namespace

Application::Application(int gtk, const QStringList& words) {
  qputenv("GTK_USE_PORTAL", "1");
  qputenv("GDK_DEBUG", "portals");
  qputenv("NO_AT_BRIDGE", "1");
  qputenv("GTK_A11Y", "none");
  const QString client = QString::fromStdString(source("tests/portal/print_client.py"));
  PortalSession::current().display().start(mProcess, QStringLiteral("/usr/bin/python3"),
                                           QStringList{client, QString::number(gtk)} + words);
}

Application::~Application() { kill(); }

void Application::kill() {
  mProcess.kill();
  mProcess.waitForFinished(kPatience);
}

Application::Report Application::report() {
  const bool isThere = waitUntil([this] { return mProcess.canReadLine(); });
  EXPECT_TRUE(isThere) << mProcess.readAllStandardError().toStdString();
  return read(mProcess.readLine());
}

}  // namespace cutline::test
