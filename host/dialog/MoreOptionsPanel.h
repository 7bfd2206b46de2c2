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

  explicit MoreOptionsPanel(MarkOf markOf, QWidget* parent = nullptr);

  // Builds the controls anew; while it is hidden, when it is shown: a driver has hundreds.
  void setGroups(std::vector<OptionGroup> groups);
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
  std::vector<OptionGroup> mGroups;
  QWidget* mPage = nullptr;  // with the controls; null until they are built
  std::map<std::string, std::function<void(const std::string&)>> mSetters;  // by keyword
};

}  // namespace cutline
