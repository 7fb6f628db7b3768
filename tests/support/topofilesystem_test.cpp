// Topology folder: separators, paths and removal of the topology files.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "common/testenv.h"
#include "netloom/topofilesystem.h"

namespace {

TEST(TopoFileSystem, SetFolderStripsTrailingSeparatorsUnlessNothingElseIsLeft) {
  const struct { const char* given; const char* bare; const char* withSep; bool valid; } cases[] = {
      {"/data/topo\\/\\//", "/data/topo", "/data/topo/", true},
      {"relative/dir", "relative/dir", "relative/dir/", true},
      {"/\\/", "/\\/", "/\\//", true},
      {"", "", "/", false},
  };
  for (const auto& c : cases) {
    CTopoFileSystem fs(c.given);
    EXPECT_EQ(fs.GetFolder(false), c.bare) << c.given;
    EXPECT_EQ(fs.GetFolder(true), c.withSep) << c.given;
    EXPECT_EQ(fs.IsValid(), c.valid) << c.given;
    EXPECT_EQ(fs.GetRouteTopoFilePath(), std::string(c.withSep) + "router.topo");
  }
}

TEST(TopoFileSystem, PathGettersMatchNameGetters) {
  const CTopoFileSystem fs("/t/");
  const std::string paths[] = {
      fs.GetRouteTopoFilePath(),     fs.GetLanTopoFilePath(),    fs.GetLinkTopoFilePath(),
      fs.GetInterfaceTopoFilePath(), fs.GetEndHostTopoFilePath(), fs.GetCallManagerFilePath(),
      fs.GetOtherFilePath(),         fs.GetExchangeIfFilePath(),  fs.GetTimerFilePath()};
  const std::string names[] = {
      CTopoFileSystem::GetRouteTopoFileName(),     CTopoFileSystem::GetLanTopoFileName(),
      CTopoFileSystem::GetLinkTopoFileName(),      CTopoFileSystem::GetInterfaceTopoFileName(),
      CTopoFileSystem::GetEndHostTopoFileName(),   CTopoFileSystem::GetCallManagerFileName(),
      CTopoFileSystem::GetOtherFileName(),         CTopoFileSystem::GetExchangeIfFileName(),
      CTopoFileSystem::GetTimerFileName()};
  for (int i = 0; i < 9; ++i) {
    EXPECT_EQ(CTopoStrings::s_strAllFileNames[i], names[i]) << i;
    EXPECT_EQ(paths[i], "/t/" + names[i]) << i;
  }
  EXPECT_EQ(names[4], "endhost.topo");
  EXPECT_EQ(std::set<std::string>(std::begin(names), std::end(names)).size(), 9u);
}

TEST(TopoFileSystem, RemoveAllTopoFilesTakesOnlyTheNineFiles) {
  const std::string dir = netloom_test::MakeTempDir("topo");
  for (const auto& name : CTopoStrings::s_strAllFileNames) netloom_test::WriteFile(dir + name, "x");
  netloom_test::WriteFile(dir + "keep.topo", "k");
  CTopoFileSystem fs(dir);
  fs.RemoveAllTopoFiles();
  fs.RemoveAllTopoFiles();  // a second run over the now missing files is harmless
  for (const auto& name : CTopoStrings::s_strAllFileNames)
    EXPECT_FALSE(std::filesystem::exists(dir + name)) << name;
  EXPECT_TRUE(std::filesystem::exists(dir + "keep.topo"));
}

}  // namespace
