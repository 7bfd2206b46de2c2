#include "composition/helper/PostScript.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "composition/CompositionErrors.h"

namespace cutline {
namespace {

constexpr char kInterpreter[] = "gs";
constexpr int kMade = STDERR_FILENO + 1;
constexpr int kNotFound = 127;
constexpr int kNotConfined = 126;
// What the interpreter says when its memory does not suffice.
constexpr std::string_view kNoMemory = "VMerror";

// What the interpreter looks at of its surroundings.
constexpr std::array kVariables =
    std::to_array<const char*>({"PATH", "HOME", "TMPDIR", "LANG", "FONTCONFIG_FILE"});

struct Command {
  std::vector<std::string> arguments;
  std::vector<std::string> environment;

  static std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    for (std::string& text : texts) result.push_back(text.data());
    result.push_back(nullptr);
    return result;
  }
};

Command commandFor(int most) {
  Command command{{kInterpreter, "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=pdfwrite",
                   "-sOutputFile=/proc/self/fd/" + std::to_string(kMade)},
                  {}};
  if (most > 0) command.arguments.push_back("-dLastPage=" + std::to_string(most));
  command.arguments.emplace_back("-");
  for (const char* name : kVariables)
    if (const char* value = std::getenv(name))
      command.environment.push_back(std::string(name) + '=' + value);
  return command;
}

// In the child. Every descriptor but those four is closed when the interpreter starts.
[[noreturn]] void become(Command& command, int document, int made, int log,
                         const ProcessLimits& limits) {
  std::vector<char*> arguments = Command::pointers(command.arguments);
  std::vector<char*> environment = Command::pointers(command.environment);
  const char* folder = std::getenv("TMPDIR");
  const bool isSet = ::dup2(document, STDIN_FILENO) >= 0 && ::dup2(log, STDOUT_FILENO) >= 0 &&
                     ::dup2(log, STDERR_FILENO) >= 0 && ::dup2(made, kMade) >= 0 &&
                     ::close_range(kMade + 1, ~0U, 0) == 0;
  if (!isSet || !confineInterpreter(limits, folder)) ::_exit(kNotConfined);
  ::execvpe(kInterpreter, arguments.data(), environment.data());
  ::_exit(kNotFound);
}

int ended(pid_t process) {
  int status = -1;
  while (::waitpid(process, &status, 0) < 0 && errno == EINTR) continue;
  return status;
}

bool isInLog(int log, std::string_view words) {
  std::string text(65536, '\0');
  const ssize_t count = ::pread(log, text.data(), text.size(), 0);
  text.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  return text.find(words) != std::string::npos;
}

std::optional<PostScriptProblem> problemIn(int status, int log) {
  if (status == 0) return std::nullopt;
  if (!WIFEXITED(status)) return PostScriptProblem{problemOfEnd(status), {}};
  if (WEXITSTATUS(status) == kNotFound)
    return PostScriptProblem{DocumentProblem::missingModule, kInterpreter};
  if (WEXITSTATUS(status) == kNotConfined)
    return PostScriptProblem{DocumentProblem::broken, "it cannot be confined"};
  if (isInLog(log, kNoMemory)) return PostScriptProblem{DocumentProblem::tooLarge, {}};
  return PostScriptProblem{DocumentProblem::damaged, {}};
}

}  // namespace

PostScriptResult pdfOfPostScript(int document, int most, const ProcessLimits& limits) {
  FileDescriptor made(::memfd_create("cutline-postscript", MFD_CLOEXEC));
  const FileDescriptor log(::memfd_create("cutline-log", MFD_CLOEXEC));
  Command command = commandFor(most);
  const pid_t process = made && log ? ::fork() : -1;
  if (process < 0) return {FileDescriptor(), PostScriptProblem{}};
  if (process == 0) become(command, document, made.get(), log.get(), limits);
  const int status = ended(process);
  return {std::move(made), problemIn(status, log.get())};
}

}  // namespace cutline
