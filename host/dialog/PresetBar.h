// The printer's saved instances, offered as presets.
#pragma once

#include <QStringList>
#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;

namespace cutline {

class PresetBar : public QWidget {
  Q_OBJECT

 public:
  explicit PresetBar(QWidget* parent = nullptr);

  QLabel* caption() const noexcept { return mCaption; }

  // The names, and which one is in force; empty for the printer's own settings.
  void setPresets(const QStringList& names, const QString& current);
  QStringList presets() const;

 signals:
  void presetChosen(const QString& name);  // empty for the printer's own settings
  void saveRequested(const QString& name);
  void removalRequested(const QString& name);

 private:
  void askName();
  void askRemoval();
  void refreshButtons();

  QLabel* mCaption;
  QComboBox* mPresets;
  QPushButton* mSave;
  QPushButton* mRemove;
};

}  // namespace cutline
