#include "host/dialog/Appearance.h"

#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <array>

#include "host/dialog/ControlDrawing.h"
#include "host/dialog/NoticeView.h"
#include "qt/QtText.h"

namespace cutline {

namespace {

constexpr double kRadius = 2;
constexpr int kLongList = 16;
constexpr int kListMargins = 2;  // beside the text of a closed list
constexpr int kBesideText = 10;  // more room on a button than Fusion leaves

void drawFieldOutline(QPainter& painter, const QStyleOption& option) {
  if (!isDark(option.palette) || option.state.testFlag(QStyle::State_HasFocus)) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(option.palette.color(QPalette::Mid));
  painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  painter.restore();
}

bool isFlat(const QStyleOption& option) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  return button != nullptr && (button->features & QStyleOptionButton::Flat) != 0;
}

const QStyleOptionSlider* asScrollBar(QStyle::ComplexControl control,
                                      const QStyleOptionComplex* option) {
  return control == QStyle::CC_ScrollBar ? qstyleoption_cast<const QStyleOptionSlider*>(option)
                                         : nullptr;
}

}  // namespace

OutlinedStyle::OutlinedStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion"))) {}

void OutlinedStyle::polish(QWidget* widget) {
  showTextsAsTheyAre(*widget);
  QProxyStyle::polish(widget);
}

int OutlinedStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* answer) const {
  const auto* list = qobject_cast<const QComboBox*>(widget);
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  if (hint == SH_ComboBox_Popup && list != nullptr && list->count() > kLongList) return 0;
  return QProxyStyle::styleHint(hint, option, widget, answer);
}

QIcon OutlinedStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                  const QWidget* widget) const {
  constexpr int kMessageSign = 40;
  switch (which) {
    case SP_MessageBoxQuestion:
    case SP_MessageBoxInformation:
      return iconOf(Severity::info, kMessageSign);
    case SP_MessageBoxWarning:
      return iconOf(Severity::warning, kMessageSign);
    case SP_MessageBoxCritical:
      return iconOf(Severity::error, kMessageSign);
    default:
      return QProxyStyle::standardIcon(which, option, widget);
  }
}

int OutlinedStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                               const QWidget* widget) const {
  if (metric == PM_ScrollBarExtent) return kScrollBarExtent;
  return QProxyStyle::pixelMetric(metric, option, widget);
}

QSize OutlinedStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                      const QSize& size, const QWidget* widget) const {
  const QSize found = QProxyStyle::sizeFromContents(type, option, size, widget);
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
  const bool hasText = type == CT_PushButton && button != nullptr && !button->text.isEmpty();
  return hasText && !isFlat(*button) ? found + QSize(kBesideText, 0) : found;
}

QRect OutlinedStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                    SubControl part, const QWidget* widget) const {
  const QStyleOptionSlider* const bar = asScrollBar(control, option);
  if (bar == nullptr) return QProxyStyle::subControlRect(control, option, part, widget);
  const QRect handle = scrollHandle(*bar);
  const bool lies = bar->orientation == Qt::Horizontal;
  QRect before = bar->rect;
  QRect behind = bar->rect;
  lies ? before.setRight(handle.left() - 1) : before.setBottom(handle.top() - 1);
  lies ? behind.setLeft(handle.right() + 1) : behind.setTop(handle.bottom() + 1);
  switch (part) {
    case SC_ScrollBarSlider:
      return handle;
    case SC_ScrollBarSubPage:
      return before;
    case SC_ScrollBarAddPage:
      return behind;
    case SC_ScrollBarGroove:
      return bar->rect;
    default:
      return {};
  }
}

void OutlinedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
  if (const QStyleOptionSlider* const bar = asScrollBar(control, option))
    return drawScrollBar(*painter, *bar);
  const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (control == CC_ComboBox && list != nullptr && !list->editable) {
    const QRect arrow = subControlRect(CC_ComboBox, list, SC_ComboBoxArrow, widget);
    return drawClosedList(*painter, *list, arrow);
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control == CC_SpinBox) drawFieldOutline(*painter, *option);
}

// What is written on the accent is in the colour for it, and a choice that is longer than its list
// ends in dots.
void OutlinedStyle::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
  const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (element == CE_ComboBoxLabel && list != nullptr && list->currentIcon.isNull()) {
    QStyleOptionComboBox elided(*list);
    const QRect room = subControlRect(CC_ComboBox, list, SC_ComboBoxEditField, widget);
    elided.currentText = list->fontMetrics.elidedText(list->currentText, Qt::ElideRight,
                                                      room.width() - kListMargins);
    return QProxyStyle::drawControl(element, &elided, painter, widget);
  }
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
  if (element != CE_PushButtonLabel || button == nullptr || !isFilled(*button))
    return QProxyStyle::drawControl(element, option, painter, widget);
  QStyleOptionButton onAccent(*button);
  onAccent.palette.setColor(QPalette::ButtonText, button->palette.color(QPalette::HighlightedText));
  QProxyStyle::drawControl(element, &onAccent, painter, widget);
}

void OutlinedStyle::drawItemText(QPainter* painter, const QRect& room, int flags,
                                 const QPalette& palette, bool isEnabled, const QString& text,
                                 QPalette::ColorRole role) const {
  const QPen before = painter->pen();
  if (role != QPalette::NoRole) painter->setPen(QPen(palette.brush(role), before.widthF()));
  if (!mTexts.draw(*painter, room, flags, text))
    QProxyStyle::drawItemText(painter, room, flags, palette, isEnabled, text, role);
  painter->setPen(before);
}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
  if (element == PE_IndicatorCheckBox) return drawCheckMark(*painter, *option);
  if (element == PE_PanelButtonCommand)
    return isFlat(*option) ? drawFlatButton(*painter, *option) : drawButtonPanel(*painter, *option);
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element == PE_FrameLineEdit) drawFieldOutline(*painter, *option);
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
