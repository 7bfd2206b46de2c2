#include "host/dialog/ControlDrawing.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>
#include <array>

#include "host/dialog/BoxDrawing.h"

namespace cutline {
namespace {

constexpr double kButtonRadius = 4;
constexpr double kTickStroke = 1.8;
constexpr double kArrowStroke = 1.4;
constexpr int kLeastHandle = 28;
constexpr int kToContent = 5;  // from a bar's handle to what it scrolls
constexpr int kToEdge = 1;
constexpr int kHoverShade = 104;
constexpr int kPressedShade = 112;
constexpr double kTickSide = 14;  // of the square that a tick is drawn on

bool has(const QStyleOption& option, QStyle::StateFlag state) { return option.state & state; }

bool hasKeyboard(const QStyleOption& option) {
  return has(option, QStyle::State_HasFocus) && has(option, QStyle::State_KeyboardFocusChange);
}

QColor shaded(const QColor& colour, const QStyleOption& option) {
  if (!has(option, QStyle::State_Enabled)) return colour;
  if (has(option, QStyle::State_Sunken)) return colour.darker(kPressedShade);
  return has(option, QStyle::State_MouseOver) ? colour.darker(kHoverShade) : colour;
}

void drawRing(QPainter& painter, const QRectF& rect, const QColor& colour) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(rect.adjusted(1.5, 1.5, -1.5, -1.5), kButtonRadius - 1,
                          kButtonRadius - 1);
}

}  // namespace

bool isFilled(const QStyleOptionButton& button) {
  return (button.features & QStyleOptionButton::DefaultButton) && button.icon.isNull() &&
         has(button, QStyle::State_Enabled) && !has(button, QStyle::State_On);
}

void drawButtonPanel(QPainter& painter, const QStyleOption& option) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  const bool filled = button != nullptr && isFilled(*button);
  const QColor accent = option.palette.color(QPalette::Highlight);
  const bool isOn = has(option, QStyle::State_On);
  const QColor plain = option.palette.color(isOn ? QPalette::Midlight : QPalette::Button);
  const QColor edge = filled || hasKeyboard(option) ? accent : option.palette.color(QPalette::Mid);
  painter.save();
  drawBox(painter, option.rect, {kButtonRadius, shaded(filled ? accent : plain, option), edge});
  if (hasKeyboard(option))
    drawRing(painter, option.rect,
             filled ? option.palette.color(QPalette::HighlightedText) : accent);
  painter.restore();
}

void drawFlatButton(QPainter& painter, const QStyleOption& option) {
  const bool isTouched = has(option, QStyle::State_MouseOver) || has(option, QStyle::State_Sunken);
  if (!has(option, QStyle::State_Enabled) || (!isTouched && !hasKeyboard(option))) return;
  const QColor accent = option.palette.color(QPalette::Highlight);
  const QColor ground = option.palette.color(QPalette::Midlight);
  painter.save();
  drawBox(painter, option.rect,
          {kButtonRadius, isTouched ? shaded(ground, option) : Qt::transparent,
           hasKeyboard(option) ? accent : Qt::transparent});
  if (hasKeyboard(option)) drawRing(painter, option.rect, accent);
  painter.restore();
}

void drawCheckMark(QPainter& painter, const QStyleOption& option) {
  const QPalette& palette = option.palette;
  const bool isMixed = has(option, QStyle::State_NoChange);
  const bool isOn = has(option, QStyle::State_On) || isMixed;
  const QColor ground = palette.color(isOn ? QPalette::Highlight : QPalette::Base);
  const QColor edge = isOn ? ground : palette.color(QPalette::PlaceholderText);
  painter.save();
  drawBox(painter, option.rect, {kButtonRadius - 1, shaded(ground, option), shaded(edge, option)});
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(option.rect.topLeft());
  painter.scale(option.rect.width() / kTickSide, option.rect.height() / kTickSide);
  painter.setPen(QPen(palette.color(QPalette::HighlightedText), kTickStroke, Qt::SolidLine,
                      Qt::RoundCap, Qt::RoundJoin));
  constexpr std::array<QPointF, 3> kTick{QPointF(3.4, 7.2), {6, 9.8}, {10.7, 4.4}};
  if (isMixed) {
    painter.drawLine(QPointF(4, 7), QPointF(10, 7));
  } else if (isOn) {
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(kTick.data(), static_cast<int>(kTick.size()));
  }
  painter.restore();
}

void drawClosedList(QPainter& painter, const QStyleOptionComboBox& list, const QRect& arrow) {
  drawButtonPanel(painter, list);
  const QPointF middle = QRectF(arrow).center();
  const std::array<QPointF, 3> chevron{middle + QPointF(-3.5, -1.75), middle + QPointF(0, 1.75),
                                       middle + QPointF(3.5, -1.75)};
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(list.palette.color(QPalette::ButtonText), kArrowStroke, Qt::SolidLine,
                      Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(chevron.data(), static_cast<int>(chevron.size()));
  painter.restore();
}

QRect scrollHandle(const QStyleOptionSlider& bar) {
  const bool lies = bar.orientation == Qt::Horizontal;
  const int whole = lies ? bar.rect.width() : bar.rect.height();
  const auto steps = static_cast<qint64>(bar.maximum) - bar.minimum;
  const auto share =
      whole * static_cast<qint64>(bar.pageStep) / std::max<qint64>(1, steps + bar.pageStep);
  const int length =
      steps == 0 ? whole
                 : std::clamp(static_cast<int>(share), std::min(kLeastHandle, whole), whole);
  const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                    whole - length, bar.upsideDown);
  const QRect handle =
      lies ? QRect(start, 0, length, bar.rect.height()) : QRect(0, start, bar.rect.width(), length);
  return handle.translated(bar.rect.topLeft());
}

void drawScrollBar(QPainter& painter, const QStyleOptionSlider& bar) {
  painter.fillRect(bar.rect, bar.palette.color(QPalette::Window));
  if (bar.minimum == bar.maximum) return;
  const bool isTouched = (bar.activeSubControls & QStyle::SC_ScrollBarSlider) != 0;
  const auto role = isTouched ? QPalette::PlaceholderText : QPalette::Mid;
  const bool lies = bar.orientation == Qt::Horizontal;
  const QRectF handle =
      QRectF(scrollHandle(bar))
          .adjusted(lies ? kToEdge : kToContent, lies ? kToContent : kToEdge, -kToEdge, -kToEdge);
  const double radius = std::min(handle.width(), handle.height()) / 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(bar.palette.color(role));
  painter.drawRoundedRect(handle, radius, radius);
  painter.restore();
}

}  // namespace cutline
