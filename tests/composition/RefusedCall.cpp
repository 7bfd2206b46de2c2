#include "tests/composition/RefusedCall.h"

#include <seccomp.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/FileDescriptor.h"
#include "tests/composition/MemoryFile.h"

namespace cutline::test {
namespace {

constexpr char kNotRefused[] = "the call could not be refused";

bool refuse(const RefusedCall& call) {
  const scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
  const scmp_arg_cmp comparison{call.argument ? call.argument->index : 0, SCMP_CMP_EQ,
                                call.argument ? call.argument->value : 0, 0};
  const auto reason = static_cast<std::uint32_t>(call.reason);
  const bool isRefused = seccomp_rule_add_array(filter, SCMP_ACT_ERRNO(reason),
                                                seccomp_syscall_resolve_name(call.name),
                                                call.argument ? 1 : 0, &comparison) == 0 &&
                         seccomp_load(filter) == 0;
  seccomp_release(filter);
  return isRefused;
}

}  // namespace

std::string saidWithout(const RefusedCall& call, const std::function<std::string()>& act) {
  const MemoryFile said;
  const pid_t child = ::fork();
  if (child == 0) {
    const std::string words = refuse(call) ? act() : kNotRefused;
    ::_exit(writeAll(said.descriptor(), words.data(), words.size()) ? 0 : 1);
  }
  ::waitpid(child, nullptr, 0);
  return said.bytes();
}

}  // namespace cutline::test
