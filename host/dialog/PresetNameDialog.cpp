#include "host/dialog/PresetNameDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace cutline {
namespace {

constexpr int kLongestName = 127;
constexpr int kNameWidth = 280;

bool isForbidden(QChar character) {
  return character.isSpace() || !character.isPrint() ||
         QStringLiteral("/#\"'\\?").contains(character);
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
    emit nameChosen(mName->text());
    accept();
  });
  mName->selectAll();
  check();
}

void PresetNameDialog::check() {
  const QString name = mName->text();
  const QString problem = problemOfPresetName(name);
  const bool isTaken = mTaken.contains(name);
  mHint->setText(isTaken ? tr("Replaces the preset of this name.") : problem);
  mSave->setEnabled(problem.isEmpty());
}

}  // namespace cutline
