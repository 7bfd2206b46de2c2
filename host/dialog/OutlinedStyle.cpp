#include "host/dialog/OutlinedStyle.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include "host/dialog/Appearance.h"

namespace cutline {
namespace {

constexpr double kRadius = 2;

bool needsOutline(QStyle::PrimitiveElement element, const QStyleOption& option) {
  if (!isDark(option.palette)) return false;
  if (element == QStyle::PE_IndicatorCheckBox) return true;
  return element == QStyle::PE_FrameLineEdit && !option.state.testFlag(QStyle::State_HasFocus);
}

}  // namespace

OutlinedStyle::OutlinedStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion"))) {}

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

}  // namespace cutline
