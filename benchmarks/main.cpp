#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace {

/// Prints, below the table, how the first subject of each group compares with its peers. The runs
/// are named `group/subject`; of several repetitions the fastest counts.
class RatioReporter : public benchmark::ConsoleReporter {
public:
  void ReportRuns(std::vector<Run> const& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (Run const& run : runs)
      if (run.run_type == Run::RT_Iteration && !run.error_occurred)
        add(run);
  }

  void Finalize() override {
    ConsoleReporter::Finalize();
    // Runs may come in any order; families are numbered as they were registered.
    std::ranges::sort(results_, {}, &Result::family);
    for (auto const& peer : results_) {
      auto const first = std::ranges::find(results_, peer.group, &Result::group);
      if (first->subject != peer.subject)
        GetOutputStream() << peer.group << ": " << first->subject << " / " << peer.subject << " = "
                          << first->time / peer.time << '\n';
    }
  }

private:
  struct Result {
    std::int64_t family;
    std::string group;
    std::string subject;
    double time;
  };

  void add(Run const& run) {
    std::string const& name = run.run_name.function_name;
    std::string const& args = run.run_name.args;
    auto const slash = name.find('/');
    std::string const group = name.substr(0, slash) + (args.empty() ? "" : " over " + args);
    double const time = run.GetAdjustedCPUTime();
    for (auto& result : results_)
      if (result.family == run.family_index && result.group == group) {
        result.time = std::min(result.time, time);
        return;
      }
    results_.push_back({run.family_index, group, name.substr(slash + 1), time});
  }

  std::vector<Result> results_;
};

} // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv))
    return 1;
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
}
