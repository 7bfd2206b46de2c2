// Keeps the order of actions and of what an action observer is told.
#pragma once

#include <string>
#include <vector>

#include "platform/ports/Controls.h"
#include "platform/ports/Toolkit.h"

namespace cutline {

class ActionLog : public ActionObserver {
 public:
  void actionDidFinish(View& sender) noexcept override {
    lines.emplace_back("finished");
    finished = &sender;
  }

  ActionHandler action() {
    return [this](View* sender) {
      lines.emplace_back("action");
      acted = sender;
    };
  }

  std::vector<std::string> lines;
  View* acted = nullptr;
  View* finished = nullptr;
};

inline const std::vector<std::string> kActedAndFinished = {"action", "finished"};

}  // namespace cutline
