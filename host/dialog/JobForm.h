// Copies, pages, their order, and paper.
#pragma once

#include <QWidget>
#include <vector>

#include "cups/PpdFile.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace cutline {

class StatusIcon;

class JobForm : public QWidget {
  Q_OBJECT

 public:
  explicit JobForm(QWidget* parent = nullptr);

  // The captions that stand in the first column.
  std::vector<QLabel*> captions() const { return {mCopiesCaption, mPagesCaption, mPaperCaption}; }

  // Setting reports nothing.
  void setPapers(const std::vector<PaperSize>& papers);
  // Another one than those, such as a paper of one's own length, is listed as long as it is chosen.
  void setCurrentPaper(const QString& name, const QString& text);
  void setCopies(int copies);
  void setPages(const QString& ranges);
  void setOrder(bool isCollated, bool isReversed);
  // What is wrong with the pages as typed; empty when nothing is.
  void setPagesProblem(const QString& problem);
  bool hasPagesProblem() const;
  void focusCopies();
  void focusPages();
  QString pages() const;

 signals:
  void copiesChosen(int copies);
  void pagesEdited(const QString& text);    // at each keystroke
  void pagesFinished(const QString& text);  // when the field is left, or Return is pressed
  void paperChosen(const QString& name);
  void collationChosen(bool isCollated);
  void reversalChosen(bool isReversed);

 private:
  void layOut();

  QLabel* mCopiesCaption;
  QSpinBox* mCopies;
  QLabel* mPagesCaption;
  QLineEdit* mPages;
  QWidget* mProblem;
  QLabel* mProblemText;
  QCheckBox* mCollated;
  QCheckBox* mReversed;
  QLabel* mPaperCaption;
  QComboBox* mPapers;
  int mPaperCount = 0;  // without the current one, where that is another
};

}  // namespace cutline
