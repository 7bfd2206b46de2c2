// Our print dialog as a program of its own, so that whatever happens to it happens to one request.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTimer>

#include "base/FileDescriptor.h"

namespace cutline::portal {

class DialogProcess : public QObject {
  Q_OBJECT

 public:
  explicit DialogProcess(QString program, QObject* parent = nullptr);
  ~DialogProcess() override;

  // `document` becomes the program's standard input; without one that is empty. ended() follows.
  void start(const QStringList& words, FileDescriptor document = FileDescriptor());
  // Asks it to close, and sees to it that it does; ended() follows.
  void close();

 signals:
  // The program's exit status, -1 where it did not end by itself, and what it wrote.
  void ended(int exitStatus, const QByteArray& output);

 private:
  void prepareChild();
  void takeEnd(int exitStatus, QProcess::ExitStatus how);

  QString mProgram;
  QProcess mProcess;
  QTimer mPatience;
  FileDescriptor mDocument;
};

}  // namespace cutline::portal
