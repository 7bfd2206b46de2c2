#include "host/core/HeadlessSession.h"

#include <ostream>
#include <utility>

#include "base/Visible.h"
#include "host/core/CutWordsFiles.h"
#include "host/core/Installation.h"
#include "host/core/PrinterSelection.h"

namespace cutline {

HeadlessSession::HeadlessSession(const CommandLine& line, PluginLoader& plugIns,
                                 std::ostream& notes)
    : mLine(line),
      mPlugIns(plugIns),
      mNotes(notes),
      mPlatform(mToolkit),
      mModel(plugIns, line.asked) {}

void HeadlessSession::open(const PrinterChoice& choice) {
  mModel.openPrinter(choice);
  for (const std::string& problem : mPlugIns.takeProblems()) note(problem);
}

Result<Done> HeadlessSession::openSelected() {
  const Result<PrinterChoice> choice = selectPrinter(mLine);
  if (!choice) return choice.error();
  open(*choice);
  for (const Sentence& problem : cutWordsFor(*choice->ppd).problems) note(problem.english());
  for (const Deviation& deviation : mModel.deviations()) note(deviation.sentence.english());
  for (const Sentence& conflict : mModel.conflicts()) note(conflict.english());
  return Done{};
}

Result<Done> HeadlessSession::openToCompose() {
  if (!mLine.files.empty()) startComposer(mLine.files);
  return openSelected();
}

void HeadlessSession::startComposer(const std::vector<std::string>& files) {
  mComposer.emplace(Installation::ofThisProgram().helperDirectory(), files);
}

StartedComposer& HeadlessSession::composer() {
  if (!mComposer) startComposer(mLine.files);
  return *mComposer;
}

// At once, because it may be all that is heard for a while.
void HeadlessSession::note(const std::string& text) {
  const std::string about = mSubject.empty() ? "" : mSubject + ": ";
  mNotes << "cutline: " << visible(about + text) << std::endl;
}

}  // namespace cutline
