// A file that the print server hands out.
#pragma once

#include <cups/http.h>

#include <string>

#include "base/Result.h"

namespace cutline {

struct ServerFile {
  http_status_t status = HTTP_STATUS_ERROR;
  std::string contents;  // empty but for HTTP_STATUS_OK
};

// Asks for a file as cupsGetFd does, into memory. An error, which calls the file `name`, where it
// has more than `most` bytes, and where it did not arrive whole: a part of a file must never be
// taken for the file. A refusal is in the answer's status.
Result<ServerFile> fetchServerFile(http_t* http, const std::string& resource, std::size_t most,
                                   const Sentence& name);

}  // namespace cutline
