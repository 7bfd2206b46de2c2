#include "composition/reader/PdfFirstPages.h"

#include <algorithm>
#include <set>

#include "composition/reader/DocumentSource.h"

namespace cutline {
namespace {

// All of so few are found in a moment.
constexpr int kFewPages = 100;

class FirstLeaves {
 public:
  explicit FirstLeaves(int needed) : mNeeded(needed) {}

  bool isEnough() { return mFound.getArrayNItems() >= mNeeded; }
  // False where the tree is not in order.
  bool find(QPDFObjectHandle node) {
    QPDFObjectHandle kids = node.getKey("/Kids");
    if (!kids.isArray()) return false;
    for (int at = 0; at < kids.getArrayNItems() && !isEnough(); ++at)
      if (!take(kids.getArrayItem(at))) return false;
    return true;
  }
  // An array of pages.
  QPDFObjectHandle found() const { return mFound; }

 private:
  bool take(QPDFObjectHandle kid) {
    if (!kid.isIndirect() || !mSeen.insert(kid.getObjGen()).second) return false;
    if (kid.isDictionaryOfType("/Pages")) return find(kid);
    if (!kid.isDictionaryOfType("/Page") || kid.hasKey("/Kids")) return false;
    mFound.appendItem(kid);
    return true;
  }

  int mNeeded;
  std::set<QPDFObjGen> mSeen;
  QPDFObjectHandle mFound = QPDFObjectHandle::newArray();
};

}  // namespace

std::optional<int> keepFirstPages(QPDF& pdf, int needed) {
  QPDFObjectHandle tree = pdf.getRoot().getKey("/Pages");
  if (needed <= 0 || !tree.isDictionary()) return std::nullopt;
  QPDFObjectHandle count = tree.getKey("/Count");
  const long long stated = count.isInteger() ? count.getIntValue() : 0;
  if (stated <= std::max(needed, kFewPages) || stated > kMostPages) return std::nullopt;
  FirstLeaves leaves(needed);
  if (!leaves.find(tree) || !leaves.isEnough()) return std::nullopt;
  // The library looks through all pages of a PDF before it copies the first object of it.
  tree.replaceKey("/Kids", leaves.found());
  tree.replaceKey("/Count", QPDFObjectHandle::newInteger(needed));
  return static_cast<int>(stated);
}

}  // namespace cutline
