#include "host/dialog/LayoutForm.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <array>
#include <cmath>

#include "host/dialog/LayoutAsSeen.h"
#include "host/dialog/NarrowComboBox.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

constexpr double kMostPercent = 1000;
constexpr double kMostTextSize = 500;  // points
constexpr double kNear = 0.05;         // of a millimetre: a length that was set is the same
constexpr int kAutomaticTurn = -1;
constexpr int kFontLetters = 10;

template <typename Value>
struct Row {
  Value value;
  const char* title;
};

constexpr std::array kSizes = std::to_array<Row<Scaling>>({
    {Scaling::automatic, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Automatic")},
    {Scaling::actual, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Actual size")},
    {Scaling::fit, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Fit the label")},
    {Scaling::fill, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Fill the label")},
    {Scaling::percent, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Percent")},
});

constexpr std::array kPlaces = std::to_array<Row<Position>>({
    {Position::center, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Centre")},
    {Position::top, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Top")},
    {Position::bottom, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Bottom")},
    {Position::left, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Left")},
    {Position::right, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Right")},
    {Position::topLeft, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Top left")},
    {Position::topRight, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Top right")},
    {Position::bottomLeft, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Bottom left")},
    {Position::bottomRight, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Bottom right")},
});

constexpr std::array kLengths = std::to_array<Row<LengthRule>>({
    {LengthRule::paper, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Of the paper")},
    {LengthRule::fixed, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Fixed")},
    {LengthRule::content, QT_TRANSLATE_NOOP("cutline::LayoutForm", "Of the content")},
});

constexpr std::array kUnits = std::to_array<Row<TextUnit>>({
    {TextUnit::paragraph, QT_TRANSLATE_NOOP("cutline::LayoutForm", "One a paragraph")},
    {TextUnit::line, QT_TRANSLATE_NOOP("cutline::LayoutForm", "One a line")},
});

template <typename Value, std::size_t Count>
void fill(QComboBox& list, const std::array<Row<Value>, Count>& rows) {
  for (const Row<Value>& row : rows) {
    list.addItem(LayoutForm::tr(row.title), static_cast<int>(row.value));
  }
}

template <typename Value>
Value chosen(const QComboBox& list) {
  return static_cast<Value>(list.currentData().toInt());
}

void choose(QComboBox& list, int value) { list.setCurrentIndex(list.findData(value)); }

QString degrees(int count) { return QStringLiteral("%1\u00b0").arg(count); }

}  // namespace

LayoutForm::LayoutForm(QWidget* parent)
    : QWidget(parent),
      mSize(makeList(tr("Size"), &LayoutForm::reportLayout)),
      mPercent(makeNumber(tr("Percent of the document's size"), &LayoutForm::reportLayout)),
      mLength(makeList(tr("Length"), &LayoutForm::reportLength)),
      mMillimetres(makeNumber(tr("Length in millimetres"), &LayoutForm::reportLength)),
      mTurn(makeList(tr("Turn"), &LayoutForm::reportLayout)),
      mPlace(makeList(tr("Place"), &LayoutForm::reportLayout)),
      mUnit(makeList(tr("Labels"), &LayoutForm::reportLayout)),
      mFont(
          prepared(new NarrowComboBox(kFontLetters, this), tr("Font"), &LayoutForm::reportLayout)),
      mTextSize(makeNumber(tr("Text size"), &LayoutForm::reportLayout)) {
  mPercent->setRange(1, kMostPercent);
  mPercent->setSuffix(QStringLiteral(" %"));
  mMillimetres->setSuffix(QStringLiteral(" mm"));
  mTextSize->setRange(0, kMostTextSize);
  mTextSize->setSpecialValueText(tr("Automatic"));
  mTextSize->setSuffix(QStringLiteral(" pt"));
  fillLists();
  layOut();
  refresh();
}

QComboBox* LayoutForm::makeList(const QString& name, void (LayoutForm::*report)()) {
  return prepared(new QComboBox(this), name, report);
}

QComboBox* LayoutForm::prepared(QComboBox* list, const QString& name,
                                void (LayoutForm::*report)()) {
  list->setAccessibleName(name);
  connect(list, &QComboBox::activated, this, report);
  return list;
}

QDoubleSpinBox* LayoutForm::makeNumber(const QString& name, void (LayoutForm::*report)()) {
  auto* number = new QDoubleSpinBox(this);
  number->setAccessibleName(name);
  number->setDecimals(0);
  // What is half typed is no wish yet.
  number->setKeyboardTracking(false);
  connect(number, &QDoubleSpinBox::valueChanged, this, report);
  return number;
}

QLabel* LayoutForm::makeCaption(const QString& text, QWidget* field) {
  auto* caption = new QLabel(text, this);
  caption->setBuddy(field);
  return caption;
}

void LayoutForm::fillLists() {
  fill(*mSize, kSizes);
  mTurn->addItem(tr("Automatic"), kAutomaticTurn);
  for (const int each : {0, 90, 180, 270}) mTurn->addItem(degrees(each), each);
  fill(*mPlace, kPlaces);
  fill(*mLength, kLengths);
  fill(*mUnit, kUnits);
}

void LayoutForm::layOut() {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  const auto add = [&](int row, int column, const QString& text,
                       QWidget* field) -> std::vector<QWidget*> {
    QLabel* const caption = makeCaption(text, field);
    grid->addWidget(caption, row, column);
    grid->addWidget(field, row, column + 1);
    return {caption, field};
  };
  add(0, 0, tr("Size:"), mSize);
  mOfLengths = add(0, 2, tr("Length:"), mLength);
  grid->addWidget(mPercent, 1, 1);
  grid->addWidget(mMillimetres, 1, 3);
  add(2, 0, tr("Turn:"), mTurn);
  add(2, 2, tr("Place:"), mPlace);
  mOfText = add(3, 0, tr("Labels:"), mUnit);
  for (QWidget* each : add(3, 2, tr("Font:"), mFont)) mOfText.push_back(each);
  for (QWidget* each : add(4, 0, tr("Text size:"), mTextSize)) mOfText.push_back(each);
}

// Only what counts now is shown.
void LayoutForm::refresh() {
  mPercent->setVisible(chosen<Scaling>(*mSize) == Scaling::percent);
  mMillimetres->setVisible(mHasLengths && chosen<LengthRule>(*mLength) == LengthRule::fixed);
  for (QWidget* each : mOfLengths) each->setVisible(mHasLengths);
  for (QWidget* each : mOfText) each->setVisible(mHasText);
  emit wordsChanged();
}

void LayoutForm::setLayout(const JobLayout& layout, const LabelPage& label) {
  const QSignalBlocker percent(mPercent);
  const QSignalBlocker textSize(mTextSize);
  mLabel = label;
  mLayout = layout;
  choose(*mSize, static_cast<int>(layout.placing.scaling));
  mPercent->setValue(layout.placing.percent);
  choose(*mTurn, turnAsSeen(layout.placing.turn, label).value_or(kAutomaticTurn));
  choose(*mPlace, static_cast<int>(placeAsSeen(layout.placing.position, label)));
  choose(*mUnit, static_cast<int>(layout.text.unit));
  listFonts();
  mTextSize->setValue(layout.text.size);
  refresh();
}

void LayoutForm::setLengths(const std::optional<LengthBounds>& bounds, LengthRule rule,
                            double points) {
  const QSignalBlocker blocker(mMillimetres);
  mHasLengths = bounds.has_value();
  choose(*mLength, static_cast<int>(rule));
  if (bounds) {
    mMillimetres->setRange(std::ceil(bounds->shortest / kPointsPerMillimetre - kNear),
                           std::floor(bounds->longest / kPointsPerMillimetre + kNear));
  }
  mMillimetres->setValue(points / kPointsPerMillimetre);
  refresh();
}

void LayoutForm::setHasText(bool hasText) {
  mHasText = hasText;
  listFonts();
  refresh();
}

// The system is asked for its fonts once somebody could choose one.
void LayoutForm::listFonts() {
  const QString wanted = toQString(mLayout.text.font);
  if (mHasText && !mHasFonts) {
    mHasFonts = true;
    mFont->clear();
    mFont->addItem(tr("Automatic"), QString());
    for (const QString& family : QFontDatabase::families()) mFont->addItem(family, family);
  }
  if (mFont->findData(wanted) < 0)
    mFont->addItem(wanted.isEmpty() ? tr("Automatic") : wanted, wanted);
  mFont->setCurrentIndex(mFont->findData(wanted));
}

JobLayout LayoutForm::chosenLayout() const {
  JobLayout layout = mLayout;
  layout.placing.scaling = chosen<Scaling>(*mSize);
  layout.placing.percent = mPercent->value();
  const int turn = mTurn->currentData().toInt();
  layout.placing.turn =
      turnOnPaper(turn == kAutomaticTurn ? std::nullopt : std::optional(turn), mLabel);
  layout.placing.position = placeOnPaper(chosen<Position>(*mPlace), mLabel);
  layout.text.unit = chosen<TextUnit>(*mUnit);
  layout.text.font = toUtf8(mFont->currentData().toString());
  layout.text.size = mTextSize->value();
  return layout;
}

void LayoutForm::reportLayout() {
  mLayout = chosenLayout();
  refresh();
  emit layoutChosen(mLayout);
}

void LayoutForm::reportLength() {
  refresh();
  emit lengthChosen(chosen<LengthRule>(*mLength), mMillimetres->value() * kPointsPerMillimetre);
}

QString LayoutForm::words() const {
  const bool isPercent = chosen<Scaling>(*mSize) == Scaling::percent;
  QStringList words = {isPercent ? mPercent->text() : mSize->currentText()};
  if (mTurn->currentData().toInt() != kAutomaticTurn) words.append(mTurn->currentText());
  words.append(mPlace->currentText());
  const auto rule = chosen<LengthRule>(*mLength);
  if (mHasLengths && rule == LengthRule::fixed) words.append(mMillimetres->text());
  if (mHasLengths && rule == LengthRule::content) words.append(mLength->currentText());
  return words.join(QStringLiteral(" \u00b7 "));
}

LayoutBar::LayoutBar(QWidget* parent)
    : QWidget(parent),
      mCaption(new QLabel(tr("Layout:"), this)),
      mWords(new QLabel(this)),
      mChange(new QPushButton(tr("Change"), this)) {
  mChange->setCheckable(true);
  mChange->setAccessibleName(tr("Change the layout"));
  mChange->setToolTip(tr("Size, turn and place of the document on the label"));
  mCaption->setBuddy(mChange);
  mWords->setTextFormat(Qt::PlainText);
  mWords->setWordWrap(true);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(mCaption);
  row->addWidget(mWords, 1);
  row->addWidget(mChange);
  connect(mChange, &QPushButton::toggled, this, &LayoutBar::formWanted);
}

void LayoutBar::setWords(const QString& words) {
  mWords->setText(words);
  tellAccessibleDescription(*mChange, words);
}

}  // namespace cutline
