// The system log. Implemented by the host's platform set and by tests.
#pragma once

#include <string>

namespace cutline {

class SystemLog {
 public:
  virtual ~SystemLog();
  // One message, UTF-8, without a line end; the log adds time and process.
  virtual void log(const std::string& message) noexcept = 0;
};

}  // namespace cutline
