#include "host/dialog/Background.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

namespace cutline {

struct Background::Shared {
  // Hears on the maker's thread that there is something to deliver.
  class Receiver : public QObject {
   public:
    explicit Receiver(Shared& shared) : mShared(shared) {}
    bool event(QEvent* event) override {
      if (event->type() != QEvent::User) return QObject::event(event);
      mShared.deliver();
      return true;
    }

   private:
    Shared& mShared;
  };

  std::mutex mutex;
  std::condition_variable workEnded;
  std::unique_ptr<QObject> receiver = std::make_unique<Receiver>(*this);  // null: nobody listens
  std::deque<Delivery> deliveries;
  int running = 0;

  // Under the lock, so that the receiver cannot go in the middle of it. What is delivered changes
  // hands here and not in the toolkit's events, where a race detector does not see it.
  void post(Delivery delivery) {
    const std::scoped_lock lock(mutex);
    if (!receiver || !delivery) return;
    deliveries.push_back(std::move(delivery));
    QCoreApplication::postEvent(receiver.get(), new QEvent(QEvent::User));
  }

  // One for each event, as a delivery may end this.
  void deliver() {
    Delivery delivery;
    {
      const std::scoped_lock lock(mutex);
      delivery = std::move(deliveries.front());
      deliveries.pop_front();
    }
    delivery();
  }

  void end() {
    const std::scoped_lock lock(mutex);
    --running;
    workEnded.notify_all();
  }
};

Background::Background(std::chrono::milliseconds patience)
    : mPatience(patience), mShared(std::make_shared<Shared>()) {}

Background::~Background() {
  std::unique_ptr<QObject> receiver;
  std::deque<Delivery> undelivered;
  std::unique_lock lock(mShared->mutex);
  receiver = std::move(mShared->receiver);
  undelivered = std::move(mShared->deliveries);
  mShared->workEnded.wait_for(lock, mPatience, [this] { return mShared->running == 0; });
}

void Background::start(Work work) {
  {
    const std::scoped_lock lock(mShared->mutex);
    ++mShared->running;
  }
  std::thread([shared = mShared, work = std::move(work)]() mutable {
    shared->post(work());
    work = nullptr;
    shared->end();
  }).detach();
}

std::function<void(Background::Delivery)> Background::poster() const {
  return [shared = mShared](Delivery delivery) { shared->post(std::move(delivery)); };
}

}  // namespace cutline
