// How documents are laid onto the labels: size, turn, place, length, and how texts are set.
#pragma once

#include <QString>
#include <QWidget>
#include <optional>
#include <vector>

#include "composition/Composition.h"
#include "host/core/JobLayout.h"

class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QPushButton;

namespace cutline {

// What a label's length follows.
enum class LengthRule { paper, fixed, content };

class LayoutForm : public QWidget {
  Q_OBJECT

 public:
  explicit LayoutForm(QWidget* parent = nullptr);

  // Setting reports nothing. The label says how turns and places are seen.
  void setLayout(const JobLayout& layout, const LabelPage& label);
  // Nothing where the printer cuts no length of one's own; `points` is the label's.
  void setLengths(const std::optional<LengthBounds>& bounds, LengthRule rule, double points);
  // Texts have settings of their own.
  void setHasText(bool hasText);

  // The settings in a few words.
  QString words() const;

 signals:
  void layoutChosen(const cutline::JobLayout& layout);
  void lengthChosen(cutline::LengthRule rule, double points);
  void wordsChanged();

 private:
  QComboBox* makeList(const QString& name, void (LayoutForm::*report)());
  QComboBox* prepared(QComboBox* list, const QString& name, void (LayoutForm::*report)());
  QDoubleSpinBox* makeNumber(const QString& name, void (LayoutForm::*report)());
  QLabel* makeCaption(const QString& text, QWidget* field);
  void fillLists();
  void layOut();
  void refresh();
  void listFonts();
  void reportLayout();
  void reportLength();
  JobLayout chosenLayout() const;

  LabelPage mLabel;
  JobLayout mLayout;
  bool mHasText = false;
  bool mHasFonts = false;
  bool mHasLengths = false;
  QComboBox* mSize;
  QDoubleSpinBox* mPercent;
  QComboBox* mLength;
  QDoubleSpinBox* mMillimetres;
  QComboBox* mTurn;
  QComboBox* mPlace;
  QComboBox* mUnit;
  QComboBox* mFont;
  QDoubleSpinBox* mTextSize;
  std::vector<QWidget*> mOfLengths;
  std::vector<QWidget*> mOfText;
};

// The settings in one line, with a button that shows the form.
class LayoutBar : public QWidget {
  Q_OBJECT

 public:
  explicit LayoutBar(QWidget* parent = nullptr);

  QLabel* caption() const noexcept { return mCaption; }
  void setWords(const QString& words);

 signals:
  void formWanted(bool isWanted);

 private:
  QLabel* mCaption;
  QLabel* mWords;
  QPushButton* mChange;
};

}  // namespace cutline
