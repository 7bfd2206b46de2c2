// Processes that tests start.
#pragma once

class QProcess;

namespace cutline::test {

// Before the start: however this process ends, what it started ends with it.
void endWithUs(QProcess& process);

}  // namespace cutline::test
