// A job that waits on an ask queue, taken by one program alone to ask about it.
#pragma once

#include <memory>

#include "base/FileDescriptor.h"
#include "base/Result.h"
#include "base/TemporaryFile.h"
#include "host/core/CommandLine.h"

namespace cutline {

class HeldJobInHand {
 public:
  // Takes the job that the line names, and makes the line one for its document, its printer and
  // what it says. Null where nothing is left to ask. An error where another program has it in hand.
  static Result<std::shared_ptr<HeldJobInHand>> take(CommandLine& line);

 private:
  HeldJobInHand(FileDescriptor lock, TemporaryFile document)
      : mLock(std::move(lock)), mDocument(std::move(document)) {}

  FileDescriptor mLock;
  TemporaryFile mDocument;
};

}  // namespace cutline
