#include "host/dialog/SettingsPane.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include "host/dialog/Appearance.h"
#include "host/dialog/BoxDrawing.h"

namespace cutline {
namespace {

constexpr int kCardGap = 8;
constexpr int kPadding = 12;
constexpr double kCardRadius = 6;
constexpr int kLeastHeight = 120;  // some rows to scroll in
constexpr int kMostOfFirst = 720;  // a list any wider is not read any better

struct CardColours {
  QRgb ground;
  QRgb edge;
};
constexpr CardColours kLightCards{0xfffbfbfa, 0xffdededb};
constexpr CardColours kDarkCards{0xff2d3135, 0xff3d4247};

}  // namespace

Card::Card(QWidget* parent) : QWidget(parent), mColumn(new QVBoxLayout(this)) {
  mColumn->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
  mColumn->setSpacing(kCardGap);
}

void Card::add(QWidget* part) { mColumn->addWidget(part); }

void Card::addStretch() { mColumn->addStretch(1); }

// What lies within its edge is a fill, and changes more often.
void Card::paintEvent(QPaintEvent* event) {
  const CardColours& colours = isDark(palette()) ? kDarkCards : kLightCards;
  QPainter painter(this);
  const int edge = static_cast<int>(kCardRadius);
  if (rect().adjusted(edge, edge, -edge, -edge).contains(event->rect()))
    return painter.fillRect(event->rect(), QColor(colours.ground));
  drawBox(painter, rect(), {kCardRadius, QColor(colours.ground), QColor(colours.edge)});
}

SettingsPane::SettingsPane(QWidget* content, QWidget* first, QWidget* second, QWidget* parent)
    : QScrollArea(parent),
      mFirst(first),
      mSecond(second),
      mColumns(new QBoxLayout(QBoxLayout::LeftToRight, content)) {
  mColumns->setContentsMargins(0, 0, 0, 0);
  mColumns->setSpacing(kCardGap);
  mColumns->addWidget(first, 1);
  mColumns->addWidget(second);
  setWidget(content);
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  content->installEventFilter(this);
}

// With room for a scroll bar there is none.
QSize SettingsPane::sizeHint() const {
  return widget()->sizeHint() + QSize(verticalScrollBar()->sizeHint().width(), 0);
}

QSize SettingsPane::minimumSizeHint() const {
  const int scrolled = verticalScrollBar()->sizeHint().width();
  const int widest =
      std::max(mFirst->minimumSizeHint().width(), mSecond->minimumSizeHint().width());
  return {widest + scrolled, std::min(kLeastHeight, sizeHint().height())};
}

// A card that has grown or a panel of another printer changes what would fit.
bool SettingsPane::eventFilter(QObject* watched, QEvent* event) {
  const bool handled = QScrollArea::eventFilter(watched, event);
  if (watched == widget() && event->type() == QEvent::LayoutRequest) {
    arrange();
    updateGeometry();
  }
  return handled;
}

void SettingsPane::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  arrange();
}

// Bars of the size that it had before would stay for the first frame.
void SettingsPane::showEvent(QShowEvent* event) {
  QScrollArea::showEvent(event);
  QEvent now(QEvent::LayoutRequest);
  QCoreApplication::sendEvent(this, &now);
}

void SettingsPane::arrange() {
  const int scrolled = verticalScrollBar()->sizeHint().width();
  const int needed = mFirst->minimumSizeHint().width() + kCardGap + mSecond->sizeHint().width();
  const bool isWide = width() >= needed + scrolled;
  const auto direction = isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
  mFirst->setMaximumWidth(isWide ? kMostOfFirst : QWIDGETSIZE_MAX);
  if (mColumns->direction() != direction) mColumns->setDirection(direction);
}

}  // namespace cutline
