// The window about a job: the dialog, as a program of its own, so that whatever happens to it the
// service goes on.
#pragma once

#include <sys/types.h>

#include <string>

#include "base/Result.h"

namespace cutline {

// The dialog's program, found from this one's place: PREFIX/lib/cutline/PROGRAM gives
// PREFIX/bin/cutline.
std::string dialogProgram();

// Starts the dialog about a job; the process's number.
Result<pid_t> openWindow(const std::string& program, int job);

}  // namespace cutline
