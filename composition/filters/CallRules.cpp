#include "composition/filters/CallRules.h"

#include <fcntl.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <memory>

#include "base/FileDescriptor.h"

namespace cutline {
namespace {

constexpr std::array kAllowed = std::to_array<const char*>({
    // memory
    "brk",
    "mmap",
    "mmap2",
    "munmap",
    "mremap",
    "mprotect",
    "madvise",
    "membarrier",
    // open files
    "read",
    "readv",
    "pread64",
    "preadv",
    "write",
    "writev",
    "pwrite64",
    "pwritev",
    "lseek",
    "_llseek",
    "close",
    "dup",
    "dup2",
    "dup3",
    "fcntl",
    "fcntl64",
    "fstat",
    "fstat64",
    "newfstatat",
    "fstatat64",
    "statx",
    "stat",
    "stat64",
    "lstat",
    "lstat64",
    "fstatfs",
    "fstatfs64",
    "statfs",
    "statfs64",
    "fadvise64",
    "fadvise64_64",
    "readahead",
    "ftruncate",
    "ftruncate64",
    "fsync",
    "fdatasync",
    "poll",
    "ppoll",
    "select",
    "_newselect",
    "pselect6",
    "pipe",
    "pipe2",
    "eventfd2",
    "memfd_create",
    // names of files
    "access",
    "faccessat",
    "faccessat2",
    "readlink",
    "readlinkat",
    "getdents",
    "getdents64",
    "getcwd",
    // threads of its own and waiting
    "futex",
    "futex_time64",
    "set_robust_list",
    "get_robust_list",
    "rseq",
    "set_tid_address",
    "gettid",
    "getpid",
    "getppid",
    "sched_yield",
    "sched_getaffinity",
    "sched_getparam",
    "sched_getscheduler",
    "sched_get_priority_max",
    "sched_get_priority_min",
    "getpriority",
    "nanosleep",
    "pause",
    "clock_nanosleep",
    "clock_nanosleep_time64",
    "restart_syscall",
    "exit",
    "exit_group",
    "alarm",
    "setitimer",
    // signals of its own
    "rt_sigaction",
    "rt_sigprocmask",
    "rt_sigreturn",
    "sigreturn",
    "sigaltstack",
    // what there is to know
    "clock_gettime",
    "clock_gettime64",
    "clock_getres",
    "clock_getres_time64",
    "gettimeofday",
    "time",
    "times",
    "getrusage",
    "getrandom",
    "uname",
    "sysinfo",
    "getuid",
    "geteuid",
    "getgid",
    "getegid",
    "getuid32",
    "geteuid32",
    "getgid32",
    "getegid32",
    "getresuid",
    "getresgid",
    "getgroups",
    "getrlimit",
    "ugetrlimit",
    "arch_prctl",
    "set_thread_area",
    "getcpu",
});

// Sockets, other programs, and other processes.
constexpr std::array kReachingOut = std::to_array<const char*>({
    "socket",
    "socketpair",
    "connect",
    "bind",
    "listen",
    "accept",
    "accept4",
    "sendto",
    "sendmsg",
    "sendmmsg",
    "fork",
    "vfork",
    "kill",
    "tkill",
    "ptrace",
    "process_vm_readv",
    "process_vm_writev",
    "rt_sigqueueinfo",
    "rt_tgsigqueueinfo",
    "pidfd_open",
    "pidfd_send_signal",
    "pidfd_getfd",
});

// Names and rights of files, other programs, and its own limits.
constexpr std::array kRefused = std::to_array<const char*>({
    "creat",    "unlink",    "unlinkat",   "rename",   "renameat", "renameat2", "mkdir",
    "mkdirat",  "rmdir",     "link",       "linkat",   "symlink",  "symlinkat", "mknod",
    "mknodat",  "chmod",     "fchmod",     "fchmodat", "chown",    "fchown",    "fchownat",
    "lchown",   "truncate",  "truncate64", "utime",    "utimes",   "utimensat", "futimesat",
    "setxattr", "lsetxattr", "fsetxattr",  "execve",   "execveat", "recvfrom",  "recvmsg",
    "recvmmsg", "setrlimit", "prlimit64",
});

// What an interpreter with files of its own has no use for.
constexpr std::array kUseless = std::to_array<const char*>({
    "io_uring_setup",
    "bpf",
    "keyctl",
    "add_key",
    "request_key",
    "perf_event_open",
    "userfaultfd",
    "mount",
    "unshare",
    "setns",
    "chroot",
});

// A file opened with any of these is one that is written to or made.
constexpr std::uint64_t kWriting = O_ACCMODE | O_CREAT | O_TRUNC;
constexpr std::uint64_t kThread = CLONE_VM | CLONE_THREAD | CLONE_SIGHAND;

// Calls are looked for by halves: the kernel tries each there is when it takes a filter, which
// takes three times as long where it goes through a list.
constexpr std::uint32_t kAsTree = 2;

struct Released {
  void operator()(void* filter) const noexcept { seccomp_release(filter); }
};

// A filter while it is put together; good() until the library refused anything.
class Filter {
 public:
  explicit Filter(std::uint32_t others) : mFilter(seccomp_init(others)) {}

  // Names that this machine's kind lacks are left out.
  template <std::size_t Count>
  void rule(std::uint32_t action, const std::array<const char*, Count>& names) {
    for (const char* name : names) add(action, name, nullptr);
  }
  void rule(std::uint32_t action, const char* name, const scmp_arg_cmp& comparison) {
    add(action, name, &comparison);
  }

  CallFilter take() const {
    const FileDescriptor file(::memfd_create("filter", MFD_CLOEXEC));
    const bool isWritten =
        good() && seccomp_attr_set(mFilter.get(), SCMP_FLTATR_CTL_OPTIMIZE, kAsTree) == 0 &&
        seccomp_export_bpf(mFilter.get(), file.get()) == 0;
    return isWritten ? stepsIn(file) : CallFilter();
  }

 private:
  bool good() const { return mFilter && mIsGood; }
  static CallFilter stepsIn(const FileDescriptor& file) {
    CallFilter steps(BPF_MAXINSNS);
    const ssize_t size = ::pread(file.get(), steps.data(), steps.size() * sizeof(sock_filter), 0);
    steps.resize(size > 0 ? static_cast<std::size_t>(size) / sizeof(sock_filter) : 0);
    return steps;
  }
  void add(std::uint32_t action, const char* name, const scmp_arg_cmp* comparison) {
    const int call = seccomp_syscall_resolve_name(name);
    if (!good() || call == __NR_SCMP_ERROR) return;
    const int problem =
        seccomp_rule_add_array(mFilter.get(), action, call, comparison ? 1 : 0, comparison);
    // A call that this machine has by another number only.
    mIsGood = problem == 0 || problem == -EDOM;
  }

  std::unique_ptr<void, Released> mFilter;
  bool mIsGood = true;
};

constexpr scmp_arg_cmp masked(unsigned argument, std::uint64_t mask, std::uint64_t value) {
  return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}
constexpr scmp_arg_cmp equal(unsigned argument, std::uint64_t value) {
  return {argument, SCMP_CMP_EQ, value, 0};
}

void allowOpeningForReading(Filter& filter, const char* call, unsigned argument) {
  filter.rule(SCMP_ACT_ALLOW, call, masked(argument, kWriting, O_RDONLY));
  for (const std::uint64_t flag : {O_WRONLY, O_RDWR, O_CREAT, O_TRUNC})
    filter.rule(SCMP_ACT_ERRNO(EACCES), call, masked(argument, flag, flag));
}

// A process that aborts itself sends the signal to one of its threads.
void allowItself(Filter& filter) {
  filter.rule(SCMP_ACT_ALLOW, "tgkill", equal(0, kOwnProcess));
  filter.rule(SCMP_ACT_ALLOW, "clone", masked(0, kThread, kThread));
  filter.rule(SCMP_ACT_ALLOW, "prctl", equal(0, PR_SET_NAME));
  filter.rule(SCMP_ACT_ALLOW, "ioctl", equal(1, TCGETS));
}

}  // namespace

CallFilter readingFilter() {
  Filter filter(SCMP_ACT_ERRNO(ENOSYS));
  filter.rule(SCMP_ACT_ALLOW, kAllowed);
  filter.rule(SCMP_ACT_ERRNO(EACCES), kReachingOut);
  filter.rule(SCMP_ACT_ERRNO(EACCES), kRefused);
  allowOpeningForReading(filter, "open", 1);
  allowOpeningForReading(filter, "openat", 2);
  allowItself(filter);
  return filter.take();
}

CallFilter reachingOutFilter() {
  Filter filter(SCMP_ACT_ALLOW);
  filter.rule(SCMP_ACT_ERRNO(EACCES), kReachingOut);
  filter.rule(SCMP_ACT_ERRNO(EACCES), kUseless);
  return filter.take();
}

}  // namespace cutline
