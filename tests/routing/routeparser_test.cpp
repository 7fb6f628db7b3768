// Route listing parser: line joins, inherited codes and masks, the three mask
// notations, gateway lines, and the in-place conversion of a listing file.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "common/testenv.h"
#include "netloom/interfacetypehelper.h"
#include "netloom/routingtable.h"
#include "netloom/util/logger.h"

namespace {

constexpr unsigned kUnknown32 = 0xFFFFFFFFu;

class PrefixHelper : public IInterfaceTypeHelper {
 public:
  std::string GetFullInterfaceName(std::string ifName) override {
    seen.push_back(ifName);
    return "Long:" + ifName;
  }
  std::vector<std::string> seen;
};

RoutingTableEntry* Only(RoutingTable& table) {
  EXPECT_EQ(table.GetSize(), 1u);
  return table.GetSize() == 1 ? table.getEntryIndexMap().begin()->second : nullptr;
}

std::string Prefix(const RoutingTableEntry* e) {
  return e->DestIp.textForm() + "/" + std::to_string(IpAddress::getMaskLength(e->DestMask.bitForm()));
}

const char kLegend[] =
    "Codes: L - local, C - connected, S - static, R - RIP, M - mobile, B - BGP\n"
    "       D - EIGRP, EX - EIGRP external, O - OSPF, IA - OSPF inter area\n"
    "       o - ODR, P - periodic downloaded static route, H - NHRP, l - LISP\n"
    "\n";

// One route as "index prefix code distance/metric via outIf age", "-" for unknowns.
std::string Show(const RoutingTableEntry* e) {
  std::string code = RoutingTable::GetAlgorithmNameByType(e->Alg, e->CandidateDefault);
  code.erase(code.find_last_not_of(' ') + 1);
  auto known = [](unsigned v, unsigned unknown) { return v == unknown ? std::string("-") : std::to_string(v); };
  return std::to_string(e->Index) + " " + Prefix(e) + " " + code + " " + known(e->Distance, 65535) + "/" +
         known(e->Metric, kUnknown32) + " " + e->NextHop.textForm() + " " + e->OutIf + " " +
         known(e->TimeStamp, kUnknown32);
}

std::vector<std::string> Parsed(const std::string& text, bool generateMap = true, IInterfaceTypeHelper* helper = nullptr) {
  RoutingTable table;
  EXPECT_TRUE(table.ParseCmdString(text.c_str(), helper, generateMap));
  EXPECT_EQ(table.getEntryNetworkMap().empty(), !generateMap || table.GetSize() == 0);
  std::vector<std::string> out;
  for (auto& [index, entry] : table.getEntryIndexMap()) out.push_back(Show(entry));
  return out;
}

using Rows = std::vector<std::string>;

std::string WithGateway(const std::string& body) {
  return std::string(kLegend) + "Gateway of last resort is 10.1.1.1 to network 0.0.0.0\n\n" + body;
}

TEST(RouteParser, MarkerPhrasesAndGatewayLines) {
  RoutingTable table("r1");
  ASSERT_TRUE(table.ParseCmdString(WithGateway("S*    0.0.0.0/0 [1/0] via 10.1.1.1\n").c_str(), nullptr, true));
  EXPECT_EQ(table.GetLastResoltGateway(), IpAddress("10.1.1.1").bitForm());
  EXPECT_EQ(table.GetLastResoltNetwork(), 0u);
  // Without any marker phrase the text is refused and the table left empty.
  EXPECT_FALSE(table.ParseCmdString("O     10.0.0.0/8 [110/2] via 10.1.1.1, 00:00:01, Vlan1\n", nullptr, true));
  EXPECT_EQ(table.GetSize(), 0u);
  EXPECT_FALSE(table.ParseCmdString(nullptr, nullptr, true));

  // "not set" stores nothing but opens the body.
  table.SetLastResoltGateway(7, 8);
  ASSERT_TRUE(table.ParseCmdString((std::string(kLegend) + "Gateway of last resort is not set\n"
                                    "C     10.1.1.0/24 is directly connected, Vlan1\n").c_str(), nullptr, true));
  EXPECT_EQ(table.GetLastResoltGateway(), 7u);
  EXPECT_EQ(table.GetSize(), 1u);
  // A reparse replaces the entries.
  ASSERT_TRUE(table.ParseCmdString(WithGateway("S   10.4.0.0/16 [1/0] via 10.1.1.1\n").c_str(), nullptr, true));
  EXPECT_EQ(Prefix(Only(table)), "10.4.0.0/16");

  // Lines above the gateway line are ignored.
  EXPECT_EQ(Parsed("C     192.168.9.0/24 is directly connected, Vlan9\n"
                   "Gateway of last resort is 10.1.1.1 to network 0.0.0.0\n"
                   "C     10.1.1.0/24 is directly connected, Vlan1\n"),
            Rows{"1 10.1.1.0/24 C 0/0 0.0.0.0 Vlan1 -"});
  // A switch's default gateway makes one static candidate default.
  EXPECT_EQ(Parsed("switch#show ip route\nDefault Gateway is 1.1.1.1\n\nHost  Gateway  Last Use\n"),
            Rows{"1 0.0.0.0/0 S* 0/0 1.1.1.1  -"});
}

TEST(RouteParser, EachLineShapeWithInheritedCodesAndMasks) {
  // Without a gateway line the listing is parsed from its first line; the
  // header's mask is inherited by the routes below it.
  EXPECT_EQ(Parsed("     10.0.0.0/24 is subnetted, 2 subnets\n"
                   "C       10.0.0.0 is directly connected, Vlan1\n"
                   "O       10.0.1.0 [110/20] via 10.0.0.2, 00:00:09, Vlan1\n"),
            (Rows{"1 10.0.0.0/24 C 0/0 0.0.0.0 Vlan1 -", "2 10.0.1.0/24 O 110/20 10.0.0.2 Vlan1 9"}));

  PrefixHelper helper;
  EXPECT_EQ(Parsed(WithGateway("O*E2  0.0.0.0/0 [110/1] via 10.1.1.1, 00:01:02, Vlan1\n"), true, &helper),
            Rows{"1 0.0.0.0/0 O*E2 110/1 10.1.1.1 Long:Vlan1 62"});
  EXPECT_EQ(helper.seen, std::vector<std::string>{"Vlan1"});

  // Wrapped routes are joined and keep their code.
  EXPECT_EQ(Parsed(WithGateway("D        10.0.0.0/8\n"
                               "           [90/5] via 10.1.1.1, 00:00:10, Vlan1\n"
                               "C        10.255.255.0/24\n"
                               "            is directly connected, Loopback0\n"),
                   false),
            (Rows{"1 10.0.0.0/8 D 90/5 10.1.1.1 Vlan1 10", "2 10.255.255.0/24 C 0/0 0.0.0.0 Loopback0 -"}));

  // The second path of a load-balanced route inherits code, destination and mask.
  EXPECT_EQ(Parsed(WithGateway("      20.0.0.0/16 is variably subnetted, 20 subnets, 2 masks\n"
                               "O N1     20.0.0.0/24 [110/60] via 10.10.0.2, 2w0d, Vlan10\n"
                               "                     [110/61] via 10.0.0.13, 2w0d, Port-channel1\n")),
            (Rows{"1 20.0.0.0/24 O N1 110/60 10.10.0.2 Vlan10 1209600",
                  "2 20.0.0.0/24 O N1 110/61 10.0.0.13 Port-channel1 1209600"}));

  // Statics with and without age and interface; one to Null0 is printed as
  // connected but stays static.
  EXPECT_EQ(Parsed(WithGateway("S        10.2.0.0/16 [1/0] via 10.1.1.1\n"
                               "S        10.3.0.0/16 [1/0] via 10.1.1.1, 00:00:05\n"
                               "S        10.4.0.0/16 [1/0] via 10.1.1.1, Vlan4\n"
                               "S        10.5.0.0/16 [1/0] via 10.1.1.1, 00:00:05, Vlan5\n"
                               "S        10.99.0.0/16 is directly connected, Null0\n")),
            (Rows{"1 10.2.0.0/16 S 1/0 10.1.1.1  -", "2 10.3.0.0/16 S 1/0 10.1.1.1  5",
                  "3 10.4.0.0/16 S 1/0 10.1.1.1 Vlan4 -", "4 10.5.0.0/16 S 1/0 10.1.1.1 Vlan5 5",
                  "5 10.99.0.0/16 S -/- 0.0.0.0 Null0 -"}));

  // Weeks and days, summaries, IS-IS (the untimed pattern first, so the
  // interface is kept) and a code nobody knows.
  EXPECT_EQ(Parsed(WithGateway("B        10.6.0.0/16 [20/0] via 10.1.1.1, 1w2d\n"
                               "D        172.16.0.0/12 is a summary, 1d02h, Null0\n"
                               "i L2     10.7.0.0/16 [115/20] via 10.1.1.9, GigabitEthernet0/2\n"
                               "L        10.0.0.2/32 [0/0] via 10.0.0.2, 00:00:01, GigabitEthernet0/0\n")),
            (Rows{"1 10.6.0.0/16 B 20/0 10.1.1.1  777600", "2 172.16.0.0/12 D -/- 0.0.0.0 Null0 93600",
                  "3 10.7.0.0/16 i L2 115/20 10.1.1.9 GigabitEthernet0/2 -",
                  "4 10.0.0.2/32 - 0/0 10.0.0.2 GigabitEthernet0/0 1"}));

  // Dotted and hexadecimal masks, on routes and on headers.
  EXPECT_EQ(Parsed(WithGateway("R        10.0.0.0 255.0.0.0 [120/1] via 10.1.1.2, 00:00:03, Vlan1\n"
                               "      11.0.0.0 0xFFFFFF00 is subnetted, 1 subnets\n"
                               "C        11.0.0.0 is directly connected, Vlan2\n"
                               "      12.0.0.0 255.255.0.0 is subnetted, 1 subnets\n"
                               "O        12.1.0.0 [110/3] via 10.1.1.3, 00:00:04, Vlan3\n")),
            (Rows{"1 10.0.0.0/8 R 120/1 10.1.1.2 Vlan1 3", "2 11.0.0.0/24 C 0/0 0.0.0.0 Vlan2 -",
                  "3 12.1.0.0/16 O 110/3 10.1.1.3 Vlan3 4"}));
}

TEST(RouteParser, HostileLinesAreDroppedWithoutStoppingTheParse) {
  EXPECT_EQ(Parsed(WithGateway("O        10.0.0.0/99 [110/2] via 10.1.1.1, 00:00:01, Vlan1\n"  // mask out of range
                               "O        not a route via anything\n"
                               "O        10.0.0.0 255.0.255.0 [110/2] via 10.1.1.1, 00:00:01, Vlan1\n"  // hole
                               "O        10.8.0.0/16 [110/2] via 10.1.1.1, 00:00:01, Vlan1\n"
                               "\x01\xff\x7f junk without the word\n")),
            Rows{"1 10.8.0.0/16 O 110/2 10.1.1.1 Vlan1 1"});

  // Carriage returns end lines like line feeds.
  const std::string lf = WithGateway("D        10.0.0.0/8\n"
                                     "           [90/5] via 10.1.1.1, 00:00:10, Vlan1\n"
                                     "O        10.9.0.0/16 [110/5] via 10.1.1.1, 00:00:10, Vlan1\n");
  std::string crlf;
  for (char c : lf) crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
  EXPECT_EQ(Parsed(crlf), Parsed(lf));
  EXPECT_EQ(Parsed(lf).size(), 2u);

  // An unparsed line is logged under "dime".
  std::vector<std::string> messages;
  ILogger* log = ILogger::GetInstance();
  const ELogLevel before = log->GetLevel();
  log->SetLevel(LOG_DEBUG);
  log->SetObserver([&](ELogLevel, const std::string& category, const std::string& function, const std::string& msg) {
    if (category == "dime" && function == "RoutingTable::ParseRTBEntry") messages.push_back(msg);
  });
  RoutingTable table;
  table.ParseCmdString(WithGateway("O        10.1.0.0/16 [x/y] via 10.1.1.1\n").c_str(), nullptr, true);
  log->SetObserver(nullptr);
  log->SetLevel(before);
  EXPECT_EQ(messages, std::vector<std::string>{"RoutingTable entry isn't parsed:10.1.0.0/16 [x/y] via 10.1.1.1"});
}

TEST(RouteParser, EveryRouteLineOfTheSampleListingsBecomesOneEntry) {
  // In each notation every line with a next hop, a connected interface or a
  // summary is one route (the first halves of wrapped routes have neither).
  for (const char* file : {"branch-dotted.txt", "branch-hexmask.txt", "core1-monday.txt", "core1-tuesday.txt"}) {
    SCOPED_TRACE(file);
    const std::string text = netloom_test::ReadFile(netloom_test::SourcePath(std::string("samples/routes/") + file));
    ASSERT_FALSE(text.empty());
    size_t routeLines = 0;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
      if (line.find("via") != std::string::npos || line.find("directly connected") != std::string::npos ||
          line.find("is a summary") != std::string::npos)
        ++routeLines;
    RoutingTable table;
    ASSERT_TRUE(table.ParseCmdString(text.c_str(), nullptr, true));
    EXPECT_EQ(table.GetSize(), routeLines);
    for (auto& [index, entry] : table.getEntryIndexMap()) {
      EXPECT_TRUE(entry->DestMask.isValidNetMask()) << index;
    }
  }
}

TEST(RouteParser, AgesAndAddressesAgreeWithTheGeneralReaders) {
  // Common shapes take a quicker road than sscanf; every shape must give
  // what the general readers give.
  const char* ages[] = {"00:01:02", "1w2d",     "2w0d",  "1d02h",   "21w4d",      "13:26:04", "0:0:0",
                        "99:99:99", "1d",       "1w",    "12:34",   "1:2:3:4",    "1dx",      "4294967295:1:1",
                        "1d2h3",    "007w007d", "5d23h", "1wd",     "123456789:0:0", "1234567890w1d"};
  const char* addresses[] = {"10.1.2.0", "010.001.002.000", "1.2.3.256", "1234.1.1.1", "255.255.255.255", "0.0.0.0",
                             "1.2.3.0004"};
  for (const char* age : ages) {
    for (const char* dest : addresses) {
      SCOPED_TRACE(std::string(age) + " " + dest);
      const std::string line = std::string("B        ") + dest + "/24 [20/0] via 10.1.1.1, " + age + ", Vlan1\n";
      RoutingTable table;
      ASSERT_TRUE(table.ParseCmdString(WithGateway(line).c_str(), nullptr, true));
      RoutingTableEntry* e = Only(table);
      ASSERT_NE(e, nullptr);
      EXPECT_EQ(e->TimeStamp, RoutingTable::FormatTimeToSecond(age));
      EXPECT_EQ(e->DestIp.bitForm(), TW_AsciiToNetAddr(dest));
    }
  }
}

// ---- files ----

std::string BigListing(int routes) {
  std::string text = WithGateway("      10.0.0.0/8 is variably subnetted, many subnets, 2 masks\n");
  for (int i = 0; i < routes; ++i) {
    const std::string net = "10." + std::to_string(i / 256 % 256) + "." + std::to_string(i % 256) + ".0";
    switch (i % 4) {
      case 0: text += "O        " + net + "/24 [110/" + std::to_string(i) + "] via 10.1.1.1, 00:00:01, Vlan1\n"; break;
      case 1: text += "                 [110/" + std::to_string(i) + "] via 10.1.1.2, 00:00:01, Vlan2\n"; break;
      case 2: text += "C        " + net + "/24 is directly connected, Vlan3\n"; break;
      default: text += "D        " + net + "/24\n           [90/7] via 10.1.1.3, 1w2d, Vlan4\n"; break;
    }
  }
  return text;
}

TEST(RouteParserFile, ConvertsListingInPlaceIntoRouteFile) {
  const std::string dir = netloom_test::MakeTempDir("twfile");
  const std::string text = BigListing(2600);  // several batches
  const std::string path = netloom_test::WriteFile(dir + "core.txt", text);

  RoutingTable inMemory("core"), streamed;
  ASSERT_TRUE(inMemory.ParseCmdString(text.c_str(), nullptr, false));
  ASSERT_EQ(inMemory.GetSize(), 2600u);
  std::istringstream in(text), failed(text);
  EXPECT_TRUE(streamed.ParseStream(in, nullptr, true));
  EXPECT_EQ(streamed.GetSize(), 2600u);
  failed.setstate(std::ios::failbit);
  EXPECT_FALSE(streamed.ParseStream(failed, nullptr, true));

  RoutingTable converting("core");
  ASSERT_TRUE(converting.ParseCmdString(("twfile://" + path).c_str(), nullptr, true));
  EXPECT_EQ(converting.GetSize(), 0u);
  EXPECT_FALSE(std::filesystem::exists(path + ".out"));
  EXPECT_EQ(netloom_test::ReadFile(path).substr(0, 10), "0310,core,");

  RoutingTable reread;
  ASSERT_TRUE(reread.ReadRTData(path.c_str()));
  EXPECT_EQ(reread.GetDeviceName(), "core");
  ASSERT_EQ(reread.GetSize(), inMemory.GetSize());
  for (auto& [index, entry] : inMemory.getEntryIndexMap()) {
    RoutingTableEntry* back = reread.GetRTEntryByIndex(index);
    ASSERT_NE(back, nullptr) << index;
    EXPECT_TRUE(*back == *entry) << index;
    EXPECT_EQ(back->TimeStamp, entry->TimeStamp);
  }
}

TEST(RouteParserFile, FilesThatCannotBeConvertedAreLeftAlone) {
  const std::string dir = netloom_test::MakeTempDir("twfile");
  const std::string path = netloom_test::WriteFile(dir + "notes.txt", "nothing to see here\n");
  RoutingTable table;
  EXPECT_FALSE(table.ParseCmdString(("twfile://" + path).c_str(), nullptr, true));
  EXPECT_EQ(netloom_test::ReadFile(path), "nothing to see here\n");
  EXPECT_FALSE(std::filesystem::exists(path + ".out"));
  EXPECT_FALSE(table.ParseCmdString(("twfile://" + dir + "missing.txt").c_str(), nullptr, true));

  // The listing stays when the route file cannot be written.
  const std::string text = BigListing(10);
  const std::string listing = netloom_test::WriteFile(dir + "core.txt", text);
  std::filesystem::create_directories(listing + ".out");  // blocks the output file
  EXPECT_FALSE(table.ParseCmdString(("twfile://" + listing).c_str(), nullptr, true));
  EXPECT_EQ(netloom_test::ReadFile(listing), text);
}

}  // namespace
