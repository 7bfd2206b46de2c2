// The system log of a program without one: lines on the standard error stream.
#pragma once

#include <string>

#include "platform/ports/System.h"

namespace cutline {

class StandardErrorLog final : public SystemLog {
 public:
  // Writes "YYYY-MM-DD hh:mm:ss program[process] message" and a line end.
  void log(const std::string& message) noexcept override;
};

}  // namespace cutline
