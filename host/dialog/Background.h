// Runs work that may block on threads of its own, and hands what it found to the thread that made
// this object. Nothing is delivered once this object is gone.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace cutline {

// For what only asks a server, and loses nothing when nobody hears the answer.
inline constexpr std::chrono::milliseconds kPatienceWithAnswers{200};

class Background {
 public:
  using Delivery = std::function<void()>;
  // Runs on another thread; what it answers runs on the maker's thread. Must hold everything that
  // it uses, because it may outlive this object. Throws nothing.
  using Work = std::function<Delivery()>;

  explicit Background(std::chrono::milliseconds patience = std::chrono::seconds(1));
  // Waits so long for work that is about to end; work that hangs on a silent server is left behind.
  ~Background();
  Background(const Background&) = delete;
  Background& operator=(const Background&) = delete;

  void start(Work work);

  // For news from the middle of the work: callable on any thread.
  std::function<void(Delivery)> poster() const;

 private:
  struct Shared;
  std::chrono::milliseconds mPatience;
  std::shared_ptr<Shared> mShared;
};

}  // namespace cutline
