#include "host/dialog/NoticeView.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "qt/accessibility.h"

namespace cutline {

namespace {

// Signs are drawn on a square of this side.
constexpr double kIconSide = 16;

void drawTick(QPainter& painter) {
  painter.drawPolyline(std::array<QPointF, 3>{QPointF(4.6, 8.2), {7.1, 10.7}, {11.6, 5.6}}.data(),
                       3);
}

void drawExclamation(QPainter& painter, double top) {
  painter.drawLine(QPointF(8, top), QPointF(8, top + 4));
  painter.drawPoint(QPointF(8, top + 6.8));
}

void drawLetterI(QPainter& painter) {
  painter.drawPoint(QPointF(8, 4.6));
  painter.drawLine(QPointF(8, 7.6), QPointF(8, 11.6));
}

void drawTriangle(QPainter& painter) {
  QPainterPath path(QPointF(8, 1.2));
  path.lineTo(15.4, 14.6);
  path.lineTo(0.6, 14.6);
  path.closeSubpath();
  painter.drawPath(path);
}

struct Sign {
  QRgb colour;
  bool isTriangle;
  void (*draw)(QPainter&);
};

constexpr auto kSigns = std::to_array<Sign>({
    {0xff2e8b57, false, drawTick},
    {0xff2f74c0, false, drawLetterI},
    {0xffc77700, true, [](QPainter& painter) { drawExclamation(painter, 5.6); }},
    {0xffc8342b, false, [](QPainter& painter) { drawExclamation(painter, 4.4); }},
});

void drawSign(QPainter& painter, Severity severity, const QRect& place) {
  const Sign& sign = kSigns[static_cast<std::size_t>(severity)];
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(place.width() / kIconSide, place.height() / kIconSide);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(sign.colour));
  if (sign.isTriangle) {
    drawTriangle(painter);
  } else {
    painter.drawEllipse(QPointF(8, 8), 7.2, 7.2);
  }
  painter.setPen(QPen(Qt::white, 1.9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  sign.draw(painter);
}

}  // namespace

StatusIcon::StatusIcon(Severity severity, QWidget* parent) : QWidget(parent), mSeverity(severity) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void StatusIcon::setSeverity(Severity severity) {
  mSeverity = severity;
  update();
}

QSize StatusIcon::sizeHint() const {
  const int side = fontMetrics().height();
  return {side, side};
}

void StatusIcon::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  drawSign(painter, mSeverity, rect());
}

QIcon iconOf(Severity severity, int side) {
  constexpr int kSharp = 2;
  QPixmap picture(QSize(side, side) * kSharp);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  drawSign(painter, severity, picture.rect());
  painter.end();
  picture.setDevicePixelRatio(kSharp);
  return picture;
}

namespace {

constexpr std::array kSeverities = std::to_array<Severity>({
    Severity::error,    // failure
    Severity::info,     // refusal
    Severity::error,    // document
    Severity::warning,  // printer
    Severity::warning,  // setUp
    Severity::warning,  // conflicts
    Severity::warning,  // edges
    Severity::info,     // paper
    Severity::info,     // cutting
    Severity::info,     // deviations
});

Severity severityOf(NoticeTopic topic) { return kSeverities[static_cast<std::size_t>(topic)]; }

bool readTheSame(const Notice& one, const Notice& other) {
  return one.line == other.line &&
         std::ranges::equal(one.remedies, other.remedies, [](const Remedy& a, const Remedy& b) {
           return a.title == b.title && a.hint == b.hint;
         });
}

// While a job is on its way the buttons rest, but what it waits for is to be read.
void keepReadable(QLabel& text) {
  QPalette colours = text.palette();
  colours.setColor(QPalette::Disabled, QPalette::WindowText,
                   colours.color(QPalette::Active, QPalette::WindowText));
  text.setPalette(colours);
}

void emptyLayout(QLayout& layout) {
  while (QLayoutItem* item = layout.takeAt(0)) {
    const std::unique_ptr<QLayoutItem> owned(item);
    if (!item->widget()) continue;
    item->widget()->hide();
    // Its letter is free for the next.
    for (auto* button : item->widget()->findChildren<QPushButton*>()) button->setText({});
    item->widget()->deleteLater();
  }
}

}  // namespace

NoticeView::NoticeView(QWidget* parent) : QWidget(parent), mRows(new QVBoxLayout(this)) {
  mRows->setContentsMargins(0, 0, 0, 0);
  mRows->setSpacing(4);
  setVisible(false);
}

void NoticeView::setNotice(NoticeTopic topic, const QString& line) {
  setNotices(topic, line.isEmpty() ? QStringList() : QStringList(line));
}

void NoticeView::setNotices(NoticeTopic topic, const QStringList& lines) {
  std::vector<Notice> notices;
  for (const QString& line : lines) notices.push_back({line});
  setNotices(topic, std::move(notices));
}

// What reads the same stays, with what its button does now: nobody is told it twice.
void NoticeView::setNotices(NoticeTopic topic, std::vector<Notice> notices) {
  const bool isSame = std::ranges::equal(mNotices[topic], notices, readTheSame);
  mNotices[topic] = std::move(notices);
  if (!isSame) rebuild();
}

QStringList NoticeView::notices(NoticeTopic topic) const {
  QStringList lines;
  const auto found = mNotices.find(topic);
  if (found == mNotices.end()) return lines;
  for (const Notice& notice : found->second) lines.append(notice.line);
  return lines;
}

QString NoticeView::resolveTitle() { return tr("Chan&ge the others"); }
QString NoticeView::resolveHint() {
  return tr("Keep the latest choice and change those that exclude it");
}

QString NoticeView::othersLine(std::size_t count) { return tr("And %1 more.").arg(count); }

// Two topics can have the same to say, as of a server that is missing from the start.
void NoticeView::rebuild() {
  emptyLayout(*mRows);
  QStringList said;
  for (const auto& [topic, notices] : mNotices) {
    for (std::size_t place = 0; place < notices.size(); ++place) {
      const Notice& notice = notices[place];
      if (notice.remedies.empty() && said.contains(notice.line)) continue;
      said.append(notice.line);
      QWidget* const row = makeRow(topic, place);
      mRows->addWidget(row);
      row->show();  // the layout would do so later, when letters are dealt out already
    }
  }
  setVisible(mRows->count() > 0);
  emit rebuilt();
  if (!isVisible()) return;
  QAccessibleEvent event(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

QWidget* NoticeView::makeRow(NoticeTopic topic, std::size_t place) {
  const Notice& notice = mNotices[topic][place];
  auto* row = new QWidget(this);
  setAccessibleRole(*row, QAccessible::AlertMessage);
  row->setAccessibleName(notice.line);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(new StatusIcon(severityOf(topic), row), 0,
                    notice.remedies.empty() ? Qt::AlignTop : Qt::AlignVCenter);
  auto* text = new QLabel(notice.line, row);
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  keepReadable(*text);
  layout->addWidget(text, 1);
  for (std::size_t remedy = 0; remedy < notice.remedies.size(); ++remedy) {
    layout->addWidget(makeButton(topic, place, remedy, row), 0, Qt::AlignTop);
  }
  return row;
}

QPushButton* NoticeView::makeButton(NoticeTopic topic, std::size_t place, std::size_t remedy,
                                    QWidget* row) {
  const Remedy& offered = mNotices[topic][place].remedies[remedy];
  auto* button = new QPushButton(offered.title, row);
  button->setToolTip(offered.hint);
  connect(button, &QPushButton::clicked, this,
          [this, topic, place, remedy] { act(topic, place, remedy); });
  return button;
}

// What it does may replace the notices, and with them itself.
void NoticeView::act(NoticeTopic topic, std::size_t place, std::size_t remedy) {
  const std::vector<Notice>& notices = mNotices[topic];
  if (place >= notices.size() || remedy >= notices[place].remedies.size()) return;
  const std::function<void()> action = notices[place].remedies[remedy].act;
  action();
}

}  // namespace cutline
