// The real toolkit as the current platform's, with an ear for its beeps and for the notifications
// of text input at the default centre.
#pragma once

#include <vector>

#include "plain/LocaleTextEncodings.h"
#include "plain/RecordingSystemLog.h"
#include "platform/ports/NotificationCenter.h"
#include "platform/ports/Platform.h"
#include "qt/QtToolkit.h"

namespace cutline {

class TypingPlatform {
 public:
  struct BeepingToolkit : QtToolkit {
    void beep() noexcept override { ++beeps; }
    int beeps = 0;
  };

  TypingPlatform()
      : mBefore(setCurrentPlatform(
            {.toolkit = &toolkit, .systemLog = &log, .textEncodings = &encodings})) {
    for (const char* name : kNames) {
      NotificationCenter::defaultCenter().addObserver(
          this, [this](const Notification& notification) { posted.push_back(notification); }, name,
          {});
    }
  }
  ~TypingPlatform() {
    for (const char* name : kNames) {
      NotificationCenter::defaultCenter().removeObserver(this, name, {});
    }
    setCurrentPlatform(mBefore);
  }
  TypingPlatform(const TypingPlatform&) = delete;
  TypingPlatform& operator=(const TypingPlatform&) = delete;

  void clear() {
    posted.clear();
    toolkit.beeps = 0;
  }

  BeepingToolkit toolkit;
  RecordingSystemLog log;
  LocaleTextEncodings encodings{"UTF-8"};
  std::vector<Notification> posted;

 private:
  static constexpr const char* kNames[] = {"InvalidCharacterNotification",
                                           "FormatErrorNotification",
                                           "TextFieldResignFirstResponderNotification"};
  Platform mBefore;
};

}  // namespace cutline
