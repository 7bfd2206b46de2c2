// The part of PrintDialog that serves another program: with a document of that program's, or with
// settings for one that is not made yet.
#include <QPushButton>

#include "host/core/CommandLine.h"
#include "host/dialog/DialogLanguage.h"
#include "host/dialog/LayoutForm.h"
#include "host/dialog/NoticeView.h"
#include "host/dialog/OpenBar.h"
#include "host/dialog/PrintDialog.h"

namespace cutline {

void PrintDialog::closeAfterJob() {
  mClosesAfterJob = true;
  setAcceptDrops(false);
  mOpen->hide();
}

// How the document lies on its labels is for whoever draws it.
void PrintDialog::chooseOnly() {
  mIsChoosing = true;
  setAcceptDrops(false);
  mOpen->hide();
  mLayoutBar->hide();
  if (mModel.isOpen()) return refreshPrintButton();
  showPrintTitle();
}

void PrintDialog::endChoosing() {
  const Result<OptionList> agreed = mModel.prepareToPrint();
  mNotices->setNotice(NoticeTopic::failure, agreed ? QString() : asLine(agreed.error().sentence));
  if (!agreed) return;
  mExitStatus = kExitDone;
  done(mExitStatus);
}

}  // namespace cutline
