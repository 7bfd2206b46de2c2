// Sends the jobs of the commands without a window, and follows them.
#pragma once

#include <string>
#include <vector>

#include "host/core/HeadlessSession.h"

namespace cutline {

// Sends the document at `path`, which was made of these files, with the options of the session's
// model, and names the job on the output. The job's number. `files` has at least one.
Result<int> sendDocument(const CommandLine& line, const std::string& path,
                         const std::vector<std::string>& files, HeadlessSession& session,
                         const Streams& streams);

// Blocks until the job has ended. An error when nothing came out.
Result<Done> followJob(const CommandLine& line, int job, HeadlessSession& session);

}  // namespace cutline
