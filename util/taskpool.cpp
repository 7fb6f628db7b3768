// Worker threads, a queue and one mutex. Growth is decided when a task is
// queued: one more worker starts whenever the waiting tasks outnumber the
// workers that are free (or still starting) and the maximum allows it.
#include "netloom/util/taskpool.h"

#include <algorithm>
#include <utility>

IRunTask::~IRunTask() = default;

CTWTaskPool::CTWTaskPool() = default;

CTWTaskPool::~CTWTaskPool() {
  Stop(true, true);
  std::vector<std::thread> rest;
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    rest.swap(m_threads);
  }
  JoinAll(rest);
}

void CTWTaskPool::OnThreadBegin(std::thread::id) {}
void CTWTaskPool::OnThreadEnd(std::thread::id) {}

bool CTWTaskPool::InitPool(int initCount, int maxCount) {
  std::vector<std::thread> previous;
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_running) return false;
    // Workers of an earlier run that was stopped without waiting.
    previous.swap(m_threads);
  }
  JoinAll(previous);

  const std::size_t initial = initCount > 0 ? static_cast<std::size_t>(initCount) : 1;
  const std::size_t maximum = std::max<std::size_t>(initial, maxCount > 0 ? static_cast<std::size_t>(maxCount) : 0);

  std::unique_lock<std::mutex> lock(m_mutex);
  if (m_running) return false;  // another InitPool won the race
  m_running = true;
  m_stopping = false;
  m_dropQueued = false;
  m_started = 0;
  m_maxThreads = maximum;
  std::size_t spawned = 0;
  for (std::size_t i = 0; i < initial; ++i) spawned += StartWorkerLocked() ? 1 : 0;
  m_workerReady.wait(lock, [&] { return m_started >= spawned || m_stopping; });
  return true;
}

bool CTWTaskPool::IsRunning() const {
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_running;
}

bool CTWTaskPool::AddTask(IRunTask* task) {
  if (!task) return false;
  std::lock_guard<std::mutex> lock(m_mutex);
  if (!m_running) return false;
  m_queue.push_back(task);
  const std::size_t free = m_alive - m_busy;
  if (m_queue.size() > free && m_alive < m_maxThreads) StartWorkerLocked();
  m_taskReady.notify_one();
  return true;
}

std::list<IRunTask*> CTWTaskPool::Stop(bool waitForThreads, bool dropQueued) {
  std::list<IRunTask*> notRun;
  std::vector<std::thread> workers;
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_running || m_stopping) {
      m_running = false;
      m_stopping = true;
      if (dropQueued) {
        m_dropQueued = true;
        notRun.assign(m_queue.begin(), m_queue.end());
        m_queue.clear();
      }
    }
    if (waitForThreads) {
      // A worker cannot join itself: leave it for a later join.
      const auto self = std::find_if(m_threads.begin(), m_threads.end(),
                                     [](const std::thread& t) { return t.get_id() == std::this_thread::get_id(); });
      std::thread mine;
      if (self != m_threads.end()) {
        mine = std::move(*self);
        m_threads.erase(self);
      }
      workers.swap(m_threads);
      if (mine.joinable()) m_threads.push_back(std::move(mine));
    }
  }
  m_taskReady.notify_all();
  m_workerReady.notify_all();
  JoinAll(workers);
  return notRun;
}

std::size_t CTWTaskPool::GetThreadCount() const {
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_alive;
}

std::size_t CTWTaskPool::GetQueuedCount() const {
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_queue.size();
}

bool CTWTaskPool::StartWorkerLocked() {
  ++m_alive;
  try {
    m_threads.emplace_back([this] { WorkerMain(); });
    return true;
  } catch (...) {
    // No thread to be had: the workers already running take the queue.
    --m_alive;
    return false;
  }
}

void CTWTaskPool::JoinAll(std::vector<std::thread>& threads) {
  for (auto& t : threads) {
    if (t.joinable()) t.join();
  }
  threads.clear();
}

void CTWTaskPool::WorkerMain() {
  const std::thread::id id = std::this_thread::get_id();
  try {
    OnThreadBegin(id);
  } catch (...) {
  }
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    ++m_started;
  }
  m_workerReady.notify_all();

  for (;;) {
    IRunTask* task = nullptr;
    {
      std::unique_lock<std::mutex> lock(m_mutex);
      m_taskReady.wait(lock, [&] { return m_stopping || !m_queue.empty(); });
      if (m_queue.empty() || (m_stopping && m_dropQueued)) break;
      task = m_queue.front();
      m_queue.pop_front();
      ++m_busy;
    }
    try {
      task->Run();
    } catch (...) {
      // A failing task must not take the worker, and the pool, down with it.
    }
    std::lock_guard<std::mutex> lock(m_mutex);
    --m_busy;
  }

  try {
    OnThreadEnd(id);
  } catch (...) {
  }
  std::lock_guard<std::mutex> lock(m_mutex);
  --m_alive;
}
