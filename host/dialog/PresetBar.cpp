#include "host/dialog/PresetBar.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include "host/dialog/PresetNameDialog.h"

namespace cutline {

namespace {

constexpr int kLeastLetters = 12;

// How many of the letters that a combo box counts in are as wide as the text.
int lettersFor(const QComboBox& combo, const QString& text) {
  const QFontMetrics metrics = combo.fontMetrics();
  return metrics.horizontalAdvance(text) / metrics.horizontalAdvance(QLatin1Char('X')) + 1;
}

QString ownSettings() { return PresetBar::tr("Printer's own settings"); }

}  // namespace

PresetBar::PresetBar(QWidget* parent)
    : QWidget(parent),
      mCaption(new QLabel(tr("Pr&eset:"), this)),
      mPresets(new QComboBox(this)),
      mSave(new QPushButton(tr("&Save..."), this)),
      mRemove(new QPushButton(tr("&Delete"), this)) {
  mPresets->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  mPresets->setMinimumContentsLength(qMax(kLeastLetters, lettersFor(*mPresets, ownSettings())));
  mPresets->setAccessibleName(tr("Preset"));
  mCaption->setBuddy(mPresets);
  mSave->setAccessibleName(tr("Save these settings as a preset"));
  mSave->setToolTip(tr("Save these settings as a preset"));
  mRemove->setAccessibleName(tr("Delete the chosen preset"));
  mRemove->setToolTip(tr("Delete the chosen preset"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(mCaption);
  row->addWidget(mPresets, 1);
  row->addWidget(mSave);
  row->addWidget(mRemove);
  connect(mPresets, &QComboBox::activated, this, [this](int index) {
    refreshButtons();
    emit presetChosen(mPresets->itemData(index).toString());
  });
  connect(mSave, &QPushButton::clicked, this, &PresetBar::askName);
  connect(mRemove, &QPushButton::clicked, this, &PresetBar::askRemoval);
  setPresets({}, {});
}

void PresetBar::setPresets(const QStringList& names, const QString& current) {
  mPresets->clear();
  mPresets->addItem(ownSettings(), QString());
  for (const QString& name : names) mPresets->addItem(name, name);
  mPresets->setCurrentIndex(qMax(0, mPresets->findData(current)));
  refreshButtons();
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
