// A session's message bus of this process's own, on which programs and screen reader find each
// other. The accessibility bus starts by itself when somebody asks for it.
#pragma once

#include <QProcess>
#include <QTemporaryDir>

namespace cutline::test {

class SessionBus {
 public:
  // From now on it is the session's bus of this process and of those that it starts. Throws where
  // it does not start.
  SessionBus();
  ~SessionBus();
  SessionBus(const SessionBus&) = delete;
  SessionBus& operator=(const SessionBus&) = delete;

 private:
  QTemporaryDir mRuntimeDirectory;
  QProcess mDaemon;
};

}  // namespace cutline::test
