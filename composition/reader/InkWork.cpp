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
constexpr std::size_t kMostFonts = 100;

// Keeps what comes, while that is not too much together with all before it.
class LimitedText : public Pipeline {
 public:
  explicit LimitedText(std::size_t& total) : Pipeline("content", nullptr), mTotal(total) {}

  void write(const unsigned char* bytes, std::size_t size) override {
    mTotal += size;
    if (mTotal > kMostContent) throw std::runtime_error("the content is too long");
    mText.append(reinterpret_cast<const char*>(bytes), size);
  }
  void finish() override {}
  std::string take() { return std::move(mText); }

 private:
  std::size_t& mTotal;
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
  LimitedText text(mBytes);
  bool isUnpacked = false;
  const bool isWhole = stream.pipeStreamData(&text, &isUnpacked, 0, qpdf_dl_specialized,
                                             /*suppress_warnings=*/true);
  if (!isWhole || !isUnpacked) throw std::runtime_error("the content cannot be read");
  return text.take();
}

GlyphFont& InkWork::fontOf(QPDFObjectHandle font, QPDFObjectHandle resources) {
  if (!font.isDictionary()) throw std::runtime_error("there is no such font");
  GlyphFont*& known = mKnownFonts[font.getObjGen()];
  // One without a number may be any.
  if (known != nullptr && font.isIndirect()) return *known;
  if (mFonts.size() >= kMostFonts) throw std::runtime_error("there are too many fonts");
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
