// The print dialog: the preview on the left, the printer, its settings and the panels on the right.
// Documents are composed onto labels as the settings say; what is shown of them is what a job
// sends. Shows the model and relays the user's choices to it; jobs and presets go through the print
// server in the background.
#pragma once

#include <QDialog>
#include <QTimer>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/core/CommandLine.h"
#include "host/core/PrintModel.h"
#include "host/dialog/DocumentPages.h"
#include "host/dialog/JobRunner.h"
#include "host/dialog/PrintServer.h"

class QBackingStore;
class QLabel;
class QPushButton;
class QStackedWidget;

namespace cutline {

class ClickGuard;
class ChoiceHints;
class CutPlan;
class CuttingForm;
class DocumentWatch;
class HistoryBar;
class JobForm;
class JobOutcome;
class JobProgress;
class LayoutBar;
class LayoutForm;
enum class LengthRule;
class MoreOptionsPanel;
class NoticeView;
class OpenBar;
class PanelFrame;
class PresetBar;
class PresetKeeper;
class PrinterBar;
class StripPane;
class SummaryView;

// What the dialog prints. Without a path there is nothing to print until somebody opens a document.
struct PrintSource {
  std::vector<std::string> paths;
  std::string title;
  DocumentTools tools;
  bool isRaw = false;  // the first goes to the printer as it is, and is not shown
};

// "first.pdf", or "first.pdf and 2 more".
QString titleOf(const std::vector<std::string>& paths);

class PrintDialog : public QDialog, private PrintModelListener {
  Q_OBJECT

 public:
  // The model is borrowed, outlives the dialog and has no printer open yet.
  PrintDialog(PrintModel& model, std::shared_ptr<PrintServer> server, PrintSource source);
  ~PrintDialog() override;

  // Until the first printer is open: nothing can be chosen.
  void showWaiting(const QString& text);
  void openPrinter(const PrinterChoice& choice);
  // The first printer could not be opened: the reason stands in the dialog, and another printer can
  // be chosen. Closing the dialog is an error until one is open.
  void showFailure(const QString& reason);

  // Something was wrong from the start; closing the dialog is an error until a job is out.
  void noteFailure() { mExitStatus = kExitError; }

  // Another program has the dialog print its document: it closes by itself when the job is out,
  // instead of staying to print again, and opens no other document.
  void closeAfterJob();

  // Printer and settings are chosen for a document that somebody else makes for them later: nothing
  // is opened or printed, and the dialog closes as done when the user goes on.
  void chooseOnly();

  // What is in the dialog now.
  const std::vector<std::string>& documents() const noexcept { return mSource.paths; }

  // Before a printer is opened: has the window system make a window of that size, which is not seen
  // yet, and gives what it will be painted on. It lives as long as the dialog.
  QBackingStore& makeWindow(QSize size);

  // Before it is shown: takes the size, or what it needs at least, and lays itself out in it.
  void layOut(QSize size);
  // What can be opened again at a click, newest first.
  void setRecentDocuments(const std::vector<std::string>& paths);

  // Composes and draws the documents; becameSettled follows when nothing is left to draw.
  void loadDocument();
  // Makes what is hidden at first and would hold the first picture up. Once shown, or with the
  // first news of the documents, whichever comes first.
  void completeForms();
  // Asks for the other printers, and from then on now and again for the printer's state.
  void startWatching();

  // The program's exit status, once the dialog is closed.
  int exitStatus() const noexcept { return mExitStatus; }

 signals:
  void becameSettled();
  // The first label that the document gave is on the screen.
  void labelShown();
  // Labels were printed, or are, of what is in the dialog now.
  void jobWentOut();

 public slots:
  void reject() override;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void modelDidChange(ModelChange what) override;
  void showPrinter();
  void showOptions();
  void showCuttingForm();
  void showPaper();
  void showJob();
  void showLayout();
  void showStrip();
  void fitToPanels();

  void makeLayout();
  QWidget* makeJobSide();
  QWidget* makeCuttingSide();
  QWidget* makeButtons();
  void connectSettings();
  void connectDocument();
  void connectServer();
  void connectLayoutForm();
  void connectJob();
  void setTabOrders();
  void setMnemonics();

  void choosePrinter(const QString& name);
  void resolveConflicts();
  void choosePaper(const QString& name);
  std::string namedPaper() const;
  void chooseLength(LengthRule rule, double points);
  void chooseOption(const QString& keyword, const QString& choice);
  void reverse(bool isReversed);
  void editPages(const QString& text);
  void finishPages(const QString& text);
  CutPlan presentPlan() const;
  void showHelp();
  void showCuttingNotices(const CutPlan* plan);
  // False while somebody is asked whether so much is meant; print() follows the answer.
  bool agreesToMuch();
  void printOnly(unsigned page);
  void showPagesProblem(const Result<Done>& checked);
  Result<Done> checkPages() const;
  void showMoreOptions(bool shown);

  void takePrinters(const std::vector<Destination>& destinations);
  void takeState(const Destination& destination);
  void noteSetUp(const Destination& destination);
  void takeSetUp(const PrinterChoice& choice);
  void openingFailed(const QString& reason);
  void takeOpened(const PrinterChoice& choice);
  void enableSettings(bool isEnabled);
  void askServer();
  void showStateProblem(const QString& state, const QString& words);

  void openDocuments(const std::vector<std::string>& paths);
  void reloadDocument();
  void showTitle();
  void recompose();
  void takeComposition();
  void failComposition(const QString& reason);
  void showPaperNotices();
  void showEdgeNotice();
  void shrinkTo(int percent);
  QString refusal() const;
  void refreshPrintButton();
  std::uint64_t labelsToPrint() const;
  void showPrintTitle();
  void forgetOutcome();
  void print();
  void endChoosing();
  void printWhenComposed();
  bool stopWaiting();
  bool isPrinting() const;
  JobRunner::Composing jobComposing() const;
  void showJobRunning(bool isRunning);
  void setJobLabels(std::uint64_t labels);
  void notePrinted();
  void takePrinted();
  void takeCancelled(int pages);
  void leaveJob();

  PrintModel& mModel;
  PrintSource mSource;
  int mExitStatus;
  bool mClosesAfterJob = false;
  bool mIsChoosing = false;         // and prints nothing
  std::string mNamedPaper;          // the last one that the printer names
  int mShownPages = 0;              // of the documents
  bool mIsPrintWaiting = false;     // for the documents to be composed
  std::uint64_t mAgreedLabels = 0;  // somebody was asked about so many
  long mSetUpSince = 0;             // the printer, as it is shown; 0 when not known
  QTimer mStateTimer;
  int mTicks = 0;  // of that, without a printer

  ServerClient* mServer;
  DocumentLoader* mDocument;
  DocumentWatch* mWatch;
  JobRunner* mJob;

  QWidget* mSettings;  // everything that a running job forbids to change
  PrinterBar* mPrinterBar;
  PresetBar* mPresetBar;
  JobForm* mJobForm;
  LayoutBar* mLayoutBar;
  PanelFrame* mPanelFrame;
  CuttingForm* mCuttingForm;
  QPushButton* mSummaryButton;
  SummaryView* mSummary;
  NoticeView* mNotices;
  PresetKeeper* mPresets;
  StripPane* mStripPane;
  LayoutForm* mLayoutForm = nullptr;  // until the dialog has been painted
  MoreOptionsPanel* mMoreOptions;
  QPushButton* mMoreButton;
  OpenBar* mOpen;
  HistoryBar* mHistory;
  ChoiceHints* mHints;
  QPushButton* mPrint;
  QPushButton* mCancel;
  QStackedWidget* mBottom;
  JobProgress* mProgress;
  JobOutcome* mOutcome;
  ClickGuard* mGuard;            // of the row that mBottom shows
  std::uint64_t mJobLabels = 0;  // of the job that was sent last; 0 where that is not known
};

}  // namespace cutline
