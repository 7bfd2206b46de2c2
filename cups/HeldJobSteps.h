// The single steps by which a job that waits is printed: each is done by the server whole or not at
// all. All calls may block on it.
#pragma once

#include "base/OptionList.h"
#include "base/Result.h"
#include "base/TemporaryFile.h"
#include "cups/ServerOptions.h"

namespace cutline {

// The most that a job's document may have, in bytes: what is larger is not read anyway.
inline constexpr std::size_t kMostDocument = std::size_t{1} << 30U;

// The job's document. The server hands it to whoever sent the job alone. An error where it did not
// arrive whole.
Result<TemporaryFile> fetchJobDocument(const ServerOptions& server, int jobId);

// Puts options on a job over those that it has. It is held from then on, whatever it was before.
Result<Done> setHeldJobOptions(const ServerOptions& server, int jobId, const OptionList& options);
// Adds one option to a job and changes nothing else.
Result<Done> markJob(const ServerOptions& server, int jobId, const std::string& name,
                     const std::string& value);
// To a printer's queue, held as it is.
Result<Done> moveJob(const ServerOptions& server, int jobId, const std::string& printer);
// A job that is held no longer is no error.
Result<Done> releaseJob(const ServerOptions& server, int jobId);
// A job that has ended is no error.
Result<Done> cancelWaitingJob(const ServerOptions& server, int jobId);

}  // namespace cutline
