// The part of PrintDialog that lays its widgets out.
#include <QBackingStore>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "host/dialog/CuttingForm.h"
#include "host/dialog/Disclosure.h"
#include "host/dialog/HistoryBar.h"
#include "host/dialog/JobForm.h"
#include "host/dialog/JobProgress.h"
#include "host/dialog/LayoutForm.h"
#include "host/dialog/MoreOptionsPanel.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/OpenBar.h"
#include "host/dialog/PanelViews.h"
#include "host/dialog/PresetBar.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/PrinterBar.h"
#include "host/dialog/SettingsPane.h"
#include "host/dialog/StripPane.h"

namespace cutline {
namespace {

constexpr int kMargin = 16;
constexpr int kFormGap = 8;

void alignCaptions(const std::vector<QLabel*>& captions) {
  int width = 0;
  for (const QLabel* caption : captions) width = std::max(width, caption->sizeHint().width());
  for (QLabel* caption : captions) caption->setMinimumWidth(width);
}

bool takesTabs(const QWidget& widget) {
  return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.focusProxy() == nullptr;
}

std::vector<QWidget*> tabsUnder(QWidget& root) {
  std::vector<QWidget*> found;
  QWidget* each = &root;
  do {
    const bool isInside = each == &root || root.isAncestorOf(each);
    if (isInside && takesTabs(*each)) found.push_back(each);
    each = each->nextInFocusChain();
  } while (each != &root);
  return found;
}

// Makes the tab key visit what lies in the first of these, then in the second, and so on; within
// one the order stays as it is.
void chainTabs(const std::vector<QWidget*>& roots) {
  QWidget* last = nullptr;
  for (QWidget* root : roots) {
    if (root == nullptr) continue;  // not made yet
    for (QWidget* each : tabsUnder(*root)) {
      if (last) QWidget::setTabOrder(last, each);
      last = each;
    }
  }
}

}  // namespace

void PrintDialog::makeLayout() {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(kFormGap);
  column->addWidget(mStripPane, 1);
  column->addWidget(mNotices);
  column->addWidget(new SettingsPane(mSettings, makeJobSide(), makeCuttingSide(), this));
  mBottom->addWidget(makeButtons());
  mBottom->addWidget(mProgress);
  mBottom->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  column->addWidget(mBottom);
}

QBackingStore& PrintDialog::makeWindow(QSize size) {
  resize(size);
  adjustPosition(parentWidget());
  create();
  backingStore()->resize(size);
  return *backingStore();
}

// Layouts of what is not seen yet keep what they knew of it, and learn what has changed with the
// next turn of the loop of events: the first frame would be without the panel.
void PrintDialog::layOut(QSize size) {
  for (QWidget* each : findChildren<QWidget*>()) each->updateGeometry();
  resize(size.expandedTo(minimumSizeHint()));
  layout()->activate();
  auto* settings = findChild<SettingsPane*>();
  settings->arrange();
  settings->updateGeometry();
  // Else the window is moved once it is there, which takes the window system several answers.
  adjustPosition(parentWidget());
}

QWidget* PrintDialog::makeJobSide() {
  auto* side = new QWidget(mSettings);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kFormGap);
  auto* printer = new Card(side);
  for (QWidget* each : std::initializer_list<QWidget*>{mPrinterBar, mPresetBar}) printer->add(each);
  auto* labels = new Card(side);
  for (QWidget* each : std::initializer_list<QWidget*>{mJobForm, mLayoutBar}) labels->add(each);
  auto* options = new Card(side);
  for (QWidget* each : std::initializer_list<QWidget*>{mMoreButton, mMoreOptions})
    options->add(each);
  options->addStretch();
  for (QWidget* each : {printer, labels}) column->addWidget(each);
  column->addWidget(options, 1);  // down to where the cutting ends beside it
  mMoreOptions->hide();
  std::vector<QLabel*> captions = mJobForm->captions();
  captions.insert(captions.end(),
                  {mPrinterBar->caption(), mPresetBar->caption(), mLayoutBar->caption()});
  alignCaptions(captions);
  return side;
}

QWidget* PrintDialog::makeCuttingSide() {
  auto* card = new Card(mSettings);
  for (QWidget* each :
       std::initializer_list<QWidget*>{mPanelFrame, mCuttingForm, mSummaryButton, mSummary}) {
    card->add(each);
  }
  card->addStretch();
  mSummary->hide();
  return card;
}

QWidget* PrintDialog::makeButtons() {
  auto* buttons = new QWidget(this);
  auto* row = new QHBoxLayout(buttons);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kFormGap);
  row->addWidget(mOpen);
  row->addWidget(mHistory);
  row->addWidget(mOutcome, 1);
  row->addWidget(mCancel);
  row->addWidget(mPrint);
  mPrint->setDefault(true);
  mPrint->setObjectName(QStringLiteral("print"));  // its text changes
  const int width = std::max(mPrint->sizeHint().width(), mCancel->sizeHint().width());
  for (QPushButton* button : {mPrint, mCancel}) button->setMinimumWidth(width);
  return buttons;
}

void PrintDialog::setTabOrders() {
  chainTabs({mPrinterBar, mPresetBar, mJobForm, mLayoutBar, mLayoutForm, mMoreButton, mMoreOptions,
             mPanelFrame, mCuttingForm, mSummaryButton, mNotices, mStripPane, mOpen, mHistory,
             mCancel, mPrint, mProgress});
}

void PrintDialog::completeForms() {
  if (mLayoutForm != nullptr) return;
  mLayoutForm = new LayoutForm(this);
  mLayoutForm->hide();
  static_cast<Card*>(mLayoutBar->parentWidget())->add(mLayoutForm);
  connectLayoutForm();
  if (mModel.isOpen()) showLayout();
  setTabOrders();
  setMnemonics();
}

}  // namespace cutline
