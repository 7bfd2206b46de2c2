#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <atomic>
#include <future>
#include <thread>

#include "host/dialog/Background.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {

namespace {

TEST(BackgroundTest, WorksOnAnotherThreadAndDeliversOnThisOne) {
  Background background;
  std::thread::id worker;
  std::thread::id receiver;
  background.start([&]() -> Background::Delivery {
    worker = std::this_thread::get_id();
    return [&] { receiver = std::this_thread::get_id(); };
  });
  ASSERT_TRUE(waitUntil([&] { return receiver != std::thread::id(); }));
  EXPECT_EQ(receiver, std::this_thread::get_id());
  EXPECT_NE(worker, receiver);
}

TEST(BackgroundTest, DeliversNothingOnceItIsGone) {
  std::promise<void> released;
  const std::shared_future<void> release = released.get_future().share();
  auto isDelivered = std::make_shared<std::atomic<bool>>(false);
  {
    Background background;
    background.start([release, isDelivered]() -> Background::Delivery {
      release.wait();
      return [isDelivered] { *isDelivered = true; };
    });
  }
  released.set_value();
  QTest::qWait(30);
  EXPECT_FALSE(*isDelivered);
}

TEST(BackgroundTest, WaitsNoLongerForWorkThatHangsThanItIsTold) {
  std::promise<void> released;
  const std::shared_future<void> release = released.get_future().share();
  QElapsedTimer time;
  {
    Background background(std::chrono::milliseconds(50));
    background.start([release]() -> Background::Delivery {
      release.wait();
      return {};
    });
    time.start();
  }
  EXPECT_GE(time.elapsed(), 50);
  EXPECT_LT(time.elapsed(), 500);
  released.set_value();
}

TEST(BackgroundTest, PostsNewsFromTheMiddleInOrder) {
  Background background;
  std::string news;
  background.start([&news, post = background.poster()]() -> Background::Delivery {
    post([&news] { news += "a"; });
    post([&news] { news += "b"; });
    return [&news] { news += "c"; };
  });
  EXPECT_TRUE(waitUntil([&] { return news == "abc"; }));
}

}  // namespace

}  // namespace cutline
