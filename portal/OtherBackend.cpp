#include "portal/OtherBackend.h"

#include <QDir>
#include <QSet>
#include <algorithm>
#include <vector>

#include "portal/Names.h"

namespace cutline::portal {
namespace {

constexpr char kGtkName[] = "org.freedesktop.impl.portal.desktop.gtk";

struct Backend {
  QString name;
  QStringList desktops;
};

QStringList wordsIn(const QString& text) { return text.split(u';', Qt::SkipEmptyParts); }

// Of a key file; QSettings takes ";" for the beginning of a comment.
QStringList valuesOf(const QString& path, const QString& key) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
  const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
  for (const QString& line : lines) {
    const QString before = line.section(u'=', 0, 0).trimmed();
    if (before == key) return wordsIn(line.section(u'=', 1).trimmed());
  }
  return {};
}

// A file in an earlier folder hides those of its name behind it.
std::vector<Backend> printBackends(const QStringList& folders) {
  std::vector<Backend> backends;
  QSet<QString> seen;
  for (const QString& folder : folders) {
    const QDir dir(folder);
    for (const QString& file :
         dir.entryList({QStringLiteral("*.portal")}, QDir::Files, QDir::Name)) {
      if (seen.contains(file)) continue;
      seen.insert(file);
      const QString path = dir.filePath(file);
      const QString name = valuesOf(path, QStringLiteral("DBusName")).value(0);
      const bool prints =
          valuesOf(path, QStringLiteral("Interfaces")).contains(QLatin1String(kPrintInterface));
      if (!prints || name.isEmpty() || name == QLatin1String(kServiceName)) continue;
      backends.push_back({name, valuesOf(path, QStringLiteral("UseIn"))});
    }
  }
  return backends;
}

}  // namespace

QStringList backendFolders() {
  const QString only = qEnvironmentVariable("XDG_DESKTOP_PORTAL_DIR");
  if (!only.isEmpty()) return {only};
  QString all = qEnvironmentVariable("XDG_DATA_DIRS");
  if (all.isEmpty()) all = QStringLiteral("/usr/local/share:/usr/share");
  const QString home =
      qEnvironmentVariable("XDG_DATA_HOME", QDir::homePath() + QStringLiteral("/.local/share"));
  QStringList folders;
  for (const QString& each : QStringList(home) + all.split(u':', Qt::SkipEmptyParts))
    folders.append(each + QStringLiteral("/xdg-desktop-portal/portals"));
  return folders;
}

QStringList currentDesktops() {
  return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
}

QString otherPrintBackend(const QStringList& folders, const QStringList& desktops) {
  const std::vector<Backend> backends = printBackends(folders);
  for (const QString& desktop : desktops)
    for (const Backend& each : backends)
      if (each.desktops.contains(desktop, Qt::CaseInsensitive)) return each.name;
  for (const Backend& each : backends)
    if (each.name == QLatin1String(kGtkName)) return each.name;
  return backends.empty() ? QString() : backends.front().name;
}

}  // namespace cutline::portal
