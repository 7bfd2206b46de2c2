#include "tests/access/EventLog.h"

#include <stdexcept>

namespace cutline::test {

EventLog::EventLog(const char* type)
    : mType(type), mListener(atspi_event_listener_new(take, this, nullptr)) {
  if (!atspi_event_listener_register(mListener, type, nullptr))
    throw std::runtime_error("the accessibility bus reports no " + mType);
}

EventLog::~EventLog() {
  atspi_event_listener_deregister(mListener, mType.c_str(), nullptr);
  g_object_unref(mListener);
}

std::vector<std::string> EventLog::sourcesWith(AtspiRole role) const {
  std::vector<std::string> names;
  for (const Accessible& source : mSources)
    if (source.role() == role) names.push_back(source.name());
  return names;
}

void EventLog::take(AtspiEvent* event, void* log) {
  auto* const source = static_cast<AtspiAccessible*>(g_object_ref(event->source));
  static_cast<EventLog*>(log)->mSources.emplace_back(source);
  g_boxed_free(ATSPI_TYPE_EVENT, event);
}

}  // namespace cutline::test
