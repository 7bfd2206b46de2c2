// A text field's client that writes down what it is told and passes each event on, or keeps it.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "platform/ports/NotificationCenter.h"
#include "platform/ports/TextField.h"

namespace cutline {

class RecordingClient : public TextFieldClient {
 public:
  RecordingClient(TextField& field, std::vector<std::string>& events)
      : mField(field), mEvents(events) {}

  bool becomeFirstResponder() noexcept override {
    mEvents.emplace_back("become");
    return takesKeyboard && mField.superBecomeFirstResponder();
  }
  void textDidEndEditing(const Notification& notification) override {
    mEvents.push_back("end " + notification.name);
    lastObject = notification.object;
    if (raises) throw std::runtime_error("from the toolkit");
    if (passesOn) mField.superTextDidEndEditing(notification);
    resigned = mField.superResignFirstResponder();
  }
  void selectText(View* sender) noexcept override {
    mEvents.emplace_back("select");
    lastSender = sender;
  }
  void textDidChange(const Notification& notification) noexcept override {
    mEvents.push_back("change " + notification.name);
    lastObject = notification.object;
    if (passesOn) mField.superTextDidChange(notification);
  }

  bool takesKeyboard = true;
  bool passesOn = true;
  bool raises = false;
  bool resigned = false;
  NotificationObject lastObject;
  View* lastSender = nullptr;

 private:
  TextField& mField;
  std::vector<std::string>& mEvents;
};

}  // namespace cutline
