#include "tests/support/PrivateServer.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "tests/support/Command.h"

namespace cutline::test {

PrivateServer::PrivateServer(const std::string& arguments) {
  outputOf(script("start") + ' ' + arguments + " >" + quoted(mFolder / "start.log"));
  mGuard.reset(popen(("trap '' INT TERM HUP; cat >/dev/null; " + script("stop") + "; rm -rf " +
                      quoted(mFolder.path()))
                         .c_str(),
                     "we"));
  mSocket = variable("CUPS_SERVER");
  mHome = variable("HOME");
  mRoot = variable("CUPS_SERVERROOT");
}

PrivateServer::~PrivateServer() {
  try {
    stop();
  } catch (const std::exception& problem) {
    fprintf(stderr, "%s\n", problem.what());
  }
}

ServerOptions PrivateServer::options() const { return {mSocket, std::nullopt, false}; }

void PrivateServer::enterEnvironment() const {
  setenv("CUPS_SERVER", mSocket.c_str(), 1);
  setenv("HOME", mHome.c_str(), 1);
  setenv("CUPS_SERVERROOT", mRoot.c_str(), 1);
  for (const char* name : {"LPDEST", "PRINTER", "CUPS_USER", "CUPS_ENCRYPTION"}) unsetenv(name);
}

std::string PrivateServer::environment() const {
  return "env -u LPDEST -u PRINTER -u CUPS_USER -u CUPS_ENCRYPTION CUPS_SERVER=" + quoted(mSocket) +
         " HOME=" + quoted(mHome) + " CUPS_SERVERROOT=" + quoted(mRoot) + ' ';
}

bool PrivateServer::hasPrinted(int jobId) const {
  return std::filesystem::exists(printedFile(jobId, ".png"));
}

std::string PrivateServer::printedFile(int jobId, const std::string& ending) const {
  return mFolder / "printed/job-" + std::to_string(jobId) + ending;
}

std::string PrivateServer::sentDocument(int jobId) const {
  std::array<char, 32> name{};
  std::snprintf(name.data(), name.size(), "spool/d%05d-001", jobId);
  return mFolder / name.data();
}

// The list is stored last, so where it is the picture is too.
std::set<int> PrivateServer::printedJobs() const {
  std::set<int> jobs;
  for (const auto& file : std::filesystem::directory_iterator(mFolder / "printed")) {
    const std::string name = file.path().filename();
    if (name.starts_with("job-") && name.ends_with(".txt")) jobs.insert(std::stoi(name.substr(4)));
  }
  return jobs;
}

void PrivateServer::stop() {
  if (mSocket.empty()) return;
  mSocket.clear();
  outputOf(script("stop"));
}

void PrivateServer::restart() const {
  outputOf(script("restart") + " >" + quoted(mFolder / "restart.log"));
}

void PrivateServer::waitUntilIdle() const { outputOf(script("wait-idle")); }

std::string PrivateServer::script(const std::string& verb) const {
  return "CUTLINE_PREFIX=" + quoted(CUTLINE_BUILD_DIR) + " bash " + quoted(CUTLINE_PRIVATE_SERVER) +
         ' ' + verb + ' ' + quoted(mFolder.path());
}

std::string PrivateServer::variable(const std::string& name) const {
  std::string value = outputOf("eval \"$(" + script("env") + ")\"; printenv " + name);
  while (value.ends_with('\n')) value.pop_back();
  return value;
}

}  // namespace cutline::test
