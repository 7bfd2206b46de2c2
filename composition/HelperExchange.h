// One request to a confined program, and its one answer.
#pragma once

#include <chrono>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>

#include "base/FileDescriptor.h"
#include "base/Result.h"
#include "composition/HelperProcess.h"
#include "composition/HelperRequest.h"
#include "composition/HelperSpawn.h"

namespace cutline {

struct HelperAnswer {
  std::string text;
  bool isInTime = true;
  // As of HelperProcess::wait; 0 also for a program that has said all, and may not have ended yet.
  int status = 0;
};

// The end of an answer that says all; no answer has it within.
inline constexpr char kAnswerEnd = '\0';

// A program that was started, and reads its request from standard input until that ends. It ends
// with this, asked or not.
class HelperExchange {
 public:
  // Does not wait for it.
  static Result<HelperExchange> start(const std::string& program);
  // Takes over what was started before.
  explicit HelperExchange(const WaitingHelper& helper)
      : mRequest(helper.request), mAnswer(helper.answer), mHelper(helper.process) {}

  // What it is to work with, before it is asked; the files are borrowed. Once only.
  void give(std::span<const int> files) { sendFiles(mRequest.get(), files); }
  // Once only. Blocks until the program has answered, has ended, is stopped, or `patience` is over;
  // then it is ended.
  HelperAnswer ask(std::string_view request, const std::stop_token& stop,
                   std::chrono::milliseconds patience);

 private:
  FileDescriptor mRequest;
  FileDescriptor mAnswer;
  HelperProcess mHelper;
};

}  // namespace cutline
