// How the dialog has documents composed and their labels drawn. Both may block for seconds: never
// on the thread that draws.
#pragma once

#include <functional>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

#include "base/Result.h"
#include "composition/Composer.h"
#include "host/dialog/Document.h"

namespace cutline {

using Composing = std::function<Result<ComposedDocument>(
    const std::vector<std::string>& paths, const CompositionRequest& request, std::stop_token)>;
using Opening = std::function<Result<std::shared_ptr<Document>>(const ComposedDocument& composed)>;

struct DocumentTools {
  Composing compose;
  Opening open;
};

// Whether one of the documents is a text, which is set in type here; drawings are written as text,
// too, but are none.
bool haveText(const std::vector<std::string>& paths);

// By the helper programs of this directory.
DocumentTools documentToolsIn(const std::string& helperDirectory);

}  // namespace cutline
