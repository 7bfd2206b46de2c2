#include "host/dialog/PresetBar.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "host/dialog/Icons.h"
#include "host/dialog/NarrowComboBox.h"

namespace cutline {

namespace {

constexpr int kLongestName = 127;
constexpr int kNameWidth = 280;

bool isForbidden(QChar character) {
  return character.isSpace() || !character.isPrint() ||
         QStringLiteral("/#\"'\\?").contains(character);
}

}  // namespace

namespace {

// Presets are the printer's instances, and libcups makes one of two that differ in capitals alone.
QString takenAs(const QStringList& taken, const QString& name) {
  for (const QString& each : taken)
    if (each.compare(name, Qt::CaseInsensitive) == 0) return each;
  return name;
}

}  // namespace

QString problemOfPresetName(const QString& name) {
  if (name.isEmpty()) return PresetNameDialog::tr("Type a name.");
  if (name.toUtf8().size() > kLongestName) return PresetNameDialog::tr("The name is too long.");
  if (std::any_of(name.begin(), name.end(), isForbidden)) {
    return PresetNameDialog::tr("Use letters, digits, dashes and underscores, without blanks.");
  }
  return {};
}

PresetNameDialog::PresetNameDialog(const QString& suggestion, QStringList taken, QWidget* parent)
    : QDialog(parent),
      mTaken(std::move(taken)),
      mName(new QLineEdit(suggestion, this)),
      mHint(new QLabel(this)) {
  setWindowTitle(tr("Save preset"));
  auto* caption = new QLabel(tr("&Name of the preset:"), this);
  caption->setBuddy(mName);
  mName->setAccessibleName(tr("Name of the preset"));
  mName->setMinimumWidth(kNameWidth);
  mHint->setWordWrap(true);
  mHint->setTextFormat(Qt::PlainText);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel, this);
  mSave = buttons->button(QDialogButtonBox::Save);
  mSave->setText(tr("&Save"));
  buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
  auto* column = new QVBoxLayout(this);
  column->addWidget(caption);
  column->addWidget(mName);
  column->addWidget(mHint);
  column->addWidget(buttons);
  connect(mName, &QLineEdit::textChanged, this, &PresetNameDialog::check);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] {
    emit nameChosen(takenAs(mTaken, mName->text()));
    accept();
  });
  mName->selectAll();
  check();
}

void PresetNameDialog::check() {
  const QString name = mName->text();
  const QString problem = problemOfPresetName(name);
  const QString taken = takenAs(mTaken, name);
  QString replaced = problem;
  if (mTaken.contains(taken)) replaced = tr("Replaces the preset of this name.");
  if (taken != name) replaced = tr("Replaces the preset \"%1\": capitals do not count.").arg(taken);
  mHint->setText(replaced);
  mSave->setEnabled(problem.isEmpty());
}

namespace {

constexpr int kPresetLetters = 12;
constexpr int kLeastWidth = 120;  // where there is no room for more of a name

// How many of the letters that a combo box counts in are as wide as the text.
int lettersFor(const QWidget& widget, const QString& text) {
  const QFontMetrics metrics = widget.fontMetrics();
  return metrics.horizontalAdvance(text) / metrics.horizontalAdvance(QLatin1Char('X')) + 1;
}

QString ownSettings() { return PresetBar::tr("Printer's own settings"); }

}  // namespace

PresetBar::PresetBar(QWidget* parent)
    : QWidget(parent),
      mCaption(new QLabel(tr("Pr&eset:"), this)),
      mPresets(new NarrowComboBox(qMax(kPresetLetters, lettersFor(*this, ownSettings())), this)),
      mSave(makeButton(Glyph::save, tr("Save these settings as a preset"))),
      mRemove(makeButton(Glyph::remove, tr("Delete the chosen preset"))) {
  mPresets->setMinimumWidth(kLeastWidth);
  mPresets->setAccessibleName(tr("Preset"));
  mCaption->setBuddy(mPresets);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(mCaption);
  row->addWidget(mPresets, 1);
  row->addWidget(mSave);
  row->addWidget(mRemove);
  connect(mPresets, &QComboBox::activated, this, [this](int index) {
    setChanged(false);
    mInForce = index;
    refreshButtons();
    emit presetChosen(mPresets->itemData(index).toString());
  });
  connect(mSave, &QPushButton::clicked, this, &PresetBar::askName);
  connect(mRemove, &QPushButton::clicked, this, &PresetBar::askRemoval);
  setPresets({}, {});
}

// Seldom used, so that the words give way to the preset's name.
QPushButton* PresetBar::makeButton(Glyph glyph, const QString& name) {
  auto* button = new QPushButton(icon(glyph), {}, this);
  button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  button->setAccessibleName(name);
  button->setToolTip(name);
  return button;
}

void PresetBar::setPresets(const QStringList& names, const QString& current) {
  mPresets->clear();
  mPresets->addItem(ownSettings(), QString());
  for (const QString& name : names) mPresets->addItem(name, name);
  mInForce = qMax(0, mPresets->findData(current));
  mPresets->setCurrentIndex(mInForce);
  refreshCurrent();
  refreshButtons();
}

void PresetBar::setChanged(bool isChanged) {
  if (mIsChanged == isChanged) return;
  mIsChanged = isChanged;
  refreshCurrent();
}

void PresetBar::refreshCurrent() {
  const QString name = mPresets->itemData(mInForce).toString();
  const QString title = name.isEmpty() ? ownSettings() : name;
  mPresets->setItemText(mInForce, mIsChanged ? tr("%1 (changed)").arg(title) : title);
}

QStringList PresetBar::presets() const {
  QStringList names;
  for (int i = 1; i < mPresets->count(); ++i) names.append(mPresets->itemData(i).toString());
  return names;
}

void PresetBar::refreshButtons() { mRemove->setEnabled(mPresets->currentIndex() > 0); }

void PresetBar::askName() {
  auto* dialog = new PresetNameDialog(mPresets->currentData().toString(), presets(), this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &PresetNameDialog::nameChosen, this, &PresetBar::saveRequested);
  dialog->open();
}

void PresetBar::askRemoval() {
  const QString name = mPresets->currentData().toString();
  auto* question = new QMessageBox(QMessageBox::Question, tr("Delete preset"),
                                   tr("Delete the preset \"%1\" of this printer?").arg(name),
                                   QMessageBox::Cancel, this);
  question->setAttribute(Qt::WA_DeleteOnClose);
  question->button(QMessageBox::Cancel)->setText(tr("Cancel"));
  const QPushButton* remove = question->addButton(tr("&Delete"), QMessageBox::DestructiveRole);
  connect(remove, &QPushButton::clicked, this, [this, name] { emit removalRequested(name); });
  question->setDefaultButton(QMessageBox::Cancel);
  question->open();
}

}  // namespace cutline
