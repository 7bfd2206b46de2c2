#include "tests/e2e/Program.h"

namespace cutline::test {

CommandResult runProgram(const std::string& words, const std::string& before) {
  return run("env QT_QPA_PLATFORM=offscreen " + before + ' ' + quoted(built("bin/cutline")) + ' ' +
             words);
}

}  // namespace cutline::test
