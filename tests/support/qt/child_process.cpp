#include "tests/support/qt/child_process.h"

#include <sys/prctl.h>

#include <QProcess>
#include <csignal>

namespace cutline::test {

void endWithUs(QProcess& process) {
  process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
}

}  // namespace cutline::test
