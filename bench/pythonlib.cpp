// What entering Python costs through the library: the lock scope on a host
// thread and on a pool thread, calls of a trivial Python function through
// the pool of sub-interpreters with 1, 2 and 4 workers, and start-up of the
// pool with 2 and 16 workers; against a bare C-API call of the same
// function, from one thread holding the interpreter lock throughout.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <atomic>
#include <condition_variable>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "netloom/pythonutil.h"
#include "netloom/twp3pythontaskpool.h"

namespace {

constexpr int kBatch = 2000;

void Start(int workers) {
  pythonlib_destroy();
  pythonlib_init_ex(nullptr, workers, workers);
}

// import benchmod; benchmod.bump(1): the frame every driver call goes through.
bool CallBump() {
  PyThreadStateLock lock(199, __FILE__, __LINE__);
  PyObject* module = PyImport_ImportModule("benchmod");
  if (!module) return false;
  PyObject* function = PyDict_GetItemString(PyModule_GetDict(module), "bump");
  PyObject* result = function ? PyObject_CallFunction(function, "i", 1) : nullptr;
  const bool ok = result != nullptr;
  Py_XDECREF(result);
  Py_DECREF(module);
  return ok;
}

// Counts finished tasks of one batch.
class Batch {
 public:
  void Reset(int n) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_left = n;
  }
  void Done() {
    std::lock_guard<std::mutex> lock(m_mutex);
    if (--m_left == 0) m_cv.notify_all();
  }
  void Wait() {
    std::unique_lock<std::mutex> lock(m_mutex);
    m_cv.wait(lock, [&] { return m_left == 0; });
  }

 private:
  std::mutex m_mutex;
  std::condition_variable m_cv;
  int m_left = 0;
};

class CallTask : public IRunTask {
 public:
  explicit CallTask(Batch& batch) : m_batch(batch) {}
  void Run() override {
    CallBump();
    m_batch.Done();
  }

 private:
  Batch& m_batch;
};

void BM_BareCApiCall(benchmark::State& state) {
  Start(1);
  PyGILState_STATE gil = PyGILState_Ensure();
  PyObject* module = PyImport_ImportModule("benchmod");
  PyObject* function = PyObject_GetAttrString(module, "bump");
  for (auto _ : state) {
    PyObject* result = PyObject_CallFunction(function, "i", 1);
    benchmark::DoNotOptimize(result);
    Py_XDECREF(result);
  }
  Py_DECREF(function);
  Py_DECREF(module);
  PyGILState_Release(gil);
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_BareCApiCall);

// The same frame as CallBump, without the library's guard around it.
void BM_BareCApiEnsureImportCall(benchmark::State& state) {
  Start(1);
  for (auto _ : state) {
    PyGILState_STATE gil = PyGILState_Ensure();
    PyObject* module = PyImport_ImportModule("benchmod");
    PyObject* function = PyDict_GetItemString(PyModule_GetDict(module), "bump");
    PyObject* result = PyObject_CallFunction(function, "i", 1);
    benchmark::DoNotOptimize(result);
    Py_XDECREF(result);
    Py_DECREF(module);
    PyGILState_Release(gil);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_BareCApiEnsureImportCall);

void BM_CallOnHostThread(benchmark::State& state) {
  Start(1);
  for (auto _ : state) benchmark::DoNotOptimize(CallBump());
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_CallOnHostThread);

void BM_LockScopeHostThread(benchmark::State& state) {
  Start(1);
  for (auto _ : state) {
    PyThreadStateLock lock(1, __FILE__, __LINE__);
  }
}
BENCHMARK(BM_LockScopeHostThread);

// The timed loop itself runs inside a task, on the worker.
class LoopTask : public IRunTask {
 public:
  explicit LoopTask(benchmark::State& state) : m_state(state) {}
  void Run() override {
    for (auto _ : m_state) {
      PyThreadStateLock lock(1, __FILE__, __LINE__);
    }
    m_batch.Done();
  }
  Batch m_batch;

 private:
  benchmark::State& m_state;
};

void BM_LockScopePoolThread(benchmark::State& state) {
  Start(1);
  LoopTask task(state);
  task.m_batch.Reset(1);
  GetSubInterpreterPool()->AddTask(&task);
  task.m_batch.Wait();
}
BENCHMARK(BM_LockScopePoolThread)->UseRealTime();

void BM_PoolCalls(benchmark::State& state) {
  const int workers = static_cast<int>(state.range(0));
  Start(workers);
  Batch batch;
  std::vector<std::unique_ptr<CallTask>> tasks;
  for (int i = 0; i < kBatch; ++i) tasks.push_back(std::make_unique<CallTask>(batch));
  for (auto _ : state) {
    batch.Reset(kBatch);
    for (auto& t : tasks) GetSubInterpreterPool()->AddTask(t.get());
    batch.Wait();
  }
  state.SetItemsProcessed(state.iterations() * kBatch);
}
BENCHMARK(BM_PoolCalls)->Arg(1)->Arg(2)->Arg(4)->UseRealTime()->Unit(benchmark::kMillisecond);

void BM_PoolStartUp(benchmark::State& state) {
  const int workers = static_cast<int>(state.range(0));
  pythonlib_destroy();
  for (auto _ : state) {
    pythonlib_init_ex(nullptr, workers, workers);
    state.PauseTiming();
    pythonlib_destroy();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_PoolStartUp)->Arg(2)->Arg(16)->Iterations(5)->UseRealTime()->Unit(benchmark::kMillisecond);

void BM_PoolStop(benchmark::State& state) {
  const int workers = static_cast<int>(state.range(0));
  pythonlib_destroy();
  for (auto _ : state) {
    state.PauseTiming();
    pythonlib_init_ex(nullptr, workers, workers);
    state.ResumeTiming();
    pythonlib_destroy();
  }
}
BENCHMARK(BM_PoolStop)->Arg(2)->Arg(16)->Iterations(5)->UseRealTime()->Unit(benchmark::kMillisecond);

// Folders in a scratch area, the start-up package of the tests, and the
// module the calls go to.
void PrepareEnvironment() {
  const std::string scratch = "/tmp/netloom-bench-" + std::to_string(::getpid()) + "/";
  for (const char* sub : {"temp", "conf", "log", "bin", "mods"}) std::filesystem::create_directories(scratch + sub);
  ::setenv("NETLOOM_TEMP_DIR", (scratch + "temp/").c_str(), 1);
  ::setenv("NETLOOM_CONF_DIR", (scratch + "conf/").c_str(), 1);
  ::setenv("NETLOOM_LOG_DIR", (scratch + "log/").c_str(), 1);
  ::setenv("NETLOOM_BIN_DIR", (scratch + "bin/").c_str(), 1);
  std::ofstream(scratch + "mods/benchmod.py") << "def bump(x):\n    return x + 1\n";
  const std::string path = std::string(NETLOOM_SOURCE_DIR) + "tests/python:" + scratch + "mods";
  ::setenv("PYTHONPATH", path.c_str(), 1);
  ::setenv("PYTHONDONTWRITEBYTECODE", "1", 1);
}

}  // namespace

int main(int argc, char** argv) {
  PrepareEnvironment();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  pythonlib_destroy();
  return 0;
}
