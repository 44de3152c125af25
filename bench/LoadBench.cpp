// Reading of a data file: the whole of LoadPlot() beside a bare loop over the same bytes, and the memory that
// stays afterwards. The two run in turn, so that a busy machine slows both; what counts is the ratio of the
// medians.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "CommExcl.h"
#include "FakeLoaderWindow.h"
#include "HeaderLine.h"
#include "PlotData.h"
#include "RunState.h"
#include "SystemFiles.h"

namespace quorb {

namespace {

constexpr int kRows = kRowBound - 1;
constexpr int kRounds = 7;
constexpr double kMegabyte = 1e6;

double CellValue(int row, int column) {
  const double phase = row * 0.001 + column;
  if (column == 3 || column == 4 || column == 6 || column == 11 || column == 13 || column == 15)
    return row * 60.5;
  if (column == 5) return row / 1000 % 2;
  return 6778137.123456789 * (column < 3 ? 1 : 1e-4) * (phase - static_cast<int>(phase) - 0.5);
}

void WriteDataFile(const std::string& path, int columns) {
  HeaderLineFields header;
  header.scale = 0.01;
  header.formula = "= 0.01 + LEN(\"Load\") + MAX(A2:C1048576) + MAX(D2:D1048576)";
  if (columns == 17) {
    header.formula +=
        " + MAX(E2:F1048576) + MAX(G2:K1048576) + MAX(L2:M1048576) + MAX(N2:O1048576) + MAX(P2:Q1048576)";
  }
  std::ofstream file(path, std::ios::binary);
  file << DataFileHeaderLine(header);
  std::string line;
  for (int row = 0; row < kRows; ++row) {
    line.clear();
    for (int column = 0; column < columns; ++column) {
      if (column > 0) line += '\t';
      AppendCellNumber(line, CellValue(row, column));
    }
    file << line << "\r\n";
  }
}

// Written once and kept beside the build.
std::string DataFile(int columns) {
  const std::filesystem::path directory = QUORB_BENCH_FILES;
  const auto path = directory / ("rows" + std::to_string(columns) + ".qbv");
  if (!std::filesystem::exists(path)) {
    std::filesystem::create_directories(directory);
    const auto unfinished = path.string() + ".part";
    WriteDataFile(unfinished, columns);
    std::filesystem::rename(unfinished, path);
  }
  return path.string();
}

double SecondsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

std::size_t ConvertFields(std::string_view bytes, std::vector<double>& cells) {
  const auto find = [](const char* from, const char* to, char mark) {
    const void* found = std::memchr(from, mark, static_cast<std::size_t>(to - from));
    return found != nullptr ? static_cast<const char*>(found) : to;
  };
  std::size_t count = 0;
  const char* const end = bytes.data() + bytes.size();
  for (const char* line = find(bytes.data(), end, '\n') + 1; line < end;) {
    const char* const lineEnd = find(line, end, '\n');
    for (const char* field = line; field < lineEnd;) {
      const char* const fieldEnd = find(field, lineEnd, '\t');
      std::from_chars(field, fieldEnd, cells[count++]);
      field = fieldEnd + 1;
    }
    line = lineEnd + 1;
  }
  return count;
}

double TimeBareLoop(const std::string& path, std::vector<double>& cells) {
  int errorNumber = 0;
  const auto file = SystemFiles().Map(path, errorNumber);
  const auto start = std::chrono::steady_clock::now();
  benchmark::DoNotOptimize(ConvertFields(file->Bytes(), cells));
  return SecondsSince(start);
}

double TimeLoadPlot() {
  const auto start = std::chrono::steady_clock::now();
  LoadPlot();
  return SecondsSince(start);
}

double Median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

double ResidentBytes() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    double kilobytes = 0;
    if (word == "VmRSS:" && status >> kilobytes) return kilobytes * 1024;
  }
  return 0;
}

void ReadDataFile(benchmark::State& state) {
  const int columns = static_cast<int>(state.range(0));
  const std::string path = DataFile(columns);
  SystemFiles files;
  FakeLoaderWindow window;
  SetFileAccess(&files);
  StartRunState();
  CommandFileMode = 1;
  CommandFileName = path;
  TimeLoadPlot();
  const double resident = ResidentBytes();

  std::vector<double> cells(static_cast<std::size_t>(kRows) * static_cast<std::size_t>(columns));
  std::vector<double> loadTimes, bareTimes;
  for (auto unused : state) {
    static_cast<void>(unused);
    TimeBareLoop(path, cells);
    for (int round = 0; round < kRounds; ++round) {
      bareTimes.push_back(TimeBareLoop(path, cells));
      loadTimes.push_back(TimeLoadPlot());
      window.log.clear();
    }
    state.SetIterationTime(Median(loadTimes));
  }
  SetFileAccess(nullptr);
  if (LastPoint != kRows - 1) state.SkipWithError("the file was not read to its end");
  const double filled = 8.0 * kRows * columns;
  state.counters["load_s"] = Median(loadTimes);
  state.counters["bare_s"] = Median(bareTimes);
  state.counters["load_per_bare"] = Median(loadTimes) / Median(bareTimes);
  state.counters["resident_MB"] = resident / kMegabyte;
  state.counters["filled_plus_64_MB"] = (filled + 64 * kMegabyte) / kMegabyte;
}

// The narrow file first: the arrays that only the wide one fills must not count in its memory.
BENCHMARK(ReadDataFile)->ArgName("columns")->Arg(4)->Arg(17)->Iterations(1)->UseManualTime();

}  // namespace

}  // namespace quorb

BENCHMARK_MAIN();
