// Ini pairs: the "fix_" file of a pair wins over the plain one, and a missing
// or broken file leaves the caller's default standing.
#include <gtest/gtest.h>

#include "common/testenv.h"
#include "netloom/util/conf.h"
#include "netloom/util/twfilesystem.h"

namespace {

class ConfPair : public ::testing::Test {
 protected:
  void SetUp() override {
    const std::string dir = TWFileSystem::GetSystemConfFolder();
    netloom_test::WriteFile(dir + "procedure3.ini",
                            "[run]\ninit_thread_count = 4\nmax_thread_count=32\nonly_plain = 7\n"
                            "bad = twelve\n[other]\ninit_thread_count=99\n");
    netloom_test::WriteFile(dir + "fix_procedure3.ini", "[run]\nmax_thread_count = 8\nneg=-3\n");
  }
};

TEST_F(ConfPair, FixFileWins) {
  CConf fix("fix_procedure3.ini"), plain("procedure3.ini");
  ASSERT_TRUE(fix.IsLoaded());
  ASSERT_TRUE(plain.IsLoaded());
  EXPECT_EQ(CConf::LoadIntValue(fix, plain, "run", "max_thread_count", 16), 8);
  EXPECT_EQ(CConf::LoadIntValue(fix, plain, "run", "init_thread_count", 2), 4);
  EXPECT_EQ(CConf::LoadIntValue(fix, plain, "run", "only_plain", 0), 7);
  EXPECT_EQ(CConf::LoadIntValue(fix, plain, "run", "neg", 0), -3);
  EXPECT_EQ(CConf::LoadIntValue(fix, plain, "nosection", "init_thread_count", 2), 2);
  EXPECT_EQ(CConf::LoadIntValue(fix, plain, "other", "init_thread_count", 2), 99);
  EXPECT_EQ(CConf::LoadIntValue(fix, plain, "run", "bad", 5), 5);
  EXPECT_EQ(CConf::LoadIntValue(fix, plain, nullptr, nullptr, 5), 5);
}

TEST_F(ConfPair, MissingFilesGiveDefaults) {
  CConf fix("fix_livesetting.ini"), plain("livesetting.ini");
  EXPECT_FALSE(fix.IsLoaded());
  EXPECT_EQ(CConf::LoadIntValue(fix, plain, "discover", "pythondebug", 0), 0);
  CConf plainOnly("procedure3.ini");
  EXPECT_EQ(CConf::LoadIntValue(fix, plainOnly, "run", "max_thread_count", 16), 32);
}

TEST_F(ConfPair, AbsolutePathAndValues) {
  const std::string path = netloom_test::MakeTempDir("ini") + "x.ini";
  netloom_test::WriteFile(path, "[s]\nname =  spaced value  \nbig=99999999999\nhex=0x10\nempty=\n");
  CConf conf(path);
  ASSERT_TRUE(conf.IsLoaded());
  EXPECT_EQ(conf.GetString("s", "name"), "spaced value");
  EXPECT_TRUE(conf.HasValue("s", "empty"));
  EXPECT_FALSE(conf.HasValue("s", "nothing"));
  for (const char* key : {"big", "hex", "empty"}) EXPECT_EQ(conf.GetInt("s", key, -1), -1) << key;
}

TEST_F(ConfPair, BrokenFileCountsAsAbsent) {
  const std::string dir = TWFileSystem::GetSystemConfFolder();
  netloom_test::WriteFile(dir + "broken.ini", "[run\nmax_thread_count=1\n[[[\n");
  CConf broken("broken.ini"), plain("procedure3.ini");
  EXPECT_FALSE(broken.IsLoaded());
  EXPECT_EQ(CConf::LoadIntValue(broken, plain, "run", "max_thread_count", 16), 32);
}

}  // namespace
