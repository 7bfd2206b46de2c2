#include "host/dialog/JobForm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

#include "base/Numbers.h"
#include "host/dialog/NarrowComboBox.h"
#include "host/dialog/NoticeView.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {
namespace {

constexpr int kColumnGap = 12;
constexpr int kPaperLetters = 12;
constexpr int kFieldMargins = 16;  // of a field, around its text

}  // namespace

JobForm::JobForm(QWidget* parent)
    : QWidget(parent),
      mCopiesCaption(new QLabel(tr("&Copies:"), this)),
      mCopies(new QSpinBox(this)),
      mPagesCaption(new QLabel(tr("P&ages:"), this)),
      mPages(new QLineEdit(this)),
      mProblem(new QWidget(this)),
      mProblemText(new QLabel(mProblem)),
      mCollated(new QCheckBox(tr("Collate"), this)),
      mReversed(new QCheckBox(tr("Last page first"), this)),
      mPaperCaption(new QLabel(tr("Pape&r:"), this)),
      mPapers(new NarrowComboBox(kPaperLetters, this)) {
  mCopies->setRange(1, kMostCopies);
  mCopies->setAccessibleName(tr("Copies"));
  mCopiesCaption->setBuddy(mCopies);
  mPages->setPlaceholderText(tr("All, or such as 1-3,5"));
  mPages->setToolTip(tr("Which pages are printed, such as 1-3,5; all of them where it is empty"));
  mPages->setMinimumWidth(mPages->fontMetrics().horizontalAdvance(mPages->placeholderText()) +
                          kFieldMargins);
  mPages->setAccessibleName(tr("Pages"));
  mPagesCaption->setBuddy(mPages);
  mCollated->setToolTip(
      tr("The whole document once a copy, instead of each label as often as "
         "there are copies"));
  mPapers->setAccessibleName(tr("Paper"));
  mPaperCaption->setBuddy(mPapers);
  layOut();
  connect(mCopies, &QSpinBox::valueChanged, this, &JobForm::copiesChosen);
  // Not textEdited, which in Qt 6.4.2 says nothing of what assistive technology types.
  connect(mPages, &QLineEdit::textChanged, this, &JobForm::pagesEdited);
  connect(mPages, &QLineEdit::editingFinished, this, [this] { emit pagesFinished(pages()); });
  connect(mCollated, &QCheckBox::clicked, this, &JobForm::collationChosen);
  connect(mReversed, &QCheckBox::clicked, this, &JobForm::reversalChosen);
  connect(mPapers, &QComboBox::activated, this,
          [this](int index) { emit paperChosen(mPapers->itemData(index).toString()); });
}

void JobForm::layOut() {
  mProblemText->setTextFormat(Qt::PlainText);
  mProblemText->setWordWrap(true);
  auto* problem = new QHBoxLayout(mProblem);
  problem->setContentsMargins(0, 0, 0, 0);
  problem->addWidget(new StatusIcon(Severity::error, mProblem), 0, Qt::AlignTop);
  problem->addWidget(mProblemText, 1);
  mProblem->hide();
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setColumnStretch(1, 1);
  auto* copies = new QHBoxLayout;
  copies->setSpacing(kColumnGap);
  copies->addWidget(mCopies);
  copies->addWidget(mCollated, 1);
  grid->addWidget(mCopiesCaption, 0, 0);
  grid->addLayout(copies, 0, 1);
  grid->addWidget(mPagesCaption, 1, 0);
  grid->addWidget(mPages, 1, 1);
  grid->addWidget(mProblem, 2, 1);
  grid->addWidget(mReversed, 3, 1);
  grid->addWidget(mPaperCaption, 4, 0);
  grid->addWidget(mPapers, 4, 1);
}

void JobForm::setPapers(const std::vector<PaperSize>& papers) {
  mPapers->clear();
  for (const PaperSize& paper : papers)
    mPapers->addItem(toQString(paper.text), toQString(paper.name));
  mPaperCount = mPapers->count();
}

void JobForm::setCurrentPaper(const QString& name, const QString& text) {
  while (mPapers->count() > mPaperCount) mPapers->removeItem(mPaperCount);
  if (!name.isEmpty() && mPapers->findData(name) < 0) mPapers->addItem(text, name);
  mPapers->setCurrentIndex(mPapers->findData(name));
}

void JobForm::setCopies(int copies) {
  const QSignalBlocker blocker(mCopies);
  mCopies->setValue(copies);
}

void JobForm::setPages(const QString& ranges) {
  if (mPages->hasFocus() || mPages->text() == ranges) return;
  const QSignalBlocker blocker(mPages);
  mPages->setText(ranges);
}

void JobForm::setOrder(bool isCollated, bool isReversed) {
  mCollated->setChecked(isCollated);
  mReversed->setChecked(isReversed);
}

void JobForm::setPagesProblem(const QString& problem) {
  mProblemText->setText(problem);
  mProblem->setVisible(!problem.isEmpty());
  tellAccessibleDescription(*mPages, problem);
}

bool JobForm::hasPagesProblem() const { return !mProblemText->text().isEmpty(); }

void JobForm::focusCopies() {
  mCopies->setFocus();
  mCopies->selectAll();
}

void JobForm::focusPages() {
  mPages->setFocus();
  mPages->selectAll();
}

QString JobForm::pages() const { return mPages->text(); }

}  // namespace cutline
