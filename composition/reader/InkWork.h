// What is shared by all contents whose ink is looked for.
#pragma once

#include <map>
#include <memory>
#include <qpdf/QPDFObjectHandle.hh>
#include <string>
#include <vector>

#include "composition/reader/GlyphFont.h"

namespace cutline {

// What all contents of a job share. Each call throws std::exception where it cannot be told, and
// for what would take longer than to draw it.
class InkWork {
 public:
  // The stream's bytes, unpacked.
  std::string contentOf(QPDFObjectHandle stream);
  // `resources` are those of the content that asks for it. Stays this object's.
  GlyphFont& fontOf(QPDFObjectHandle font, QPDFObjectHandle resources);
  void countOperation();

  // While a content is gone through that another one draws.
  class Within {
   public:
    explicit Within(InkWork& work);
    ~Within() { --mWork.mDepth; }
    Within(const Within&) = delete;
    Within& operator=(const Within&) = delete;

   private:
    InkWork& mWork;
  };

 private:
  std::unique_ptr<GlyphFont> newFont(QPDFObjectHandle font, QPDFObjectHandle resources);

  std::map<QPDFObjGen, GlyphFont*> mKnownFonts;
  std::vector<std::unique_ptr<GlyphFont>> mFonts;
  int mOperations = 0;
  std::size_t mBytes = 0;
  int mDepth = 0;
};

}  // namespace cutline
