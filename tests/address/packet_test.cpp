#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <list>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "common/testenv.h"
#include "netloom/l3packet.h"
#include "netloom/transprotocolhelper.h"
#include "netloom/util/csvparser.h"
#include "netloom/util/twfilesystem.h"

namespace {

// The resource folder is fixed at its first use in a process. Tests that need
// a catalogue file of their own point the folder at a fresh directory before
// that; they run in a process of their own under ctest and skip otherwise.
std::string UsePrivateResourceFolder() {
  const std::string dir = netloom_test::MakeTempDir("res");
  ::setenv("NETLOOM_RESOURCE_DIR", dir.c_str(), 1);
  return TWFileSystem::GetSystemResourceFolder() == dir ? dir : std::string();
}

#define REQUIRE_PRIVATE_RESOURCES(dir)              \
  const std::string dir = UsePrivateResourceFolder(); \
  if (dir.empty()) GTEST_SKIP() << "resource folder already fixed in this process"

TEST(L3Packet, DefaultsBadTextAndPorts) {
  const L3Packet any("10.0.0.1", "10.0.0.2");
  EXPECT_EQ(any.Protocol, -1);
  EXPECT_EQ(any.SourcePort, 0xFFFF);
  EXPECT_EQ(any.DestinationPort, 0xFFFF);
  EXPECT_EQ(L3Packet().Reserved, 0u);
  // Bad address text is zero.
  EXPECT_TRUE(L3Packet("bad", "10.0.0.2").SourceIP.isNull());
  L3Packet p("10.0.0.1", "10.0.0.2");
  p.SetSourceIP("1.2.3.4 ");
  EXPECT_TRUE(p.SourceIP.isNull());
  // Ports keep the low sixteen bits.
  const L3Packet q("10.0.0.1", "10.0.0.2", 17, static_cast<short>(-1), 0x12345);
  EXPECT_EQ(q.SourcePort, 0xFFFF);
  EXPECT_EQ(q.DestinationPort, 0x2345);
  p.SetSourcePort(0x10050);
  p.SetDestinationPort(-2);
  EXPECT_EQ(p.SourcePort, 0x50);
  EXPECT_EQ(p.DestinationPort, 0xFFFE);
}

TEST(L3Packet, EqualityIgnoresTheReservedWordAndReverseSwaps) {
  const L3Packet base(IpAddress(0x0A000001u), IpAddress(0x0A000002u), 6, 1024, 80);
  L3Packet other = base;
  other.Reserved = 0xDEADBEEF;
  EXPECT_TRUE(base == other);

  // Every other field counts.
  for (int field = 0; field < 5; ++field) {
    L3Packet diff = base;
    if (field == 0) diff.SetProtocol(17);
    if (field == 1) diff.SetSourcePort(1025);
    if (field == 2) diff.SetDestinationPort(81);
    if (field == 3) diff.SetSourceIP("10.0.0.3");
    if (field == 4) diff.SetDestinationIP("10.0.0.3");
    EXPECT_FALSE(base == diff) << field;
  }

  // Port 0 is a real port, not "any".
  L3Packet anyPort("10.0.0.1", "10.0.0.2");
  L3Packet zeroPort = anyPort;
  zeroPort.SetDestinationPort(0);
  EXPECT_FALSE(anyPort == zeroPort);

  // The reverse swaps addresses and ports.
  const L3Packet r = base.getReverse();
  EXPECT_EQ(r.SourceIP.textForm(), "10.0.0.2");
  EXPECT_EQ(r.SourcePort, 80);
  EXPECT_TRUE(r.getReverse() == base);
}

std::list<STransProtocol> AllRows() {
  std::list<STransProtocol> rows;
  TransProtocolHelper::Instance()->GetAllProtocol(rows);
  return rows;
}

TEST(STransProtocol, ValidOnlyForOneByteNumbers) {
  STransProtocol row;
  EXPECT_FALSE(row.IsValid());
  for (int n : {0, 255, 256, -5}) {
    row.SetNumber(n);
    EXPECT_EQ(row.IsValid(), n >= 0 && n <= 255) << n;
  }
}

TEST(TransProtocolCatalogue, ShippedFileCoversEveryNumber) {
  CSVParser file;
  ASSERT_TRUE(file.LoadFromFile(netloom_test::SourcePath("resources/protocol-numbers.csv")));
  ASSERT_GT(file.size(), 1u);
  EXPECT_EQ(file.GetAt(0, 0), "Decimal");

  // Every number 0-255 appears once, alone or inside a range row such as
  // "146-252"; 84 is the registry's one number with two names.
  std::vector<int> seen(256, 0);
  for (std::size_t row = 1; row < file.size(); ++row) {
    const std::string cell = file.GetAt(static_cast<int>(row), 0);
    const std::size_t dash = cell.find('-');
    const int first = std::atoi(cell.c_str());
    const int last = dash == std::string::npos ? first : std::atoi(cell.c_str() + dash + 1);
    ASSERT_TRUE(first >= 0 && first <= last && last < 256) << cell;
    for (int n = first; n <= last; ++n) ++seen[n];
  }
  for (int n = 0; n < 256; ++n) EXPECT_EQ(seen[n], n == 84 ? 2 : 1) << n;

  // The catalogue holds every data row, in file order.
  const std::list<STransProtocol> rows = AllRows();
  EXPECT_EQ(rows.size(), file.size() - 1);
  EXPECT_EQ(rows.back().GetNumber(), 255);
}

TEST(TransProtocolCatalogue, WellKnownLookups) {
  TransProtocolHelper* helper = TransProtocolHelper::Instance();
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(17), "UDP");
  // 84 is listed twice; the first row of a number stays.
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(84), "TTP");
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("IPTM"), 84);
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(-1), "");
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(256), "");
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("IPv6-ICMP"), 58);
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("Tcp"), -1);  // case counts
}

TEST(TransProtocolCatalogue, ItemLookupsFillOrLeaveTheOutput) {
  TransProtocolHelper* helper = TransProtocolHelper::Instance();
  STransProtocol row;
  ASSERT_TRUE(helper->GetProtocolItem(17, row));
  EXPECT_EQ(row.GetKeyWord(), "UDP");
  EXPECT_EQ(row.GetRef(), "[RFC768][Jon_Postel]");


  // A quoted reference with commas and doubled quotes reads back whole.
  ASSERT_TRUE(helper->GetProtocolItem(std::string("MUX"), row));
  EXPECT_EQ(row.GetRef().rfind("[Cohen, D. and J. Postel, \"Multiplexing Protocol\", IEN 90,", 0), 0u);
  EXPECT_EQ(row.GetRef().substr(row.GetRef().size() - 12), "[Jon_Postel]");

  STransProtocol untouched;
  untouched.SetNumber(7);
  untouched.SetKeyWord("keep");
  EXPECT_FALSE(helper->GetProtocolItem(300, untouched));
  EXPECT_FALSE(helper->GetProtocolItem(std::string("udp"), untouched));
  EXPECT_EQ(untouched.GetNumber(), 7);
  EXPECT_EQ(untouched.GetKeyWord(), "keep");

  std::list<STransProtocol> rows(3);  // replaced, not appended to
  helper->GetAllProtocol(rows);
  EXPECT_EQ(rows.size(), AllRows().size());
}

TEST(TransProtocolCatalogue, ConcurrentFirstUseLoadsOnce) {
  constexpr int kThreads = 8;
  std::atomic<bool> go{false};
  std::vector<std::string> keywords(kThreads);
  std::vector<std::size_t> sizes(kThreads);
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([&, t] {
      while (!go.load()) std::this_thread::yield();
      keywords[t] = TransProtocolHelper::Instance()->GetIPProtocolKeywordByNumber(6);
      sizes[t] = AllRows().size();
    });
  }
  go = true;
  for (std::thread& th : threads) th.join();

  // A second load would have appended the file again.
  const std::list<STransProtocol> rows = AllRows();
  std::set<int> seen;
  for (const STransProtocol& row : rows)
    EXPECT_TRUE(row.GetNumber() == 84 || seen.insert(row.GetNumber()).second) << row.GetNumber();
  for (int t = 0; t < kThreads; ++t) {
    EXPECT_EQ(keywords[t], "TCP");
    EXPECT_EQ(sizes[t], rows.size());
  }
}

TEST(TransProtocolCatalogueFile, MissingFileIsRetriedByTheNextCall) {
  REQUIRE_PRIVATE_RESOURCES(dir);
  TransProtocolHelper* helper = TransProtocolHelper::Instance();
  EXPECT_TRUE(AllRows().empty());
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(6), "");
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("TCP"), -1);

  netloom_test::WriteFile(dir + "protocol-numbers.csv",
                          "Decimal,Keyword,Protocol,Reference\n6,TCP,Transmission Control,[x]\n");
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(6), "TCP");
  EXPECT_EQ(AllRows().size(), 1u);

  // Once filled, the file is not read again.
  netloom_test::WriteFile(dir + "protocol-numbers.csv",
                          "Decimal,Keyword,Protocol,Reference\n17,UDP,User Datagram,[y]\n");
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(17), "");
  EXPECT_EQ(AllRows().size(), 1u);
}

TEST(TransProtocolCatalogueFile, ShortLineEndsTheLoad) {
  REQUIRE_PRIVATE_RESOURCES(dir);
  netloom_test::WriteFile(dir + "protocol-numbers.csv",
                          "Decimal,Keyword,Protocol,Reference\n"
                          "1,ICMP,Internet Control Message,[a]\n"
                          "6,TCP,Transmission Control,[b]\n"
                          "9,IGP,no reference cell\n"
                          "17,UDP,User Datagram,[c]\n");
  const std::list<STransProtocol> rows = AllRows();
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows.back().GetKeyWord(), "TCP");
  EXPECT_EQ(TransProtocolHelper::Instance()->GetIPProtocolNumberByKeyword("UDP"), -1);
}

TEST(TransProtocolCatalogueFile, HostileNumbersAndDuplicateKeys) {
  REQUIRE_PRIVATE_RESOURCES(dir);
  netloom_test::WriteFile(dir + "protocol-numbers.csv",
                          "Decimal,Keyword,Protocol,Reference\n"
                          "99999999999999999999,BIG,overflowing number,[a]\n"
                          "-99999999999999999999,SMALL,underflowing number,[a]\n"
                          "  42abc,TRAIL,digits then junk,[b]\n"
                          "x,,no number,[c]\n"
                          "50,ESP,first,[d]\n"
                          "50,ESP2,second number 50,[e]\n"
                          "51,ESP,second keyword ESP,[f]\n");
  TransProtocolHelper* helper = TransProtocolHelper::Instance();
  EXPECT_EQ(AllRows().size(), 7u);
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("BIG"), 2147483647);
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("SMALL"), -2147483647 - 1);
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("TRAIL"), 42);
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(50), "ESP");
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("ESP"), 50);
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("ESP2"), 50);
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(51), "ESP");
}

}  // namespace
