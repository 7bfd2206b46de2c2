#include "host/core/AskQueueCommand.h"

#include <array>
#include <ostream>

#include "base/Visible.h"
#include "cups/AskQueue.h"

namespace cutline {

namespace {

Result<Done> add(const CommandLine& line, std::ostream& out) {
  const Result<AskQueue> queue = addAskQueue(line.server, line.files.front());
  if (!queue) return queue.error();
  out << "programs print to " << visible(queue->name) << " now to be asked for "
      << visible(queue->printer) << "\n";
  return Done{};
}

Result<Done> remove(const CommandLine& line, std::ostream& out) {
  const Result<AskQueue> queue = removeAskQueue(line.server, line.files.front());
  if (!queue) return queue.error();
  out << visible(queue->name) << " is gone; " << visible(queue->printer) << " stays\n";
  return Done{};
}

Result<Done> list(const CommandLine& line, std::ostream& out) {
  const Result<std::vector<AskQueue>> queues = askQueues(line.server);
  if (!queues) return queues.error();
  for (const AskQueue& queue : *queues)
    out << visible(queue.name) << ": asks for " << visible(queue.printer) << "; " << queue.jobs
        << " waiting\n";
  return Done{};
}

struct Verb {
  const char* name;
  Result<Done> (*run)(const CommandLine&, std::ostream&);
};
constexpr std::array kVerbs =
    std::to_array<Verb>({{"add", add}, {"remove", remove}, {"list", list}});

}  // namespace

Result<Done> runAskQueue(const CommandLine& line, PluginLoader& /*plugIns*/,
                         const Streams& streams) {
  for (const Verb& verb : kVerbs)
    if (line.askQueueVerb == verb.name) return verb.run(line, streams.out);
  return Error{"--ask-queue takes add, remove or list"};
}

}  // namespace cutline
