// Short PDFs, read before it is known what is asked of them.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <vector>

#include "composition/reader/LabelWriter.h"
#include "composition/reader/PdfSource.h"

namespace cutline {

// As many labels, of documents of as many bytes together, are composed while a program is started.
inline constexpr int kFewLabels = 20;
inline constexpr std::size_t kSoonRead = std::size_t{256} * 1024;

class ReadAhead {
 public:
  // Opens the PDFs among these files while they are short, and makes what their pages show in the
  // labels' PDF, whose forms are given. What cannot be read is left for who asks for it, and finds
  // out why.
  std::vector<QPDFObjectHandle> read(const std::vector<int>& documents,
                                     LabelWriter& labels) noexcept;
  // What was read from this file; null for nothing. Once only.
  std::unique_ptr<PdfSource> take(int descriptor);

 private:
  void readOne(int descriptor, LabelWriter& labels);

  std::vector<QPDFObjectHandle> mForms;
  std::map<int, std::unique_ptr<PdfSource>> mSources;
  // Of no use, but the labels' PDF has objects that refer to them.
  std::vector<std::unique_ptr<PdfSource>> mSpoiled;
};

}  // namespace cutline
