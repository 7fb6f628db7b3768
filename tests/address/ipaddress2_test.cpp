#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include <boost/asio/ip/bad_address_cast.hpp>
#include <boost/system/system_error.hpp>

#include "netloom/ipaddress2.h"

namespace {

using Bytes = std::array<unsigned char, 16>;
using boost::asio::ip::bad_address_cast;

Bytes MaskBytes(std::initializer_list<unsigned char> head) {
  Bytes b{};
  std::copy(head.begin(), head.end(), b.begin());
  return b;
}

TEST(IpAddress2Construct, EitherFamilyFromTextNumberAndBytes) {
  EXPECT_EQ(IpAddress2().textForm(), "0.0.0.0");
  EXPECT_TRUE(IpAddress2().is_v4());
  EXPECT_EQ(IpAddress2(std::string("10.0.0.1")).bitForm(), 0x0A000001u);
  EXPECT_EQ(IpAddress2(0x0A000001u).textForm(), "10.0.0.1");
  // An IPv4-mapped text is IPv6, since IPv6 is tried first.
  EXPECT_TRUE(IpAddress2(std::string("::ffff:10.0.0.1")).is_v6());
  EXPECT_EQ(IpAddress2(std::string("2001:DB8::A")).textForm(), "2001:db8::a");
  Bytes bytes = MaskBytes({0x20, 0x01, 0x0d, 0xb8});
  bytes[15] = 1;
  EXPECT_EQ(IpAddress2(bytes).textForm(), "2001:db8::1");
  EXPECT_EQ(IpAddress2(bytes).byteForm(), bytes);
}

TEST(IpAddress2Construct, UnreadableTextThrowsSystemError) {
  for (const char* text : {"", "bad", "10.0.0", "10.0.0.256", "10.0.0.1 ", " 10.0.0.1", "1::2::3",
                           "10.0.0.1/24", "::1/128"}) {
    SCOPED_TRACE(text);
    EXPECT_THROW(IpAddress2{std::string(text)}, boost::system::system_error);
    EXPECT_FALSE(IpAddress2::isValidIpAddress2(text));
  }
  // A NUL inside the text must not let a prefix pass for the whole.
  const std::string withNul("10.0.0.1\0junk", 13);
  EXPECT_THROW(IpAddress2{withNul}, boost::system::system_error);
  EXPECT_FALSE(IpAddress2::isValidIpAddress2(withNul));
  EXPECT_EQ(IpAddress2::getMaskLength(withNul), -1);
  // Long hostile text.
  EXPECT_FALSE(IpAddress2::isValidIpAddress2(std::string(100000, ':')));
  // An unknown zone name reads as scope 0, as Boost does it.
  EXPECT_EQ(IpAddress2(std::string("fe80::1%") + std::string(5000, 'x')).textForm(), "fe80::1");
}

TEST(IpAddress2Family, Ipv4OnlyOperationsThrowForIpv6) {
  const IpAddress2 v6(std::string("::1"));
  const IpAddress2 v4(std::string("10.0.0.1"));
  EXPECT_THROW(v6.bitForm(), bad_address_cast);
  EXPECT_THROW(v6.network(), bad_address_cast);
  EXPECT_THROW(v6.networkForm(), bad_address_cast);
  EXPECT_THROW(v6.netMatch(v4), bad_address_cast);
  EXPECT_THROW(v4.netMatch(v6), bad_address_cast);
  EXPECT_THROW(v4.byteForm(), bad_address_cast);
}

TEST(IpAddress2Family, NeutralAnswersForIpv6) {
  const IpAddress2 v6(std::string("ffff:ff00::"));
  EXPECT_EQ(v6.classMaskBits(), 0u);
  EXPECT_EQ(v6.classMask(), v6);
  EXPECT_EQ(v6.getLeftNonZeroLen(), 0);
  EXPECT_TRUE(v6.isValidNetMask());
  EXPECT_TRUE(v6.getAllPossibleSubnets().empty());
}

TEST(IpAddress2Family, Ipv4BehavesAsIpAddress) {
  for (unsigned int value : {0x0A000001u, 0xAC100505u, 0xC0A80101u, 0xE0000001u, 0u,
                             0xFFFFFF00u, 0xFF00FF00u}) {
    SCOPED_TRACE(value);
    const IpAddress2 a(value);
    const IpAddress b(value);
    EXPECT_EQ(a.classMaskBits(), b.classMaskBits());
    EXPECT_EQ(a.networkForm(), b.networkForm());
    EXPECT_EQ(a.getLeftNonZeroLen(), b.getLeftNonZeroLen());
    EXPECT_EQ(a.isValidNetMask(), b.isValidNetMask());
    const std::vector<IpAddress2> mine = a.getAllPossibleSubnets();
    const std::vector<IpAddress> theirs = b.getAllPossibleSubnets();
    ASSERT_EQ(mine.size(), theirs.size());
    for (std::size_t i = 0; i < mine.size(); ++i) EXPECT_EQ(mine[i].bitForm(), theirs[i].bitForm());
  }
  EXPECT_TRUE(IpAddress2(0x0A010101u).netMatch(IpAddress2(0x0AFF0000u)));
}

TEST(IpAddress2Family, InvertComplementsTheActiveFamily) {
  IpAddress2 v4(0x0F0000FFu);
  v4.invert();
  EXPECT_EQ(v4.bitForm(), 0xF0FFFF00u);
  EXPECT_EQ(v4.getRevertedAddress().bitForm(), 0x0F0000FFu);

  const IpAddress2 v6(std::string("ffff:ffff:ffff:ffff::"));
  EXPECT_EQ(v6.getRevertedAddress().textForm(), "::ffff:ffff:ffff:ffff");
  EXPECT_TRUE(IpAddress2(std::string("::")).getRevertedAddress().textForm() ==
              "ffff:ffff:ffff:ffff:ffff:ffff:ffff:ffff");
}

TEST(IpAddress2Order, Ipv4SortsBeforeEveryIpv6) {
  const IpAddress2 topV4(0xFFFFFFFFu);
  const IpAddress2 lowV6(std::string("::"));
  EXPECT_TRUE(topV4 < lowV6);
  EXPECT_TRUE(lowV6 > topV4);
  EXPECT_FALSE(lowV6 < topV4);
  // Same bits in the other family are not equal: 0.0.0.0 against ::.
  EXPECT_EQ(IpAddress2(0u) != lowV6, 1);

  std::vector<IpAddress2> values = {IpAddress2(std::string("::2")), IpAddress2(0x0A000002u),
                                    IpAddress2(std::string("::1")), IpAddress2(0x0A000001u)};
  std::sort(values.begin(), values.end());
  std::vector<std::string> texts;
  for (const IpAddress2& v : values) texts.push_back(v.textForm());
  EXPECT_EQ(texts, (std::vector<std::string>{"10.0.0.1", "10.0.0.2", "::1", "::2"}));
  // IPv6 by bytes, then scope.
  const IpAddress2 a(std::string("fe80::1%1"));
  const IpAddress2 b(std::string("fe80::1%2"));
  const IpAddress2 c(std::string("fe80::2"));
  EXPECT_TRUE(a < b);
  EXPECT_EQ(a != b, 1);
  EXPECT_TRUE(b < c);
}

TEST(IpAddress2MaskLength, BytesAndTextOfEitherFamily) {
  // Sixteen bytes count up to the first partial byte; set bits are counted, not their place.
  const auto len = [](std::initializer_list<unsigned char> head) {
    Bytes b = MaskBytes(head);
    return IpAddress2::getMaskLength(b);
  };
  EXPECT_EQ(len({0xff, 0xff, 0xff, 0x80}), 25);
  EXPECT_EQ(len({0xff, 0x80, 0xff}), 9);
  EXPECT_EQ(len({0x0f}), 4);
  Bytes full;
  full.fill(0xff);
  EXPECT_EQ(IpAddress2::getMaskLength(full), 128);
  EXPECT_EQ(IpAddress2::getMaskLength(std::string("ffff:ffff:ffff:ff80::")), 57);
  EXPECT_EQ(IpAddress2::getMaskLength(std::string("ffff:ff00:ffff::")), 24);
  // IPv4 counts from the lowest set bit, holes ignored.
  EXPECT_EQ(IpAddress2::getMaskLength(std::string("255.0.255.0")), 24);
  EXPECT_EQ(IpAddress2::getMaskLength(std::string("not a mask")), -1);
  EXPECT_EQ(IpAddress2::getBitIPv4MaskByLength(24), 0xFFFFFF00u);
}

TEST(IpAddress2Validate, NetmaskHostAndLookup) {
  EXPECT_FALSE(IpAddress2::isValidNetmask("255.0.255.0"));
  EXPECT_TRUE(IpAddress2::isValidNetmask("ffff:ffff::"));
  EXPECT_TRUE(IpAddress2::isValidIpAddress2ForHost("255.255.255.255"));
  EXPECT_FALSE(IpAddress2::isValidIpAddress2ForHost("0.0.0.0"));
  EXPECT_FALSE(IpAddress2::isValidIpAddress2ForHost("::"));
  EXPECT_THROW(IpAddress2::isValidIpAddress2ForHost("host"), boost::system::system_error);
  // Host names must be address texts.
  EXPECT_THROW(IpAddress2::GetIpByHostName("localhost"), boost::system::system_error);
  EXPECT_TRUE(IpAddress2::GetIpByHostName("::1").is_v4());
  EXPECT_EQ(IpAddress2::GetHostNamebyIP(IpAddress2(std::string("::1"))), "");
}

// --- NetAddress --------------------------------------------------------------

TEST(NetAddressText, ReadAndWriteLocationWithPort) {
  NetAddress a;
  ASSERT_TRUE(NetAddress::fromString("10.0.0.1 255.255.0.0:443", a));
  EXPECT_EQ(a.getIpAddress(), "10.0.0.1");  // host bits kept
  EXPECT_EQ(a.getNetmask(), "255.255.0.0");
  EXPECT_EQ(a.getPort(), 443);
  // Text forms omit a full mask and a zero port, and read back.
  EXPECT_EQ(NetAddress("10.0.0.1").toString(), "10.0.0.1");
  EXPECT_EQ(NetAddress("10.0.0.1:53").toString(), "10.0.0.1:53");
  EXPECT_EQ(NetAddress("10.0.0.0/8").toString(), "10.0.0.0/255.0.0.0");
  EXPECT_EQ(NetAddress("10.0.0.0", "255.255.255.0", -1).toString(), "10.0.0.0/255.255.255.0:-1");
  for (const char* text : {"10.0.0.1", "10.0.0.1:80", "172.16.0.0/12:65535", "0.0.0.0/0:1"}) {
    NetAddress back;
    ASSERT_TRUE(NetAddress::fromString(NetAddress(text).textFormByMaskLen(), back)) << text;
    EXPECT_TRUE(back == NetAddress(text)) << text;
  }
  EXPECT_TRUE(NetAddress("bad text").isNull());
  EXPECT_EQ(NetAddress("10.1.1.1", "garbage").getNetmask(), "");
  EXPECT_EQ(NetAddress(IpLocation(0x0A000000u, 0xFF000000u)).textFormByMaskLen(), "10.0.0.0/8");
}

TEST(NetAddressRead, FailuresLeaveTheTargetAlone) {
  const NetAddress original("192.168.1.1", "255.255.255.0", 8080);
  for (const char* text : {"10.0.0.1:0", "10.0.0.1:", "10.0.0.1:http", "10.0.0.1/33:80", "bad", "", ":80"}) {
    NetAddress target = original;
    EXPECT_FALSE(NetAddress::fromString(text, target)) << text;
    EXPECT_TRUE(target == original) << text;
  }
  // Only the first colon splits, and the port is read as atoi would, clamped.
  NetAddress odd;
  EXPECT_TRUE(NetAddress::fromString("10.0.0.1/24:80:90x", odd));
  EXPECT_EQ(odd.getPort(), 80);
  EXPECT_TRUE(NetAddress::fromString("10.0.0.1:99999999999999999999", odd));
  EXPECT_EQ(odd.getPort(), 2147483647);
}

TEST(NetAddressCompare, PortCountsForEqualityNotForOrderAndMatchUsesThisMask) {
  const NetAddress a("10.0.0.1:80"), b("10.0.0.1:81");
  EXPECT_FALSE(a == b);
  EXPECT_FALSE(a < b || b < a);
  EXPECT_TRUE(NetAddress("10.0.0.1/8") < NetAddress("10.0.0.1"));  // address scaled, then mask
  const NetAddress net("10.1.0.0/16");
  EXPECT_TRUE(net.matchTo(NetAddress("10.1.200.3:443")));
  EXPECT_FALSE(net.matchTo(NetAddress("10.2.0.1")));
  // The other side's mask plays no part.
  EXPECT_FALSE(NetAddress("10.1.2.3").matchTo(net));
}

TEST(NetAddressEdit, SettersThroughTheTextReader) {
  NetAddress a;
  a.setIpAddress("192.168.0.9");
  a.setNetmask("255.255.255.128");
  a.setPort(22);
  EXPECT_FALSE(a.isNull());
  EXPECT_EQ(a.textFormByMaskLen(), "192.168.0.9/25:22");
  a.setNetmask("255.0.255.0");
  EXPECT_EQ(a.getMaskLength(), -1);
  a.setIpAddress("not an address");
  EXPECT_TRUE(a.isNull());
  a.getIpLocaltion().setFullMask();
  EXPECT_EQ(a.getNetmask(), "255.255.255.255");
}

}  // namespace
