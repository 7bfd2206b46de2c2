// A print server of its own with the sample printers, on a socket in a temporary folder, as long as
// the object lives.
#pragma once

#include <cstdio>
#include <memory>
#include <set>
#include <string>

#include "cups/ServerOptions.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {

class PrivateServer {
 public:
  // Throws where the server does not start. `arguments` are those of the script's "start" behind
  // the folder, such as "--pace 500".
  explicit PrivateServer(const std::string& arguments = {});
  ~PrivateServer();
  PrivateServer(const PrivateServer&) = delete;
  PrivateServer& operator=(const PrivateServer&) = delete;

  // The socket by name, for calls that are told the server.
  ServerOptions options() const;
  // Makes this process's libcups, and programs that it starts, clients of this server. Threads that
  // called libcups before keep what they had read.
  void enterEnvironment() const;
  // The same for one program alone, as settings before its command line.
  std::string environment() const;
  // The home folder of the server's clients.
  const std::string& home() const noexcept { return mHome; }

  // Whether the virtual printer has stored what the job printed.
  bool hasPrinted(int jobId) const;
  // What it stored, as a picture (".png") or as a list of facts (".txt").
  std::string printedFile(int jobId, const std::string& ending) const;
  // The document as it was sent, while its job has not ended.
  std::string sentDocument(int jobId) const;
  // The jobs whose picture and list it has stored.
  std::set<int> printedJobs() const;

  void stop();
  // With its queues and jobs.
  void restart() const;
  // A folder of the server's own, which its drivers may enter and which goes with it.
  std::string folder() const { return mFolder.path(); }
  // Waits until no job is left to do.
  void waitUntilIdle() const;

 private:
  struct ClosePipe {
    void operator()(FILE* pipe) const noexcept { pclose(pipe); }
  };

  std::string script(const std::string& verb) const;
  std::string variable(const std::string& name) const;

  TemporaryFolder mFolder;
  // Waits for the pipe's end, which comes however this process ends, and stops the server then.
  std::unique_ptr<FILE, ClosePipe> mGuard;
  std::string mSocket, mHome, mRoot;
};

}  // namespace cutline::test
