// What is asked of a print server, and its answers.
#pragma once

#include <cups/cups.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace cutline {

struct FreeIpp {
  void operator()(ipp_t* ipp) const noexcept { ippDelete(ipp); }
};
using IppMessage = std::unique_ptr<ipp_t, FreeIpp>;

// A request about a printer of the server.
IppMessage newPrinterRequest(ipp_op_t operation, const std::string& printer);
// A request about the whole server, or about one of its jobs, in the name of this thread's user.
IppMessage newServerRequest(ipp_op_t operation);
IppMessage newJobRequest(ipp_op_t operation, int jobId);
// The name by which a job knows a printer of the server, and the printer that such a name means;
// empty where it means none.
std::string printerUri(const std::string& printer);
std::string printerOfUri(const std::string& uri);

// Takes the request and gives the answer; null where the server refuses it, with cupsLastError set.
// Servers that protect what administrators do ask who one is at "/admin/".
IppMessage answerTo(http_t* http, IppMessage request, const char* resource = "/");

// An attribute of an answer; empty, or nothing, where the answer lacks it.
std::string ippText(ipp_t* answer, const char* name, ipp_tag_t tag);
std::vector<std::string> ippKeywords(ipp_t* answer, const char* name);
std::optional<int> ippNumber(ipp_t* answer, const char* name, ipp_tag_t tag = IPP_TAG_INTEGER);

}  // namespace cutline
