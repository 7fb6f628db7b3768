// Folders of the library, set by NETLOOM_* variables read once at first use.
// Each test runs in a process of its own, so setting a variable at the start
// of a test comes before the library's first look.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "common/testenv.h"
#include "netloom/util/pathname.h"
#include "netloom/util/twfilesystem.h"

namespace {

TEST(TWFileSystem, VariablesOverrideAndGainASlash) {
  ::setenv("NETLOOM_CONF_DIR", "/srv/conf", 1);
  ::setenv("NETLOOM_LOG_DIR", "/srv/log/", 1);
  ::setenv("NETLOOM_TEMP_DIR", "/srv/tmp", 1);
  ::setenv("NETLOOM_BIN_DIR", "/srv/bin", 1);
  ::setenv("NETLOOM_PYTHON_DIR", "/opt/py", 1);
  ::setenv("NETLOOM_PARSER_DATA_DIR", "/srv/pd", 1);
  ::setenv("NETLOOM_RESOURCE_DIR", "/srv/res", 1);
  EXPECT_EQ(TWFileSystem::GetSystemConfFolder(), "/srv/conf/");
  EXPECT_EQ(TWFileSystem::GetLogFolder(), "/srv/log/");
  EXPECT_EQ(TWFileSystem::GetTempFolder(), "/srv/tmp/");
  EXPECT_EQ(TWFileSystem::GetSystemBinFolder(), "/srv/bin/");
  EXPECT_EQ(TWFileSystem::GetSystemPythonFolder(), "/opt/py/");
  EXPECT_EQ(TWFileSystem::GetFSParserDataFolder(), "/srv/pd/");
  EXPECT_EQ(TWFileSystem::GetSystemResourceFolder(), "/srv/res/");
}

TEST(TWFileSystem, ReadOnceAtFirstUse) {
  ::setenv("NETLOOM_CONF_DIR", "/first", 1);
  EXPECT_EQ(TWFileSystem::GetSystemConfFolder(), "/first/");
  ::setenv("NETLOOM_CONF_DIR", "/second", 1);
  EXPECT_EQ(TWFileSystem::GetSystemConfFolder(), "/first/");
}

TEST(TWFileSystem, DefaultsWithoutVariables) {
  for (const char* var : {"NETLOOM_RESOURCE_DIR", "NETLOOM_CONF_DIR", "NETLOOM_LOG_DIR", "NETLOOM_BIN_DIR",
                          "NETLOOM_PYTHON_DIR", "NETLOOM_PARSER_DATA_DIR", "NETLOOM_TEMP_DIR"})
    ::unsetenv(var);
  ::setenv("TMPDIR", "/var/tmp", 1);
  // Running from the build tree, resources come from the source tree.
  EXPECT_EQ(std::filesystem::weakly_canonical(TWFileSystem::GetSystemResourceFolder()),
            std::filesystem::weakly_canonical(netloom_test::SourcePath("resources/")));
  EXPECT_EQ(TWFileSystem::GetSystemPythonFolder(), "/usr/");
  EXPECT_EQ(TWFileSystem::GetTempFolder(), "/var/tmp/netloom/");
  for (const std::string& dir : {TWFileSystem::GetSystemConfFolder(), TWFileSystem::GetLogFolder()}) {
    EXPECT_TRUE(dir.front() == '/' && dir.back() == '/' && dir.find("//") == std::string::npos) << dir;
  }
}

TEST(TWFileSystem, EmptyVariableMeansUnset) {
  ::setenv("NETLOOM_PYTHON_DIR", "", 1);
  EXPECT_EQ(TWFileSystem::GetSystemPythonFolder(), "/usr/");
}

TEST(Pathname, Parts) {
  const Pathname p("/a/b.dir/name.tar.gz");
  EXPECT_EQ(p.fileHead(), "name.tar");
  EXPECT_EQ(p.dirName(), "/a/b.dir/");
  EXPECT_EQ(Pathname(".profile").fileHead(), ".profile");
  EXPECT_EQ(Pathname("dir/").fileName(), "");
}

TEST(Pathname, MkdirHier) {
  const std::string base = netloom_test::MakeTempDir("mk");
  const Pathname deep(base + "x/y//z/");
  EXPECT_TRUE(deep.mkdirHier(0775));
  EXPECT_TRUE(deep.isDirectory());
  EXPECT_TRUE(deep.mkdirHier(0775));  // again: already there

  netloom_test::WriteFile(base + "file", "f");
  EXPECT_FALSE(Pathname(base + "file/sub").mkdirHier() || Pathname(base + "file").mkdir());
  EXPECT_FALSE(Pathname("").mkdirHier());
}

TEST(FileHelper, AtomicWriteAndRead) {
  const std::string dir = netloom_test::MakeTempDir("fh");
  std::string content(100000, 'a');
  content[5] = '\0';
  ASSERT_TRUE(FileHelper::WriteFileAtomic(dir + "f.bin", content));
  EXPECT_EQ(FileHelper::GetFileContentByPath(dir + "f.bin"), content);
  ASSERT_TRUE(FileHelper::WriteFileAtomic(dir + "f.bin", "short"));
  std::string back;
  EXPECT_TRUE(FileHelper::GetFileContentByPath(dir + "f.bin", back) && back == "short");
  // No temporary file is left behind.
  size_t files = 0;
  for (const auto& e : std::filesystem::directory_iterator(dir)) files += e.is_regular_file();
  EXPECT_EQ(files, 1u);
  EXPECT_FALSE(FileHelper::GetFileContentByPath(dir + "missing", back));
  EXPECT_FALSE(FileHelper::WriteFileAtomic(dir + "no/such/dir/f", "x"));
}

}  // namespace
