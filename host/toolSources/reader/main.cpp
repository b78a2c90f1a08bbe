// qvreader SECONDS MILLISECONDS FILE...: reads plug-in files, given by their absolute paths, each
// in an isolated process, as many at a time as there are processors. A plug-in may use that much
// processor time, and take that long. Writes each file and its result to stdout, a pipe, as texts
// that each end in a zero byte; an empty text in place of a file is followed by the reason why no
// more can be read.

#include "pluginProcess.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <sys/wait.h>
#include <thread>

namespace Qv {

namespace {

using Processes = std::vector<std::unique_ptr<PluginProcess>>;

/// Waits until something happens to one of the processes.
std::vector<pollfd> wait(Processes const& processes) {
  std::vector<pollfd> events;
  auto deadline = PluginProcess::Clock::time_point::max();
  for (std::unique_ptr<PluginProcess> const& process : processes) {
    std::array<pollfd, 2> const own = process->getEvents();
    events.insert(events.end(), own.begin(), own.end());
    deadline = std::min(deadline, process->getDeadline());
  }
  auto const left =
      std::chrono::ceil<std::chrono::milliseconds>(deadline - PluginProcess::Clock::now());
  poll(events.data(), events.size(), int(std::max<long>(0, left.count())));
  return events;
}

/// Kills what plug-ins left behind: all children of this process that are not reading. There are
/// none where system calls are filtered.
void endOrphans(Processes const& processes) {
  auto const isOrphan = [&](pid_t child) {
    return std::none_of(processes.begin(), processes.end(),
                        [&](auto const& process) { return process->getId() == child; });
  };
  std::vector<pid_t> orphans;
  do {
    std::ifstream children("/proc/thread-self/children");
    orphans.assign(std::istream_iterator<pid_t>(children), {});
    std::erase_if(orphans, std::not_fn(isOrphan));
    for (pid_t const orphan : orphans) {
      kill(orphan, SIGKILL);
      waitpid(orphan, nullptr, 0);
    }
    // What an orphan had started is now a child of this process.
  } while (!orphans.empty());
}

void readPlugins(std::vector<std::string> const& files, Limits const& limits, int replies) {
  Isolation const isolation(files);
  std::size_t const processors = std::max(1U, std::thread::hardware_concurrency());
  Processes processes;
  auto next = files.begin();
  while (next != files.end() || !processes.empty()) {
    for (; next != files.end() && processes.size() < processors; ++next)
      processes.push_back(std::make_unique<PluginProcess>(*next, isolation, limits));

    std::vector<pollfd> const events = wait(processes);
    for (std::size_t index = processes.size(); index-- > 0;) {
      PluginProcess& process = *processes[index];
      if (!process.receive(events[2 * index + 1].revents != 0))
        continue;
      std::string text;
      appendText(text, process.getFile());
      process.takeResult().appendTo(text);
      writeOrExit(replies, text);
      processes.erase(processes.begin() + std::ptrdiff_t(index));
      endOrphans(processes);
    }
  }
}

} // namespace

} // namespace Qv

int main(int argc, char** argv) {
  using namespace Qv;

  if (argc < 3)
    return EXIT_FAILURE;
  Limits const limits = {std::chrono::seconds(std::atoi(argv[1])),
                         std::chrono::milliseconds(std::atoi(argv[2]))};
  int const replies = leaveCaller();
  try {
    readPlugins({argv + 3, argv + argc}, limits, replies);
  } catch (std::exception const& error) {
    std::string text;
    appendText(text, "");
    appendText(text, error.what());
    writeOrExit(replies, text);
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
