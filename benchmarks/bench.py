#!/usr/bin/env python3
"""Measures the cases of the program `benchmarks`; see scripts/bench for its usage.

Times are taken in rounds, each case in its own process, so that cases do not disturb each other and
share the machine's ups and downs. Counts are the difference between two runs of different length,
which leaves out the start of the process.
"""

import concurrent.futures
import contextlib
import json
import os
import pathlib
import re
import shutil
import statistics
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build/release"
PROGRAM = "bin/benchmarks"  # In main's temporary directory.
WINDOW = "bin/windowBench"
COUNTS = ROOT / "benchmarks/counts.txt"
TEMPLATE = ROOT / "benchmarks/performance.template.md"
DOCUMENT = ROOT / "docs/performance.md"

# Times of a few nanoseconds vary with the memory layout of their process.
ROUNDS = 27
LONG_ROUNDS = 9
# Equally long on the command line, since parsing it counts too.
PASSES = (10, 20)
# Instructions may differ between processors, for which the C library has its own memcpy.
TOLERANCE = 0.02
OWNERS = ("module", "standin", "program")
QUANTITIES = ("instructions", *(f"{owner}_{unit}" for owner in OWNERS for unit in ("blocks", "bytes")))


def run(*command):
    """Runs a command with only PATH of the caller's environment."""
    environment = {"PATH": os.environ["PATH"]}
    result = subprocess.run(command, env=environment, capture_output=True, text=True)
    if result.returncode != 0:
        sys.exit(f"bench: {' '.join(map(str, command))} failed: {result.stderr.strip()}")
    return result


def list_cases():
    return run(PROGRAM, "--benchmark_list_tests").stdout.split()


def elements(case):
    """The number of elements per pass: the product of the numbers that end the name."""
    size = case.rsplit("/", 1)[1]
    factors = size.split("x") if re.fullmatch(r"\d+(x\d+)?", size) else []
    result = 1
    for factor in factors:
        result *= int(factor)
    return result


def measure_window():
    """Milliseconds to open a list in the window and in a QStandardItemModel."""
    times = {}
    for number in range(LONG_ROUNDS):
        print(f"Window, round {number + 1} of {LONG_ROUNDS}", file=sys.stderr)
        for size in (10_000, 100_000):
            for what in ("window", "standard"):
                total, module, block = map(float, run(WINDOW, what, str(size)).stdout.split())
                times.setdefault(f"open/{what}/{size}", []).append(total)
                if what == "window":
                    times.setdefault(f"open/module/{size}", []).append(module)
                    times.setdefault(f"open/block/{size}", []).append(block)
    return times


def is_long(case):
    return case.startswith(("list/", "tree/"))


# Times


def time_once(case):
    """Nanoseconds of one pass, per element."""
    output = run(PROGRAM, f"--benchmark_filter=^{case}$", "--benchmark_format=json",
                 "--benchmark_min_time=0.05").stdout
    return json.loads(output)["benchmarks"][0]["cpu_time"] / elements(case)


def measure_times(cases):
    times = {case: [] for case in cases}
    for number in range(ROUNDS):
        print(f"Round {number + 1} of {ROUNDS}", file=sys.stderr)
        for case in cases:
            if number < LONG_ROUNDS or not is_long(case):
                times[case].append(time_once(case))
    return times


# A whole program


def spend(*command):
    """The processor time of a command, in seconds, and its largest resident size, in bytes."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    if status != 0:
        sys.exit(f"bench: {' '.join(command)} failed")
    return usage.ru_utime + usage.ru_stime, usage.ru_maxrss * 1024


def measure_catalogue(tools=1_000_000):
    """Lists one category of a catalogue, beside what only reads the file."""
    with open("catalogue.json", "w") as file:
        separator = '{"tools": ['
        for number in range(tools):
            file.write(f'{separator}\n{{"name": "tool{number:07}", "category": "Category{number % 100:02}",'
                       f' "texts": ["Tool {number}", "Does its work.", "1.0"]}}')
            separator = ","
        file.write("]}\n")
    commands = {"catalogue/qvbrowse": ("bin/qvbrowse", "--tools", file.name, "ls", "tools", "Category01"),
                "catalogue/jq": ("jq", "length", file.name)}
    spent = {case: [] for case in commands}
    for _ in range(LONG_ROUNDS):
        for case, command in commands.items():
            spent[case].append(spend(*command))
    return ({case: [time for time, _ in values] for case, values in spent.items()},
            {case: max(memory for _, memory in values) for case, values in spent.items()})


# Counts


def total(case, passes):
    """The costs of all passes together, in the order of QUANTITIES."""
    log = run("valgrind", "--tool=cachegrind", "--cache-sim=no", "--cachegrind-out-file=/dev/null",
              PROGRAM, "--repeat", case, str(passes)).stderr
    instructions = re.search(r"I\s+refs:\s+([\d,]+)", log)[1].replace(",", "")
    allocations = run(PROGRAM, "--allocations", case, str(passes)).stdout.split()
    return [int(instructions), *map(int, allocations)]


def count(case):
    """The costs of one pass."""
    fewer, more = (total(case, passes) for passes in PASSES)
    return dict(zip(QUANTITIES, ((b - a) / (PASSES[1] - PASSES[0]) for a, b in zip(fewer, more))))


def measure_counts(cases):
    # One length of listing stands for all: the cost per element is the same.
    counted = [case for case in cases if case.startswith("walk/") or elements(case) in (1, 1000)]
    print(f"Counting {len(counted)} cases", file=sys.stderr)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return dict(zip(counted, pool.map(count, counted)))


def write_counts(counts):
    rows = [("case", *QUANTITIES)]
    rows += [(case, *(f"{counted[quantity]:.10g}" for quantity in QUANTITIES))
             for case, counted in counts.items()]
    widths = [max(map(len, column)) for column in zip(*rows)]
    COUNTS.write_text("# What one pass of each case takes. Written by scripts/bench.\n" + "".join(
        row[0].ljust(widths[0]) + "".join(f"  {cell.rjust(width)}"
                                          for cell, width in zip(row[1:], widths[1:])) + "\n"
        for row in rows))


def read_counts():
    lines = [line.split() for line in COUNTS.read_text().splitlines() if not line.startswith("#")]
    return {case: dict(zip(lines[0][1:], map(float, cells))) for case, *cells in lines[1:]}


def check(counts):
    """Reports what has grown; returns whether nothing has."""
    expected = read_counts()
    faults = [f"{case} is not in {COUNTS.name}" for case in counts.keys() - expected.keys()]
    faults += [f"{case} is only in {COUNTS.name}" for case in expected.keys() - counts.keys()]
    for case in counts.keys() & expected.keys():
        for quantity in QUANTITIES:
            before, now = expected[case][quantity], counts[case][quantity]
            tolerance = TOLERANCE if quantity == "instructions" else 0
            if now > before * (1 + tolerance):
                faults.append(f"{case}: {quantity} grew from {before:.10g} to {now:.10g}")
    for fault in sorted(faults):
        print(f"bench: {fault}", file=sys.stderr)
    return not faults


# The document


def short(number):
    """A number with three significant digits, or with all its integer digits."""
    return f"{number:,.0f}" if number >= 100 else f"{number:.3g}"


class Figures:
    """The placeholders of the template: {method case...}."""

    def __init__(self, times, counts, memory):
        self.times = times
        self.counts = counts
        self.memory = memory

    def time(self, case):
        return short(statistics.median(self.times[case]))

    def ratio(self, case, peer, limit=None):
        """Case / peer, the median of the rounds; bold if it exceeds the limit."""
        value = statistics.median(a / b for a, b in zip(self.times[case], self.times[peer]))
        text = f"{value:.2f}"
        return f"**{text}**" if limit and float(text) > float(limit) else text

    def megabytes(self, case):
        return short(self.memory[case] / 1e6)

    def instructions(self, case):
        return self.quantity("instructions", case)

    def quantity(self, quantity, case):
        return short(self.counts[case][quantity] / elements(case))

    def whole(self, quantity, case):
        """Per pass instead of per element."""
        return short(self.counts[case][quantity])

    def instruction_ratio(self, case, peer):
        one, other = (self.counts[name]["instructions"] / elements(name) for name in (case, peer))
        return f"{one / other:.2f}"

    def relocations(self, file):
        lines = run("readelf", "--relocs", "--wide", BUILD / "lib/qvbrowse" / file).stdout.splitlines()
        return str(sum(bool(re.match(r"[0-9a-f]{16} ", line)) for line in lines))

    def machine(self):
        model = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text())[1]
        system = re.search(r'PRETTY_NAME="(.*)"', pathlib.Path("/etc/os-release").read_text())[1]
        return f"{model}, {os.cpu_count()} processors, {system}"

    def compiler(self):
        name = re.search(r"CMAKE_CXX_COMPILER:\w+=(.*)", (BUILD / "CMakeCache.txt").read_text())[1]
        return run(name, "--version").stdout.splitlines()[0]

    def rounds(self):
        return str(ROUNDS)

    def long_rounds(self):
        return str(LONG_ROUNDS)


def write_document(figures):
    def fill(match):
        method, *arguments = match[1].split()
        return getattr(figures, method)(*arguments)

    DOCUMENT.write_text(re.sub(r"\{([^}]*)\}", fill, TEMPLATE.read_text()))


def draw(times):
    """Plots each group of cases that grow, from the median times."""
    for picture in ("list", "tree"):
        rows = [(case.split("/")[1], elements(case), statistics.median(values))
                for case, values in times.items() if case.startswith(picture + "/")]
        series = sorted({name for name, _, _ in rows})
        data = BUILD / f"{picture}.dat"
        data.write_text("".join(f'"{name}"\n' + "".join(
            f"{size} {time}\n" for other, size, time in rows if other == name) + "\n\n"
            for name in series))
        run("gnuplot", "-e", f"data='{data}'; output='{ROOT}/docs/{picture}.svg'",
            ROOT / f"benchmarks/{picture}.gnuplot")


def main():
    if sys.argv[1:] not in ([], ["--check"]):
        sys.exit("bench: the only option is --check")
    # Paths are allocated and compared too, so they must have the same length everywhere.
    with tempfile.TemporaryDirectory(dir="/tmp") as directory, contextlib.chdir(directory):
        for part in ("bin", "lib", "share"):
            shutil.copytree(BUILD / part, part)
        cases = list_cases()
        counts = measure_counts(cases)
        if sys.argv[1:]:
            sys.exit(not check(counts))
        times = measure_times(cases)
        catalogue_times, memory = measure_catalogue()
        window_times = measure_window()
    write_counts(counts)
    write_document(Figures(times | catalogue_times | window_times, counts, memory))
    draw(times)


if __name__ == "__main__":
    main()
