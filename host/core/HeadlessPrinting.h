// The commands that compose a document: --print, which sends it, and --dry-run, which keeps it.
#pragma once

#include "host/core/HeadlessSession.h"

namespace cutline {

// Prints the documents of the command line; with --wait it ends when the job has ended.
Result<Done> printDocuments(const CommandLine& line, PluginLoader& plugIns, const Streams& streams);

// Writes the very document that would be sent into line.dryRunPath, and the options that would go
// with it to the output.
Result<Done> keepDocument(const CommandLine& line, PluginLoader& plugIns, const Streams& streams);

}  // namespace cutline
