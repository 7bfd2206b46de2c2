// Tells when somebody else changes the documents that the dialog shows: what is printed is read
// when it is printed, and must be what is shown.
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <string>
#include <vector>

namespace cutline {

class DocumentWatch : public QObject {
  Q_OBJECT

 public:
  explicit DocumentWatch(QObject* parent = nullptr);

  // Watches these from now on, and no others.
  void watch(const std::vector<std::string>& paths);

 signals:
  // One of them was written, went away or came back; once for changes that follow each other.
  void changed();

 private:
  void look();

  QStringList mPaths;
  std::vector<qint64> mSeen;  // of each, when it was written last and how large it was
  QFileSystemWatcher mWatcher;
  QTimer mPause;
};

}  // namespace cutline
