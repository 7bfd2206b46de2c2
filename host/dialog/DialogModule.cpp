#include "host/core/DialogModule.h"

#include <QApplication>
#include <QLoggingCategory>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>

#include "cups/ServerOptions.h"
#include "host/core/Installation.h"
#include "host/dialog/Appearance.h"
#include "host/dialog/DialogFonts.h"
#include "host/dialog/DialogLanguage.h"
#include "host/dialog/DialogSession.h"
#include "host/dialog/StartTimes.h"
#include "platform/lib/Languages.h"
#include "qt/QtText.h"

namespace cutline {
namespace {

constexpr char kNoDisplay[] =
    "cutline: no display can be opened; set DISPLAY, or print with --print";

// Qt 6.4.2 aborts the process where it finds no display, with a core dump; this makes it a plain
// error. Lives while Qt looks for one.
class DisplayErrors {
 public:
  DisplayErrors() { sBefore = qInstallMessageHandler(handle); }
  ~DisplayErrors() { qInstallMessageHandler(sBefore); }
  DisplayErrors(const DisplayErrors&) = delete;
  DisplayErrors& operator=(const DisplayErrors&) = delete;

 private:
  // What it says before that is of plug-ins and of no help.
  static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) {
      std::cerr << kNoDisplay << std::endl;
      std::_Exit(kExitError);
    }
    if (!QLatin1String(context.category).startsWith(QLatin1String("qt.qpa"))) {
      sBefore(type, context, text);
    }
  }

  static inline QtMessageHandler sBefore = nullptr;
};

bool mayHaveDisplay(const CommandLine& line) {
  if (line.command == Command::snapshot) return true;
  constexpr std::array kNames = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
  return std::any_of(kNames.begin(), kNames.end(),
                     [](const char* name) { return !qEnvironmentVariableIsEmpty(name); });
}

// Before any thread is started, because it changes the environment.
void prepareEnvironment(const CommandLine& line) {
  if (line.command == Command::snapshot) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(line.scale));
    // The platform without a screen of Qt 6.4.2 warns of what a picture needs not ("This plugin
    // does not support propagateSizeHints()").
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  }
  // The dialog draws no 3D, but Qt 6.4.2 sets up for it under X11, which costs a good part of the
  // start.
  if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION")) {
    qputenv("QT_XCB_GL_INTEGRATION", "none");
  }
}

std::unique_ptr<QApplication> makeApplication() {
  static int argc = 1;
  static char name[] = "cutline";
  static char* argv[] = {name, nullptr};
  const DisplayErrors errors;
  applyStyle();
  // The desktop knows window and icon by its own file of the program.
  QGuiApplication::setDesktopFileName(QStringLiteral("cutline"));
  return std::make_unique<QApplication>(argc, argv);
}

int runDialog(const DialogRequest& request) {
  const CommandLine& line = *request.commandLine;
  if (!mayHaveDisplay(line)) {
    std::cerr << kNoDisplay << std::endl;
    return kExitError;
  }
  prepareEnvironment(line);
  leaveTerminalAlone();
  const QString tables = toQString(request.installation->translationDirectory());
  const DialogLanguage language = chooseLanguage(preferredLocalizations(), tables);
  preferFontsFor(language);
  const std::future<void> fonts = startReadingFonts();
  const FirstPrinter printer = startFindingFirstPrinter(line);
  const std::unique_ptr<QApplication> application = makeApplication();
  if (line.marks) printTime("qapp");
  const LanguageInForce inForce(language, tables);
  fonts.wait();
  applyAppearance(line.dark);
  return DialogSession(request, printer).run();
}

}  // namespace

int CutlineRunDialog(const DialogRequest& request) noexcept {
  try {
    return runDialog(request);
  } catch (const std::exception& reason) {
    std::cerr << "cutline: " << reason.what() << std::endl;
    return kExitError;
  }
}

}  // namespace cutline
