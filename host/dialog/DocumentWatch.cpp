#include "host/dialog/DocumentWatch.h"

#include <QDateTime>
#include <QFileInfo>

#include "qt/QtText.h"

namespace cutline {
namespace {

// Programs write a file in several steps.
constexpr int kQuietMilliseconds = 200;

std::vector<qint64> stateOf(const QStringList& paths) {
  std::vector<qint64> state;
  for (const QString& path : paths) {
    const QFileInfo file(path);
    const bool exists = file.isFile();
    state.push_back(exists ? file.lastModified().toMSecsSinceEpoch() : 0);
    state.push_back(exists ? file.size() : -1);
  }
  return state;
}

// A file that is replaced is another file: its folder tells.
QStringList withFolders(const QStringList& paths) {
  QStringList all = paths;
  for (const QString& path : paths) all.append(QFileInfo(path).absolutePath());
  all.removeDuplicates();
  return all;
}

}  // namespace

DocumentWatch::DocumentWatch(QObject* parent) : QObject(parent) {
  mPause.setSingleShot(true);
  mPause.setInterval(kQuietMilliseconds);
  const auto wait = [this] { mPause.start(); };
  connect(&mWatcher, &QFileSystemWatcher::fileChanged, this, wait);
  connect(&mWatcher, &QFileSystemWatcher::directoryChanged, this, wait);
  connect(&mPause, &QTimer::timeout, this, &DocumentWatch::look);
}

void DocumentWatch::watch(const std::vector<std::string>& paths) {
  mPaths.clear();
  for (const std::string& path : paths) mPaths.append(toQString(path));
  mSeen = stateOf(mPaths);
  const QStringList before = mWatcher.files() + mWatcher.directories();
  if (!before.isEmpty()) mWatcher.removePaths(before);
  mWatcher.addPaths(withFolders(mPaths));
}

// Other files of a watched folder change, too.
void DocumentWatch::look() {
  std::vector<qint64> now = stateOf(mPaths);
  mWatcher.addPaths(withFolders(mPaths));
  if (now == mSeen) return;
  mSeen = std::move(now);
  emit changed();
}

}  // namespace cutline
