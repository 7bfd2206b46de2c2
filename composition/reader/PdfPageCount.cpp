#include "composition/reader/PdfPageCount.h"

#include <set>
#include <string>

#include "composition/reader/DocumentSource.h"
#include "composition/reader/Refusal.h"

namespace cutline {
namespace {

void refuseBeyond(long long pages) {
  if (pages > kMostPages) throw Refusal{DocumentProblem::tooManyPages, std::to_string(pages)};
}

// Goes through the tree as far as there may be pages, whatever the tree says of their number.
class PageTree {
 public:
  void count(QPDFObjectHandle node) {
    if (!node.isDictionary() || !mSeen.insert(node.getObjGen()).second) return;
    QPDFObjectHandle kids = node.getKey("/Kids");
    if (!kids.isArray()) return;
    mReferences += kids.getArrayNItems();
    refuseBeyond(mReferences);
    for (int at = 0; at < kids.getArrayNItems(); ++at) {
      QPDFObjectHandle kid = kids.getArrayItem(at);
      if (kid.isDictionary() && kid.hasKey("/Kids")) count(kid);
    }
  }

 private:
  std::set<QPDFObjGen> mSeen;
  long long mReferences = 0;
};

}  // namespace

void refuseTooManyPages(QPDF& pdf) {
  QPDFObjectHandle pages = pdf.getRoot().getKey("/Pages");
  if (!pages.isDictionary()) return;
  QPDFObjectHandle stated = pages.getKey("/Count");
  if (stated.isInteger()) refuseBeyond(stated.getIntValue());
  PageTree().count(pages);
}

}  // namespace cutline
