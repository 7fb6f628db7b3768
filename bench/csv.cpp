// CSV throughput: reading and writing the row files device tables are kept
// in, a file of quoted cells with embedded line breaks, and one huge row.
// The input files come from bench/run_csv.sh (CSV_BENCH_DIR), which also times
// pandas on the same files.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "netloom/util/csvparser.h"

namespace {

std::string BenchFile(const char* name) {
  const char* dir = std::getenv("CSV_BENCH_DIR");
  return std::string(dir ? dir : "/tmp/netloom-csv-bench") + "/" + name;
}

size_t FileSize(const std::string& path) {
  std::ifstream in(path, std::ios::binary | std::ios::ate);
  return in ? static_cast<size_t>(in.tellg()) : 0;
}

// Reads every row with one reused CSVLineParser, as the table readers do.
void ReadRows(benchmark::State& state, const char* name) {
  const std::string path = BenchFile(name);
  const size_t bytes = FileSize(path);
  if (!bytes) {
    state.SkipWithError(("missing " + path + "; run bench/run_csv.sh").c_str());
    return;
  }
  size_t rows = 0, cells = 0;
  for (auto _ : state) {
    std::ifstream in(path, std::ios::binary);
    CSVLineParser line("");
    rows = cells = 0;
    while (line.ReadFromStream(in)) {
      ++rows;
      cells += line.size();
    }
    benchmark::DoNotOptimize(cells);
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
  state.counters["rows"] = static_cast<double>(rows);
  state.counters["cells"] = static_cast<double>(cells);
}

// Loads the whole file into a CSVParser, the closest match to a data frame.
void LoadFile(benchmark::State& state, const char* name) {
  const std::string path = BenchFile(name);
  const size_t bytes = FileSize(path);
  if (!bytes) {
    state.SkipWithError(("missing " + path).c_str());
    return;
  }
  for (auto _ : state) {
    CSVParser csv("");
    csv.LoadFromFile(path);
    benchmark::DoNotOptimize(csv.size());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
}

// Writes back the rows of a file, held in memory, to a new file.
void WriteRows(benchmark::State& state, const char* name) {
  const std::string path = BenchFile(name);
  CSVParser csv("");
  if (!csv.LoadFromFile(path) || csv.size() == 0) {
    state.SkipWithError(("missing " + path).c_str());
    return;
  }
  const std::string out = path + ".out";
  for (auto _ : state) {
    std::ofstream file(out, std::ios::binary | std::ios::trunc);
    csv.SaveToStream(file);
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * FileSize(out)));
  std::remove(out.c_str());
}

void BM_ReadRows(benchmark::State& s) { ReadRows(s, "rows.csv"); }
void BM_LoadRows(benchmark::State& s) { LoadFile(s, "rows.csv"); }
void BM_WriteRows(benchmark::State& s) { WriteRows(s, "rows.csv"); }
void BM_ReadQuoted(benchmark::State& s) { ReadRows(s, "quoted.csv"); }
void BM_LoadQuoted(benchmark::State& s) { LoadFile(s, "quoted.csv"); }
void BM_WriteQuoted(benchmark::State& s) { WriteRows(s, "quoted.csv"); }

// One 100 MB row of four cells, two of them quoted with doubled quotes and
// line breaks: reading it must stay linear, copying the row a fixed number of times.
void BM_HugeRow(benchmark::State& state) {
  const size_t cell = 25u << 20;
  std::string text;
  text.reserve(4 * cell + 16);
  text += std::string(cell, 'a');
  text += ",\"";
  for (size_t i = 0; i < cell / 8; ++i) text += i % 64 ? "bbbbbb\"\"" : "bbbbbb\r\n";
  text += "\",\"";
  text += std::string(cell, 'c');
  text += "\",";
  text += std::string(cell, 'd');
  text += '\n';
  for (auto _ : state) {
    std::istringstream in(text);
    CSVLineParser line("");
    line.ReadFromStream(in);
    benchmark::DoNotOptimize(line.size());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

BENCHMARK(BM_ReadRows)->Unit(benchmark::kMillisecond)->MinTime(0.5);
BENCHMARK(BM_LoadRows)->Unit(benchmark::kMillisecond)->MinTime(0.5);
BENCHMARK(BM_WriteRows)->Unit(benchmark::kMillisecond)->MinTime(0.5);
BENCHMARK(BM_ReadQuoted)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_LoadQuoted)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_WriteQuoted)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_HugeRow)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace

BENCHMARK_MAIN();
