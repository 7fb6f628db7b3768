// The library's traced mutex. Every acquisition tells the process-wide
// CLockMgr which source file and line took it, so a hanging process can print
// who holds what. With tracing off (the default) the cost is one flag test.
#pragma once

#include <atomic>
#include <list>
#include <map>
#include <mutex>
#include <string>

#include "netloom/export.h"

// One held lock.
struct NETLOOM_API CLockInfo {
  std::string fileName;
  int line = 0;
  int times = 0;  // acquisitions still open
};

class NETLOOM_API CLockMgr {
 public:
  static CLockMgr* Instance();

  void SetRun(bool run);
  bool IsRun() const { return m_run.load(std::memory_order_relaxed); }
  void AddLock(void* lock, const char* file, int line);
  void DelLock(void* lock);
  // Logs every open lock once per change: a second call with nothing new prints nothing.
  void PrintLockInfo();

  // Introspection for diagnostics: a copy of the record of `lock`, times 0 when untracked.
  CLockInfo GetInfo(void* lock) const;
  size_t LockCount() const;
  size_t FreeCount() const;
  bool IsDirty() const;

  ~CLockMgr();
  CLockMgr(const CLockMgr&) = delete;
  CLockMgr& operator=(const CLockMgr&) = delete;

 private:
  CLockMgr();
  CLockInfo* GetLockInfo();
  void PutLockInfo(CLockInfo* info);

  std::map<void*, CLockInfo*> m_locks;
  std::list<CLockInfo*> m_free;
  bool m_dirty = false;
  std::atomic<bool> m_run{false};
  mutable std::mutex m_mutex;  // plain, never traced: always the innermost lock
};

namespace TW_Lock {

class NETLOOM_API Mutex {
 public:
  Mutex() = default;
  Mutex(const Mutex&) = delete;
  Mutex& operator=(const Mutex&) = delete;

  void Lock(const char* file, int line);
  void Unlock();
  // Untraced forms, so the mutex also works with std::lock_guard and friends.
  void lock() { m_mutex.lock(); }
  void unlock() { m_mutex.unlock(); }
  bool try_lock() { return m_mutex.try_lock(); }

 private:
  std::recursive_mutex m_mutex;
};

class NETLOOM_API Guard {
 public:
  Guard(Mutex& mutex, const char* file, int line);
  ~Guard();
  Guard(const Guard&) = delete;
  Guard& operator=(const Guard&) = delete;

 private:
  Mutex* m_mutex;
};

}  // namespace TW_Lock

#define TW_LOCK_GUARD_NAME2(a, b) a##b
#define TW_LOCK_GUARD_NAME(a, b) TW_LOCK_GUARD_NAME2(a, b)
// Holds `mutex` for the rest of the scope, traced with this file and line.
#define TW_LOCK_GUARD(mutex) TW_Lock::Guard TW_LOCK_GUARD_NAME(twLockGuard_, __LINE__)((mutex), __FILE__, __LINE__)
