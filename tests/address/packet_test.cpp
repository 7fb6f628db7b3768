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

#define REQUIRE_PRIVATE_RESOURCES(dir)                                                 \
  const std::string dir = UsePrivateResourceFolder();                                 \
  if (dir.empty()) {                                                                   \
    GTEST_SKIP() << "resource folder already fixed in this process";                 \
  }                                                                                    \
  static_assert(true, "")

TEST(L3Packet, DefaultsMeanAny) {
  const L3Packet p;
  EXPECT_TRUE(p.SourceIP.isNull());
  EXPECT_TRUE(p.DestinationIP.isNull());
  EXPECT_EQ(p.Protocol, -1);
  EXPECT_EQ(p.SourcePort, 0xFFFF);
  EXPECT_EQ(p.DestinationPort, 0xFFFF);
  EXPECT_EQ(p.Reserved, 0u);

  const L3Packet addressesOnly("10.0.0.1", "10.0.0.2");
  EXPECT_EQ(addressesOnly.SourceIP.textForm(), "10.0.0.1");
  EXPECT_EQ(addressesOnly.DestinationIP.textForm(), "10.0.0.2");
  EXPECT_EQ(addressesOnly.Protocol, -1);
  EXPECT_EQ(addressesOnly.SourcePort, 0xFFFF);
  EXPECT_EQ(addressesOnly.DestinationPort, 0xFFFF);
}

TEST(L3Packet, BadAddressTextIsZero) {
  EXPECT_TRUE(L3Packet("bad", "10.0.0.2").SourceIP.isNull());
  EXPECT_TRUE(L3Packet("10.0.0.1", "10.0.0.256", 6, 1, 2).DestinationIP.isNull());
  L3Packet p("10.0.0.1", "10.0.0.2");
  p.SetSourceIP("1.2.3.4 ");
  p.SetDestinationIP("");
  EXPECT_TRUE(p.SourceIP.isNull());
  EXPECT_TRUE(p.DestinationIP.isNull());
}

TEST(L3Packet, PortsKeepTheLowSixteenBits) {
  const L3Packet p("10.0.0.1", "10.0.0.2", 17, static_cast<short>(-1), 0x12345);
  EXPECT_EQ(p.SourcePort, 0xFFFF);
  EXPECT_EQ(p.DestinationPort, 0x2345);
  L3Packet q;
  q.SetSourcePort(0x10050);
  q.SetDestinationPort(-2);
  q.SetProtocol(6);
  EXPECT_EQ(q.SourcePort, 0x50);
  EXPECT_EQ(q.DestinationPort, 0xFFFE);
  EXPECT_EQ(q.Protocol, 6);
}

TEST(L3Packet, EqualityIgnoresTheReservedWord) {
  const L3Packet base(IpAddress(0x0A000001u), IpAddress(0x0A000002u), 6, 1024, 80);
  L3Packet other = base;
  other.Reserved = 0xDEADBEEF;
  EXPECT_TRUE(base == other);

  // Every other field counts.
  L3Packet diff = base;
  diff.SetProtocol(17);
  EXPECT_FALSE(base == diff);
  diff = base;
  diff.SetSourcePort(1025);
  EXPECT_FALSE(base == diff);
  diff = base;
  diff.SetDestinationPort(81);
  EXPECT_FALSE(base == diff);
  diff = base;
  diff.SetSourceIP("10.0.0.3");
  EXPECT_FALSE(base == diff);
  diff = base;
  diff.SetDestinationIP("10.0.0.3");
  EXPECT_FALSE(base == diff);

  // Port 0 is a real port, not "any".
  L3Packet anyPort("10.0.0.1", "10.0.0.2");
  L3Packet zeroPort = anyPort;
  zeroPort.SetDestinationPort(0);
  EXPECT_FALSE(anyPort == zeroPort);
}

TEST(L3Packet, ReverseSwapsAddressesAndPorts) {
  const L3Packet p("10.0.0.1", "192.168.1.1", 6, 40000, 443);
  const L3Packet r = p.getReverse();
  EXPECT_EQ(r.SourceIP.textForm(), "192.168.1.1");
  EXPECT_EQ(r.DestinationIP.textForm(), "10.0.0.1");
  EXPECT_EQ(r.SourcePort, 443);
  EXPECT_EQ(r.DestinationPort, 40000);
  EXPECT_EQ(r.Protocol, 6);
  EXPECT_FALSE(r == p);
  EXPECT_TRUE(r.getReverse() == p);
}

std::list<STransProtocol> AllRows() {
  std::list<STransProtocol> rows;
  TransProtocolHelper::Instance()->GetAllProtocol(rows);
  return rows;
}

TEST(STransProtocol, ValidOnlyForOneByteNumbers) {
  STransProtocol row;
  EXPECT_EQ(row.GetNumber(), -1);
  EXPECT_FALSE(row.IsValid());
  row.SetNumber(0);
  EXPECT_TRUE(row.IsValid());
  row.SetNumber(255);
  EXPECT_TRUE(row.IsValid());
  row.SetNumber(256);
  EXPECT_FALSE(row.IsValid());
  row.SetNumber(-5);
  EXPECT_FALSE(row.IsValid());
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
    EXPECT_EQ(file.GetRow(static_cast<int>(row)).size(), 4u) << cell;
  }
  for (int n = 0; n < 256; ++n) EXPECT_EQ(seen[n], n == 84 ? 2 : 1) << n;

  // The catalogue holds every data row, in file order.
  const std::list<STransProtocol> rows = AllRows();
  EXPECT_EQ(rows.size(), file.size() - 1);
  EXPECT_EQ(rows.front().GetNumber(), 0);
  EXPECT_EQ(rows.front().GetKeyWord(), "HOPOPT");
  EXPECT_EQ(rows.back().GetNumber(), 255);
}

TEST(TransProtocolCatalogue, WellKnownLookups) {
  TransProtocolHelper* helper = TransProtocolHelper::Instance();
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(1), "ICMP");
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(6), "TCP");
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(17), "UDP");
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(47), "GRE");
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(89), "OSPFIGP");
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(112), "VRRP");
  // 84 is listed twice; the first row of a number stays.
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(84), "TTP");
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("IPTM"), 84);
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(-1), "");
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(256), "");

  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("TCP"), 6);
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("IPv6-ICMP"), 58);
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("tcp"), -1);
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("Tcp"), -1);
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword(""), -1);
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("NOPE"), -1);
}

TEST(TransProtocolCatalogue, ItemLookupsFillOrLeaveTheOutput) {
  TransProtocolHelper* helper = TransProtocolHelper::Instance();
  STransProtocol row;
  ASSERT_TRUE(helper->GetProtocolItem(17, row));
  EXPECT_EQ(row.GetKeyWord(), "UDP");
  EXPECT_EQ(row.GetProtocol(), "User Datagram");
  EXPECT_EQ(row.GetRef(), "[RFC768][Jon_Postel]");

  ASSERT_TRUE(helper->GetProtocolItem(std::string("SCTP"), row));
  EXPECT_EQ(row.GetNumber(), 132);

  // A quoted reference with commas and doubled quotes reads back whole.
  ASSERT_TRUE(helper->GetProtocolItem(std::string("DGP"), row));
  EXPECT_NE(row.GetRef().find("\"Dissimilar Gateway Protocol Specification, Draft Version\""),
            std::string::npos);

  STransProtocol untouched;
  untouched.SetNumber(7);
  untouched.SetKeyWord("keep");
  EXPECT_FALSE(helper->GetProtocolItem(300, untouched));
  EXPECT_FALSE(helper->GetProtocolItem(std::string("udp"), untouched));
  EXPECT_FALSE(helper->GetProtocolItem(std::string(), untouched));
  EXPECT_EQ(untouched.GetNumber(), 7);
  EXPECT_EQ(untouched.GetKeyWord(), "keep");
}

TEST(TransProtocolCatalogue, GetAllReplacesTheCallersList) {
  std::list<STransProtocol> rows(3);
  const std::size_t total = AllRows().size();
  TransProtocolHelper::Instance()->GetAllProtocol(rows);
  EXPECT_EQ(rows.size(), total);
}

TEST(TransProtocolCatalogue, ConcurrentFirstUseLoadsOnce) {
  constexpr int kThreads = 8;
  std::atomic<int> ready{0};
  std::atomic<bool> go{false};
  std::vector<std::string> keywords(kThreads);
  std::vector<std::size_t> sizes(kThreads);
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([&, t] {
      ++ready;
      while (!go.load()) std::this_thread::yield();
      TransProtocolHelper* helper = TransProtocolHelper::Instance();
      keywords[t] = helper->GetIPProtocolKeywordByNumber(6);
      std::list<STransProtocol> rows;
      helper->GetAllProtocol(rows);
      sizes[t] = rows.size();
    });
  }
  while (ready.load() < kThreads) std::this_thread::yield();
  go = true;
  for (std::thread& th : threads) th.join();

  // A second load would have appended the file again.
  std::list<STransProtocol> rows;
  TransProtocolHelper::Instance()->GetAllProtocol(rows);
  std::set<int> seen;
  for (const STransProtocol& row : rows) {
    if (row.GetNumber() != 84) {
      EXPECT_TRUE(seen.insert(row.GetNumber()).second) << row.GetNumber();
    }
  }
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
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(0), "");
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(50), "ESP");
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("ESP"), 50);
  EXPECT_EQ(helper->GetIPProtocolNumberByKeyword("ESP2"), 50);
  EXPECT_EQ(helper->GetIPProtocolKeywordByNumber(51), "ESP");
}

}  // namespace
