// The PPD's options that no panel takes care of, group by group, as combo boxes and check boxes.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <map>
#include <vector>

#include "cups/PpdFile.h"

class QFormLayout;
class QVBoxLayout;

namespace cutline {

class MoreOptionsPanel : public QWidget {
  Q_OBJECT

 public:
  // The marked choice of an option of the groups; empty where none is marked.
  using MarkOf = std::function<std::string(const std::string& keyword)>;

  // The groups of options; none where there is no function.
  using Groups = std::function<std::vector<OptionGroup>()>;

  explicit MoreOptionsPanel(MarkOf markOf, QWidget* parent = nullptr);

  // Builds the controls anew; while it is hidden, when it is shown, and asks for the groups only
  // then: a driver has hundreds of options.
  void setGroups(Groups groups);
  // Moves the controls to where the marks are, and reports nothing.
  void showMarks();

  void setVisible(bool visible) override;

 signals:
  void optionChosen(const QString& keyword, const QString& choice);

 private:
  void build();
  void addGroup(QFormLayout& form, const OptionGroup& group);
  QWidget* makeControl(const PpdOption& option);
  QWidget* makeCheckBox(const PpdOption& option);
  QWidget* makeComboBox(const PpdOption& option);

  MarkOf mMarkOf;
  QVBoxLayout* mColumn;
  Groups mGroups;
  QWidget* mPage = nullptr;  // with the controls; null until they are built
  std::map<std::string, std::function<void(const std::string&)>> mSetters;  // by keyword
};

}  // namespace cutline
