#include "host/dialog/Appearance.h"

#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <array>

namespace cutline {

namespace {

constexpr double kRadius = 2;
constexpr int kLongList = 16;

bool needsOutline(QStyle::PrimitiveElement element, const QStyleOption& option) {
  if (!isDark(option.palette)) return false;
  if (element == QStyle::PE_IndicatorCheckBox) return true;
  return element == QStyle::PE_FrameLineEdit && !option.state.testFlag(QStyle::State_HasFocus);
}

}  // namespace

OutlinedStyle::OutlinedStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion"))) {}

int OutlinedStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* answer) const {
  const auto* list = qobject_cast<const QComboBox*>(widget);
  if (hint == SH_ComboBox_Popup && list != nullptr && list->count() > kLongList) return 0;
  return QProxyStyle::styleHint(hint, option, widget, answer);
}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (!needsOutline(element, *option)) return;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setBrush(Qt::NoBrush);
  painter->setPen(option->palette.color(QPalette::Mid));
  painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  painter->restore();
}

namespace {

struct Colour {
  QPalette::ColorRole role;
  QRgb enabled;
  QRgb disabled;
};

constexpr int kMiddleLightness = 128;

constexpr auto kLight = std::to_array<Colour>({
    {QPalette::Window, 0xfff3f3f1, 0xfff3f3f1},
    {QPalette::WindowText, 0xff1c1f22, 0xff8b8f93},
    {QPalette::Base, 0xffffffff, 0xfff3f3f1},
    {QPalette::AlternateBase, 0xffeceeed, 0xffeceeed},
    {QPalette::Text, 0xff1c1f22, 0xff8b8f93},
    {QPalette::PlaceholderText, 0xff73777b, 0xffa5a8ab},
    {QPalette::Button, 0xfffafaf9, 0xfff0f0ee},
    {QPalette::ButtonText, 0xff1c1f22, 0xff8b8f93},
    {QPalette::BrightText, 0xffffffff, 0xffffffff},
    {QPalette::Light, 0xffffffff, 0xffffffff},
    {QPalette::Midlight, 0xffe6e7e5, 0xffe6e7e5},
    {QPalette::Mid, 0xffb9bcbb, 0xffc4c6c5},
    {QPalette::Dark, 0xff9ea2a1, 0xffb4b7b6},
    {QPalette::Shadow, 0xff6d7170, 0xff8e9190},
    {QPalette::Highlight, 0xff1f66b8, 0xffa9b4c0},
    {QPalette::HighlightedText, 0xffffffff, 0xffffffff},
    {QPalette::ToolTipBase, 0xfffdfdf6, 0xfffdfdf6},
    {QPalette::ToolTipText, 0xff1c1f22, 0xff1c1f22},
    {QPalette::Link, 0xff1f66b8, 0xff8b8f93},
});

constexpr auto kDark = std::to_array<Colour>({
    {QPalette::Window, 0xff26292c, 0xff26292c},
    {QPalette::WindowText, 0xffe9ebec, 0xff7d8286},
    {QPalette::Base, 0xff1b1d20, 0xff26292c},
    {QPalette::AlternateBase, 0xff2e3236, 0xff2e3236},
    {QPalette::Text, 0xffe9ebec, 0xff7d8286},
    {QPalette::PlaceholderText, 0xff94999d, 0xff63676b},
    {QPalette::Button, 0xff363a3f, 0xff2c3034},
    {QPalette::ButtonText, 0xffe9ebec, 0xff7d8286},
    {QPalette::BrightText, 0xffffffff, 0xffffffff},
    {QPalette::Light, 0xff4a4f55, 0xff4a4f55},
    {QPalette::Midlight, 0xff40454a, 0xff40454a},
    {QPalette::Mid, 0xff858c93, 0xff5a6066},
    {QPalette::Dark, 0xff131517, 0xff131517},
    {QPalette::Shadow, 0xff08090a, 0xff08090a},
    {QPalette::Highlight, 0xff4c94e6, 0xff44515e},
    {QPalette::HighlightedText, 0xff08121d, 0xff9aa0a5},
    {QPalette::ToolTipBase, 0xff3a3f44, 0xff3a3f44},
    {QPalette::ToolTipText, 0xffe9ebec, 0xffe9ebec},
    {QPalette::Link, 0xff79b2f2, 0xff7d8286},
});

template <std::size_t Count>
QPalette paletteOf(const std::array<Colour, Count>& colours) {
  QPalette palette;
  for (const Colour& colour : colours) {
    palette.setColor(QPalette::Active, colour.role, QColor(colour.enabled));
    palette.setColor(QPalette::Inactive, colour.role, QColor(colour.enabled));
    palette.setColor(QPalette::Disabled, colour.role, QColor(colour.disabled));
  }
  return palette;
}

}  // namespace

QPalette lightPalette() { return paletteOf(kLight); }
QPalette darkPalette() { return paletteOf(kDark); }

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < kMiddleLightness;
}

void applyStyle() { QApplication::setStyle(new OutlinedStyle); }

void applyAppearance(bool dark) {
  const bool useDark = dark || isDark(QApplication::palette());
  QApplication::setPalette(useDark ? darkPalette() : lightPalette());
}

}  // namespace cutline
