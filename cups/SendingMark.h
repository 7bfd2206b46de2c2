// Finds out what became of a job whose sending ended without the server's answer.
#pragma once

#include <cups/cups.h>

#include <optional>
#include <string>

#include "base/Result.h"
#include "cups/ServerOptions.h"

namespace cutline {

// A word that no other job has.
std::string newSendingMark();

// Puts the mark on the job that a request makes. The server keeps it with the job; drivers do not
// get to see it.
void addSendingMark(ipp_t* request, const std::string& mark);

// One's own job with the mark, ended or not; nothing where the server has none. Asks on a
// connection of its own, and may block.
Result<std::optional<int>> jobWithMark(const ServerOptions& server, const std::string& mark);

}  // namespace cutline
