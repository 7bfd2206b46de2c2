// The platform of a test: the plain toolkit and its encodings with a few screws to turn, current
// as long as the object lives.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "plain/LocaleTextEncodings.h"
#include "plain/PlainImage.h"
#include "plain/PlainToolkit.h"
#include "plain/PlainView.h"
#include "platform/lib/LocalNotificationCenter.h"
#include "platform/ports/Platform.h"
#include "platform/ports/System.h"

namespace cutline::test {

class TestToolkit : public PlainToolkit {
 public:
  std::shared_ptr<CustomView> createCustomView(const Rect& frame,
                                               CustomViewClient* client) noexcept override {
    return makesCustomViews ? PlainToolkit::createCustomView(frame, client) : nullptr;
  }
  // Any path is a picture of the preview's size; no file is read.
  std::shared_ptr<Image> imageWithContentsOfFile(const std::string& path) noexcept override {
    ++imagesLoaded;
    return std::make_shared<PlainImage>(path, Size{264, 84});
  }
  bool hasKeyWindow() const noexcept override {
    return keyWindowVanishes || PlainToolkit::hasKeyWindow();
  }

  bool makesCustomViews = true;
  bool keyWindowVanishes = false;  // it is there, and has no frame any more
  int imagesLoaded = 0;
};

// Version answers by selector; a selector without one fails.
class TestSystemVersion : public SystemVersion {
 public:
  OSStatus gestalt(std::uint32_t selector, std::int32_t* response) noexcept override {
    ++queries;
    const auto found = answers.find(selector);
    if (found == answers.end()) return gestaltUndefSelectorErr;
    *response = found->second;
    return noErr;
  }
  void setVersion(std::int32_t major, std::int32_t minor) {
    answers = {{gestaltSystemVersionMajor, major},
               {gestaltSystemVersionMinor, minor},
               {gestaltSystemVersionBugFix, 0}};
  }

  std::map<std::uint32_t, std::int32_t> answers;
  int queries = 0;
};

class TestPlatform {
 public:
  explicit TestPlatform(const std::string& systemCodeset = "UTF-8") : encodings(systemCodeset) {
    version.setVersion(11, 0);
    mBefore = setCurrentPlatform({.toolkit = &toolkit,
                                  .systemVersion = &version,
                                  .textEncodings = &encodings,
                                  .notificationCenter = &center});
  }
  ~TestPlatform() { setCurrentPlatform(mBefore); }
  TestPlatform(const TestPlatform&) = delete;
  TestPlatform& operator=(const TestPlatform&) = delete;

  // Takes one port away, as a host may that has none.
  void dropToolkit() { replace(nullptr, &encodings); }
  void dropTextEncodings() { replace(&toolkit, nullptr); }

  TestToolkit toolkit;
  TestSystemVersion version;
  LocaleTextEncodings encodings;
  LocalNotificationCenter center;

 private:
  void replace(Toolkit* toolkitNow, TextEncodings* encodingsNow) {
    setCurrentPlatform({.toolkit = toolkitNow,
                        .systemVersion = &version,
                        .textEncodings = encodingsNow,
                        .notificationCenter = &center});
  }

  Platform mBefore;
};

}  // namespace cutline::test
