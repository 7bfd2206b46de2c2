#include "composition/reader/InkWork.h"

#include <qpdf/Pipeline.hh>
#include <stdexcept>
#include <utility>

#include "composition/reader/ContentInk.h"
#include "composition/reader/EmbeddedFont.h"
#include "composition/reader/Type3Font.h"

namespace cutline {
namespace {

// More would take longer than to draw it.
constexpr int kMostOperations = 50'000;
constexpr std::size_t kMostContent = 4U << 20U;
constexpr int kDeepest = 12;

// Keeps what comes, up to what is left.
class LimitedText : public Pipeline {
 public:
  explicit LimitedText(std::size_t most) : Pipeline("content", nullptr), mMost(most) {}

  void write(const unsigned char* bytes, std::size_t size) override {
    if (mText.size() + size > mMost) throw std::runtime_error("the content is too long");
    mText.append(reinterpret_cast<const char*>(bytes), size);
  }
  void finish() override {}
  std::string take() { return std::move(mText); }

 private:
  std::size_t mMost;
  std::string mText;
};

}  // namespace

InkWork::Within::Within(InkWork& work) : mWork(work) {
  if (work.mDepth >= kDeepest) throw std::runtime_error("the contents are too deep");
  ++work.mDepth;
}

void InkWork::countOperation() {
  if (++mOperations > kMostOperations) throw std::runtime_error("the contents are too long");
}

std::string InkWork::contentOf(QPDFObjectHandle stream) {
  LimitedText text(kMostContent - mBytes);
  bool isUnpacked = false;
  const bool isWhole = stream.pipeStreamData(&text, &isUnpacked, 0, qpdf_dl_specialized,
                                             /*suppress_warnings=*/true);
  if (!isWhole || !isUnpacked) throw std::runtime_error("the content cannot be read");
  std::string content = text.take();
  mBytes += content.size();
  return content;
}

GlyphFont& InkWork::fontOf(QPDFObjectHandle font, QPDFObjectHandle resources) {
  if (!font.isDictionary()) throw std::runtime_error("there is no such font");
  GlyphFont*& known = mKnownFonts[font.getObjGen()];
  // One without a number may be any.
  if (known != nullptr && font.isIndirect()) return *known;
  mFonts.push_back(newFont(std::move(font), std::move(resources)));
  return *(known = mFonts.back().get());
}

std::unique_ptr<GlyphFont> InkWork::newFont(QPDFObjectHandle font, QPDFObjectHandle resources) {
  if (!font.getKey("/Subtype").isNameAndEquals("/Type3"))
    return std::make_unique<EmbeddedFont>(
        std::move(font), [this](QPDFObjectHandle file) { return contentOf(std::move(file)); });
  return std::make_unique<Type3Font>(
      std::move(font), std::move(resources),
      [this](QPDFObjectHandle glyph, QPDFObjectHandle drawnWith) {
        return ContentInk(*this, std::move(drawnWith), {}).ofStream(std::move(glyph));
      });
}

}  // namespace cutline
