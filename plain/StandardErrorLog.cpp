#include "plain/StandardErrorLog.h"

#include <errno.h>
#include <unistd.h>

#include <cstdio>
#include <ctime>

namespace cutline {

void StandardErrorLog::log(const std::string& message) noexcept {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  char when[32] = "";
  if (localtime_r(&now, &local)) std::strftime(when, sizeof when, "%F %T", &local);
  std::fprintf(stderr, "%s %s[%d] %s\n", when, program_invocation_short_name,
               static_cast<int>(getpid()), message.c_str());
}

}  // namespace cutline
