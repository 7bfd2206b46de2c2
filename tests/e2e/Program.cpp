#include "tests/e2e/Program.h"

namespace cutline::test {

tests::Result runProgram(const std::string& words, const std::string& before) {
  return tests::run("env QT_QPA_PLATFORM=offscreen " + before + ' ' +
                    tests::quoted(tests::built("bin/cutline")) + ' ' + words);
}

}  // namespace cutline::test
