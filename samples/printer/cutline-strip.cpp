// The virtual label printer: a CUPS backend that stores a picture of each job's labels and a list
// of the options that it was printed with.
#include <cups/backend.h>
#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/FileDescriptor.h"
#include "samples/printer/CommandStream.h"
#include "samples/printer/StripFolder.h"
#include "samples/printer/StripJob.h"

namespace {

using cutline::FileDescriptor;
using namespace cutline::printer;

// The places of a backend's arguments.
enum Argument { kJob = 1, kUser, kTitle, kCopies, kOptions, kFile };

volatile sig_atomic_t cancelled = 0;

void cancel(int) { cancelled = 1; }

// A write that fails is to be told by its result. Reading and waiting end at once on a
// cancellation.
void handleSignals() {
  struct sigaction action = {};
  action.sa_handler = cancel;
  sigaction(SIGTERM, &action, nullptr);
  sigaction(SIGINT, &action, nullptr);
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
}

// A message for the debugging log doesn't replace what another program told the user.
int fail(const std::string& problem, const char* level = "ERROR") {
  std::fprintf(stderr, "%s: %s\n", level, problem.c_str());
  return CUPS_BACKEND_FAILED;
}

// The number becomes a part of a path.
bool isJobNumber(std::string_view text) {
  return !text.empty() && text.size() <= 10 && text.find_first_not_of("0123456789") == text.npos;
}

StripJob::Facts factsOf(int count, char* arguments[], const char* uri) {
  StripJob::Facts facts = {{"job-id", arguments[kJob]},      {"user", arguments[kUser]},
                           {"title", arguments[kTitle]},     {"copies", arguments[kCopies]},
                           {"options", arguments[kOptions]}, {"device-uri", uri}};
  for (int at = 0; at < count; ++at) {
    facts.emplace_back("backend.argv" + std::to_string(at), arguments[at]);
  }
  return facts;
}

int print(int input, const DeviceUri& device, StripJob::Facts facts, const std::string& number) {
  CommandReader reader(input);
  StripJob job(std::move(facts), device.pace);
  std::fprintf(stderr, "STATE: +connecting-to-device\nSTATE: -connecting-to-device\n");
  const std::string stem = device.folder + "/job-" + number;
  if (job.read(reader, cancelled) && job.store(stem, cancelled)) return CUPS_BACKEND_OK;
  // Nobody needs to be told of what was asked for.
  if (cancelled != 0) return CUPS_BACKEND_OK;
  return fail(job.problem(), job.brokeOff() ? "DEBUG" : "ERROR");
}

int printFrom(int count, char* arguments[], const DeviceUri& device, const char* uri) {
  const bool named = count > kFile;
  const FileDescriptor file(named ? ::open(arguments[kFile], O_RDONLY | O_CLOEXEC) : -1);
  if (named && !file) return fail(std::string("The file cannot be read: ") + arguments[kFile]);
  const int input = named ? file.get() : STDIN_FILENO;
  return print(input, device, factsOf(count, arguments, uri), arguments[kJob]);
}

}  // namespace

int main(int count, char* arguments[]) {
  // Asked for devices: there is none to find, but this is how one is addressed.
  if (count == 1) {
    std::printf("file cutline-strip \"Unknown\" \"Virtual label printer\"\n");
    return CUPS_BACKEND_OK;
  }
  if (count < kFile || count > kFile + 1) {
    std::fprintf(stderr, "Usage: cutline-strip JOB USER TITLE COPIES OPTIONS [FILE]\n");
    return CUPS_BACKEND_FAILED;
  }
  handleSignals();
  if (!isJobNumber(arguments[kJob])) return fail("The job has no number.");
  const char* given = std::getenv("DEVICE_URI");
  const char* uri = given == nullptr ? arguments[0] : given;
  const auto device = deviceUriOf(uri);
  if (!device) return fail(std::string("Not an address of this printer: ") + uri);
  return printFrom(count, arguments, *device, uri);
}
