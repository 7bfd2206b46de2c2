#include "host/dialog/Composing.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "cups/DocumentFile.h"
#include "host/dialog/ComposedPages.h"

namespace cutline {
namespace {

constexpr std::size_t kStart = 1024;  // what stands before a drawing's first element is shorter

bool isText(const std::string& path) {
  Result<DocumentFile> file = DocumentFile::open(path);
  if (!file || file->format != "text/plain") return false;
  std::string start(kStart, '\0');
  file->stream.read(start.data(), static_cast<std::streamsize>(start.size()));
  start.resize(static_cast<std::size_t>(file->stream.gcount()));
  return start.find("<svg") == std::string::npos;
}

}  // namespace

bool haveText(const std::vector<std::string>& paths) { return std::ranges::any_of(paths, isText); }

DocumentTools documentToolsIn(const std::string& helperDirectory) {
  return {[helperDirectory](const std::vector<std::string>& paths,
                            const CompositionRequest& request, std::stop_token stop) {
            return compose(helperDirectory, paths, request, std::move(stop));
          },
          [helperDirectory](const ComposedDocument& composed) {
            return ComposedPages::open(helperDirectory, composed);
          }};
}

}  // namespace cutline
