// The commands that compose a document: --print, which sends it, and --dry-run, which keeps it.
#pragma once

#include "composition/Composer.h"
#include "host/core/HeadlessSession.h"

namespace cutline {

// What can be said of the command line's documents without a printer is said before one is asked.
Result<Done> checkFiles(const CommandLine& line);
// The line's documents on labels. Where the length follows them, the session's model has it
// afterwards.
Result<ComposedDocument> composeFor(HeadlessSession& session);

// Prints the documents of the command line; with --wait it ends when the job has ended.
Result<Done> printDocuments(const CommandLine& line, PluginLoader& plugIns, const Streams& streams);

// Writes the very document that would be sent into line.dryRunPath, and the options that would go
// with it to the output.
Result<Done> keepDocument(const CommandLine& line, PluginLoader& plugIns, const Streams& streams);

}  // namespace cutline
