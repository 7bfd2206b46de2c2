// The part of PrintDialog that lays its widgets out.
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "host/dialog/JobForm.h"
#include "host/dialog/JobProgress.h"
#include "host/dialog/MoreOptionsPanel.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/PanelFrame.h"
#include "host/dialog/PresetBar.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/PrinterBar.h"
#include "host/dialog/StripPane.h"
#include "host/dialog/SummaryView.h"
#include "host/dialog/tab_order.h"

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
  column->addSpacing(kGap / 2);
  column->addWidget(mPanelFrame);
  column->addWidget(mSummary);
  column->addSpacing(kGap / 2);
  column->addWidget(mNotices);
  column->addStretch(1);
  mSettings->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  std::vector<QLabel*> captions = mJobForm->captions();
  captions.insert(captions.end(), {mPrinterBar->caption(), mPresetBar->caption()});
  alignCaptions(captions);
  return mSettings;
}

QWidget* PrintDialog::makeButtons() {
  auto* buttons = new QWidget(this);
  auto* row = new QHBoxLayout(buttons);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(mMoreButton);
  row->addStretch(1);
  row->addWidget(mCancel);
  row->addWidget(mPrint);
  mMoreButton->setCheckable(true);
  mPrint->setDefault(true);
  const int width = std::max(mPrint->sizeHint().width(), mCancel->sizeHint().width());
  for (QPushButton* button : {mPrint, mCancel}) button->setMinimumWidth(width);
  return buttons;
}

void PrintDialog::setTabOrders() {
  chainTabs({mPrinterBar, mPresetBar, mJobForm, mPanelFrame, mNotices, mStripPane, mMoreOptions,
             mMoreButton, mCancel, mPrint, mProgress});
}

}  // namespace cutline
