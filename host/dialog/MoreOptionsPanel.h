// The PPD's options that no panel takes care of, group by group, as combo boxes and check boxes.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <map>
#include <vector>

#include "host/core/PrintValues.h"

class QFormLayout;
class QVBoxLayout;

namespace cutline {

class MoreOptionsPanel : public QWidget {
  Q_OBJECT

 public:
  explicit MoreOptionsPanel(QWidget* parent = nullptr);

  // Builds the controls anew; while it is hidden, when it is shown: a driver has hundreds.
  void setGroups(const std::vector<GeneratedGroup>& groups);
  // The same options with other marks: moves the controls, and reports nothing.
  void setMarks(const std::vector<GeneratedGroup>& groups);

  void setVisible(bool visible) override;

 signals:
  void optionChosen(const QString& keyword, const QString& choice);

 private:
  void build();
  void showMarks();
  void addGroup(QFormLayout& form, const GeneratedGroup& group);
  QWidget* makeControl(const PpdOption& option);
  QWidget* makeCheckBox(const PpdOption& option);
  QWidget* makeComboBox(const PpdOption& option);

  QVBoxLayout* mColumn;
  std::vector<GeneratedGroup> mGroups;
  QWidget* mPage = nullptr;  // with the controls; null until they are built
  std::map<std::string, std::function<void(const std::string&)>> mSetters;  // by keyword
};

}  // namespace cutline
