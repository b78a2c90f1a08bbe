#include "allocations.h"
#include "cases.h"

#include "hostResources.h"

#include <boost/dll/runtime_symbol_info.hpp>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string_view>
#include <thread>

namespace Qv {
namespace {

int readTimes(std::string const& text) {
  int times = 0;
  char const* const end = text.data() + text.size();
  auto const [rest, error] = std::from_chars(text.data(), end, times);
  if (error != std::errc() || rest != end || times < 1)
    throw std::invalid_argument("\"" + text + "\" is not a number of passes");
  return times;
}

void repeat(Cases const& cases, char** arguments, bool allocations) {
  cases.run(arguments[0], CountedLoop(readTimes(arguments[1]), allocations));
  if (allocations)
    for (Allocations const& owned : getAllocations())
      std::cout << owned.blocks << ' ' << owned.bytes << '\n';
}

} // namespace
} // namespace Qv

// benchmarks [--benchmark_...]: times the cases.
// benchmarks --repeat CASE TIMES: runs one case that many times, to count its instructions.
// benchmarks --allocations CASE TIMES: prints the blocks and bytes that this allocates, for
// the module, the stand-in and the program.
int main(int argc, char** argv) try {
  using namespace Qv;
  // Until a thread has been started, libstdc++ counts shared pointers without atomics. The thread
  // sleeps, so that join() always has to wait and takes the same instructions.
  std::thread([] { std::this_thread::sleep_for(std::chrono::milliseconds(20)); }).join();
  std::filesystem::current_path(boost::dll::program_location().parent_path());
  HostResources::getInstance().setDirectory(RESOURCE_DIR);

  Cases cases;
  cases.addPointers();
  cases.addIterators();
  cases.addModule();
  cases.addLoading();

  std::string_view const mode(argc == 4 ? argv[1] : "");
  if (mode == "--repeat" || mode == "--allocations") {
    repeat(cases, argv + 2, mode == "--allocations");
    return 0;
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv))
    return 1;
  benchmark::RunSpecifiedBenchmarks();
} catch (std::exception const& error) {
  std::cerr << "benchmarks: " << error.what() << '\n';
  return 1;
}
