#include "host/core/DialogModule.h"

#include <QApplication>
#include <QLoggingCategory>
#include <filesystem>
#include <future>
#include <iostream>
#include <optional>
#include <thread>

#include "host/core/PrinterSelection.h"
#include "host/dialog/Appearance.h"
#include "host/dialog/DialogSession.h"
#include "host/dialog/Marks.h"

namespace cutline {
namespace {

std::optional<Error> problemOfDocument(const std::optional<std::string>& path) {
  std::error_code problem;
  if (!path || std::filesystem::is_regular_file(*path, problem)) return std::nullopt;
  return Error{*path + ": there is no such document"};
}

Result<PrinterChoice> findPrinter(const CommandLine& line) {
  if (const std::optional<Error> problem = problemOfDocument(line.file)) return *problem;
  return selectPrinter(line);
}

// The server is asked while the toolkit is being made. The thread is left alone when the dialog
// ends before the server has answered.
FirstPrinter startFinding(const CommandLine& line) {
  std::packaged_task<Result<PrinterChoice>()> task([line] { return findPrinter(line); });
  FirstPrinter printer = task.get_future().share();
  std::thread(std::move(task)).detach();
  return printer;
}

// Before any thread is started, because it changes the environment.
void prepareEnvironment(const CommandLine& line) {
  if (line.command == Command::snapshot) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(line.scale));
    // The platform without a screen warns of what a picture needs not.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  }
  // The dialog draws no 3D, and the set-up for it costs a good part of the start.
  if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION")) {
    qputenv("QT_XCB_GL_INTEGRATION", "none");
  }
}

int runDialog(const DialogRequest& request) {
  const CommandLine& line = *request.commandLine;
  prepareEnvironment(line);
  const FirstPrinter printer = startFinding(line);
  int argc = 1;
  char name[] = "cutline";
  char* argv[] = {name, nullptr};
  applyStyle();
  const QApplication application(argc, argv);
  if (line.marks) printMark("qapp");
  applyAppearance(line.dark);
  return DialogSession(request, printer).run();
}

}  // namespace

std::uint32_t CutlineDialogAbi() noexcept { return kDialogAbiVersion; }

int CutlineRunDialog(const DialogRequest& request) noexcept {
  try {
    return runDialog(request);
  } catch (const std::exception& reason) {
    std::cerr << "cutline: " << reason.what() << std::endl;
    return kExitError;
  }
}

}  // namespace cutline
