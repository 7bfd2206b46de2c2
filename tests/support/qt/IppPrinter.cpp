#include "tests/support/qt/IppPrinter.h"

#include <arpa/inet.h>
#include <cups/raster.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <QElapsedTimer>
#include <filesystem>
#include <sstream>
#include <stdexcept>

#include "base/FileDescriptor.h"
#include "tests/support/qt/child_process.h"
#include "tests/support/qt/waiting.h"

namespace cutline::test {

namespace {

constexpr int kAttempts = 3;

// One that nobody has now.
int freePort() {
  const FileDescriptor probe(socket(AF_INET, SOCK_STREAM, 0));
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  auto* plain = reinterpret_cast<sockaddr*>(&address);
  if (bind(probe.get(), plain, size) != 0 || getsockname(probe.get(), plain, &size) != 0) return 0;
  return ntohs(address.sin_port);
}

std::string sizeOf(int width, int length) {
  return "{ MEMBER integer x-dimension " + std::to_string(width) + " MEMBER integer y-dimension " +
         std::to_string(length) + " }";
}

std::string mediaOf(int width, int length) {
  std::string media = "{ MEMBER collection media-size " + sizeOf(width, length);
  for (const char* side : {"bottom", "left", "right", "top"})
    media += std::string(" MEMBER integer media-") + side + "-margin 0";
  return media + " }";
}

std::string attributes(int finishing) {
  std::string text =
      "ATTR enum finishings-supported 3,11,60,61,62,63\nATTR enum finishings-default " +
      std::to_string(finishing) + "\n";
  text += R"(ATTR textWithoutLanguage printer-make-and-model "Label Printer"
ATTR keyword compression-supported none
ATTR boolean color-supported false
ATTR integer copies-default 1
ATTR rangeOfInteger copies-supported 1-99
ATTR mimeMediaType document-format-supported application/octet-stream,image/pwg-raster
ATTR mimeMediaType document-format-default application/octet-stream
ATTR keyword media-supported oe_w24-label_24x50mm,oe_w62-label_62x29mm
ATTR keyword media-default oe_w24-label_24x50mm
ATTR keyword media-ready oe_w62-label_62x29mm
ATTR enum orientation-requested-default 3
ATTR enum orientation-requested-supported 3,4,5,6
ATTR keyword print-color-mode-default monochrome
ATTR keyword print-color-mode-supported monochrome
ATTR enum print-quality-default 4
ATTR enum print-quality-supported 4
ATTR resolution printer-resolution-default 300dpi
ATTR resolution printer-resolution-supported 300dpi
ATTR resolution pwg-raster-document-resolution-supported 300dpi
ATTR keyword pwg-raster-document-sheet-back normal
ATTR keyword pwg-raster-document-type-supported black_1,sgray_8
ATTR keyword sides-default one-sided
ATTR keyword sides-supported one-sided
ATTR keyword media-col-supported media-bottom-margin,media-left-margin,media-right-margin,media-size,media-top-margin
)";
  for (const char* side : {"bottom", "left", "right", "top"})
    text += std::string("ATTR integer media-") + side + "-margin-supported 0\n";
  text += "ATTR collection media-size-supported " + sizeOf(2400, 5000) + "," + sizeOf(6200, 2900) +
          "\nATTR collection media-col-database " + mediaOf(2400, 5000) + "," +
          mediaOf(6200, 2900) + "\nATTR collection media-col-default " + mediaOf(2400, 5000) +
          "\nATTR collection media-col-ready " + mediaOf(6200, 2900) + "\n";
  return text;
}

// Called with the document for each job; the printer puts the job's attributes into the
// environment. The list comes last, so where it is the document is too.
std::string takingProgram(const std::string& folder) {
  return "#!/bin/sh\nfor document; do :; done\ncp \"$document\" " + folder +
         "/$IPP_JOB_ID.pwg\nenv | grep ^IPP_ >" + folder + "/list\nmv " + folder + "/list " +
         folder + "/$IPP_JOB_ID.txt\n";
}

unsigned pagesIn(const std::string& path) {
  const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  cups_raster_t* raster = cupsRasterOpen(file.get(), CUPS_RASTER_READ);
  cups_page_header2_t header;
  unsigned pages = 0;
  while (raster != nullptr && cupsRasterReadHeader2(raster, &header) != 0) {
    ++pages;
    std::vector<unsigned char> line(header.cupsBytesPerLine);
    for (unsigned y = 0; y < header.cupsHeight; ++y)
      cupsRasterReadPixels(raster, line.data(), header.cupsBytesPerLine);
  }
  cupsRasterClose(raster);
  return pages;
}

std::string valueIn(const std::string& list, const std::string& name) {
  std::istringstream lines(list);
  for (std::string line; std::getline(lines, line);)
    if (line.starts_with(name + '=')) return line.substr(name.size() + 1);
  return {};
}

void end(QProcess& process) {
  process.terminate();
  if (process.waitForFinished(kLongWait)) return;
  process.kill();
  process.waitForFinished(kLongWait);
}

bool waitForLine(QProcess& process) {
  QElapsedTimer timer;
  timer.start();
  while (!process.canReadLine() && timer.elapsed() < kLongWait &&
         process.waitForReadyRead(kLongWait)) {
  }
  return process.canReadLine();
}

}  // namespace

// It announces itself on the system's message bus, and does not start without one; a bus of its own
// keeps it to itself.
IppPrinter::IppPrinter(int finishing) {
  mFolder.write("attributes", attributes(finishing));
  mFolder.write("spool/.keep", "");
  const std::string program = mFolder.write("take", takingProgram(mFolder.path()));
  chmod(program.c_str(), 0755);
  endWithUs(mBus);
  mBus.setStandardErrorFile(QProcess::nullDevice());
  mBus.start(QStringLiteral("dbus-daemon"),
             {QStringLiteral("--session"), QStringLiteral("--nofork"),
              QStringLiteral("--nopidfile"), QStringLiteral("--print-address")});
  if (!waitForLine(mBus)) throw std::runtime_error("no message bus: is dbus-daemon installed?");
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"),
                     QString::fromLocal8Bit(mBus.readLine().trimmed()));
  mPrinter.setProcessEnvironment(environment);
  mPrinter.setProcessChannelMode(QProcess::MergedChannels);
  endWithUs(mPrinter);
  for (int attempt = 0; attempt < kAttempts; ++attempt)
    if (start()) return;
  throw std::runtime_error("ippeveprinter does not start: " + mPrinter.readAll().toStdString());
}

IppPrinter::~IppPrinter() {
  end(mPrinter);
  end(mBus);
}

// Another program can have taken the port by now.
bool IppPrinter::start() {
  mPort = freePort();
  const auto inFolder = [&](const char* name) { return QString::fromStdString(mFolder / name); };
  mPrinter.start(
      QStringLiteral("ippeveprinter"),
      {QStringLiteral("-n"), QStringLiteral("localhost"), QStringLiteral("-p"),
       QString::number(mPort), QStringLiteral("-r"), QStringLiteral("off"), QStringLiteral("-d"),
       inFolder("spool"), QStringLiteral("-c"), inFolder("take"), QStringLiteral("-a"),
       inFolder("attributes"), QStringLiteral("-v"), QStringLiteral("Labels")});
  QElapsedTimer timer;
  timer.start();
  QByteArray said;
  while (timer.elapsed() < kLongWait && mPrinter.state() != QProcess::NotRunning) {
    mPrinter.waitForReadyRead(100);
    said += mPrinter.readAll();
    // The last that it says before it waits for jobs.
    if (said.contains("printer-uuid=")) return true;
  }
  end(mPrinter);
  return false;
}

std::string IppPrinter::uri() const {
  return "ipp://localhost:" + std::to_string(mPort) + "/ipp/print";
}

std::vector<IppJob> IppPrinter::newJobs() {
  mPrinter.readAll();
  std::vector<IppJob> jobs;
  while (true) {
    const std::string name = std::to_string(mSeen + 1);
    const std::string list = contentsOf(mFolder / (name + ".txt"));
    if (list.empty()) return jobs;
    ++mSeen;
    jobs.push_back({valueIn(list, "IPP_FINISHINGS"), valueIn(list, "IPP_COPIES"),
                    valueIn(list, "IPP_MEDIA_COL"), pagesIn(mFolder / (name + ".pwg"))});
  }
}

}  // namespace cutline::test
