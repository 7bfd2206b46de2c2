// The tokens by which an application that has chosen settings asks to print with them.
#pragma once

#include <QString>
#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <variant>

#include "portal/ChosenJob.h"

namespace cutline::portal {

// What stands behind a token: what was chosen here, or a token of the desktop's own dialog.
struct OwnTicket {
  ChosenJob job;
  QString title;  // of the job; empty where nobody has named the document
};
struct ForeignTicket {
  quint32 token = 0;
};
using Ticket = std::variant<OwnTicket, ForeignTicket>;

class Tickets {
 public:
  using Clock = std::function<std::chrono::steady_clock::time_point()>;
  static constexpr std::chrono::minutes kLifetime{5};

  explicit Tickets(Clock clock = std::chrono::steady_clock::now) : mClock(std::move(clock)) {}

  // A token that nobody can guess; never 0.
  quint32 give(const QString& appId, Ticket ticket);
  // Once only, to the application that it was given to, and while it is fresh.
  std::optional<Ticket> take(quint32 token, const QString& appId);

 private:
  struct Entry {
    QString appId;
    Ticket ticket;
    std::chrono::steady_clock::time_point end;
  };
  void forgetOld();

  Clock mClock;
  std::map<quint32, Entry> mEntries;
};

}  // namespace cutline::portal
