#include "host/dialog/Remembered.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>
#include <filesystem>
#include <utility>

#include "base/Numbers.h"

namespace cutline {
namespace {

constexpr char kPrinter[] = "printer";
constexpr char kSize[] = "size";
constexpr char kRecent[] = "recent";
// Of one process, such as standard input: its numbers are other files the next time.
constexpr char kOpenFiles[] = "/proc/";
constexpr std::size_t kMostRecent = 10;
constexpr qint64 kLargestFile = 65536;
constexpr int kLargestSide = 32767;  // of a window under X11

bool isThere(const std::string& path) {
  std::error_code problem;
  return std::filesystem::is_regular_file(path, problem);
}

// A line's end in a name would begin another line.
bool isOneLine(const std::string& text) { return text.find('\n') == std::string::npos; }

int sideIn(const std::string& text) {
  const int side = numberIn<int>(text).value_or(0);
  return side > 0 && side <= kLargestSide ? side : 0;
}

}  // namespace

std::string Remembered::usualPath() {
  const QByteArray given = qgetenv("XDG_STATE_HOME");
  const std::string home = QDir::homePath().toStdString() + "/.local/state";
  return (given.startsWith('/') ? given.toStdString() : home) + "/cutline/window";
}

Remembered::Lines Remembered::read() const {
  QFile file(QString::fromStdString(mPath));
  Lines lines;
  if (!file.open(QIODevice::ReadOnly)) return lines;
  for (const QByteArray& line : file.read(kLargestFile).split('\n')) {
    const auto blank = line.indexOf(' ');
    if (blank <= 0) continue;
    lines.emplace_back(line.left(blank).toStdString(), line.mid(blank + 1).toStdString());
  }
  return lines;
}

void Remembered::write(const Lines& lines) const {
  const QString path = QString::fromStdString(mPath);
  QDir().mkpath(QFileInfo(path).path());
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return;
  file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
  for (const auto& [key, value] : lines) file.write((key + ' ' + value + '\n').c_str());
  file.commit();
}

std::vector<std::string> Remembered::valuesOf(const char* key) const {
  std::vector<std::string> values;
  for (const auto& [each, value] : read())
    if (each == key) values.push_back(value);
  return values;
}

void Remembered::replace(const char* key, const std::vector<std::string>& values) {
  Lines lines = read();
  std::erase_if(lines, [&](const auto& line) { return line.first == key; });
  for (const std::string& value : values)
    if (isOneLine(value)) lines.emplace_back(key, value);
  write(lines);
}

std::optional<DestinationName> Remembered::lastPrinter() const {
  const std::vector<std::string> names = valuesOf(kPrinter);
  if (names.empty() || names.front().empty()) return std::nullopt;
  return DestinationName::parse(names.front());
}

void Remembered::setLastPrinter(const DestinationName& name) { replace(kPrinter, {name.text()}); }

QSize Remembered::windowSize() const {
  const std::vector<std::string> sizes = valuesOf(kSize);
  const std::size_t cross = sizes.empty() ? std::string::npos : sizes.front().find('x');
  if (cross == std::string::npos) return {};
  const QSize size(sideIn(sizes.front().substr(0, cross)), sideIn(sizes.front().substr(cross + 1)));
  return size.isEmpty() ? QSize() : size;
}

void Remembered::setWindowSize(const QSize& size) {
  replace(kSize, {std::to_string(size.width()) + 'x' + std::to_string(size.height())});
}

std::vector<std::string> Remembered::recentDocuments() const {
  std::vector<std::string> paths = valuesOf(kRecent);
  std::erase_if(paths, [](const std::string& path) { return !isThere(path); });
  if (paths.size() > kMostRecent) paths.resize(kMostRecent);
  return paths;
}

void Remembered::addRecent(const std::string& path) {
  if (path.starts_with(kOpenFiles)) return;
  std::error_code problem;
  const std::string whole = std::filesystem::absolute(path, problem).lexically_normal();
  if (problem) return;
  std::vector<std::string> paths = recentDocuments();
  std::erase(paths, whole);
  paths.insert(paths.begin(), whole);
  if (paths.size() > kMostRecent) paths.resize(kMostRecent);
  replace(kRecent, paths);
}

}  // namespace cutline
