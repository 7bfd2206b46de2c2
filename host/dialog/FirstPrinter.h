// The printer that the dialog opens with, looked for on another thread while the toolkit is made.
#pragma once

#include <future>

#include "base/Result.h"
#include "host/core/CommandLine.h"
#include "host/core/PrintModel.h"

namespace cutline {

// Also says why there is none, and whether the document exists.
using FirstPrinter = std::shared_future<Result<PrinterChoice>>;

// The thread is left alone when the dialog ends before the server has answered.
FirstPrinter startFindingFirstPrinter(const CommandLine& line);

// What the thread does. Without a named printer and without a default one it is the server's first.
Result<PrinterChoice> findFirstPrinter(const CommandLine& line);

}  // namespace cutline
