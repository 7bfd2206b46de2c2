#include "qt/QtText.h"

#include <QEvent>
#include <QLabel>

namespace cutline {

QString toQString(const std::string& utf8) noexcept {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string toUtf8(const QString& text) noexcept { return text.toStdString(); }

QString withoutMnemonics(QString text) noexcept {
  return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString withoutMark(const QString& text) noexcept {
  QString plain;
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (text[at] == QLatin1Char('&') && ++at == text.size()) break;
    plain += text[at];
  }
  return plain;
}

void showTextsAsTheyAre(QWidget& widget) noexcept {
  auto* const label = qobject_cast<QLabel*>(&widget);
  if (label != nullptr) label->setTextFormat(Qt::PlainText);
}

QtTextColor::QtTextColor(QWidget& widget, QPalette::ColorRole role) : mRole(role) {
  widget.installEventFilter(this);
}

void QtTextColor::setColor(QWidget* widget, TextColor color) noexcept {
  if (color == mColor) return;
  mColor = color;
  if (widget) apply(*widget);
}

bool QtTextColor::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::PaletteChange) apply(*static_cast<QWidget*>(watched));
  return false;
}

// Only the enabled groups are the widget's own, so the disabled group stays the inherited one and
// follows every change.
void QtTextColor::apply(QWidget& widget) const {
  QPalette own;
  if (mColor == TextColor::disabledControlText) {
    const QColor grey = widget.palette().color(QPalette::Disabled, mRole);
    if (widget.palette().color(QPalette::Active, mRole) == grey) return;
    own.setColor(QPalette::Active, mRole, grey);
    own.setColor(QPalette::Inactive, mRole, grey);
  } else if (!widget.testAttribute(Qt::WA_SetPalette)) {
    return;
  }
  widget.setPalette(own);
}

}  // namespace cutline
