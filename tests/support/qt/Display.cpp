#include "tests/support/qt/Display.h"

#include <QFile>
#include <QtEndian>
#include <map>
#include <stdexcept>

#include "tests/support/qt/child_process.h"
#include "tests/support/qt/waiting.h"

namespace cutline::test {

namespace {

constexpr char kScreen[] = "1600x1000x24";

// The places of the numbers in the header of the X server's picture file.
enum HeaderField { kHeaderSize = 0, kWidth = 4, kHeight = 5, kBytesPerLine = 12, kColors = 19 };
constexpr qint64 kBytesPerColor = 12;

quint32 field(const QByteArray& file, HeaderField which) {
  return qFromBigEndian<quint32>(file.constData() + 4 * static_cast<std::ptrdiff_t>(which));
}

QStringList words(const QPoint& place) {
  return {QString::number(place.x()), QString::number(place.y())};
}

}  // namespace

Display::Display(Users users) {
  endWithUs(mServer);
  // Without -noreset it starts afresh, deaf for a moment, whenever its last client has gone.
  QStringList words = {
      QStringLiteral("-displayfd"), QStringLiteral("1"),         QStringLiteral("-screen"),
      QStringLiteral("0"),          QLatin1String(kScreen),      QStringLiteral("-dpi"),
      QStringLiteral("96"),         QStringLiteral("-nolisten"), QStringLiteral("tcp"),
      QStringLiteral("-noreset"),   QStringLiteral("-fbdir"),    mFolder.path()};
  if (users == Users::all) words << QStringLiteral("-ac");
  mServer.start(QStringLiteral("Xvfb"), words);
  while (!mServer.canReadLine() && mServer.waitForReadyRead(kLongWait)) {
  }
  const QString number = QString::fromLatin1(mServer.readLine()).trimmed();
  if (number.isEmpty()) throw std::runtime_error("no X server: is Xvfb installed?");
  mName = QStringLiteral(":") + number;
}

Display::~Display() {
  mServer.terminate();
  if (!mServer.waitForFinished(kLongWait)) mServer.kill();
  mServer.waitForFinished(kLongWait);
}

QProcessEnvironment Display::environment() const {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("DISPLAY"), mName);
  environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
  // Nothing is remembered from another display's programs.
  environment.insert(QStringLiteral("XDG_STATE_HOME"), mFolder.filePath(QStringLiteral("state")));
  return environment;
}

void Display::start(QProcess& process, const QString& program, const QStringList& words) const {
  endWithUs(process);
  process.setProcessEnvironment(environment());
  process.start(program, words);
  if (!process.waitForStarted(kLongWait))
    throw std::runtime_error("cannot start " + program.toStdString());
}

QByteArray Display::tell(const QStringList& words) const {
  QProcess hands;
  start(hands, QStringLiteral("xdotool"), words);
  hands.waitForFinished(kLongWait);
  return hands.exitCode() == 0 ? hands.readAllStandardOutput() : QByteArray();
}

bool Display::hasWindow(const QString& title) const {
  return !tell({QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                title})
              .trimmed()
              .isEmpty();
}

QRect Display::waitForWindow(const QString& title) const {
  QByteArray window;
  const bool came = waitUntil([&] {
    window = tell({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                   QStringLiteral("--name"), title})
                 .trimmed();
    return !window.isEmpty();
  });
  if (!came) return {};
  const QByteArray lines = tell({QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"),
                                 QString::fromLatin1(window)});
  std::map<QByteArray, int> values;
  for (const QByteArray& line : lines.split('\n'))
    values[line.left(line.indexOf('='))] = line.mid(line.indexOf('=') + 1).toInt();
  return {values["X"], values["Y"], values["WIDTH"], values["HEIGHT"]};
}

QImage Display::picture() const {
  QFile file(mFolder.filePath(QStringLiteral("Xvfb_screen0")));
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray bytes = file.readAll();
  const qint64 start = field(bytes, kHeaderSize) + field(bytes, kColors) * kBytesPerColor;
  const QImage screen(reinterpret_cast<const uchar*>(bytes.constData()) + start,
                      static_cast<int>(field(bytes, kWidth)),
                      static_cast<int>(field(bytes, kHeight)),
                      static_cast<int>(field(bytes, kBytesPerLine)), QImage::Format_RGB32);
  return screen.copy();
}

void Display::movePointer(const QPoint& place) const {
  tell(QStringList{QStringLiteral("mousemove")} + words(place));
}

void Display::click(const QPoint& place) const {
  tell(QStringList{QStringLiteral("mousemove")} + words(place) +
       QStringList{QStringLiteral("click"), QStringLiteral("1")});
}

void Display::doubleClick(const QPoint& place) const {
  tell(QStringList{QStringLiteral("mousemove")} + words(place) +
       QStringList{QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("2"),
                   QStringLiteral("--delay"), QStringLiteral("80"), QStringLiteral("1")});
}

void Display::activate(const QString& title) const {
  tell({QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"), title,
        QStringLiteral("windowfocus"), QStringLiteral("--sync")});
}

void Display::press(const QString& title, const QString& key) const {
  activate(title);
  tell({QStringLiteral("key"), key});
}

}  // namespace cutline::test
