// A print model on controls that nobody sees, for the commands without a window.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "composition/Composer.h"
#include "host/core/CommandLine.h"
#include "host/core/HostPlatform.h"
#include "host/core/PluginLoader.h"
#include "host/core/PrintModel.h"
#include "plain/PlainToolkit.h"

namespace cutline {

// Where a command writes what was asked of it, one line "cutline: ..." for each thing to know that
// is no failure, and the same for what went wrong while it goes on.
struct Streams {
  std::ostream& out;
  std::ostream& notes;
  std::ostream& errors;
};

class HeadlessSession {
 public:
  // All are borrowed and outlive the session.
  HeadlessSession(const CommandLine& line, PluginLoader& plugIns, std::ostream& notes);

  PrintModel& model() { return mModel; }

  void open(const PrinterChoice& choice);
  // Opens the printer of the command line, and tells what will be otherwise than asked.
  Result<Done> openSelected();
  // The same for a command that is to compose the line's documents: the composer starts while the
  // printer is looked for.
  Result<Done> openToCompose();
  // Starts a composer for these documents.
  void startComposer(const std::vector<std::string>& files);
  // The composer that was started last, or one of the line's documents.
  StartedComposer& composer();
  // What the notes that follow are about, such as one of many documents; empty for nothing.
  void setSubject(std::string subject) { mSubject = std::move(subject); }
  void note(const std::string& text);

 private:
  const CommandLine& mLine;
  PluginLoader& mPlugIns;
  std::ostream& mNotes;
  PlainToolkit mToolkit;
  HostPlatform mPlatform;
  PrintModel mModel;
  std::optional<StartedComposer> mComposer;
  std::string mSubject;
};

}  // namespace cutline
