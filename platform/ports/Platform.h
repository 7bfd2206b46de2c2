// The ports that stand behind the current process, set by the host before it loads a bundle and
// asked for by bundles. Lives in the platform's shared library, so that it exists once.
#pragma once

namespace cutline {

class NotificationCenter;
class SystemLog;
class SystemVersion;
class TextEncodings;
class Toolkit;

// Borrowed pointers; each outlives every bundle object. `notificationCenter` null means the
// library's own.
struct Platform {
  Toolkit* toolkit = nullptr;
  SystemVersion* systemVersion = nullptr;
  SystemLog* systemLog = nullptr;
  TextEncodings* textEncodings = nullptr;
  NotificationCenter* notificationCenter = nullptr;
};

const Platform& currentPlatform() noexcept;
// Answers the set that was current before.
Platform setCurrentPlatform(const Platform& platform) noexcept;

}  // namespace cutline
