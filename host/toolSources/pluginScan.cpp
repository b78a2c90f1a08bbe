#include "pluginScan.h"

#include "hostError.h"
#include "hostPath.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <fmt/format.h>
#include <istream>
#include <memory>
#include <ostream>
#include <poll.h>
#include <sstream>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

// This header does not say itself that its functions are C.
extern "C" {
#include <sys/pidfd.h>
}

namespace Qv {

namespace fs = std::filesystem;

namespace {

using Clock = std::chrono::steady_clock;
using ReadTool = ToolSource::Tool (*)(fs::path const&);

/// More than any honest plug-in has to say.
constexpr std::size_t LongestAnswer = 1 << 20;

/// What an answer starts with. What a plug-in wrote before is in front of it.
constexpr char AnswerStart[] = "answer";

/// A file descriptor that is closed at the end; -1 is none.
class Descriptor {
public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor const&) = delete;
  Descriptor& operator=(Descriptor const&) = delete;
  ~Descriptor() { reset(); }

  int get() const { return number_; }
  void reset(int number = -1) {
    if (number_ >= 0)
      close(number_);
    number_ = number;
  }

private:
  int number_;
};

/// Cuts this process off from everything but the pipe for its answers: from the input, the output
/// and the terminal of its parent, and from what the parent does with signals.
/// @param answers lies above the standard streams, whose place `nowhere` takes.
void isolate(int answers, int nowhere, pid_t parent) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != parent)
    _exit(EXIT_FAILURE);
  // Without a controlling terminal, and in a process group that can be ended as a whole.
  setsid();
  // No core dump, not even by a program that collects them.
  prctl(PR_SET_DUMPABLE, 0);
  for (int signal = 1; signal < NSIG; ++signal)
    std::signal(signal, SIG_DFL);
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);

  for (int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    dup2(nowhere, stream);
  close_range(STDERR_FILENO + 1, unsigned(answers) - 1, 0);
  close_range(unsigned(answers) + 1, ~0U, 0);
}

/// What the child process does. Ends without destructors and exit handlers, which are the parent's.
[[noreturn]] void answer(fs::path const& file, ReadTool readTool, int answers) noexcept {
  PluginReading reading;
  try {
    reading.tool = readTool(file);
  } catch (HostError const& error) {
    reading.failure = error.what();
  }
  std::ostringstream stream;
  stream << AnswerStart << '\0';
  reading.write(stream);
  std::string const text = stream.str();
  for (std::size_t at = 0; at < text.size();) {
    ssize_t const written = write(answers, text.data() + at, text.size() - at);
    if (written < 0)
      _exit(EXIT_FAILURE);
    at += std::size_t(written);
  }
  _exit(EXIT_SUCCESS);
}

std::string signalName(int signal) {
  // Not all signals have one.
  char const* const name = sigabbrev_np(signal);
  return name ? fmt::format("SIG{}", name) : fmt::format("signal {}", signal);
}

/// A child process that reads one plug-in, from its start to its end.
class Child {
public:
  /// @throws HostError when no process can be started.
  Child(std::size_t index, fs::path const& file, ReadTool readTool, Clock::time_point deadline)
      : index_(index), deadline_(deadline) {
    // All that can fail for want of a descriptor is done here, where it is not the plug-in's fault.
    std::array<int, 2> ends = {-1, -1};
    bool ready = pipe2(ends.data(), O_CLOEXEC) == 0;
    answers_.reset(ends[0]);
    Descriptor const pipe(ends[1]);
    ready = ready && fcntl(answers_.get(), F_SETFL, O_NONBLOCK) == 0;
    // The pipe may have taken the place of a standard stream that was closed.
    Descriptor const write(ready ? fcntl(pipe.get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1) : -1);
    Descriptor const nowhere(write.get() < 0 ? -1 : open("/dev/null", O_RDWR | O_CLOEXEC));
    pid_t const parent = getpid();
    process_ = nowhere.get() < 0 ? -1 : fork();
    if (process_ == 0) {
      isolate(write.get(), nowhere.get(), parent);
      answer(file, readTool, write.get());
    }
    if (process_ > 0)
      end_.reset(pidfd_open(process_, 0));
    if (process_ < 0 || end_.get() < 0) {
      int const reason = errno;
      finish();
      throw HostError(fmt::format("cannot start a process to read the plug-in \"{}\": {}",
                                  file.string(), std::strerror(reason)));
    }
  }
  Child(Child const&) = delete;
  Child& operator=(Child const&) = delete;
  ~Child() { finish(); }

  /// Which of the files it reads.
  std::size_t getIndex() const { return index_; }
  Clock::time_point getDeadline() const { return deadline_; }
  std::array<pollfd, 2> getEvents() const {
    return {{{answers_.get(), POLLIN, 0}, {end_.get(), POLLIN, 0}}};
  }

  /// Takes what has been answered.
  void receive() {
    std::array<char, 1 << 12> buffer;
    while (answers_.get() >= 0 && answer_.size() <= LongestAnswer) {
      ssize_t const count = ::read(answers_.get(), buffer.data(), buffer.size());
      if (count > 0)
        answer_.append(buffer.data(), std::size_t(count));
      else if (count < 0 && errno == EAGAIN)
        return;
      else if (count == 0 || errno != EINTR)
        answers_.reset();
    }
  }

  /// Whether there is nothing more to wait for. The end of the answers is not the end: a process
  /// that the plug-in started may hold the pipe, and the plug-in may close it.
  bool isDone(bool ended, Clock::time_point now) const {
    return ended || now >= deadline_ || answer_.size() > LongestAnswer;
  }

  /// Ends the process. @param ended says whether it had ended by itself.
  PluginReading takeReading(bool ended, std::chrono::milliseconds limit) {
    int const status = finish();
    PluginReading reading;
    if (answer_.size() > LongestAnswer)
      reading.failure = fmt::format("it answers with more than {} bytes", LongestAnswer);
    else if (!ended)
      reading.failure =
          fmt::format("it did not answer within {:g} seconds", double(limit.count()) / 1000);
    else if (WIFSIGNALED(status))
      reading.failure = fmt::format("it crashed with {} ({})", signalName(WTERMSIG(status)),
                                    strsignal(WTERMSIG(status)));
    else if (answer_.empty() || WEXITSTATUS(status) != EXIT_SUCCESS)
      reading.failure =
          fmt::format("it exited with status {} in place of an answer", WEXITSTATUS(status));
    else
      readAnswer(reading);
    return reading;
  }

private:
  void readAnswer(PluginReading& reading) const {
    std::istringstream stream(answer_);
    try {
      bool const clean = readText(stream) == AnswerStart;
      reading = PluginReading::read(stream);
      if (clean && stream.peek() == std::istringstream::traits_type::eof())
        return;
    } catch (HostError const&) {
      // The same as an answer that holds something else.
    }
    reading = {};
    reading.failure = "it garbles its answer";
  }

  /// Ends the process and all that it started, if that is not done yet.
  /// @returns the status with which it ended.
  int finish() {
    int status = 0;
    if (process_ <= 0)
      return status;
    // Its number is not given away before it is waited for.
    kill(-process_, SIGKILL);
    kill(process_, SIGKILL);
    while (waitpid(process_, &status, 0) < 0 && errno == EINTR)
      continue;
    process_ = -1;
    return status;
  }

  std::size_t index_;
  Clock::time_point deadline_;
  pid_t process_ = -1;
  /// The end of the pipe to read from.
  Descriptor answers_;
  /// Can be read when the process has ended.
  Descriptor end_;
  std::string answer_;
};

/// Waits until something happens to one of the children.
std::vector<pollfd> wait(std::vector<std::unique_ptr<Child>> const& children) {
  std::vector<pollfd> events;
  Clock::time_point deadline = Clock::time_point::max();
  for (std::unique_ptr<Child> const& child : children) {
    std::array<pollfd, 2> const own = child->getEvents();
    events.insert(events.end(), own.begin(), own.end());
    deadline = std::min(deadline, child->getDeadline());
  }
  int found = 0;
  do {
    auto const left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    found = poll(events.data(), events.size(), int(std::max<long>(0, left.count())));
    // This process may have been stopped beyond the deadline; the children were not.
  } while (found < 0 && errno == EINTR);
  return events;
}

} // namespace

void PluginReading::write(std::ostream& stream) const {
  stream << failure << '\0' << tool.facts.category << '\0';
  for (std::string const& text : tool.facts.infoTexts)
    stream << text << '\0';
  stream << tool.tooltip << '\0';
}

PluginReading PluginReading::read(std::istream& stream) {
  PluginReading reading;
  reading.failure = readText(stream);
  reading.tool.facts.category = readText(stream);
  for (std::string& text : reading.tool.facts.infoTexts)
    text = readText(stream);
  reading.tool.tooltip = readText(stream);
  if (reading.failure.empty())
    HostPath::requireComponent(reading.tool.facts.category, "category name");
  return reading;
}

std::string readText(std::istream& stream) {
  std::string text;
  if (!std::getline(stream, text, '\0') || stream.eof())
    throw HostError("a text is cut off");
  return text;
}

std::vector<PluginReading> scanPlugins(std::vector<fs::path> const& files, ReadTool readTool,
                                       ScanOptions const& options) {
  // Where it is ignored, which is inherited, no child has a status.
  std::signal(SIGCHLD, SIG_DFL);
  std::size_t const processors = std::max(1U, std::thread::hardware_concurrency());
  std::vector<PluginReading> readings(files.size());
  std::vector<std::unique_ptr<Child>> children;
  std::size_t done = 0;
  for (std::size_t next = 0; done < files.size();) {
    for (; next < files.size() && children.size() < processors; ++next)
      children.push_back(
          std::make_unique<Child>(next, files[next], readTool, Clock::now() + options.limit));
    options.progress(fmt::format("reading plug-ins, {} of {}", done, files.size()));

    std::vector<pollfd> const events = wait(children);
    for (std::size_t index = children.size(); index-- > 0;) {
      Child& child = *children[index];
      bool const ended = events[2 * index + 1].revents != 0;
      child.receive();
      if (!child.isDone(ended, Clock::now()))
        continue;
      readings[child.getIndex()] = child.takeReading(ended, options.limit);
      children.erase(children.begin() + std::ptrdiff_t(index));
      ++done;
    }
  }
  return readings;
}

} // namespace Qv
