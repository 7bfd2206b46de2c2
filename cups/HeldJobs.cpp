#include "cups/HeldJobs.h"

#include <algorithm>
#include <array>

#include "base/Numbers.h"
#include "cups/IppMessage.h"
#include "cups/ServerConnection.h"

namespace cutline {

namespace {

// A job of an answer, read attribute by attribute.
struct OwnJob {
  HeldJob job;
  ipp_jstate_t state = IPP_JSTATE_COMPLETED;
  bool isIncoming = false;
};

std::string joined(ipp_attribute_t* attribute, std::string (*one)(ipp_attribute_t*, int)) {
  std::string text;
  for (int i = 0; i < ippGetCount(attribute); ++i) text += (i > 0 ? "," : "") + one(attribute, i);
  return text;
}

std::string number(ipp_attribute_t* attribute, int at) {
  return std::to_string(ippGetInteger(attribute, at));
}

std::string word(ipp_attribute_t* attribute, int at) {
  const char* text = ippGetString(attribute, at, nullptr);
  return text ? text : "";
}

std::string flag(ipp_attribute_t* attribute, int at) {
  return ippGetBoolean(attribute, at) != 0 ? "true" : "false";
}

std::string range(ipp_attribute_t* attribute, int at) {
  int last = 0;
  const int first = ippGetRange(attribute, at, &last);
  return std::to_string(first) + '-' + std::to_string(last);
}

struct Form {
  ipp_tag_t tag;
  std::string (*text)(ipp_attribute_t*, int);
};

constexpr std::array kForms = std::to_array<Form>({{IPP_TAG_INTEGER, number},
                                                   {IPP_TAG_ENUM, number},
                                                   {IPP_TAG_BOOLEAN, flag},
                                                   {IPP_TAG_RANGE, range},
                                                   {IPP_TAG_KEYWORD, word},
                                                   {IPP_TAG_MIMETYPE, word},
                                                   {IPP_TAG_NAME, word},
                                                   {IPP_TAG_TEXT, word}});

// What has no form is no option that anybody could give by its name and value.
void addOption(ipp_attribute_t* attribute, OptionList& options) {
  const auto* form = std::ranges::find(kForms, ippGetValueTag(attribute), &Form::tag);
  if (form != kForms.end())
    options.emplace_back(ippGetName(attribute), joined(attribute, form->text));
}

bool says(ipp_attribute_t* attribute, const char* keyword) {
  for (int i = 0; i < ippGetCount(attribute); ++i)
    if (word(attribute, i) == keyword) return true;
  return false;
}

void read(ipp_attribute_t* attribute, OwnJob& own) {
  const std::string name = ippGetName(attribute);
  HeldJob& job = own.job;
  if (name == "job-id") job.id = ippGetInteger(attribute, 0);
  if (name == "job-state") own.state = static_cast<ipp_jstate_t>(ippGetInteger(attribute, 0));
  if (name == "job-state-reasons") own.isIncoming = says(attribute, "job-incoming");
  if (name == "number-of-documents") job.isWhole = ippGetInteger(attribute, 0) > 0;
  if (name == "job-name") job.title = word(attribute, 0);
  if (name == "job-printer-uri") job.queue = printerOfUri(word(attribute, 0));
  if (name == kAskForOption) job.printer = word(attribute, 0);
  if (name == kPrintedByOption) job.printedBy = numberIn<int>(joined(attribute, word));
  addOption(attribute, job.options);
}

// Every job of the answer in the order of their numbers. The jobs' attributes stand one behind the
// other, with one that is none in between.
std::vector<OwnJob> jobsIn(ipp_t* answer) {
  std::vector<OwnJob> jobs;
  bool isInJob = false;
  for (ipp_attribute_t* each = ippFirstAttribute(answer); each; each = ippNextAttribute(answer)) {
    const bool isOfJob = ippGetGroupTag(each) == IPP_TAG_JOB && ippGetName(each) != nullptr;
    if (isOfJob && !isInJob) jobs.emplace_back();
    isInJob = isOfJob;
    if (isOfJob) read(each, jobs.back());
  }
  for (OwnJob& own : jobs) own.job.isWhole = own.job.isWhole && !own.isIncoming;
  std::ranges::sort(jobs, {}, [](const OwnJob& own) { return own.job.id; });
  return jobs;
}

Result<std::vector<OwnJob>> ownJobs(const ServerOptions& server) {
  const auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  IppMessage request = newServerRequest(IPP_OP_GET_JOBS);
  ippAddBoolean(request.get(), IPP_TAG_OPERATION, "my-jobs", 1);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
               "all");
  const IppMessage answer = answerTo(connection->get(), std::move(request));
  if (!answer) return serverError("the jobs that wait are not known");
  return jobsIn(answer.get());
}

// A job that a program asked not to hold is not held; the queue is paused, so it waits all the
// same. On the printer it would be on its way.
bool waits(const OwnJob& own) {
  if (own.job.printer.empty() || own.job.queue.empty()) return false;
  if (own.state == IPP_JSTATE_HELD) return true;
  return own.state == IPP_JSTATE_PENDING && own.job.queue != own.job.printer;
}

}  // namespace

Result<std::vector<HeldJob>> heldJobs(const ServerOptions& server) {
  const Result<std::vector<OwnJob>> own = ownJobs(server);
  if (!own) return own.error();
  std::vector<HeldJob> held;
  for (const OwnJob& each : *own)
    if (waits(each)) held.push_back(each.job);
  return held;
}

Result<HeldJob> heldJob(const ServerOptions& server, int jobId) {
  const Result<std::vector<HeldJob>> held = heldJobs(server);
  if (!held) return held.error();
  const auto found = std::ranges::find(*held, jobId, &HeldJob::id);
  if (found != held->end()) return *found;
  return Error{"no job " + std::to_string(jobId) + " of yours waits to be asked about"};
}

Result<std::vector<int>> jobsInPlaceOf(const ServerOptions& server, int jobId) {
  const Result<std::vector<OwnJob>> own = ownJobs(server);
  if (!own) return own.error();
  const OptionList::value_type wanted(kInPlaceOfOption, std::to_string(jobId));
  std::vector<int> jobs;
  for (const OwnJob& each : *own)
    if (std::ranges::find(each.job.options, wanted) != each.job.options.end())
      jobs.push_back(each.job.id);
  return jobs;
}

}  // namespace cutline
