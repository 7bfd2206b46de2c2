// The presets of a printer as the user chooses, names and deletes them.
#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>
#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace cutline {

enum class Glyph;

// What is wrong with a name for a preset; empty when it can be used. The print system keeps
// instances in a text file whose words end at blanks, and names them PRINTER/INSTANCE.
QString problemOfPresetName(const QString& name);

// Asks for the name of a preset to save.
class PresetNameDialog : public QDialog {
  Q_OBJECT

 public:
  PresetNameDialog(const QString& suggestion, QStringList taken, QWidget* parent);

 signals:
  void nameChosen(const QString& name);

 private:
  void check();

  QStringList mTaken;
  QLineEdit* mName;
  QLabel* mHint;
  QPushButton* mSave;
};

// The printer's saved instances, offered as presets.
class PresetBar : public QWidget {
  Q_OBJECT

 public:
  explicit PresetBar(QWidget* parent = nullptr);

  QLabel* caption() const noexcept { return mCaption; }

  // The names, and which one is in force; empty for the printer's own settings.
  void setPresets(const QStringList& names, const QString& current);
  QStringList presets() const;
  // The settings are others than those of the preset in force.
  void setChanged(bool isChanged);

 signals:
  void presetChosen(const QString& name);  // empty for the printer's own settings
  void saveRequested(const QString& name);
  void removalRequested(const QString& name);

 private:
  QPushButton* makeButton(Glyph glyph, const QString& name);
  void askName();
  void askRemoval();
  void refreshButtons();
  void refreshCurrent();

  QLabel* mCaption;
  QComboBox* mPresets;
  QPushButton* mSave;
  QPushButton* mRemove;
  int mInForce = 0;
  bool mIsChanged = false;
};

}  // namespace cutline
