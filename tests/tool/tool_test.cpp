// The netloom tool driven as a user drives it: a real process, real files,
// checking what it prints and how it exits for good and bad input.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdio>

#include "common/testenv.h"

#ifdef NETLOOM_TOOL_PATH
namespace {

struct ToolRun {
  int code = -1;
  std::string out, err;
};

ToolRun Tool(const std::string& args) {
  const std::string dir = netloom_test::MakeTempDir("tool");
  const std::string cmd = std::string(NETLOOM_TOOL_PATH) + " " + args + " >" + dir + "out 2>" + dir + "err";
  ToolRun r;
  const int status = std::system(cmd.c_str());
  r.code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  r.out = netloom_test::ReadFile(dir + "out");
  r.err = netloom_test::ReadFile(dir + "err");
  return r;
}

std::string Sample(const std::string& rel) { return netloom_test::SourcePath("samples/" + rel); }

size_t Lines(const std::string& s) { return static_cast<size_t>(std::count(s.begin(), s.end(), '\n')); }

}  // namespace

TEST(ToolRoute, ParseLookupAndDiffOnSamples) {
  const std::string dir = netloom_test::MakeTempDir("routes");
  ToolRun p = Tool("route parse " + Sample("routes/core1-monday.txt") + " -o " + dir + "mon.csv");
  ASSERT_EQ(p.code, 0) << p.err;
  EXPECT_NE(p.out.find("routes:                 340"), std::string::npos) << p.out;
  ASSERT_EQ(Tool("route parse " + Sample("routes/core1-tuesday.txt") + " -o " + dir + "tue.csv").code, 0);
  EXPECT_EQ(netloom_test::ReadFile(dir + "mon.csv").substr(0, 4), "0310");

  ToolRun l = Tool("route lookup " + dir + "mon.csv 10.255.255.1 8.8.8.8");
  ASSERT_EQ(l.code, 0) << l.err;
  EXPECT_NE(l.out.find("10.255.255.0/24  C"), std::string::npos) << l.out;
  EXPECT_NE(l.out.find("0.0.0.0/0        S*    10.0.0.1"), std::string::npos) << l.out;

  // Three routes dropped and three metrics changed between the two days.
  ToolRun d = Tool("--json route diff " + dir + "mon.csv " + dir + "tue.csv");
  ASSERT_EQ(d.code, 0) << d.err;
  EXPECT_NE(d.out.find("\"only in A\":\"3\""), std::string::npos) << d.out;
  EXPECT_NE(d.out.find("\"changed\":\"3\""), std::string::npos) << d.out;
  EXPECT_NE(d.out.find("\"only in B\":\"0\""), std::string::npos) << d.out;
}

TEST(ToolRoute, StreamModeKeepsTheListingAndMatchesMemoryMode) {
  const std::string dir = netloom_test::MakeTempDir("stream");
  const std::string listing = Sample("routes/branch-hexmask.txt");
  const std::string before = netloom_test::ReadFile(listing);
  ASSERT_EQ(Tool("route parse --stream " + listing + " -o " + dir + "s.csv").code, 0);
  ASSERT_EQ(Tool("route parse " + listing + " -o " + dir + "m.csv").code, 0);
  EXPECT_EQ(netloom_test::ReadFile(listing), before);
  ToolRun d = Tool("--json route diff " + dir + "s.csv " + dir + "m.csv");
  ASSERT_EQ(d.code, 0) << d.err;
  EXPECT_NE(d.out.find("\"changed\":\"0\",\"only in A\":\"0\",\"only in B\":\"0\""), std::string::npos) << d.out;
  EXPECT_NE(Tool("route parse --stream " + listing).code, 0);  // needs a file to write
}

TEST(ToolErrors, OneLineOnStderrAndNonZeroExit) {
  const std::string dir = netloom_test::MakeTempDir("bad");
  netloom_test::WriteFile(dir + "junk.csv", std::string("\x00\xff garbage,\"unterminated\n", 26));
  const std::string cases[] = {
      "route lookup " + dir + "missing.csv 1.1.1.1",
      "route lookup " + dir + "junk.csv 1.1.1.1",
      "route parse " + dir + "junk.csv",
      "route lookup " + Sample("routes/core1-monday.txt") + " 300.1.1.1",
      "arp diff " + dir + "missing.csv " + dir + "missing.csv",
      "config hide --type 999 " + Sample("config/edge1.cfg"),
      "frobnicate",
      "route",
  };
  for (const auto& args : cases) {
    ToolRun r = Tool(args);
    EXPECT_NE(r.code, 0) << args;
    EXPECT_LT(r.code, 128) << args << " died by a signal";
    EXPECT_EQ(Lines(r.err), 1u) << args << ": " << r.err;
    EXPECT_EQ(r.err.rfind("netloom: ", 0), 0u) << r.err;
  }
}

TEST(ToolConfig, HideInPlaceIsIdempotentAndStdoutLeavesFile) {
  const std::string dir = netloom_test::MakeTempDir("cfg");
  const std::string original = netloom_test::ReadFile(Sample("config/edge1.cfg"));
  const std::string path = netloom_test::WriteFile(dir + "edge1.cfg", original);
  ToolRun shown = Tool("config hide --type 1 " + path);
  ASSERT_EQ(shown.code, 0) << shown.err;
  EXPECT_EQ(netloom_test::ReadFile(path), original);
  EXPECT_EQ(shown.out.find("Sup3rS3cr3t"), std::string::npos);
  EXPECT_EQ(shown.out.find("n3tl00m-ro"), std::string::npos);
  EXPECT_NE(shown.out.find("hostname edge1"), std::string::npos);

  ASSERT_EQ(Tool("config hide --in-place --type 1 " + path).code, 0);
  const std::string once = netloom_test::ReadFile(path);
  EXPECT_EQ(once, shown.out);
  ToolRun again = Tool("--json config hide --in-place --type 1 " + path);
  ASSERT_EQ(again.code, 0);
  EXPECT_EQ(netloom_test::ReadFile(path), once);
  EXPECT_NE(again.out.find("\"written\":\"unchanged\""), std::string::npos) << again.out;
}

TEST(ToolTables, ArpDiffAndInterfaceNames) {
  ToolRun a = Tool("--json arp diff " + Sample("arp/core1-arp-monday.csv") + " " + Sample("arp/core1-arp-tuesday.csv"));
  ASSERT_EQ(a.code, 0) << a.err;
  EXPECT_NE(a.out.find("\"changed\":\"2\",\"only in A\":\"2\""), std::string::npos) << a.out;

  ToolRun n = Tool("ifname Gi0/1 Po12 NoSuchThing9");
  ASSERT_EQ(n.code, 0) << n.err;
  EXPECT_NE(n.out.find("GigabitEthernet0/1"), std::string::npos) << n.out;
  EXPECT_NE(n.out.find("Port-channel12"), std::string::npos) << n.out;
  EXPECT_NE(n.out.find("NoSuchThing9  NoSuchThing9"), std::string::npos) << n.out;
}
#endif
