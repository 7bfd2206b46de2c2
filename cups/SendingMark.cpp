#include "cups/SendingMark.h"

#include <array>
#include <random>
#include <string_view>
#include <utility>

#include "cups/IppMessage.h"
#include "cups/ServerConnection.h"

namespace cutline {

namespace {

// Attributes whose names begin with "job-" and those that are addresses are no options, so neither
// drivers nor filters get this one.
constexpr char kMarkName[] = "job-cutline-sending";

// The job's number stands before or behind the mark, and jobs are divided by what has no name.
std::optional<int> jobOf(ipp_t* answer, const std::string& mark) {
  int job = 0;
  bool isMarked = false;
  for (ipp_attribute_t* each = ippFirstAttribute(answer); each; each = ippNextAttribute(answer)) {
    const char* name = ippGetName(each);
    if (!name && isMarked) break;
    if (!name) job = 0;
    if (!name) continue;
    if (std::string_view(name) == "job-id") job = ippGetInteger(each, 0);
    if (std::string_view(name) != kMarkName) continue;
    const char* text = ippGetString(each, 0, nullptr);
    isMarked = text && text == mark;
  }
  return isMarked && job > 0 ? std::optional<int>(job) : std::nullopt;
}

}  // namespace

std::string newSendingMark() {
  std::random_device random;
  std::array<char, 64> uuid{};
  httpAssembleUUID("localhost", 0, std::to_string(random()).c_str(),
                   static_cast<int>(random() >> 1), uuid.data(), uuid.size());
  return uuid.data();
}

void addSendingMark(ipp_t* request, const std::string& mark) {
  ippAddString(request, IPP_TAG_JOB, IPP_TAG_URI, kMarkName, nullptr, mark.c_str());
}

Result<std::optional<int>> jobWithMark(const ServerOptions& server, const std::string& mark) {
  constexpr std::array kWanted{"job-id", kMarkName};
  const auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  IppMessage request = newServerRequest(IPP_OP_GET_JOBS);
  ippAddBoolean(request.get(), IPP_TAG_OPERATION, "my-jobs", 1);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr, "all");
  ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                kWanted.size(), nullptr, kWanted.data());
  const IppMessage answer = answerTo(connection->get(), std::move(request));
  if (answer) return jobOf(answer.get(), mark);
  return serverError("the jobs are not known");
}

}  // namespace cutline
