#include "tests/ask/Desk.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <stdexcept>

#include "tests/support/Command.h"
#include "tests/support/qt/waiting.h"

namespace cutline::test {

namespace {

constexpr int kPatience = 20000;
constexpr char kDebianPolicy[] = "/usr/share/cups/cupsd.conf.default";

std::unique_ptr<PrivateServer> theServer;
std::string theInstallation;

const passwd& entryOf(const std::string& user) {
  const passwd* entry = getpwnam(user.c_str());
  if (entry == nullptr) throw std::runtime_error("the system has no user " + user);
  return *entry;
}

}  // namespace

PrivateServer& askServer() { return *theServer; }
const std::string& installed() { return theInstallation; }

int runAllTestsWithAskServer() {
  theServer = std::make_unique<PrivateServer>(std::string("--policy ") + kDebianPolicy);
  theServer->enterEnvironment();
  theInstallation = theServer->folder() + "/installed";
  outputOf(CUTLINE_CMAKE " --install " CUTLINE_BUILD_DIR " --prefix " + theInstallation);
  std::filesystem::copy_file(built("tests/programs/printing_program"),
                             theInstallation + "/bin/printing_program");
  const int status = RUN_ALL_TESTS();
  theServer.reset();
  return status;
}

Desk::Desk(const std::string& user) : mUser(user) {
  for (const char* name : {"home", "runtime"}) {
    const std::string path = mFolder / name;
    std::filesystem::create_directory(path);
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    if (::chown(path.c_str(), entryOf(user).pw_uid, entryOf(user).pw_gid) != 0)
      throw std::runtime_error("only root can be another user");
  }
}

Desk::~Desk() {
  if (mService) killService();
}

QStringList Desk::asUser(const std::string& program, const QStringList& words) const {
  const passwd& entry = entryOf(mUser);
  const auto setting = [](const char* name, const std::string& value) {
    return QString::fromStdString(name + ("=" + value));
  };
  QStringList all;
  if (::geteuid() != entry.pw_uid)
    all << QStringLiteral("--reuid") << QString::number(entry.pw_uid) << QStringLiteral("--regid")
        << QString::number(entry.pw_gid) << QStringLiteral("--clear-groups");
  all << QStringLiteral("env") << setting("HOME", mFolder / "home")
      << setting("XDG_RUNTIME_DIR", mFolder / "runtime") << setting("USER", mUser)
      << QString::fromStdString(program);
  return all + words;
}

void Desk::start(QProcess& process, const std::string& program, const QStringList& words) const {
  mDisplay.start(process, QStringLiteral("setpriv"), asUser(program, words));
}

std::string Desk::run(const std::string& program, const QStringList& words) const {
  QProcess process;
  start(process, program, words);
  process.waitForFinished(kPatience);
  EXPECT_EQ(process.exitCode(), 0)
      << program << ": " << process.readAllStandardError().toStdString();
  return process.readAllStandardOutput().toStdString();
}

void Desk::startService() {
  mService = std::make_unique<QProcess>();
  mService->setProcessChannelMode(QProcess::ForwardedErrorChannel);
  start(*mService, installed() + "/lib/cutline/cutline-ask", {});
}

void Desk::endService() {
  mService->terminate();
  EXPECT_TRUE(mService->waitForFinished(kPatience));
  EXPECT_EQ(mService->exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(mService->exitCode(), 0);
}

void Desk::killService() {
  test::run("pkill -KILL -P " + std::to_string(mService->processId()));
  mService->kill();
  mService->waitForFinished(kPatience);
}

void Desk::killDialog() const {
  outputOf("pkill -KILL -P " + std::to_string(mService->processId()));
}

int Desk::print(const std::string& queue, const std::string& title, int copies,
                const std::string& paper, const QStringList& labels) const {
  QStringList words{QString::fromStdString(queue), QString::fromStdString(title),
                    QString::number(copies), QString::fromStdString(paper)};
  run(installed() + "/bin/printing_program", words + labels);
  const std::string jobs = run("lpstat", {QStringLiteral("-o"), QString::fromStdString(queue)});
  const std::size_t last = jobs.rfind(queue + '-');
  if (last == std::string::npos) throw std::runtime_error("nothing was printed: " + jobs);
  return std::stoi(jobs.substr(last + queue.size() + 1));
}

}  // namespace cutline::test
