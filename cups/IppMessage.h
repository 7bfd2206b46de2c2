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

// Takes the request and gives the answer; null where the server refuses it, with cupsLastError set.
IppMessage answerTo(http_t* http, IppMessage request);

// An attribute of an answer; empty, or nothing, where the answer lacks it.
std::string ippText(ipp_t* answer, const char* name, ipp_tag_t tag);
std::vector<std::string> ippKeywords(ipp_t* answer, const char* name);
std::optional<int> ippNumber(ipp_t* answer, const char* name, ipp_tag_t tag = IPP_TAG_INTEGER);

}  // namespace cutline
