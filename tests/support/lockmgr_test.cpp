// Lock tracing: which file and line hold a traced mutex, how often, from
// many threads at once; the recycled records; printing once per change.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdio>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

#include "netloom/lockmgr.h"
#include "netloom/util/logger.h"

namespace {

class LockTracing : public ::testing::Test {
 protected:
  void SetUp() override {
    mgr = CLockMgr::Instance();
    mgr->SetRun(true);
    ILogger::GetInstance()->SetObserver([this](ELogLevel, const std::string& category, const std::string& function,
                                               const std::string& message) {
      if (function != "CLockMgr::PrintLockInfo") return;
      std::lock_guard<std::mutex> lock(printedMutex);
      printed.push_back(category + "|" + message);
    });
  }
  void TearDown() override {
    ILogger::GetInstance()->SetObserver({});
    mgr->SetRun(false);
  }
  std::vector<std::string> Printed() {
    std::lock_guard<std::mutex> lock(printedMutex);
    return printed;
  }
  static std::string Line(const void* lock, const char* file, int line, int times) {
    char text[1024];
    std::snprintf(text, sizeof text, "l3discover|lock %p , filename:%s , line:%d , times:%d", lock, file, line,
                  times);
    return text;
  }

  CLockMgr* mgr = nullptr;
  std::mutex printedMutex;
  std::vector<std::string> printed;
};

TEST_F(LockTracing, LocksTakenBeforeRunAreNotTracked) {
  mgr->SetRun(false);
  TW_Lock::Mutex m;
  m.Lock("early.cpp", 1);
  mgr->SetRun(true);
  EXPECT_EQ(mgr->GetInfo(&m).times, 0);
  m.Unlock();
  EXPECT_EQ(mgr->GetInfo(&m).times, 0);
  EXPECT_EQ(mgr->LockCount(), 0u);

}

TEST_F(LockTracing, RecursionCountsWithTheFirstPlace) {
  TW_Lock::Mutex m;
  m.Lock("first.cpp", 10);
  {
    TW_Lock::Guard g(m, "second.cpp", 20);
    const CLockInfo info = mgr->GetInfo(&m);
    EXPECT_EQ(info.times, 2);
    EXPECT_EQ(info.fileName, "first.cpp");
    EXPECT_EQ(info.line, 10);
  }
  EXPECT_EQ(mgr->GetInfo(&m).times, 1);
  m.Unlock();
  EXPECT_EQ(mgr->GetInfo(&m).times, 0);
  EXPECT_EQ(mgr->LockCount(), 0u);
  // Released, the address starts afresh with the next holder's place.
  TW_LOCK_GUARD(m);
  EXPECT_EQ(mgr->GetInfo(&m).line, __LINE__ - 1);
}

TEST_F(LockTracing, DirectCallsWithNullAndUnknownAddresses) {
  mgr->AddLock(nullptr, "x.cpp", 1);
  EXPECT_EQ(mgr->LockCount(), 0u);
  int a = 0;
  mgr->DelLock(&a);  // never added
  EXPECT_EQ(mgr->LockCount(), 0u);
  mgr->AddLock(&a, nullptr, 3);
  EXPECT_EQ(mgr->GetInfo(&a).times, 1);
  EXPECT_EQ(mgr->GetInfo(&a).fileName, "");
  mgr->DelLock(&a);
  EXPECT_EQ(mgr->LockCount(), 0u);
}

TEST_F(LockTracing, PrintsOncePerChange) {
  TW_Lock::Mutex m;
  m.Lock("held.cpp", 42);
  mgr->PrintLockInfo();
  mgr->PrintLockInfo();
  ASSERT_EQ(Printed(), (std::vector<std::string>{Line(&m, "held.cpp", 42, 1)}));
  EXPECT_FALSE(mgr->IsDirty());

  m.Lock("again.cpp", 43);
  mgr->PrintLockInfo();
  ASSERT_EQ(Printed().size(), 2u);
  EXPECT_EQ(Printed()[1], Line(&m, "held.cpp", 42, 2));

  m.Unlock();
  m.Unlock();
  mgr->PrintLockInfo();  // a change, but nothing held: nothing to print
  mgr->PrintLockInfo();
  EXPECT_EQ(Printed().size(), 2u);
}

TEST_F(LockTracing, FreeListKeepsTwenty) {
  std::deque<TW_Lock::Mutex> mutexes(25);
  for (auto& m : mutexes) m.Lock("many.cpp", 1);
  EXPECT_EQ(mgr->LockCount(), 25u);
  mgr->SetRun(true);  // starts clean: the 25 records are recycled, 20 kept
  EXPECT_EQ(mgr->LockCount(), 0u);
  EXPECT_EQ(mgr->FreeCount(), 20u);
  for (auto& m : mutexes) m.Unlock();  // unknown now: nothing changes
  EXPECT_EQ(mgr->FreeCount(), 20u);

  for (int i = 0; i < 3; ++i) mutexes[i].Lock("reuse.cpp", i);
  EXPECT_EQ(mgr->FreeCount(), 17u);  // drawn from the free list
  EXPECT_EQ(mgr->LockCount(), 3u);
  for (int i = 0; i < 3; ++i) mutexes[i].Unlock();
  EXPECT_EQ(mgr->LockCount(), 0u);
  EXPECT_LE(mgr->FreeCount(), 20u);
}

TEST_F(LockTracing, ContendedMutexStaysExclusiveAndBalanced) {
  TW_Lock::Mutex shared;
  long counter = 0;
  std::atomic<bool> done{false};
  std::thread printer([&] {
    while (!done) mgr->PrintLockInfo();
  });
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([&] {
      for (int i = 0; i < 2000; ++i) {
        TW_Lock::Guard g(shared, __FILE__, __LINE__);
        if (i % 3 == 0) {
          TW_Lock::Guard inner(shared, __FILE__, __LINE__);
          ++counter;
        } else {
          ++counter;
        }
      }
    });
  }
  for (auto& th : threads) th.join();
  done = true;
  printer.join();
  EXPECT_EQ(counter, 8000);
  EXPECT_EQ(mgr->GetInfo(&shared).times, 0);
  EXPECT_EQ(mgr->LockCount(), 0u);
  for (const std::string& line : Printed()) {
    EXPECT_NE(line.find("times:"), std::string::npos);
    EXPECT_EQ(line.find("times:0"), std::string::npos) << line;
  }
}

}  // namespace
