// Shared by the interpreter tests: starting the interpreter with the test
// copy of the driver package on its path, running Python text and reading
// answers back, and running work on pool threads.
#pragma once

#include <condition_variable>
#include <functional>
#include <future>
#include <mutex>
#include <string>
#include <vector>

#include "netloom/pythonutil.h"
#include "netloom/twp3pythontaskpool.h"

namespace pytest {

// Puts tests/python (the tarnwick package) on the default module path of every
// interpreter, and has the package record its calls in a fresh file.
// Returns that file's path. Call before starting.
std::string PrepareEnvironment();

// Lines the package recorded so far, split at tabs.
std::vector<std::vector<std::string>> RecordedCalls(const std::string& file);

// Evaluates a Python expression in __main__ of the interpreter current for
// this thread and returns str() of it; "<error>" when it raised. Takes the
// interpreter lock itself.
std::string Eval(const std::string& expression);
// Runs statements in __main__ of the current interpreter; false when they raised.
bool Exec(const std::string& statements);

// A task that runs a function and lets the test wait for it.
class FunctionTask : public IRunTask {
 public:
  explicit FunctionTask(std::function<void()> work) : m_work(std::move(work)) {}
  void Run() override {
    m_work();
    m_done.set_value();
  }
  void Wait() { m_done.get_future().wait(); }

 private:
  std::function<void()> m_work;
  std::promise<void> m_done;
};

// Runs `work(i)` for i in [0, n) on n distinct pool threads at once: each
// task waits, without the interpreter lock, until all n have started, so no
// worker can take two of them. Needs n idle or startable workers.
void RunOnDistinctWorkers(CTWTaskPool& pool, int n, const std::function<void(int)>& work);

// A reusable meeting point for n threads.
class Barrier {
 public:
  explicit Barrier(int n) : m_n(n) {}
  void Arrive() {
    std::unique_lock<std::mutex> lock(m_mutex);
    if (++m_count >= m_n) {
      m_cv.notify_all();
      return;
    }
    m_cv.wait(lock, [&] { return m_count >= m_n; });
  }

 private:
  std::mutex m_mutex;
  std::condition_variable m_cv;
  int m_n;
  int m_count = 0;
};

// Resident set size of this process in kB.
long ResidentKb();

}  // namespace pytest
