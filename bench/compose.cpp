// compose HELPER_DIRECTORY RUNS
// Times how long documents take to become labels, and how long the first of them takes. The
// documents are made here: as many pages as said, each with a few words and lines.
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "composition/Composer.h"

namespace {

using cutline::CompositionRequest;

constexpr int kPageCounts[] = {12, 300, 10000};
constexpr int kFontObject = 3;

// A label page of 50 x 24 mm, with its place in the file's table.
class PdfText {
 public:
  void add(const std::string& body) {
    mPlaces.push_back(mText.size());
    mText += std::to_string(mPlaces.size()) + " 0 obj\n" + body + "\nendobj\n";
  }

  std::string finished() {
    const std::size_t start = mText.size();
    mText += "xref\n0 " + std::to_string(mPlaces.size() + 1) + "\n0000000000 65535 f \n";
    for (const std::size_t place : mPlaces) {
      char line[24];
      std::snprintf(line, sizeof line, "%010zu 00000 n \n", place);
      mText += line;
    }
    mText += "trailer\n<</Size " + std::to_string(mPlaces.size() + 1) +
             "/Root 1 0 R>>\nstartxref\n" + std::to_string(start) + "\n%%EOF\n";
    return mText;
  }

 private:
  std::string mText = "%PDF-1.4\n";
  std::vector<std::size_t> mPlaces;
};

std::string contentOf(int page) {
  std::string text = "BT /F1 14 Tf 10 40 Td (Asset " + std::to_string(page + 1) + ") Tj ET\n";
  for (int bar = 0; bar < 40; ++bar)
    text += std::to_string(10 + bar * 3) + " 8 " + std::to_string(1 + (bar * 7 + page) % 2) +
            " 24 re f\n";
  return text;
}

std::string labels(int pages) {
  PdfText pdf;
  pdf.add("<</Type/Catalog/Pages 2 0 R>>");
  std::string kids;
  for (int page = 0; page < pages; ++page)
    kids += std::to_string(kFontObject + 1 + page * 2) + " 0 R ";
  pdf.add("<</Type/Pages/Kids[" + kids + "]/Count " + std::to_string(pages) + ">>");
  pdf.add("<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>");
  for (int page = 0; page < pages; ++page) {
    const std::string content = contentOf(page);
    pdf.add("<</Type/Page/Parent 2 0 R/MediaBox[0 0 141.73 68.03]/Contents " +
            std::to_string(kFontObject + 2 + page * 2) + " 0 R/Resources<</Font<</F1 3 0 R>>>>>>");
    pdf.add("<</Length " + std::to_string(content.size()) + ">>\nstream\n" + content + "endstream");
  }
  return pdf.finished();
}

double millisecondsOf(const std::string& helpers, const std::string& path,
                      const CompositionRequest& request) {
  const auto start = std::chrono::steady_clock::now();
  const auto composed = cutline::compose(helpers, {path}, request);
  if (!composed) {
    std::fprintf(stderr, "%s\n", composed.error().message.c_str());
    std::exit(EXIT_FAILURE);
  }
  const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
  return time.count();
}

void measure(const char* what, const std::string& helpers, const std::string& path,
             const CompositionRequest& request, int runs) {
  std::vector<double> times;
  for (int run = 0; run < runs; ++run) times.push_back(millisecondsOf(helpers, path, request));
  std::sort(times.begin(), times.end());
  std::printf("%-28s %-16s median %9.2f  min %9.2f  max %9.2f  n=%zu\n", "compose", what,
              times[times.size() / 2], times.front(), times.back(), times.size());
}

void measurePages(int pages, const std::string& helpers, int runs) {
  const std::string path = "/tmp/cutline-bench-" + std::to_string(getpid()) + ".pdf";
  std::ofstream(path, std::ios::binary) << labels(pages);
  CompositionRequest request;
  request.label = {68.03, 141.73, 2.83, 5.67, 65.2, 136.06, 90, 90};
  const std::string count = std::to_string(pages);
  measure((count + "_pages").c_str(), helpers, path, request, runs);
  request.pages.most = 1;
  measure(("first_of_" + count).c_str(), helpers, path, request, runs);
  std::remove(path.c_str());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: compose HELPER_DIRECTORY RUNS\n", stderr);
    return 2;
  }
  for (const int pages : kPageCounts) measurePages(pages, argv[1], std::atoi(argv[2]));
  return 0;
}
