// Topology folder: separators, paths and removal of the topology files.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "common/testenv.h"
#include "netloom/topofilesystem.h"

namespace {

TEST(TopoFileSystem, SetFolderStripsEveryTrailingSeparator) {
  CTopoFileSystem fs("/data/topo\\/\\//");
  EXPECT_EQ(fs.GetFolder(false), "/data/topo");
  EXPECT_EQ(fs.GetFolder(true), "/data/topo/");
  EXPECT_TRUE(fs.IsValid());

  fs.SetFolder("relative/dir");
  EXPECT_EQ(fs.GetFolder(false), "relative/dir");
  EXPECT_EQ(fs.BuildTopoFilePath("x.topo"), "relative/dir/x.topo");
}

TEST(TopoFileSystem, FolderOfSeparatorsOnlyIsKept) {
  CTopoFileSystem fs("/\\/");
  EXPECT_EQ(fs.GetFolder(false), "/\\/");
  EXPECT_TRUE(fs.IsValid());
  fs.SetFolder("/");
  EXPECT_EQ(fs.GetFolder(false), "/");
}

TEST(TopoFileSystem, EmptyFolderGivesBareSeparatorPaths) {
  CTopoFileSystem fs("");
  EXPECT_FALSE(fs.IsValid());
  EXPECT_EQ(fs.GetFolder(false), "");
  EXPECT_EQ(fs.GetFolder(true), "/");
  EXPECT_EQ(fs.GetRouteTopoFilePath(), "/router.topo");
}

TEST(TopoFileSystem, PathGettersMatchNameGetters) {
  const CTopoFileSystem fs("/t/");
  const std::pair<std::string, std::string> pairs[] = {
      {fs.GetRouteTopoFilePath(), "/t/router.topo"},
      {fs.GetLanTopoFilePath(), "/t/lan.topo"},
      {fs.GetLinkTopoFilePath(), "/t/link.topo"},
      {fs.GetInterfaceTopoFilePath(), "/t/interface.topo"},
      {fs.GetEndHostTopoFilePath(), "/t/endhost.topo"},
      {fs.GetCallManagerFilePath(), "/t/callmanager.topo"},
      {fs.GetOtherFilePath(), "/t/other.topo"},
      {fs.GetExchangeIfFilePath(), "/t/exchangeif.topo"},
      {fs.GetTimerFilePath(), "/t/timer.topo"},
  };
  for (const auto& [got, want] : pairs) EXPECT_EQ(got, want);

  const std::string names[] = {
      CTopoFileSystem::GetRouteTopoFileName(),     CTopoFileSystem::GetLanTopoFileName(),
      CTopoFileSystem::GetLinkTopoFileName(),      CTopoFileSystem::GetInterfaceTopoFileName(),
      CTopoFileSystem::GetEndHostTopoFileName(),   CTopoFileSystem::GetCallManagerFileName(),
      CTopoFileSystem::GetOtherFileName(),         CTopoFileSystem::GetExchangeIfFileName(),
      CTopoFileSystem::GetTimerFileName()};
  for (int i = 0; i < 9; ++i) {
    EXPECT_EQ(CTopoStrings::s_strAllFileNames[i], names[i]) << i;
    EXPECT_EQ(fs.BuildTopoFilePath(names[i]), pairs[i].second) << i;
  }
  EXPECT_EQ(CTopoStrings::s_strRouteTopoFileName, names[0]);
  EXPECT_EQ(CTopoStrings::s_strExchangeIfFileName, names[7]);
  EXPECT_EQ(CTopoStrings::s_strTimerFileName, names[8]);
  EXPECT_EQ(std::set<std::string>(std::begin(names), std::end(names)).size(), 9u);
}

TEST(TopoFileSystem, RemoveAllTopoFilesTakesOnlyTheNineFiles) {
  const std::string dir = netloom_test::MakeTempDir("topo");
  for (const auto& name : CTopoStrings::s_strAllFileNames) netloom_test::WriteFile(dir + name, "x");
  netloom_test::WriteFile(dir + "keep.topo", "k");

  CTopoFileSystem fs(dir);
  fs.RemoveAllTopoFiles();
  for (const auto& name : CTopoStrings::s_strAllFileNames)
    EXPECT_FALSE(std::filesystem::exists(dir + name)) << name;
  EXPECT_TRUE(std::filesystem::exists(dir + "keep.topo"));

  // A second run over the now missing files is harmless.
  fs.RemoveAllTopoFiles();
  EXPECT_TRUE(std::filesystem::exists(dir + "keep.topo"));
}

TEST(TopoStrings, EachFileHasItsOwnString) {
  CTopoStrings s;
  s.SetRouterTopo("r");
  s.SetLanTopo("l");
  s.SetLinkTopo("k");
  s.SetInterfaceTopo("i");
  s.SetEndhostTopo("e");
  s.SetCallManagerTopo("c");
  s.SetOtherTopo("o");
  s.SetExchangeInterfaceTopo("x");
  EXPECT_EQ(s.GetRouterTopo() + s.GetLanTopo() + s.GetLinkTopo() + s.GetInterfaceTopo() +
                s.GetEndhostTopo() + s.GetCallManagerTopo() + s.GetOtherTopo() +
                s.GetExchangeInterfaceTopo(),
            "rlkiecox");
  const CTopoStrings copy = s;
  EXPECT_EQ(copy.GetExchangeInterfaceTopo(), "x");
  EXPECT_TRUE(CTopoStrings().GetRouterTopo().empty());
}

}  // namespace
