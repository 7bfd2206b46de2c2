// Asks for the name of a preset to save.
#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

class QLabel;
class QLineEdit;
class QPushButton;

namespace cutline {

// What is wrong with a name for a preset; empty when it can be used. The print system keeps
// instances in a text file whose words end at blanks, and names them PRINTER/INSTANCE.
QString problemOfPresetName(const QString& name);

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

}  // namespace cutline
