#include "output.h"

#include "hostError.h"
#include "hostImage.h"
#include "progress.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utf8proc.h>
#include <utility>

namespace Qv {

namespace {

/// How many columns of a terminal printable text takes.
std::size_t width(std::string const& text) {
  std::size_t columns = 0;
  auto const* rest = reinterpret_cast<utf8proc_uint8_t const*>(text.c_str());
  while (*rest) {
    utf8proc_int32_t character = 0;
    rest += utf8proc_iterate(rest, -1, &character);
    columns += std::size_t(utf8proc_charwidth(character));
  }
  return columns;
}

/// Whether stdout is a terminal; it was one when it goes through a pager.
bool outputIsTerminal() {
  static bool const terminal = isatty(STDOUT_FILENO);
  return terminal;
}

/// With which the shell tells that it cannot run a program, or that there is none.
constexpr int NotRun = 126;
constexpr int NotFound = 127;

bool pagerWanted = false;
/// The pager's input; null while there is no pager.
FILE* pager = nullptr;
/// For the shell; empty for no pager.
std::string pagerCommand;

void startPager() {
  char const* const named = std::getenv("PAGER");
  pagerCommand = named ? named : "if command -v less >/dev/null; then exec less; else exec cat; fi";
  if (pagerCommand.empty())
    return;
  // Ends by itself when all fits on the screen, lets colours through and leaves them there.
  setenv("LESS", "FRX", 0);
  pager = popen(pagerCommand.c_str(), "we");
  if (!pager)
    return;
  dup2(fileno(pager), STDOUT_FILENO);
  // Whoever leaves the pager early ends the output and nothing else.
  std::signal(SIGPIPE, SIG_IGN);
  // The terminal's interrupt is for the pager, which may go on.
  std::signal(SIGINT, SIG_IGN);
  std::signal(SIGQUIT, SIG_IGN);
}

/// Makes way for the output when the first of it comes, so that no pager is started for nothing.
void beginOutput() {
  static bool begun = false;
  if (std::exchange(begun, true))
    return;
  outputIsTerminal();
  struct stat facts = {};
  // A file leaves the terminal to the progress line.
  if (fstat(STDOUT_FILENO, &facts) != 0 || !S_ISREG(facts.st_mode))
    stopProgress();
  if (pagerWanted)
    startPager();
}

/// Waits for the pager, if there is one. @returns the status with which it ended.
int endPager() {
  if (!pager)
    return 0;
  std::fflush(stdout);
  // Only without this copy can it come to the end of its input.
  close(STDOUT_FILENO);
  int const status = pclose(pager);
  pager = nullptr;
  return status;
}

/// Lets all output go nowhere when the pager was left. @throws HostError otherwise.
void refuseWriting() {
  if (!pager || errno != EPIPE)
    throw HostError(fmt::format("cannot write the result: {}", std::strerror(errno)));
  int const nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  dup2(nowhere, STDOUT_FILENO);
  close(nowhere);
  std::clearerr(stdout);
  std::signal(SIGINT, SIG_DFL);
  std::signal(SIGQUIT, SIG_DFL);
}

} // namespace

void writeText(std::string const& text) {
  beginOutput();
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size())
    refuseWriting();
}

Json describeImage(RCShdPtr<WsManagedImage> const& image) {
  RCShdPtr<HostImage> const hostImage = image.dynamicCast<HostImage>();
  if (!hostImage)
    return nullptr;
  return {{"file", hostImage->getName()},
          {"width", hostImage->getWidth()},
          {"height", hostImage->getHeight()}};
}

std::string imageText(Json const& image) {
  if (image.is_null())
    return "none";
  return fmt::format("{} ({} x {})", image["file"].get<std::string>(), image["width"].dump(),
                     image["height"].dump());
}

void printJson(Json const& json) {
  writeText(json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n");
}

void flushOutput() {
  if (std::fflush(stdout) != 0)
    refuseWriting();
}

void printProblem(std::string const& problem) {
  eraseProgress();
  std::fputs(fmt::format("qvbrowse: {}\n", printable(problem)).c_str(), stderr);
}

Paging::Paging() { pagerWanted = outputIsTerminal(); }

Paging::~Paging() { endPager(); }

void Paging::end() {
  flushOutput();
  int const status = endPager();
  if (WIFEXITED(status) && (WEXITSTATUS(status) == NotRun || WEXITSTATUS(status) == NotFound))
    throw HostError(
        fmt::format("cannot show the result: the pager \"{}\" cannot be run; PAGER names another",
                    pagerCommand));
}

Terminal::Terminal() : colours_(outputIsTerminal() && !std::getenv("NO_COLOR")) {}

std::string Terminal::styled(fmt::text_style style, std::string const& text) const {
  return colours_ ? fmt::format(style, "{}", text) : text;
}

void Terminal::printTable(std::vector<std::string> const& heading,
                          std::vector<std::vector<std::string>> rows) const {
  rows.insert(rows.begin(), heading);
  std::vector<std::size_t> widths(heading.size());
  for (std::vector<std::string>& row : rows)
    for (std::size_t column = 0; column < row.size(); ++column) {
      row[column] = printable(row[column]);
      widths[column] = std::max(widths[column], width(row[column]));
    }
  for (std::vector<std::string> const& row : rows) {
    fmt::text_style const style = &row == &rows.front() ? fmt::emphasis::bold : fmt::text_style();
    std::string line;
    for (std::size_t column = 0; column < row.size(); ++column) {
      line += styled(style, row[column]);
      line.append(widths[column] - width(row[column]) + 2, ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    writeText(line + "\n");
  }
}

char const* yesOrNo(bool value) { return value ? "yes" : "no"; }

std::string printable(std::string const& text) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    utf8proc_int32_t character = 0;
    utf8proc_ssize_t const length =
        utf8proc_iterate(reinterpret_cast<utf8proc_uint8_t const*>(text.data() + at),
                         utf8proc_ssize_t(text.size() - at), &character);
    if (length < 0)
      character = static_cast<unsigned char>(text[at]);
    std::size_t const size = length < 0 ? 1 : std::size_t(length);
    if (character == '\n')
      result += "\\n";
    else if (length < 0 || utf8proc_category(character) == UTF8PROC_CATEGORY_CC)
      result += fmt::format("\\x{:02x}", character);
    else
      result.append(text, at, size);
    at += size;
  }
  return result;
}

} // namespace Qv
