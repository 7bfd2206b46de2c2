#include "host/dialog/ParentWindow.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>
#include <charconv>
#include <optional>
#include <string_view>

namespace cutline {
namespace {

constexpr std::string_view kX11 = "x11:";
constexpr int kHex = 16;

std::optional<WId> windowNumber(std::string_view name) {
  if (!name.starts_with(kX11)) return std::nullopt;
  const std::string_view digits = name.substr(kX11.size());
  std::uint32_t number = 0;
  const auto [end, problem] = std::from_chars(digits.begin(), digits.end(), number, kHex);
  if (problem != std::errc() || end != digits.end() || number == 0) return std::nullopt;
  return number;
}

}  // namespace

void setParentWindow(QWidget& dialog, const std::string& name) {
  if (QGuiApplication::platformName() != QLatin1String("xcb")) return;
  const std::optional<WId> number = windowNumber(name);
  if (!number) return;
  dialog.winId();  // from now on there is a window
  QWindow* const parent = QWindow::fromWinId(*number);
  if (parent == nullptr) return;
  QObject::connect(&dialog, &QObject::destroyed, parent, &QObject::deleteLater);
  dialog.windowHandle()->setTransientParent(parent);
}

}  // namespace cutline
