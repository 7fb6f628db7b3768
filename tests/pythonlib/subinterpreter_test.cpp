// The pool of sub-interpreters under real threads: each worker has its own
// interpreter and module state, the workers share one interpreter lock with
// the host's threads, and the whole can be started and stopped many times
// in one process.
#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <set>
#include <thread>

#include "common/testenv.h"
#include "netloom/util/twfilesystem.h"
#include "pythonlib/pyharness.h"

namespace {

class SubInterpreters : public ::testing::Test {
 protected:
  void SetUp() override { m_record = pytest::PrepareEnvironment(); }
  void TearDown() override { pythonlib_destroy(); }
  std::string m_record;
};

TEST_F(SubInterpreters, ModulesAndPathsStayInTheirInterpreter) {
  ASSERT_TRUE(pythonlib_init_ex(nullptr, 2, 2));
  CTWP3PythonTaskPool* pool = GetSubInterpreterPool();
  const std::string dir = netloom_test::MakeTempDir("private");
  netloom_test::WriteFile(dir + "only_here.py", "WHERE = 'here'\n");
  const std::string drivers = TWFileSystem::GetTempFolder() + "Drivers";

  pytest::Barrier imported(2);
  std::string seen[2], onPath[2], driversOnPath[2];
  bool added = false;
  pytest::RunOnDistinctWorkers(*pool, 2, [&](int i) {
    if (i == 0) {
      added = pythonlib_add_directory(dir);
      pytest::Eval("__import__('only_here').WHERE");
      pytest::Exec("import colorsys");
    }
    imported.Arrive();
    seen[i] = pytest::Eval("('only_here' in sys.modules, 'colorsys' in sys.modules)");
    onPath[i] = pytest::Eval("'" + dir + "' in sys.path");
    driversOnPath[i] = pytest::Eval("sys.path.count('" + drivers + "')");
  });
  EXPECT_TRUE(added);
  EXPECT_EQ(seen[0], "(True, True)");
  EXPECT_EQ(seen[1], "(False, False)");
  EXPECT_EQ(onPath[0], "True");
  EXPECT_EQ(onPath[1], "False");
  EXPECT_EQ(driversOnPath[0], "1");
  EXPECT_EQ(driversOnPath[1], "1");
  EXPECT_EQ(pytest::Eval("('only_here' in sys.modules, '" + dir + "' in sys.path)"), "(False, False)");

  // The record of added directories is one for the process: the directory
  // counts as added here too, so nothing is appended to the main path.
  EXPECT_TRUE(pythonlib_add_directory(dir));
  EXPECT_EQ(pytest::Eval("'" + dir + "' in sys.path"), "False");
}

TEST_F(SubInterpreters, GrowsWithInterpretersForNewWorkers) {
  ASSERT_TRUE(pythonlib_init_ex(nullptr, 1, 3));
  CTWP3PythonTaskPool* pool = GetSubInterpreterPool();
  EXPECT_EQ(pool->GetCurrentTISState(), nullptr);  // not a worker
  std::set<int64_t> interpreters;
  std::mutex m;
  pytest::RunOnDistinctWorkers(*pool, 3, [&](int) {
    ASSERT_NE(pool->GetCurrentTISState(), nullptr);
    PyThreadStateLock lock(0, __FILE__, __LINE__);
    std::lock_guard<std::mutex> g(m);
    interpreters.insert(PyInterpreterState_GetID(PyThreadState_GetInterpreter(PyThreadState_Get())));
  });
  EXPECT_EQ(pool->GetThreadCount(), 3u);
  EXPECT_EQ(interpreters.size(), 3u);
  EXPECT_EQ(interpreters.count(0), 0u);
  // Each new worker ran the Python-side start-up in its interpreter.
  EXPECT_EQ(pytest::RecordedCalls(m_record).size(), 4u);
}

TEST_F(SubInterpreters, ErrorsInWorkerScopesAreClearedAndPrinted) {
  ASSERT_TRUE(pythonlib_init_ex(nullptr, 2, 2));
  CTWP3PythonTaskPool* pool = GetSubInterpreterPool();
  testing::internal::CaptureStderr();
  bool pendingAfter[2] = {true, true};
  pytest::RunOnDistinctWorkers(*pool, 2, [&](int i) {
    {
      PyThreadStateLock lock(0, __FILE__, __LINE__);
      if (i == 0) {
        PyErr_SetString(PyExc_KeyError, "lost-key");
      } else {
        // A driver's sys.exit() must not end the host.
        PyObject* globals = PyModule_GetDict(PyImport_AddModule("__main__"));
        PyObject* r = PyRun_String("sys.exit(4)", Py_file_input, globals, globals);
        Py_XDECREF(r);
      }
    }
    PyThreadStateLock lock(0, __FILE__, __LINE__);
    pendingAfter[i] = PyErr_Occurred() != nullptr;
  });
  const std::string err = testing::internal::GetCapturedStderr();
  EXPECT_FALSE(pendingAfter[0]);
  EXPECT_FALSE(pendingAfter[1]);
  EXPECT_NE(err.find("lost-key"), std::string::npos) << err;
  EXPECT_NE(err.find("SystemExit: 4"), std::string::npos) << err;
  // The process is still here after the SystemExit.
  EXPECT_EQ(pytest::Eval("6 * 7"), "42");
}

// Host threads (the one that started the interpreter among them) run Python
// while workers begin, work and end: all must take turns on the one lock.
TEST_F(SubInterpreters, HostThreadsAndWorkersShareTheLock) {
  ASSERT_TRUE(pythonlib_init_ex(nullptr, 1, 8));
  CTWP3PythonTaskPool* pool = GetSubInterpreterPool();
  ASSERT_TRUE(pytest::Exec("counter = [0]\ndef bump():\n    counter[0] += 1\n"));

  std::atomic<bool> stop{false};
  auto hostLoop = [&] {
    long n = 0;
    while (!stop) {
      PyThreadStateLock lock(7, __FILE__, __LINE__);
      PyObject* globals = PyModule_GetDict(PyImport_AddModule("__main__"));
      PyObject* r = PyRun_String("bump()", Py_eval_input, globals, globals);
      Py_XDECREF(r);
      ++n;
    }
    return n;
  };
  long otherCount = 0;
  std::thread other([&] { otherCount = hostLoop(); });

  constexpr int kTasks = 400;
  std::vector<std::unique_ptr<pytest::FunctionTask>> tasks;
  std::atomic<int> ok{0};
  for (int i = 0; i < kTasks; ++i) {
    tasks.push_back(std::make_unique<pytest::FunctionTask>([&] {
      if (pytest::Eval("sum(range(100))") == "4950") ++ok;
    }));
  }
  std::thread feeder([&] {
    for (auto& t : tasks) pool->AddTask(t.get());
  });
  long mainCount = 0;
  {
    // The thread that started the interpreter runs Python too.
    std::thread watcher([&] {
      for (auto& t : tasks) t->Wait();
      stop = true;
    });
    mainCount = hostLoop();
    watcher.join();
  }
  feeder.join();
  other.join();
  EXPECT_EQ(ok.load(), kTasks);
  EXPECT_GT(pool->GetThreadCount(), 1u);
  EXPECT_EQ(pytest::Eval("counter[0]"), std::to_string(mainCount + otherCount));
}

bool UnderSanitizer() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  return true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
  return true;
#endif
#endif
  return false;
}

TEST_F(SubInterpreters, FiftyStartStopCyclesInOneProcess) {
  constexpr int kCycles = 50;
  constexpr int kTasks = 40;
  long afterFirst = 0;
  for (int cycle = 0; cycle < kCycles; ++cycle) {
    ASSERT_TRUE(pythonlib_init_ex(nullptr, 4, 4)) << cycle;
    CTWP3PythonTaskPool* pool = GetSubInterpreterPool();
    ASSERT_NE(pool, nullptr);
    std::atomic<int> ok{0};
    std::vector<std::unique_ptr<pytest::FunctionTask>> tasks;
    for (int i = 0; i < kTasks; ++i) {
      tasks.push_back(std::make_unique<pytest::FunctionTask>([&, i] {
        const std::string got = pytest::Eval("len(str(" + std::to_string(i) + " ** 50)) > 0 and sys.path[0] != None");
        if (got == "True") ++ok;
      }));
      pool->AddTask(tasks.back().get());
    }
    for (auto& t : tasks) t->Wait();
    EXPECT_EQ(ok.load(), kTasks) << cycle;
    pythonlib_destroy();
    ASSERT_FALSE(pythonlib_is_inited());
    if (cycle == 0) afterFirst = pytest::ResidentKb();
  }
  const long afterAll = pytest::ResidentKb();
  RecordProperty("rss_after_first_kb", std::to_string(afterFirst));
  RecordProperty("rss_after_all_kb", std::to_string(afterAll));
  if (!UnderSanitizer()) {
    // CPython itself keeps a little per start (interned strings, type
    // caches); a leak of ours per cycle or per task would be far above this.
    EXPECT_LT(afterAll - afterFirst, 3 * 1024) << afterFirst << " kB -> " << afterAll << " kB";
  }
}


// Workers that begin while the thread that started the interpreter keeps
// entering Python: the lock a beginning worker takes must never look, to
// that thread, like its own.
TEST_F(SubInterpreters, WorkersBeginWhileStarterRunsPython) {
  constexpr int kCycles = 12;
  constexpr int kMax = 12;
  for (int cycle = 0; cycle < kCycles; ++cycle) {
    ASSERT_TRUE(pythonlib_init_ex(nullptr, 1, kMax));
    CTWP3PythonTaskPool* pool = GetSubInterpreterPool();
    pytest::Barrier all(kMax);
    std::vector<std::unique_ptr<pytest::FunctionTask>> tasks;
    for (int i = 0; i < kMax; ++i) tasks.push_back(std::make_unique<pytest::FunctionTask>([&] { all.Arrive(); }));
    std::atomic<bool> done{false};
    std::thread feeder([&] {
      for (auto& t : tasks) pool->AddTask(t.get());
      for (auto& t : tasks) t->Wait();
      done = true;
    });
    long entries = 0;
    while (!done) {
      PyThreadStateLock lock(0, __FILE__, __LINE__);
      ++entries;
    }
    feeder.join();
    EXPECT_EQ(pool->GetThreadCount(), static_cast<size_t>(kMax));
    EXPECT_GT(entries, 0);
    pythonlib_destroy();
  }
}


}  // namespace
