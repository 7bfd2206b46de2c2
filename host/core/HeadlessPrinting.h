// The command that prints: --print.
#pragma once

#include "host/core/HeadlessSession.h"

namespace cutline {

// Prints the documents of the command line as one job, or as one each. With --wait it ends when the
// jobs have ended.
//
// Where each is a job of its own, a document that cannot be laid out is told of as an error, and
// the others are printed; once the printer takes a document no more, none behind it is tried. The
// answer is an error then, with the number of documents that were not printed.
Result<Done> printDocuments(const CommandLine& line, PluginLoader& plugIns, const Streams& streams);

}  // namespace cutline
