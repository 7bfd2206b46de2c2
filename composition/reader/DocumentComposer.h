// Reads documents and writes them as one PDF on label pages. Runs in a confined process: whatever
// a document does to its reader, nobody else is there.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "composition/Composition.h"
#include "composition/reader/ReaderModules.h"

namespace cutline {

// Holds what it has read and made until it goes, which takes a while for long documents: who ends
// the process answers before that.
class DocumentComposer {
 public:
  DocumentComposer();
  DocumentComposer(const DocumentComposer&) = delete;
  DocumentComposer& operator=(const DocumentComposer&) = delete;
  ~DocumentComposer();

  // Reads what any request would have read, before there is one. The files stay the caller's; the
  // very same are composed then. What is wrong with them is told then, too. What not every request
  // needs is made until `isAsked`.
  void readAhead(const std::vector<int>& documents, const std::function<bool()>& isAsked) noexcept;

  // Once only. `documents` are open files, one for each of the request's names, read from their
  // beginnings; `output` is a file open for writing, empty. All stay the caller's. A module that is
  // missing fails what needs it. PostScript has been made a PDF before. Where the report has a
  // failure, what `output` holds says nothing.
  CompositionReport compose(const CompositionRequest& request, const std::vector<int>& documents,
                            int output, const ReaderModules& modules);

 private:
  class Composing;
  std::unique_ptr<Composing> mComposing;
};

}  // namespace cutline
