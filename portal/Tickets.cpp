#include "portal/Tickets.h"

#include <QRandomGenerator>
#include <utility>

namespace cutline::portal {

quint32 Tickets::give(const QString& appId, Ticket ticket) {
  forgetOld();
  quint32 token = 0;
  while (token == 0 || mEntries.contains(token)) token = QRandomGenerator::system()->generate();
  mEntries.emplace(token, Entry{appId, std::move(ticket), mClock() + kLifetime});
  return token;
}

std::optional<Ticket> Tickets::take(quint32 token, const QString& appId) {
  forgetOld();
  const auto found = mEntries.find(token);
  if (found == mEntries.end() || found->second.appId != appId) return std::nullopt;
  Ticket ticket = std::move(found->second.ticket);
  mEntries.erase(found);
  return ticket;
}

void Tickets::forgetOld() {
  const auto now = mClock();
  std::erase_if(mEntries, [&](const auto& each) { return each.second.end <= now; });
}

}  // namespace cutline::portal
