// Documents on labels for the commands without a window, and the one that keeps them: --dry-run.
#pragma once

#include "composition/Composer.h"
#include "host/core/HeadlessSession.h"

namespace cutline {

// What can be said of the command line's documents without a printer is said before one is asked.
Result<Done> checkFiles(const CommandLine& line);

// The documents that the session's composer has, on labels. Where the length follows them, the
// session's model has it afterwards. `seeksInk` as CompositionRequest has it: for noteEdgeLoss.
Result<ComposedDocument> composeFor(HeadlessSession& session, bool seeksInk);
// Notes what the printer cannot print of them. Where that cannot be told otherwise it draws them,
// which takes longer than to send them.
void noteEdgeLoss(const CommandLine& line, const ComposedDocument& composed,
                  HeadlessSession& session);

// Writes the very document that would be sent into line.dryRunPath, and the options that would go
// with it to the output.
Result<Done> keepDocument(const CommandLine& line, PluginLoader& plugIns, const Streams& streams);

}  // namespace cutline
