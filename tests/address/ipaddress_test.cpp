// IPv4 values: text readers (and the quirks callers rely on), class and mask
// arithmetic, the supernet walk, key order, wildcards and mask sets.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <random>

#include "netloom/ipaddress.h"

namespace {

unsigned int Ip(const char* text) { return IpAddress(std::string(text)).bitForm(); }

template <typename T>
std::vector<std::string> Texts(const std::vector<T>& v) {
    std::vector<std::string> out;
    for (const auto& a : v) out.push_back(a.textForm());
    return out;
}

}  // namespace

TEST(IpAddressText, StrictConstructorAndLenientConverterDisagreeOnTrailingBlank) {
    EXPECT_EQ(IpAddress(std::string("1.2.3.4")).bitForm(), 0x01020304u);
    EXPECT_EQ(IpAddress(std::string("1.2.3.4 ")).bitForm(), 0u);
    EXPECT_EQ(TW_AsciiToNetAddr("1.2.3.4 "), 0x01020304u);
    bool ok = true;
    EXPECT_EQ(TW_AsciiToNetAddr("1.2.3.4 ", ok), 0u);
    EXPECT_FALSE(ok);
    EXPECT_TRUE(IpAddress::isValidIpAddress("1.2.3.4 "));  // trims first
    EXPECT_EQ(TW_AsciiToNetAddr(nullptr), 0u);
    for (const char* bad : {"256.1.1.1", "1.2.3", "1.2.3.4.5", "", "a.b.c.d", "1..2.3", "1.2.3.256"})
        EXPECT_EQ(Ip(bad), 0u) << bad;
    for (const char* bad : {"1.2.3", "1234.1.1.1", "1.2.3.4.", "1.2.3.-4", "1.2.3.4/8", "", "1.2 .3.4"})
        EXPECT_FALSE(IpAddress::isValidIpAddress(bad)) << bad;
    EXPECT_TRUE(IpAddress::isValidIpAddress("255.255.255.255"));
    // The scanner's sign is let through by the constructor (no lower bound).
    EXPECT_EQ(Ip("-1.0.0.0"), 0xFF000000u);
}

TEST(IpAddressText, ValidatorsThatCutOrCompareText) {
    std::string t = "10.1.1.1/24";
    EXPECT_TRUE(IpAddress::isValidIpAddress2(t));
    EXPECT_EQ(t, "10.1.1.1");  // the caller sees the cut text
    EXPECT_FALSE(IpAddress::isValidIpAddressForHost("255.255.255.255"));
    EXPECT_TRUE(IpAddress::isValidIpAddressForHost("10.0.0.1/8"));

    // The length is compared as text.
    for (const char* good : {"1.1.1.1/", "1.1.1.1/a"}) EXPECT_TRUE(IpAddress::isValidIpAddressAndMaskLen(good)) << good;
    for (const char* bad : {"1.1.1.1/4x", "1.1.1.1/33", "1.1.1.1"})
        EXPECT_FALSE(IpAddress::isValidIpAddressAndMaskLen(bad)) << bad;

    // The formatter reads the address one character short.
    const auto format = [](std::string text) {
        return IpAddress::formateIpAddressAndMaskLen(text) ? text : std::string("refused");
    };
    EXPECT_EQ(format("10.1.1.20/24"), "10.1.1.0/24");
    EXPECT_EQ(format("10.1.1.1/24"), "0.0.0.0/24");
    EXPECT_EQ(format("1.1.1.1/33"), "refused");
}

TEST(IpAddressText, DottedFormsRoundTrip) {
    std::mt19937 rng(7);
    for (int i = 0; i < 2000; ++i) {
        unsigned int v = rng();
        char buf[16];
        TW_NetAddrIntoAscii(v, buf);
        EXPECT_EQ(Ip(buf), v);
        EXPECT_EQ(IpAddress(v).textForm(), buf);
    }
    char* fresh = TW_NetAddrToAscii(0xFFFFFFFFu);
    ASSERT_NE(fresh, nullptr);
    EXPECT_STREQ(fresh, "255.255.255.255");
    std::free(fresh);
}

TEST(IpAddressClass, ClassMasksAndTheZeroAsymmetry) {
    EXPECT_EQ(IpAddress(0u).classMaskBits(), 0xFF000000u);
    EXPECT_EQ(IpAddress(0u).classMask().bitForm(), 0u);
    EXPECT_EQ(IpAddress(Ip("224.0.0.1")).classMaskBits(), 0xF0000000u);
    EXPECT_EQ(IpAddress(Ip("172.16.9.9")).network().textForm(), "172.16.0.0");
    EXPECT_TRUE(IpAddress(Ip("10.1.0.0")).netMatch(IpAddress(Ip("10.200.3.4"))));
    EXPECT_FALSE(IpAddress(Ip("172.16.0.0")).netMatch(IpAddress(Ip("172.17.0.0"))));
}

TEST(IpAddressMask, LengthsArithmeticAndInclusion) {
    for (const char* bad : {"255.255.0.255", "255.128.128.0", "255.255.255"})
        EXPECT_EQ(IpAddress::getMaskLength(std::string(bad)), -1) << bad;
    EXPECT_EQ(IpAddress::getMaskLength(0xFF00FF00u), 24);  // holes not seen
    EXPECT_FALSE(IpAddress::isValidNetmask("255.255.1.0"));
    EXPECT_FALSE(IpAddress(0xFF00FF00u).isValidNetMask());
    EXPECT_EQ(IpAddress::getBitMaskByLength(-3), 0u);
    for (int len = 0; len <= 32; ++len) {
        EXPECT_EQ(IpAddress::getMaskLength(IpAddress::getBitMaskByLength(len)), len);
        EXPECT_EQ(IpAddress::getMaskLength(IpAddress::getMask(len)), len);
    }

    EXPECT_EQ(IpAddress(0u).getRightZeroLen(), 32);
    EXPECT_TRUE(IpAddress(Ip("10.1.0.0")).doesInclude(IpAddress(Ip("10.1.255.1"))));
    EXPECT_TRUE(IpAddress(0u).doesInclude(IpAddress(Ip("1.2.3.4"))));
    // Arithmetic wraps; order is unsigned.
    IpAddress a(0xFFFFFFFFu);
    a += 2;
    EXPECT_EQ(a.bitForm(), 1u);
    a -= 3;
    EXPECT_EQ(a.getRevertedAddress().bitForm(), 1u);
    EXPECT_TRUE(IpAddress(1u) < IpAddress(0x80000000u));  // unsigned order
}

TEST(IpAddressSubnets, WalkToZeroWithDistinctNetworks) {
    EXPECT_EQ(Texts(IpAddress(Ip("10.0.0.0")).getAllPossibleSubnets()),
              (std::vector<std::string>{"10.0.0.0", "8.0.0.0", "0.0.0.0"}));
    // Address with the top bit: n = 31 still leaves 128.0.0.0, so 0 is appended.
    EXPECT_EQ(Texts(IpAddress(0x80000001u).getAllPossibleSubnets()),
              (std::vector<std::string>{"128.0.0.1", "128.0.0.0", "0.0.0.0"}));
    std::mt19937 rng(3);
    for (int i = 0; i < 500; ++i) {
        unsigned int v = rng();
        auto list = IpAddress(v).getAllPossibleSubnets();
        EXPECT_EQ(list.front().bitForm(), v);
        EXPECT_EQ(list.back().bitForm(), 0u);
        for (size_t k = 1; k < list.size(); ++k) {
            EXPECT_LT(list[k].bitForm(), list[k - 1].bitForm());
            EXPECT_EQ(list[k].bitForm() & v, list[k].bitForm());  // a prefix of v
        }
        EXPECT_EQ(list.size(), size_t(__builtin_popcount(v)) + 1);
    }
}

TEST(IpAddressRanges, TypedPrefixBecomesRanges) {
    using Got = std::map<std::string, std::string>;
    const auto ranges = [](const char* prefix) {
        std::map<IpAddress, IpAddress> r;
        Got got;
        if (!IpAddress::GetIpRangByIpPrefixStr(prefix, r)) got["refused"] = prefix;
        for (auto& [a, b] : r) got[a.textForm()] = b.textForm();
        return got;
    };
    EXPECT_EQ(ranges("10.1.1"), (Got{{"10.1.1.0", "10.1.1.255"}, {"10.1.10.0", "10.1.19.255"},
                                     {"10.1.100.0", "10.1.199.255"}}));
    EXPECT_EQ(ranges("10.1.25"), (Got{{"10.1.25.0", "10.1.25.255"}, {"10.1.250.0", "10.1.255.255"}}));
    EXPECT_EQ(ranges("10.").at("10.0.0.0"), "10.255.255.255");
    EXPECT_EQ(ranges("10.1.1.0").at("10.1.1.0"), "10.1.1.255");  // a token of zeros is no token
    EXPECT_EQ(ranges("1.2.3.4."), (Got{{"1.2.3.4", "1.2.3.4"}}));
    // Without a dot the limit's shift wraps: below 128 the last address is 0,
    // unless the upper bound itself crosses 128 and turns negative.
    const Got twelve = ranges("12");
    EXPECT_EQ(twelve.at("12.0.0.0"), "0.0.0.0");
    EXPECT_EQ(twelve.at("120.0.0.0"), "129.255.255.255");
    for (const char* bad : {"", "01", "1..2", "1234", "1.2.3.4.5", "1.2.3.4.5.", "1.x", ".1"})
        EXPECT_EQ(ranges(bad), (Got{{"refused", bad}}));
}

TEST(IpAddressRanges, PairFromTwoAddresses) {
    std::pair<IpAddress, IpAddress> range;
    ASSERT_TRUE(IpAddress::GetIpRangByStr("10.0.0.9-10.0.0.1", range, "-"));
    EXPECT_EQ(range.first.textForm(), "10.0.0.1");
    EXPECT_EQ(range.second.textForm(), "10.0.0.9");
    EXPECT_FALSE(IpAddress::GetIpRangByStr("0.0.0.0-10.0.0.1", range, "-"));
    EXPECT_FALSE(IpAddress::GetIpRangByStr("1.1.1.1-2.2.2.2-3.3.3.3", range, "-"));
}

TEST(IpAddressHost, LiteralsNeedNoLookupAndLoopbackResolves) {
    EXPECT_EQ(IpAddress::GetIpByHostName("10.9.8.7").textForm(), "10.9.8.7");
    EXPECT_EQ(IpAddress::GetIpByHostName("localhost").textForm(), "127.0.0.1");
    EXPECT_TRUE(IpAddress::GetIpByHostName("no-such-host.invalid").isNull());
    EXPECT_FALSE(IpAddress::GetHostNamebyIP(IpAddress(Ip("127.0.0.1"))).empty());
    std::vector<IpAddress> ips{IpAddress(1u)};
    if (IpAddress::GetLocalIps(ips)) {
        EXPECT_EQ(ips.front().bitForm(), 1u);  // appended, not replaced
    }
}

TEST(IpLocationOrder, KeyIsAddressTimesAllOnesPlusMask) {
    IpLocation a(0x0A000001u, 0u), b(0x0A000000u, 0xFFFFFFFFu);
    // Two different values, equivalent in the key order.
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(a < b);
    EXPECT_FALSE(b < a);
    // Not lexical: a longer mask on a lower address can sort after.
    EXPECT_TRUE(IpLocation(0x0A000000u, 0xFF000000u) < IpLocation(0x0A000000u, 0xFFFF0000u));
    // Near the top of the range, where a narrow key would wrap.
    EXPECT_TRUE(IpLocation(0xFFFFFFFEu, 0xFFFFFFFEu) < IpLocation(0xFFFFFFFFu, 0u));
    EXPECT_FALSE(IpLocation(0xFFFFFFFFu, 0u) < IpLocation(0xFFFFFFFEu, 0xFFFFFFFEu));
}

TEST(IpLocationText, ReadersAcceptWhatUsersType) {
    IpAddress a(5u), m(6u);
    EXPECT_TRUE(IpLocation::get_ip_mask("1.2.3.4 junk", a, m));
    EXPECT_EQ(a.textForm(), "1.2.3.4");
    EXPECT_EQ(m.bitForm(), 0u);
    EXPECT_TRUE(IpLocation::get_ip_mask("10.0.0.0/", a, m));  // empty length is 0
    EXPECT_EQ(m.bitForm(), 0u);
    EXPECT_TRUE(IpLocation::get_ip_mask("10.1.0.0/16 trailing", a, m));
    EXPECT_EQ(m.textForm(), "255.255.0.0");
    a = IpAddress(5u);
    m = IpAddress(6u);
    for (const char* bad : {"1.2.3.4/33", "1.2.3.4/1x", "", "   ", "1.2.3/8", "x 255.0.0.0", "1.2.3.4/99999999999999"})
        EXPECT_FALSE(IpLocation::get_ip_mask(bad, a, m)) << bad;
    EXPECT_EQ(a.bitForm(), 5u);  // untouched on false
    EXPECT_EQ(m.bitForm(), 6u);

    EXPECT_TRUE(IpLocation::has_ip_mask("route to 10.0.0.0/8 via x", a, m));
    EXPECT_EQ(IpLocation(a, m).textFormByMaskLen(), "10.0.0.0/8");
    EXPECT_TRUE(IpLocation::has_ip_mask("v1.5 then 192.168.1.1", a, m));  // "1.5" refused, goes on
    EXPECT_EQ(a.textForm(), "192.168.1.1");
    EXPECT_FALSE(IpLocation::has_ip_mask("no digits here", a, m));
}

TEST(IpLocationText, FromStringFormsAndConstructors) {
    IpLocation l, keep(7u, 8u);
    EXPECT_FALSE(keep.fromString("1.1.1.1/33") || keep.fromString("1.1.1.1/00"));
    EXPECT_EQ(keep, IpLocation(7u, 8u));
    // Untrimmed: the validator trims, the strict reader does not.
    EXPECT_TRUE(l.fromString("1.1.1.1 /8"));
    EXPECT_TRUE(l.unmaskedAddress().isNull());
    EXPECT_EQ(l.getMaskLen(), 8);
    EXPECT_TRUE(l.fromString2("  2.2.2.2   24 "));
    EXPECT_EQ(l.textFormByMaskLen(), "2.2.2.2/24");

    EXPECT_EQ(IpLocation(std::string("10.1.2.3/16")).textForm(), "10.1.2.3 255.255.0.0");  // host bits kept
    EXPECT_EQ(IpLocation(std::string("garbage")), IpLocation(0u, 0u));
    EXPECT_EQ(IpLocation("10.0.0.0", "0.0.0.255", true).textFormByMaskLen(), "10.0.0.0/24");
    EXPECT_EQ(IpLocation(IpAddress(0u), 0).textFormForUI(true), "No IP Address");
}

TEST(IpLocationNets, RelationsBetweenNetworks) {
    IpLocation net16(Ip("10.1.0.0"), 0xFFFF0000u), net24(Ip("10.1.2.0"), 0xFFFFFF00u);
    EXPECT_TRUE(net16.isSupernet(net24));
    EXPECT_TRUE(net16.inSameNet(IpAddress(Ip("10.1.99.1"))));
    EXPECT_FALSE(net16.isSameNet(IpLocation(Ip("10.1.5.5"), 0xFF000000u)));  // each side by its own mask
    EXPECT_FALSE(IpLocation(Ip("10.0.0.0"), 0xFF000000u).isSubnet());
    EXPECT_TRUE(IpLocation(Ip("10.0.0.0"), 0xFE000000u).isSupernet());
    EXPECT_TRUE(IpLocation(Ip("10.0.0.0"), 0xFFFF0000u).zeroSubnet());
    EXPECT_FALSE(IpLocation(1u, 0xFF00FF00u).validMask());
    IpLocation s(Ip("172.16.5.1"), 0xFFFFFF00u);
    s.summary();
    EXPECT_EQ(s.textFormByMaskLen(), "172.16.0.0/16");
    EXPECT_EQ(IpLocation(Ip("10.1.2.3"), 0xFFFFFF00u).GetSubnetIpLocation(), net24);

    EXPECT_TRUE(IpLocation::IsLanBroadcastAddr(IpAddress(Ip("10.1.2.255")), net24));
    EXPECT_EQ(Texts(IpLocation(Ip("10.0.0.5"), 0xFFFFFFFCu).getAllSubnetsInSameNetwork()),
              (std::vector<std::string>{"10.0.0.4", "10.0.0.5", "10.0.0.6"}));
}

TEST(IpLocationSupernets, WalkIsOneBitShorterUntilTheAddressIsZero) {
    EXPECT_EQ(Texts(IpLocation(0u, 0xFFFFFF00u).getAllPossibleSupnets()),
              (std::vector<std::string>{"0.0.0.0 0.0.0.0"}));
    // 10.0.0.0/8: the first reduction already clears nothing, the address
    // reaches 0 at /4, and 0/0 closes the list.
    EXPECT_EQ(Texts(IpLocation(Ip("10.0.0.0"), 0xFF000000u).getAllPossibleSupnets()), (std::vector<std::string>{"10.0.0.0 255.0.0.0", "10.0.0.0 254.0.0.0", "8.0.0.0 252.0.0.0",
                                              "8.0.0.0 248.0.0.0", "0.0.0.0 240.0.0.0", "0.0.0.0 0.0.0.0"}));
    // Host bits are cleared cumulatively from the first reduction on.
    auto host = IpLocation(Ip("192.168.1.7"), 0xFFFFFFFFu).getAllPossibleSupnets();
    ASSERT_EQ(host.size(), 33u);
    EXPECT_EQ(host[1].textFormByMaskLen(), "192.168.1.6/31");
    EXPECT_EQ(host[8].textFormByMaskLen(), "192.168.1.0/24");
    EXPECT_EQ(host[32].textFormByMaskLen(), "0.0.0.0/0");
    // A mask with holes keeps its holes while shortening.
    EXPECT_EQ(IpLocation(Ip("10.255.0.0"), 0xFF00FF00u).getAllPossibleSupnets()[1].subnetMask().bitForm(), 0xFF00FE00u);
}

TEST(IpWildcardMatch, DontCareBits) {
    IpWildcard w(IpAddress(Ip("10.1.1.0")), std::string("0.0.0.255"));
    EXPECT_TRUE(w.matchIP(IpAddress(Ip("10.1.1.77"))));
    EXPECT_EQ(w.genIPString(), "10.1.1.0/24");
    EXPECT_EQ(IpWildcard(IpAddress(Ip("10.1.1.1")), 0u).genIPString(), "10.1.1.1");
    IpWildcard odd(IpAddress(Ip("10.0.0.1")), 0x00FF0000u);  // non-contiguous
    EXPECT_TRUE(odd.matchIP(IpAddress(Ip("10.77.0.1"))));
    EXPECT_FALSE(odd.matchIP(IpAddress(Ip("10.77.0.2"))));
}

TEST(IpNetMasksIter, LongestFirstThenZeroEndsAndRearms) {
    IpNetMasks m;
    for (unsigned mask : {0xFFFFFF00u, 0xFF000000u, 0u, 0xFFFFFF00u}) m.add(mask);
    EXPECT_TRUE(m.zeroMask());
    EXPECT_EQ(m.iter(), 0xFFFFFF00u);
    IpNetMasks copy = m;  // takes the iteration state along
    EXPECT_EQ(m.iter(), 0xFF000000u);
    EXPECT_EQ(m.iter(), 0u);
    EXPECT_EQ(m.iter(), 0xFFFFFF00u);  // rearmed
    EXPECT_EQ(copy.iter(), 0xFF000000u);

    IpNetMasks all;
    for (int len = 1; len <= 32; ++len) all.add(IpAddress::getBitMaskByLength(len));
    EXPECT_FALSE(all.zeroMask());
    for (int len = 32; len >= 1; --len) EXPECT_EQ(all.iter(), IpAddress::getBitMaskByLength(len));
}
