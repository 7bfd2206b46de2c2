#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <thread>

#include "host/core/SpooledDocument.h"

namespace cutline {
namespace {

class Pipe {
 public:
  Pipe() { EXPECT_EQ(::pipe(mEnds), 0); }
  ~Pipe() { ::close(mEnds[0]); }
  int readEnd() const { return mEnds[0]; }
  void writeAndClose(const std::string& text) {
    EXPECT_EQ(::write(mEnds[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
    ::close(mEnds[1]);
  }

 private:
  int mEnds[2] = {-1, -1};
};

std::string contents(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

TEST(SpooledDocument, KeepsWhatWasReadInAPrivateFileWithoutAName) {
  Pipe pipe;
  const std::string text(300000, 'x');
  std::thread writer([&] { pipe.writeAndClose(text); });
  auto document = SpooledDocument::read(pipe.readEnd());
  writer.join();
  ASSERT_TRUE(document) << document.error().message;
  const std::string path = (*document)->path();
  EXPECT_EQ(contents(path), text);
  struct stat status {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
  EXPECT_EQ(status.st_nlink, 0U) << "it has a name";
}

TEST(SpooledDocument, AnEmptyInputIsAnError) {
  Pipe pipe;
  pipe.writeAndClose("");
  EXPECT_FALSE(SpooledDocument::read(pipe.readEnd()));
}

TEST(SpooledDocument, AnUnreadableInputIsAnError) { EXPECT_FALSE(SpooledDocument::read(-1)); }

}  // namespace
}  // namespace cutline
