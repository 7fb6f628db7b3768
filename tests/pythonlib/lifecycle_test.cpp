// Starting and stopping the interpreter, the Python-side start-up calls, the
// directories on sys.path, and the scopes that keep Python errors in.
#include <gtest/gtest.h>

#include <filesystem>

#include "common/testenv.h"
#include "netloom/util/twfilesystem.h"
#include "pythonlib/pyharness.h"

namespace {

class Lifecycle : public ::testing::Test {
 protected:
  void SetUp() override { m_record = pytest::PrepareEnvironment(); }
  void TearDown() override {
    pythonlib_destroy();
    for (const char* name : {"procedure3.ini", "fix_procedure3.ini", "livesetting.ini"}) {
      std::filesystem::remove(TWFileSystem::GetSystemConfFolder() + name);
    }
  }
  std::string m_record;
};

std::string Quoted(const std::string& text) { return "'" + text + "'"; }

int CountOnPath(const std::string& dir) {
  return std::stoi(pytest::Eval("sys.path.count(" + Quoted(dir) + ")"));
}

TEST_F(Lifecycle, StartsDebianInterpreterOnceAndAgainAfterStop) {
  EXPECT_FALSE(pythonlib_is_inited());
  EXPECT_EQ(GetSubInterpreterPool(), nullptr);

  ASSERT_TRUE(pythonlib_init_ex(nullptr, 2, 4));
  EXPECT_TRUE(pythonlib_is_inited());
  CTWP3PythonTaskPool* pool = GetSubInterpreterPool();
  ASSERT_NE(pool, nullptr);
  EXPECT_EQ(pool->GetThreadCount(), 2u);

  // Never the interpreter that happens to come first on PATH.
  EXPECT_EQ(pytest::Eval("sys.executable"), "/usr/bin/python3");
  EXPECT_EQ(pytest::Eval("sys.version_info[:2]"), "(3, 11)");
  EXPECT_EQ(pytest::Eval("'datetime' in sys.modules"), "True");

  // A second start changes nothing, whatever its counts.
  EXPECT_FALSE(pythonlib_init_ex(nullptr, 5, 9));
  EXPECT_EQ(GetSubInterpreterPool(), pool);
  EXPECT_EQ(pool->GetThreadCount(), 2u);

  // Stopped and started again, with the directory set emptied between.
  const std::string extra = netloom_test::MakeTempDir("extra");
  ASSERT_TRUE(pythonlib_add_directory(extra));
  pythonlib_destroy();
  EXPECT_FALSE(pythonlib_is_inited());
  EXPECT_EQ(GetSubInterpreterPool(), nullptr);
  pythonlib_destroy();  // twice is harmless

  ASSERT_TRUE(pythonlib_init_ex(nullptr, 3, 3));
  ASSERT_NE(GetSubInterpreterPool(), nullptr);
  EXPECT_EQ(GetSubInterpreterPool()->GetThreadCount(), 3u);
  // The directory set started empty: the directory goes on the new path.
  EXPECT_EQ(CountOnPath(extra), 0);
  ASSERT_TRUE(pythonlib_add_directory(extra));
  EXPECT_EQ(CountOnPath(extra), 1);
}

TEST_F(Lifecycle, PythonSideStartUpRunsInEveryInterpreter) {
  const std::string conf = TWFileSystem::GetSystemConfFolder();
  netloom_test::WriteFile(conf + "livesetting.ini", "[discover]\npythondebug=7\n");
  const std::string logs = netloom_test::MakeTempDir("logs");
  ASSERT_TRUE(pythonlib_init_ex(logs.c_str(), 2, 2));

  const auto calls = pytest::RecordedCalls(m_record);
  ASSERT_EQ(calls.size(), 3u);  // main interpreter, then one per worker
  EXPECT_EQ(calls[0][0], "pythonlib_init");
  EXPECT_EQ(calls[0][2], Quoted(logs));
  EXPECT_EQ(calls[0][3], "1");  // any value but 0 is on
  for (size_t i = 1; i < calls.size(); ++i) {
    ASSERT_EQ(calls[i].size(), 4u);
    EXPECT_EQ(calls[i][2], Quoted(TWFileSystem::GetLogFolder()));
    EXPECT_EQ(calls[i][3], "1");
  }

  testing::internal::CaptureStderr();
  pythonlib_reomve_module("bad\xff");  // not UTF-8: reported, never sent
  EXPECT_NE(testing::internal::GetCapturedStderr().find("UnicodeDecodeError"), std::string::npos);
  pythonlib_reomve_module("tarnwick.sysext");
  EXPECT_EQ(pytest::Eval("'tarnwick.sysext' in sys.modules"), "False");
  pythonlib_destroy();
  const auto after = pytest::RecordedCalls(m_record);
  ASSERT_EQ(after.size(), 5u);
  EXPECT_EQ(after[3], (std::vector<std::string>{"remove_module", calls[0][1], "'tarnwick.sysext'"}));
  EXPECT_EQ(after[4][0], "pythonlib_clear");
}

TEST_F(Lifecycle, DirectorySetKeepsEachDirectoryOnce) {
  EXPECT_FALSE(pythonlib_add_directory("/nowhere"));
  EXPECT_FALSE(pythonlib_remove_directory("/nowhere"));
  ASSERT_TRUE(pythonlib_init_ex(nullptr, 1, 1));

  // Start-up put the driver cache folder on the path once, and made it.
  const std::string drivers = TWFileSystem::GetTempFolder() + "Drivers/";
  EXPECT_TRUE(std::filesystem::is_directory(drivers));
  EXPECT_EQ(CountOnPath(drivers), 1);
  EXPECT_EQ(CountOnPath(TWFileSystem::GetSystemBinFolder()), 1);
  EXPECT_TRUE(pythonlib_add_directory(drivers));
  EXPECT_EQ(CountOnPath(drivers), 1);

  const std::string dir = netloom_test::MakeTempDir("mods");
  EXPECT_TRUE(pythonlib_add_directory(dir));
  EXPECT_TRUE(pythonlib_add_directory(dir));
  EXPECT_EQ(CountOnPath(dir), 1);
  netloom_test::WriteFile(dir + "probe_mod.py", "VALUE = 42\n");
  EXPECT_EQ(pytest::Eval("__import__('probe_mod').VALUE"), "42");
  EXPECT_TRUE(pythonlib_remove_directory(dir));
  EXPECT_EQ(CountOnPath(dir), 0);
  EXPECT_TRUE(pythonlib_remove_directory(dir));  // no longer known: nothing runs

  // Put there by other means: not ours to take off.
  const std::string foreign = netloom_test::MakeTempDir("foreign");
  ASSERT_TRUE(pytest::Exec("sys.path.append(" + Quoted(foreign) + ")"));
  EXPECT_TRUE(pythonlib_remove_directory(foreign));
  EXPECT_EQ(CountOnPath(foreign), 1);
}


TEST_F(Lifecycle, FailingPythonSideIsPrintedAndCleared) {
  ::setenv("TARNWICK_RAISE", "pythonlib_init,remove_module,pythonlib_clear", 1);
  testing::internal::CaptureStderr();
  ASSERT_TRUE(pythonlib_init_ex(nullptr, 2, 2));
  pythonlib_reomve_module("json");
  EXPECT_EQ(pytest::Eval("'ok'"), "ok");
  pythonlib_destroy();
  const std::string err = testing::internal::GetCapturedStderr();
  ::unsetenv("TARNWICK_RAISE");
  // Once for the main interpreter, once per worker.
  size_t refusals = 0;
  for (size_t at = err.find("pythonlib_init refused"); at != std::string::npos;
       at = err.find("pythonlib_init refused", at + 1)) {
    ++refusals;
  }
  EXPECT_EQ(refusals, 3u) << err;
  EXPECT_NE(err.find("RuntimeError: remove_module refused"), std::string::npos) << err;
  EXPECT_NE(err.find("RuntimeError: pythonlib_clear refused"), std::string::npos) << err;
  EXPECT_EQ(pytest::RecordedCalls(m_record).size(), 5u);
}

}  // namespace
