// An owner that keeps what an interface file connects to it, in the order of the calls.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/ports/Interface.h"

namespace cutline {

class RecordingOwner final : public InterfaceOwner {
 public:
  bool connectOutlet(const std::string& name, const std::shared_ptr<View>& view) noexcept override {
    calls.push_back("outlet " + name);
    if (refusedOutlets.contains(name)) return false;
    outlets[name] = view;
    return true;
  }

  ActionHandler actionNamed(const std::string& name) noexcept override {
    calls.push_back("action " + name);
    if (unknownActions.contains(name)) return {};
    return [this, name](View* sender) {
      calls.push_back("run " + name);
      lastSender = sender;
    };
  }

  void controlTextDidChange(const Notification& notification) noexcept override {
    textChanges.push_back(notification);
  }

  const InterfaceClasses* interfaceClasses() const noexcept override { return classes; }

  void awakeFromNib() noexcept override { calls.emplace_back("awake"); }

  // The control at an outlet; null when there is none of that kind.
  template <typename Port>
  Port* outlet(const std::string& name) const {
    const auto found = outlets.find(name);
    return found == outlets.end() ? nullptr : dynamic_cast<Port*>(found->second.get());
  }

  std::vector<std::string> calls;
  std::map<std::string, std::shared_ptr<View>> outlets;
  std::vector<Notification> textChanges;
  View* lastSender = nullptr;
  std::set<std::string> refusedOutlets;
  std::set<std::string> unknownActions;
  const InterfaceClasses* classes = nullptr;
};

}  // namespace cutline
