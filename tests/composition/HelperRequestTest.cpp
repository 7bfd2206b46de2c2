#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <thread>

#include "composition/HelperRequest.h"
#include "tests/composition/MemoryFile.h"

namespace cutline::test {
namespace {

using namespace std::chrono_literals;

class HelperRequestTest : public testing::Test {
 protected:
  HelperRequestTest() {
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return;
    mAsks = FileDescriptor(ends[0]);
    mAnswers = FileDescriptor(ends[1]);
  }
  void SetUp() override { ASSERT_TRUE(mAsks && mAnswers); }

  FileDescriptor mAsks;
  FileDescriptor mAnswers;
};

std::string contentsOf(const FileDescriptor& file) {
  char text[16];
  const ssize_t count = ::pread(file.get(), text, sizeof text, 0);
  return {text, static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
}

TEST_F(HelperRequestTest, FilesKeepTheirOrder) {
  constexpr int kFiles = 600;  // more than two messages take
  const MemoryFile files[] = {MemoryFile("zero"), MemoryFile("one"), MemoryFile("two")};
  std::vector<int> sent;
  for (int at = 0; at < kFiles; ++at) sent.push_back(files[at % 3].descriptor());
  sendFiles(mAsks.get(), sent);
  const auto received = receiveFiles(mAnswers.get());
  ASSERT_TRUE(received);
  ASSERT_EQ(received->size(), sent.size());
  for (int at = 0; at < kFiles; ++at)
    ASSERT_EQ(contentsOf((*received)[static_cast<std::size_t>(at)]), files[at % 3].bytes()) << at;
}

TEST_F(HelperRequestTest, TextFollowsTheFiles) {
  const MemoryFile file("content");
  sendFiles(mAsks.get(), std::vector{file.descriptor()});
  const auto files = receiveFiles(mAnswers.get());
  ASSERT_TRUE(files);
  EXPECT_EQ(files->size(), 1U);
  EXPECT_FALSE(isTextSent(mAnswers.get()));
  const std::string text(1U << 20U, 't');
  std::thread sender([&] {
    sendText(mAsks.get(), text, 10s);
    mAsks = FileDescriptor();
  });
  EXPECT_EQ(receiveText(mAnswers.get()), text);
  sender.join();
  EXPECT_TRUE(isTextSent(mAnswers.get())) << "its end is there";
}

TEST_F(HelperRequestTest, NoFilesAreNoRequest) {
  mAsks = FileDescriptor();
  EXPECT_EQ(receiveFiles(mAnswers.get()), std::nullopt);
}

TEST_F(HelperRequestTest, MayHaveNoFileAtAll) {
  sendFiles(mAsks.get(), {});
  const auto files = receiveFiles(mAnswers.get());
  ASSERT_TRUE(files);
  EXPECT_TRUE(files->empty());
}

TEST_F(HelperRequestTest, ATextThatNobodyTakesIsGivenUp) {
  const auto start = std::chrono::steady_clock::now();
  sendText(mAsks.get(), std::string(8U << 20U, 't'), 200ms);
  EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
}

}  // namespace
}  // namespace cutline::test
