// A small thread pool for work that must run off the caller's thread.
//
// Its one unusual feature is the pair of per-thread hooks: a derived pool is
// told on each worker thread, before the thread takes its first task and
// after it has taken its last, so that it can give the thread a private
// context (the Python pool gives each worker a sub-interpreter of its own).
//
// Threads: `InitPool` starts the initial workers and waits until each of
// them has been through `OnThreadBegin`. When tasks queue up faster than the
// workers take them, `AddTask` starts another worker, up to the maximum.
// Workers live until `Stop`.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <list>
#include <mutex>
#include <thread>
#include <vector>

#include "netloom/export.h"

// One unit of work. The pool never owns a task: the caller keeps it alive
// until it has run (or until `Stop` hands it back). A task may delete itself
// at the end of `Run`; the pool does not touch it after `Run` returns.
class NETLOOM_API IRunTask {
 public:
  virtual ~IRunTask();
  virtual void Run() = 0;
};

class NETLOOM_API CTWTaskPool {
 public:
  CTWTaskPool();
  // A derived class whose hooks matter must call Stop in its own destructor:
  // by the time this one runs, the derived hooks are gone.
  virtual ~CTWTaskPool();

  CTWTaskPool(const CTWTaskPool&) = delete;
  CTWTaskPool& operator=(const CTWTaskPool&) = delete;

  // Starts `initCount` workers (at least one when `initCount` is not
  // positive) and allows growth to `maxCount` (never below the initial count).
  // Returns once the initial workers are ready. False when already running.
  bool InitPool(int initCount, int maxCount);
  bool IsRunning() const;

  // Queues a task. False, and the task is not kept, when the pool is not
  // running or the task is null.
  bool AddTask(IRunTask* task);

  // Ends the pool. `waitForThreads`: return only after every worker has
  // finished its current task, passed through `OnThreadEnd` and ended;
  // otherwise the workers are told to end and are joined later (by the next
  // `InitPool`, `Stop` or the destructor). `dropQueued`: tasks still waiting
  // are not run and come back in the result, oldest first; otherwise the
  // workers run them all before ending and the result is empty.
  // Called from a worker (by a task), it cannot wait for that worker itself;
  // that one is joined later.
  std::list<IRunTask*> Stop(bool waitForThreads, bool dropQueued);

  // Workers alive now, and tasks waiting for a worker.
  std::size_t GetThreadCount() const;
  std::size_t GetQueuedCount() const;

 protected:
  // Called on the worker thread, with that thread's id, before its first
  // task and after its last. Exceptions they throw are swallowed.
  virtual void OnThreadBegin(std::thread::id id);
  virtual void OnThreadEnd(std::thread::id id);

 private:
  void WorkerMain();
  bool StartWorkerLocked();
  static void JoinAll(std::vector<std::thread>& threads);

  mutable std::mutex m_mutex;
  std::condition_variable m_taskReady;   // a task was queued, or stop
  std::condition_variable m_workerReady; // a worker finished OnThreadBegin
  std::deque<IRunTask*> m_queue;
  std::vector<std::thread> m_threads;
  std::size_t m_maxThreads = 0;
  std::size_t m_busy = 0;     // workers inside Run
  std::size_t m_started = 0;  // workers of this run through OnThreadBegin
  std::size_t m_alive = 0;    // workers not yet through OnThreadEnd
  bool m_running = false;
  bool m_stopping = false;
  bool m_dropQueued = false;
};
