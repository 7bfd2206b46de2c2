// Where the diagnostic functions write, and an object that they describe.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "bundle/format/Describable.h"
#include "plain/RecordingSystemLog.h"
#include "tests/bundle/TestPlatform.h"

namespace cutline::test {

// A platform with a system log.
class LoggingPlatform {
 public:
  explicit LoggingPlatform(const std::string& systemCodeset = "UTF-8") : mPlatform(systemCodeset) {
    setLog(&mLog);
  }
  void dropLog() { setLog(nullptr); }
  const std::vector<std::string>& messages() const { return mLog.messages(); }
  TestPlatform& platform() { return mPlatform; }

 private:
  static void setLog(SystemLog* log) {
    Platform now = currentPlatform();
    now.systemLog = log;
    setCurrentPlatform(now);
  }

  RecordingSystemLog mLog;
  TestPlatform mPlatform;
};

class TestObject : public Describable {
 public:
  explicit TestObject(std::string description) : mDescription(std::move(description)) {}
  std::string description() const noexcept override { return mDescription; }

 private:
  std::string mDescription;
};

// Two descriptors, and what was written to the one.
class Channel {
 public:
  // Of pipe() or socketpair().
  explicit Channel(const std::array<int, 2>& ends) : mEnds(ends) {}
  static Channel pipe() {
    std::array<int, 2> ends{-1, -1};
    EXPECT_EQ(::pipe(ends.data()), 0);
    return Channel(ends);
  }
  ~Channel() {
    close(mEnds[0]);
    closeInput();
  }
  Channel(const Channel&) = delete;
  Channel& operator=(const Channel&) = delete;

  int input() const { return mEnds[1]; }
  void closeInput() {
    if (mEnds[1] >= 0) close(mEnds[1]);
    mEnds[1] = -1;
  }
  // What one read gives.
  std::string next() const {
    std::array<char, 4096> buffer{};
    const auto count = read(mEnds[0], buffer.data(), buffer.size());
    return std::string(buffer.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
  }
  // Everything; nothing can be written afterwards.
  std::string all() {
    closeInput();
    std::string text;
    for (std::string part = next(); !part.empty(); part = next()) text += part;
    return text;
  }

 private:
  std::array<int, 2> mEnds;
};

// What is written to standard error meanwhile.
inline std::string onStandardError(const std::function<void()>& function) {
  testing::internal::CaptureStderr();
  function();
  return testing::internal::GetCapturedStderr();
}

// What is written to a pipe.
inline std::string onPipe(const std::function<void(int descriptor)>& function) {
  Channel channel = Channel::pipe();
  function(channel.input());
  return channel.all();
}

}  // namespace cutline::test
