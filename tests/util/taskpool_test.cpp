// The thread pool: hooks on the worker threads, growth under load, and the
// two ways of stopping.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <mutex>
#include <set>
#include <vector>

#include "netloom/util/taskpool.h"

namespace {

using namespace std::chrono_literals;

// Records which threads began and ended, and on which thread each hook ran.
class RecordingPool : public CTWTaskPool {
 public:
  ~RecordingPool() override { Stop(true, true); }
  void OnThreadBegin(std::thread::id id) override {
    std::lock_guard<std::mutex> lock(m);
    if (id == std::this_thread::get_id()) begun.insert(id);
    else wrongThread = true;
    ++begins;
  }
  void OnThreadEnd(std::thread::id id) override {
    std::lock_guard<std::mutex> lock(m);
    if (id == std::this_thread::get_id() && begun.count(id)) ended.insert(id);
    else wrongThread = true;
    ++ends;
  }
  std::mutex m;
  std::set<std::thread::id> begun, ended;
  bool wrongThread = false;
  int begins = 0, ends = 0;  // thread ids may be reused after a join
};

// Blocks the tasks that pass it until opened.
struct Gate {
  std::promise<void> open;
  std::shared_future<void> opened = open.get_future().share();
  void Open() { open.set_value(); }
  void Pass() { opened.wait(); }
};

class Task : public IRunTask {
 public:
  Task(std::atomic<int>& runs, Gate* gate = nullptr) : m_runs(runs), m_gate(gate) {}
  void Run() override {
    started = true;
    if (m_gate) m_gate->Pass();
    ++m_runs;
  }
  std::atomic<bool> started{false};

 private:
  std::atomic<int>& m_runs;
  Gate* m_gate;
};

template <typename Pred>
bool WaitFor(Pred pred) {
  for (int i = 0; i < 2000; ++i) {
    if (pred()) return true;
    std::this_thread::sleep_for(1ms);
  }
  return pred();
}

TEST(TaskPool, InitialWorkersAreReadyWhenInitReturns) {
  RecordingPool pool;
  EXPECT_FALSE(pool.IsRunning());
  ASSERT_TRUE(pool.InitPool(3, 5));
  EXPECT_TRUE(pool.IsRunning());
  EXPECT_FALSE(pool.InitPool(1, 1));
  EXPECT_EQ(pool.GetThreadCount(), 3u);
  {
    std::lock_guard<std::mutex> lock(pool.m);
    EXPECT_EQ(pool.begun.size(), 3u);
  }
  EXPECT_TRUE(pool.Stop(true, true).empty());
  EXPECT_EQ(pool.GetThreadCount(), 0u);
  EXPECT_EQ(pool.ended, pool.begun);
  EXPECT_FALSE(pool.wrongThread);
}

TEST(TaskPool, OddCountsStillGiveAWorkingPool) {
  RecordingPool pool;
  ASSERT_TRUE(pool.InitPool(0, -4));
  EXPECT_EQ(pool.GetThreadCount(), 1u);
  std::atomic<int> runs{0};
  Task a(runs), b(runs);
  EXPECT_TRUE(pool.AddTask(&a));
  EXPECT_TRUE(pool.AddTask(&b));
  EXPECT_FALSE(pool.AddTask(nullptr));
  EXPECT_TRUE(pool.Stop(true, false).empty());  // drained before ending
  EXPECT_EQ(runs.load(), 2);
  EXPECT_FALSE(pool.AddTask(&a));
  EXPECT_EQ(runs.load(), 2);
}

TEST(TaskPool, GrowsUnderLoadUpToTheMaximum) {
  RecordingPool pool;
  ASSERT_TRUE(pool.InitPool(1, 3));
  Gate gate;
  std::atomic<int> runs{0};
  std::vector<std::unique_ptr<Task>> tasks;
  for (int i = 0; i < 6; ++i) {
    tasks.push_back(std::make_unique<Task>(runs, &gate));
    ASSERT_TRUE(pool.AddTask(tasks.back().get()));
  }
  ASSERT_TRUE(WaitFor([&] { return tasks[0]->started && tasks[1]->started && tasks[2]->started; }));
  EXPECT_EQ(pool.GetThreadCount(), 3u);
  EXPECT_EQ(pool.GetQueuedCount(), 3u);
  gate.Open();
  ASSERT_TRUE(WaitFor([&] { return runs == 6; }));
  EXPECT_EQ(pool.GetThreadCount(), 3u);
  pool.Stop(true, true);
  EXPECT_EQ(pool.ended.size(), 3u);
  EXPECT_FALSE(pool.wrongThread);
}

TEST(TaskPool, StopHandsBackWhatDidNotRun) {
  RecordingPool pool;
  ASSERT_TRUE(pool.InitPool(1, 1));
  Gate gate;
  std::atomic<int> runs{0};
  Task running(runs, &gate), second(runs), third(runs);
  pool.AddTask(&running);
  ASSERT_TRUE(WaitFor([&] { return running.started.load(); }));
  pool.AddTask(&second);
  pool.AddTask(&third);

  std::list<IRunTask*> left;
  std::thread stopper([&] { left = pool.Stop(true, true); });
  ASSERT_TRUE(WaitFor([&] { return !pool.IsRunning(); }));
  gate.Open();  // the running task finishes; the waiting ones never start
  stopper.join();
  EXPECT_EQ(left, (std::list<IRunTask*>{&second, &third}));
  EXPECT_EQ(runs.load(), 1);
  EXPECT_EQ(pool.ended.size(), 1u);
}

TEST(TaskPool, StopWithoutWaitingThenRestart) {
  RecordingPool pool;
  ASSERT_TRUE(pool.InitPool(2, 2));
  std::atomic<int> runs{0};
  Task a(runs);
  pool.AddTask(&a);
  EXPECT_TRUE(pool.Stop(false, false).empty());
  EXPECT_FALSE(pool.IsRunning());
  ASSERT_TRUE(pool.InitPool(1, 1));  // joins the old workers first
  {
    std::lock_guard<std::mutex> lock(pool.m);
    EXPECT_EQ(pool.ends, 2);
    EXPECT_EQ(pool.begins, 3);
  }
  EXPECT_EQ(runs.load(), 1);
  EXPECT_EQ(pool.GetThreadCount(), 1u);
}

class Throwing : public IRunTask {
 public:
  void Run() override { throw std::runtime_error("task failed"); }
};

class Stopping : public IRunTask {
 public:
  explicit Stopping(CTWTaskPool& pool) : m_pool(pool) {}
  void Run() override { m_pool.Stop(true, true); }

 private:
  CTWTaskPool& m_pool;
};

TEST(TaskPool, FailingTasksAndStopFromATaskDoNotTakeThePoolDown) {
  std::atomic<int> runs{0};
  {
    RecordingPool pool;
    ASSERT_TRUE(pool.InitPool(1, 1));
    Throwing bad;
    Task good(runs);
    pool.AddTask(&bad);
    pool.AddTask(&good);
    ASSERT_TRUE(WaitFor([&] { return runs == 1; }));
    Stopping stop(pool);
    pool.AddTask(&stop);
    ASSERT_TRUE(WaitFor([&] { return !pool.IsRunning(); }));
  }  // the destructor joins the worker that stopped its own pool
  EXPECT_EQ(runs.load(), 1);
}

TEST(TaskPool, ManyProducersManyTasks) {
  RecordingPool pool;
  ASSERT_TRUE(pool.InitPool(2, 4));
  std::atomic<int> runs{0};
  constexpr int kPerProducer = 500;
  std::vector<std::unique_ptr<Task>> tasks;
  for (int i = 0; i < 4 * kPerProducer; ++i) tasks.push_back(std::make_unique<Task>(runs));
  std::vector<std::thread> producers;
  for (int p = 0; p < 4; ++p) {
    producers.emplace_back([&, p] {
      for (int i = 0; i < kPerProducer; ++i) pool.AddTask(tasks[p * kPerProducer + i].get());
    });
  }
  for (auto& t : producers) t.join();
  EXPECT_TRUE(pool.Stop(true, false).empty());
  EXPECT_EQ(runs.load(), 4 * kPerProducer);
  EXPECT_LE(pool.begun.size(), 4u);
}

}  // namespace
