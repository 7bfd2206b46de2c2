// Loaded before the program's libraries: lets one call of the system's functions fail, as where
// memory, descriptors or a disk have run out. CUTLINE_FAIL names the function, CUTLINE_FAIL_AT says
// at which call of it, and CUTLINE_FAIL_COUNT in which file the number of all calls is left.
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <new>

extern "C" char* program_invocation_short_name;

namespace {

// Other programs that the program starts are spared.
struct Plan {
  Plan() {
    const char* const named = getenv("CUTLINE_FAIL");
    if (named == nullptr || strcmp(program_invocation_short_name, "cutline") != 0) return;
    snprintf(function, sizeof function, "%s", named);
    const char* const at = getenv("CUTLINE_FAIL_AT");
    failing = at != nullptr ? atol(at) : 0;
  }
  ~Plan() {
    const char* const path = getenv("CUTLINE_FAIL_COUNT");
    if (path == nullptr || function[0] == 0) return;
    function[0] = 0;
    FILE* const file = fopen(path, "w");
    if (file == nullptr) return;
    fprintf(file, "%ld\n", calls.load());
    fclose(file);
  }
  bool fails(const char* name, int reason) {
    if (strcmp(function, name) != 0 || ++calls != failing) return false;
    errno = reason;
    return true;
  }

  char function[16] = {};
  long failing = 0;
  std::atomic<long> calls{0};
};
Plan plan;

template <typename Function>
Function* next(Function*, const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// What the libraries allocate before the program begins, and has said what to do then, counts not.
void* operator new(std::size_t size) {
  const bool isLeft = std::get_new_handler() == nullptr || !plan.fails("new", ENOMEM);
  void* memory = isLeft ? malloc(size != 0 ? size : 1) : nullptr;
  while (memory == nullptr) {
    const std::new_handler handler = std::get_new_handler();
    if (handler == nullptr) throw std::bad_alloc();
    handler();
  }
  return memory;
}

extern "C" {

int open(const char* path, int flags, ...) {
  if (plan.fails("open", EMFILE)) return -1;
  va_list more;
  va_start(more, flags);
  const mode_t mode = va_arg(more, mode_t);
  va_end(more);
  return next(&open, "open")(path, flags, mode);
}
int open64(const char* path, int flags, ...) {
  if (plan.fails("open", EMFILE)) return -1;
  va_list more;
  va_start(more, flags);
  const mode_t mode = va_arg(more, mode_t);
  va_end(more);
  return next(&open64, "open64")(path, flags, mode);
}
int openat(int folder, const char* path, int flags, ...) {
  if (plan.fails("open", EMFILE)) return -1;
  va_list more;
  va_start(more, flags);
  const mode_t mode = va_arg(more, mode_t);
  va_end(more);
  return next(&openat, "openat")(folder, path, flags, mode);
}
FILE* fopen(const char* path, const char* mode) {
  if (plan.fails("open", EMFILE)) return nullptr;
  return next(&fopen, "fopen")(path, mode);
}
ssize_t write(int file, const void* bytes, size_t size) {
  if (plan.fails("write", ENOSPC)) return -1;
  return next(&write, "write")(file, bytes, size);
}
ssize_t read(int file, void* bytes, size_t size) {
  if (plan.fails("read", EIO)) return -1;
  return next(&read, "read")(file, bytes, size);
}
int socket(int domain, int type, int protocol) noexcept {
  if (plan.fails("socket", EMFILE)) return -1;
  return next(&socket, "socket")(domain, type, protocol);
}
int connect(int file, const sockaddr* address, socklen_t size) {
  if (plan.fails("connect", ECONNREFUSED)) return -1;
  return next(&connect, "connect")(file, address, size);
}
ssize_t send(int file, const void* bytes, size_t size, int flags) {
  if (plan.fails("send", EPIPE)) return -1;
  return next(&send, "send")(file, bytes, size, flags);
}
ssize_t recv(int file, void* bytes, size_t size, int flags) {
  if (plan.fails("recv", ECONNRESET)) return -1;
  return next(&recv, "recv")(file, bytes, size, flags);
}
int pipe2(int files[2], int flags) noexcept {
  if (plan.fails("pipe", EMFILE)) return -1;
  return next(&pipe2, "pipe2")(files, flags);
}
}
