#include "host/dialog/MoreOptionsPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <array>
#include <optional>
#include <utility>

#include "host/dialog/NarrowComboBox.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

struct SwitchNames {
  const char* off;
  const char* on;
};
constexpr int kChoiceLetters = 8;

constexpr std::array kSwitches =
    std::to_array<SwitchNames>({{"false", "true"}, {"off", "on"}, {"no", "yes"}});

// The choices of an option that is a switch, in whatever order the PPD has them.
struct Switch {
  QString off;
  QString on;
};

std::optional<Switch> asSwitch(const PpdOption& option) {
  if (option.choices.size() != 2) return std::nullopt;
  const QString first = toQString(option.choices[0].name);
  const QString second = toQString(option.choices[1].name);
  for (const SwitchNames& names : kSwitches) {
    const QString off = QString::fromLatin1(names.off);
    const QString on = QString::fromLatin1(names.on);
    if (first.toLower() == off && second.toLower() == on) return Switch{first, second};
    if (first.toLower() == on && second.toLower() == off) return Switch{second, first};
  }
  return std::nullopt;
}

QLabel* makeHeading(const std::string& text, QWidget* parent) {
  auto* heading = new QLabel(toQString(text), parent);
  heading->setTextFormat(Qt::PlainText);
  QFont font = heading->font();
  font.setBold(true);
  heading->setFont(font);
  return heading;
}

}  // namespace

MoreOptionsPanel::MoreOptionsPanel(MarkOf markOf, QWidget* parent)
    : QWidget(parent), mMarkOf(std::move(markOf)), mColumn(new QVBoxLayout(this)) {
  mColumn->setContentsMargins(0, 0, 0, 0);
  setAccessibleRole(*this, QAccessible::Grouping);
  setAccessibleName(tr("More printer options"));
}

void MoreOptionsPanel::setGroups(Groups groups) {
  mGroups = std::move(groups);
  mSetters.clear();
  delete mPage;
  mPage = nullptr;
  const bool wasHidden = testAttribute(Qt::WA_WState_ExplicitShowHide) && isHidden();
  if (!wasHidden) build();
}

void MoreOptionsPanel::setVisible(bool visible) {
  if (visible && mPage == nullptr) build();
  QWidget::setVisible(visible);
}

void MoreOptionsPanel::build() {
  mPage = new QWidget(this);
  auto* form = new QFormLayout(mPage);
  form->setContentsMargins(0, 0, 0, 0);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  if (mGroups)
    for (const OptionGroup& group : mGroups()) addGroup(*form, group);
  mColumn->addWidget(mPage);
  showMarks();
}

void MoreOptionsPanel::showMarks() {
  for (const auto& [keyword, show] : mSetters) show(mMarkOf(keyword));
}

void MoreOptionsPanel::addGroup(QFormLayout& form, const OptionGroup& group) {
  form.addRow(makeHeading(group.text, form.parentWidget()));
  for (const PpdOption& option : group.options) {
    QWidget* control = makeControl(option);
    const QString title = toQString(option.text);
    control->setObjectName(toQString(option.keyword));
    control->setAccessibleName(title);
    if (qobject_cast<QCheckBox*>(control)) {
      form.addRow(control);
    } else {
      form.addRow(tr("%1:").arg(withoutMnemonics(title)), control);
    }
  }
}

QWidget* MoreOptionsPanel::makeControl(const PpdOption& option) {
  return asSwitch(option) ? makeCheckBox(option) : makeComboBox(option);
}

QWidget* MoreOptionsPanel::makeCheckBox(const PpdOption& option) {
  auto* box = new QCheckBox(withoutMnemonics(toQString(option.text)));
  const Switch choices = *asSwitch(option);
  const QString keyword = toQString(option.keyword);
  connect(box, &QCheckBox::clicked, this, [this, keyword, choices](bool checked) {
    emit optionChosen(keyword, checked ? choices.on : choices.off);
  });
  mSetters[option.keyword] = [box, choices](const std::string& marked) {
    box->setChecked(toQString(marked) == choices.on);
  };
  return box;
}

QWidget* MoreOptionsPanel::makeComboBox(const PpdOption& option) {
  auto* combo = new NarrowComboBox(kChoiceLetters);
  for (const OptionChoice& choice : option.choices) {
    combo->addItem(toQString(choice.text), toQString(choice.name));
  }
  const QString keyword = toQString(option.keyword);
  connect(combo, &QComboBox::activated, this, [this, combo, keyword](int index) {
    emit optionChosen(keyword, combo->itemData(index).toString());
  });
  mSetters[option.keyword] = [combo](const std::string& marked) {
    combo->setCurrentIndex(combo->findData(toQString(marked)));
  };
  return combo;
}

}  // namespace cutline
