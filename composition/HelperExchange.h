// One request to a confined program, and its one answer.
#pragma once

#include <chrono>
#include <stop_token>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/FileDescriptor.h"
#include "base/Result.h"
#include "composition/HelperProcess.h"

namespace cutline {

struct HelperAnswer {
  std::string text;
  bool isInTime = true;
  int status = 0;  // as of HelperProcess::wait
};

// A program that was started, and reads its request from standard input until that ends. One that
// is never asked ends with this.
class HelperExchange {
 public:
  // `files` become its descriptors 3, 4, ...; they are borrowed for this call. Does not wait for
  // it.
  static Result<HelperExchange> start(const std::string& program, std::vector<int> files);

  // Once only. Blocks until the program has answered and ended, is stopped, or `patience` is over;
  // then it is ended.
  HelperAnswer ask(std::string_view request, const std::stop_token& stop,
                   std::chrono::milliseconds patience);

 private:
  HelperExchange(FileDescriptor request, FileDescriptor answer, HelperProcess helper)
      : mRequest(std::move(request)), mAnswer(std::move(answer)), mHelper(std::move(helper)) {}

  FileDescriptor mRequest;
  FileDescriptor mAnswer;
  HelperProcess mHelper;
};

}  // namespace cutline
