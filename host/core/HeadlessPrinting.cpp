#include "host/core/HeadlessPrinting.h"

#include <optional>
#include <ostream>

#include "base/Visible.h"
#include "host/core/HeadlessComposing.h"
#include "host/core/HeadlessSending.h"

namespace cutline {

namespace {

// A document, or all of them, that become one job.
using Files = std::vector<std::string>;

class Printing {
 public:
  Printing(const CommandLine& line, PluginLoader& plugIns, const Streams& streams)
      : mLine(line), mStreams(streams), mSession(line, plugIns, streams.notes) {}

  Result<Done> printTogether() {
    if (Result<Done> opened = open(mLine.files); !opened) return opened;
    const Result<std::string> path = pathToSend(mLine.files, {});
    if (!path) return path.error();
    const Result<int> job = sendDocument(mLine, *path, mLine.files, mSession, mStreams);
    if (!job) return job.error();
    noteEdges();
    return mLine.waits ? followJob(mLine, *job, mSession) : Result<Done>(Done{});
  }

  Result<Done> printEach() {
    if (Result<Done> opened = open({mLine.files.front()}); !opened) return opened;
    mSettings = mSession.model().settings();
    for (std::size_t at = 0; at < mLine.files.size() && mLastTried.empty(); ++at) print(at);
    if (mLine.waits) follow();
    return mJobs.size() == mLine.files.size() ? Result<Done>(Done{}) : notPrinted();
  }

 private:
  Result<Done> open(const Files& first) {
    if (!mLine.asked.isRaw()) mSession.startComposer(first);
    return mSession.openSelected();
  }

  // What becomes of these files for the printer. The next ones' composer starts meanwhile, since a
  // program takes as long to start as a document to be sent.
  Result<std::string> pathToSend(const Files& files, const Files& next) {
    if (mLine.asked.isRaw()) return files.front();
    Result<ComposedDocument> composed = composeFor(mSession, !mLine.isQuiet);
    if (!next.empty()) mSession.startComposer(next);
    if (!composed) return composed.error();
    mComposed = std::move(*composed);
    return mComposed->file->path();
  }

  // Once the document is sent: nobody has to wait for it until then.
  void noteEdges() {
    if (mComposed) noteEdgeLoss(mLine, *mComposed, mSession);
  }

  // Where the length follows the document, it is not to follow the one before.
  void forgetLength() {
    PrintModel& model = mSession.model();
    if (model.compositionRequest().lengthBounds) model.restore(mSettings);
  }

  void print(std::size_t at) {
    if (at > 0) forgetLength();
    const Files files{mLine.files[at]};
    const bool isLast = at + 1 == mLine.files.size();
    mSession.setSubject(files.front());
    const Result<std::string> path =
        pathToSend(files, isLast ? Files() : Files{mLine.files[at + 1]});
    if (!path) return tell(path.error());
    const Result<int> job = sendDocument(mLine, *path, files, mSession, mStreams);
    if (!job) {
      if (!isLast) mLastTried = files.front();
      return tell(job.error());
    }
    mJobs.push_back(*job);
    noteEdges();
  }

  void follow() {
    mSession.setSubject({});
    std::erase_if(mJobs, [this](int job) {
      const Result<Done> ended = followJob(mLine, job, mSession);
      if (!ended) tell(ended.error());
      return !ended;
    });
  }

  // At once, as the others may take all night.
  void tell(const Error& error) {
    mStreams.errors << "cutline: " << visible(error.message) << std::endl;
  }

  Error notPrinted() const {
    const std::size_t count = mLine.files.size() - mJobs.size();
    std::string text = std::to_string(count) + " of " + std::to_string(mLine.files.size()) +
                       (count == 1 ? " documents was not printed" : " documents were not printed");
    if (!mLastTried.empty()) text += "; none behind \"" + mLastTried + "\" was tried";
    return Error{text};
  }

  const CommandLine& mLine;
  const Streams& mStreams;
  HeadlessSession mSession;
  std::optional<ComposedDocument> mComposed;  // the last one
  Settings mSettings;                         // before the first document
  std::vector<int> mJobs;  // without those that are known to have printed nothing
  std::string mLastTried;  // the document that the printer did not take
};

}  // namespace

Result<Done> printDocuments(const CommandLine& line, PluginLoader& plugIns,
                            const Streams& streams) {
  if (Result<Done> checked = checkFiles(line); !checked) return checked;
  Printing printing(line, plugIns, streams);
  return line.isEach ? printing.printEach() : printing.printTogether();
}

}  // namespace cutline
