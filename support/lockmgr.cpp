// Lock tracing. The manager's own mutex is a plain std::mutex taken only for
// the moment of bookkeeping, after the traced mutex is held and before it is
// released, so it can never be part of a cycle.
#include "netloom/lockmgr.h"

#include <cstdio>
#include <memory>

#include "netloom/util/logger.h"

namespace {
constexpr size_t kFreeListMax = 20;
constexpr size_t kTextBuffer = 1023;
}  // namespace

CLockMgr::CLockMgr() {
  char text[kTextBuffer];
  std::snprintf(text, sizeof text, "Init CLockMgr, Address: %p", static_cast<void*>(this));
  ILogger::GetInstance()->LogStr(text, "l3discover", __FILE__, "CLockMgr::CLockMgr", __LINE__, LOG_DEBUG);
}

CLockMgr::~CLockMgr() {
  std::lock_guard<std::mutex> lock(m_mutex);
  for (auto& kv : m_locks) delete kv.second;
  for (auto* info : m_free) delete info;
  m_locks.clear();
  m_free.clear();
}

CLockMgr* CLockMgr::Instance() {
  static std::unique_ptr<CLockMgr> instance(new CLockMgr());
  return instance.get();
}

CLockInfo* CLockMgr::GetLockInfo() {
  if (!m_free.empty()) {
    CLockInfo* info = m_free.front();
    m_free.pop_front();
    return info;
  }
  return new (std::nothrow) CLockInfo();
}

void CLockMgr::PutLockInfo(CLockInfo* info) {
  if (m_free.size() < kFreeListMax) {
    m_free.push_back(info);
  } else {
    delete info;
  }
}

void CLockMgr::SetRun(bool run) {
  std::lock_guard<std::mutex> lock(m_mutex);
  m_run = run;
  if (run) {
    for (auto& kv : m_locks) PutLockInfo(kv.second);
    m_locks.clear();
  }
}

void CLockMgr::AddLock(void* lock, const char* file, int line) {
  if (!m_run.load(std::memory_order_relaxed) || !lock) return;
  std::lock_guard<std::mutex> guard(m_mutex);
  auto it = m_locks.find(lock);
  if (it != m_locks.end()) {
    ++it->second->times;
  } else {
    CLockInfo* info = GetLockInfo();
    if (!info) return;
    info->times = 1;
    info->fileName = file ? file : "";
    info->line = line;
    m_locks.emplace(lock, info);
  }
  m_dirty = true;
}

void CLockMgr::DelLock(void* lock) {
  if (!m_run.load(std::memory_order_relaxed) || !lock) return;
  std::lock_guard<std::mutex> guard(m_mutex);
  auto it = m_locks.find(lock);
  if (it != m_locks.end() && --it->second->times <= 0) {
    delete it->second;
    m_locks.erase(it);
  }
  m_dirty = true;
}

void CLockMgr::PrintLockInfo() {
  std::lock_guard<std::mutex> guard(m_mutex);
  if (!m_dirty) return;
  for (const auto& kv : m_locks) {
    if (kv.second->times <= 0) continue;
    char text[kTextBuffer];
    std::snprintf(text, sizeof text, "lock %p , filename:%s , line:%d , times:%d", kv.first,
                  kv.second->fileName.c_str(), kv.second->line, kv.second->times);
    ILogger::GetInstance()->LogStr(text, "l3discover", __FILE__, "CLockMgr::PrintLockInfo", __LINE__, LOG_INFO);
  }
  m_dirty = false;
}

CLockInfo CLockMgr::GetInfo(void* lock) const {
  std::lock_guard<std::mutex> guard(m_mutex);
  auto it = m_locks.find(lock);
  return it == m_locks.end() ? CLockInfo() : *it->second;
}

size_t CLockMgr::LockCount() const {
  std::lock_guard<std::mutex> guard(m_mutex);
  return m_locks.size();
}

size_t CLockMgr::FreeCount() const {
  std::lock_guard<std::mutex> guard(m_mutex);
  return m_free.size();
}

bool CLockMgr::IsDirty() const {
  std::lock_guard<std::mutex> guard(m_mutex);
  return m_dirty;
}

namespace TW_Lock {

void Mutex::Lock(const char* file, int line) {
  m_mutex.lock();
  CLockMgr::Instance()->AddLock(this, file, line);
}

void Mutex::Unlock() {
  CLockMgr::Instance()->DelLock(this);
  m_mutex.unlock();
}

Guard::Guard(Mutex& mutex, const char* file, int line) : m_mutex(&mutex) {
  m_mutex->lock();
  CLockMgr::Instance()->AddLock(m_mutex, file, line);
}

Guard::~Guard() {
  if (!m_mutex) return;
  CLockMgr::Instance()->DelLock(m_mutex);
  m_mutex->unlock();
}

}  // namespace TW_Lock
