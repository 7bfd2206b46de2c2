#include "cups/JobEvents.h"

#include <algorithm>
#include <array>

#include "cups/IppMessage.h"
#include "cups/ServerConnection.h"

namespace cutline {

namespace {

// The server forgets a subscription that was not renewed for so long.
constexpr std::chrono::seconds kLease{1800};
constexpr std::array kEvents{"job-created",   "job-state-changed", "job-config-changed",
                             "printer-added", "printer-deleted",   "printer-modified"};

void addLease(ipp_t* request) {
  ippAddInteger(request, IPP_TAG_SUBSCRIPTION, IPP_TAG_INTEGER, "notify-lease-duration",
                static_cast<int>(kLease.count()));
}

IppMessage aboutSubscription(ipp_op_t operation, const char* name, int subscription) {
  IppMessage request = newServerRequest(operation);
  ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, name, subscription);
  return request;
}

IppMessage newSubscription() {
  IppMessage request = newServerRequest(IPP_OP_CREATE_PRINTER_SUBSCRIPTIONS);
  ippAddString(request.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_KEYWORD, "notify-pull-method", nullptr,
               "ippget");
  ippAddStrings(request.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_KEYWORD, "notify-events",
                kEvents.size(), nullptr, kEvents.data());
  addLease(request.get());
  return request;
}

// The highest number among the events of an answer; 0 without any.
int lastEvent(ipp_t* answer) {
  int last = 0;
  for (ipp_attribute_t* each = ippFirstAttribute(answer); each; each = ippNextAttribute(answer)) {
    const char* name = ippGetName(each);
    if (name != nullptr && std::string_view(name) == "notify-sequence-number")
      last = std::max(last, ippGetInteger(each, 0));
  }
  return last;
}

}  // namespace

JobEvents::~JobEvents() {
  if (mSubscription == 0) return;
  const auto connection = ServerConnection::open(mServer);
  if (!connection) return;
  answerTo(connection->get(),
           aboutSubscription(IPP_OP_CANCEL_SUBSCRIPTION, "notify-subscription-id", mSubscription));
}

JobEvents::News JobEvents::look(Clock::time_point now) {
  if (mSubscription == 0) return subscribe(now);
  if (now >= mRenewal) renew(now);
  const auto connection = ServerConnection::open(mServer);
  if (!connection) return News::noServer;
  IppMessage request =
      aboutSubscription(IPP_OP_GET_NOTIFICATIONS, "notify-subscription-ids", mSubscription);
  ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-sequence-numbers",
                mNext);
  const IppMessage answer = answerTo(connection->get(), std::move(request));
  if (!answer) {
    mSubscription = 0;
    return subscribe(now);
  }
  const int last = lastEvent(answer.get());
  if (last < mNext) return News::none;
  mNext = last + 1;
  return News::some;
}

JobEvents::News JobEvents::subscribe(Clock::time_point now) {
  const auto connection = ServerConnection::open(mServer);
  if (!connection) return News::noServer;
  const IppMessage answer = answerTo(connection->get(), newSubscription());
  if (!answer) return News::unknown;
  mSubscription = ippNumber(answer.get(), "notify-subscription-id").value_or(0);
  if (mSubscription == 0) return News::unknown;
  mNext = 1;
  mRenewal = now + kLease / 2;
  return News::some;
}

// Where that fails the server has forgotten it, which the next question shows.
void JobEvents::renew(Clock::time_point now) {
  const auto connection = ServerConnection::open(mServer);
  if (!connection) return;
  IppMessage request =
      aboutSubscription(IPP_OP_RENEW_SUBSCRIPTION, "notify-subscription-id", mSubscription);
  addLease(request.get());
  answerTo(connection->get(), std::move(request));
  mRenewal = now + kLease / 2;
}

}  // namespace cutline
