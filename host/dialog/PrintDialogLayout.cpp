// The part of PrintDialog that lays its widgets out.
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "host/dialog/JobForm.h"
#include "host/dialog/JobProgress.h"
#include "host/dialog/LayoutForm.h"
#include "host/dialog/MoreOptionsPanel.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/PanelViews.h"
#include "host/dialog/PresetBar.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/PrinterBar.h"
#include "host/dialog/StripPane.h"

namespace cutline {
namespace {

constexpr int kGap = 12;
constexpr int kPreviewShare = 3;
constexpr int kMoreOptionsShare = 2;

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
  column->setContentsMargins(kGap, kGap, kGap, kGap);
  column->setSpacing(kGap);
  auto* sides = new QHBoxLayout;
  sides->setSpacing(kGap);
  sides->addWidget(makeLeftSide(), 1);
  sides->addWidget(makeRightSide());
  column->addLayout(sides, 1);
  mBottom->addWidget(makeButtons());
  mBottom->addWidget(mProgress);
  mBottom->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  column->addWidget(mBottom);
}

QWidget* PrintDialog::makeLeftSide() {
  auto* side = new QWidget(this);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(mStripPane, kPreviewShare);
  column->addWidget(mMoreOptions, kMoreOptionsShare);
  mMoreOptions->hide();
  return side;
}

QWidget* PrintDialog::makeRightSide() {
  auto* column = new QVBoxLayout(mSettings);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(mPrinterBar);
  column->addWidget(mPresetBar);
  column->addWidget(mJobForm);
  column->addWidget(mLayoutBar);
  column->addSpacing(kGap / 2);
  column->addWidget(mPanelFrame);
  column->addWidget(mSummary);
  column->addSpacing(kGap / 2);
  column->addWidget(mNotices);
  column->addStretch(1);
  mSettings->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  std::vector<QLabel*> captions = mJobForm->captions();
  captions.insert(captions.end(),
                  {mPrinterBar->caption(), mPresetBar->caption(), mLayoutBar->caption()});
  alignCaptions(captions);
  return mSettings;
}

QWidget* PrintDialog::makeButtons() {
  auto* buttons = new QWidget(this);
  auto* row = new QHBoxLayout(buttons);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(mMoreButton);
  row->addWidget(mOpen);
  mOpen->setVisible(mSource.paths.empty());
  row->addWidget(mOutcome, 1);
  row->addWidget(mCancel);
  row->addWidget(mPrint);
  mMoreButton->setCheckable(true);
  mPrint->setDefault(true);
  mPrint->setObjectName(QStringLiteral("print"));  // its text changes
  const int width = std::max(mPrint->sizeHint().width(), mCancel->sizeHint().width());
  for (QPushButton* button : {mPrint, mCancel}) button->setMinimumWidth(width);
  return buttons;
}

void PrintDialog::setTabOrders() {
  chainTabs({mPrinterBar, mPresetBar, mJobForm, mLayoutBar, mLayoutForm, mPanelFrame, mNotices,
             mStripPane, mMoreOptions, mMoreButton, mOpen, mCancel, mPrint, mProgress});
}

// Its many lists would hold the first picture of the dialog up, and are hidden in it.
void PrintDialog::makeLayoutForm() {
  mLayoutForm = new LayoutForm(this);
  mLayoutForm->hide();
  auto* column = static_cast<QVBoxLayout*>(mStripPane->parentWidget()->layout());
  column->insertWidget(column->indexOf(mMoreOptions), mLayoutForm);
  connectLayoutForm();
  if (mModel.isOpen()) showLayout();
  setTabOrders();
  setMnemonics();
}

}  // namespace cutline
