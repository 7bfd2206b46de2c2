// Composes nothing, and says what it was asked.
#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "host/dialog/Composing.h"

namespace cutline {

// Every document of the fake has as many pages as were set, of one size. Callable on any thread.
class FakeComposer : public std::enable_shared_from_this<FakeComposer> {
 public:
  // What the dialog composes and draws with; keeps this object.
  DocumentTools tools();

  void setPages(int pages, const PageSize& size = {141.73, 68.03}, double scale = 1);
  // While only the first label is asked for, there may be more than those that are counted.
  void setPartial();
  // To who asks: nothing of any page reaches out of the printable area.
  void setPrintableInk();
  // Grey reaches this many points out of the printable area.
  void setBleed(double points);
  // The length that a label gets where the content chooses it.
  void setContentLength(double points);
  // An empty reason ends it.
  void fail(const std::string& reason);
  // From now on answers wait until they are let go, or stopped.
  void hold();
  // The same for those that want more than the first label.
  void holdRest();
  void letGo();

  std::vector<CompositionRequest> requests();
  void forgetRequests();
  // The documents of the last one.
  std::vector<std::string> paths();
  // How many of the requests were answered, and how many stopped while they waited.
  int answered();
  int stopped();

 private:
  Result<ComposedDocument> compose(const std::vector<std::string>& paths,
                                   const CompositionRequest& request, const std::stop_token& stop);
  CompositionReport reportFor(const CompositionRequest& request) const;

  std::mutex mMutex;
  std::condition_variable_any mLetGo;
  std::vector<CompositionRequest> mRequests;
  std::vector<std::string> mPaths;
  std::string mFailure;
  int mPages = 3;
  ComposedPage mPage{{141.73, 68.03}, 1, 0};
  double mBleed = 0;
  double mContentLength = 100;
  int mAnswered = 0;
  int mStopped = 0;
  bool mIsPartial = false;
  bool mHasPrintableInk = false;
  bool mIsHeld = false;
  bool mIsRestHeld = false;
};

// What the fake's file holds for a request.
std::string composedText(const CompositionRequest& request);

}  // namespace cutline
