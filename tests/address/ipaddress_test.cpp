// IPv4 values: text readers (and the quirks callers rely on), class and mask
// arithmetic, the supernet walk, key order, wildcards and mask sets.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <random>

#include "netloom/ipaddress.h"

namespace {

unsigned int Ip(const char* text) { return IpAddress(std::string(text)).bitForm(); }

std::vector<std::string> Texts(const std::vector<IpAddress>& v) {
    std::vector<std::string> out;
    for (const auto& a : v) out.push_back(a.textForm());
    return out;
}

std::vector<std::string> Texts(const std::vector<IpLocation>& v) {
    std::vector<std::string> out;
    for (const auto& l : v) out.push_back(l.textForm());
    return out;
}

}  // namespace

TEST(IpAddressText, StrictConstructorAndLenientConverterDisagreeOnTrailingBlank) {
    EXPECT_EQ(IpAddress(std::string("1.2.3.4")).bitForm(), 0x01020304u);
    EXPECT_EQ(IpAddress(std::string("1.2.3.4 ")).bitForm(), 0u);
    EXPECT_EQ(TW_AsciiToNetAddr("1.2.3.4 "), 0x01020304u);
    EXPECT_EQ(TW_AsciiToNetAddr("1.2.3.4x"), 0u);
    bool ok = true;
    EXPECT_EQ(TW_AsciiToNetAddr("1.2.3.4 ", ok), 0u);
    EXPECT_FALSE(ok);
    EXPECT_EQ(TW_AsciiToNetAddr("10.20.30.40", ok), 0x0A141E28u);
    EXPECT_TRUE(ok);
    EXPECT_TRUE(IpAddress::isValidIpAddress("1.2.3.4 "));  // trims first
    EXPECT_EQ(TW_AsciiToNetAddr(nullptr), 0u);
}

TEST(IpAddressText, RefusesOutOfRangeAndMalformed) {
    for (const char* bad : {"256.1.1.1", "1.2.3", "1.2.3.4.5", "", "a.b.c.d", "1..2.3", "1.2.3.256"})
        EXPECT_EQ(Ip(bad), 0u) << bad;
    for (const char* bad : {"1.2.3", "1234.1.1.1", "1.2.3.4.", "1.2.3.-4", "1.2.3.4/8", "", "1.2 .3.4"})
        EXPECT_FALSE(IpAddress::isValidIpAddress(bad)) << bad;
    EXPECT_TRUE(IpAddress::isValidIpAddress("0.0.0.0"));
    EXPECT_TRUE(IpAddress::isValidIpAddress("255.255.255.255"));
    // The scanner's sign is let through by the constructor (no lower bound).
    EXPECT_EQ(Ip("-1.0.0.0"), 0xFF000000u);
}

TEST(IpAddressText, ValidatorsThatCutOrCompareText) {
    std::string t = "10.1.1.1/24";
    EXPECT_TRUE(IpAddress::isValidIpAddress2(t));
    EXPECT_EQ(t, "10.1.1.1");  // the caller sees the cut text
    EXPECT_FALSE(IpAddress::isValidIpAddressForHost("255.255.255.255"));
    EXPECT_FALSE(IpAddress::isValidIpAddressForHost("0.0.0.0/8"));
    EXPECT_TRUE(IpAddress::isValidIpAddressForHost("10.0.0.1/8"));

    EXPECT_TRUE(IpAddress::isValidIpAddressAndMaskLen("1.1.1.1/9"));
    EXPECT_TRUE(IpAddress::isValidIpAddressAndMaskLen("1.1.1.1/"));   // length compared as text
    EXPECT_TRUE(IpAddress::isValidIpAddressAndMaskLen("1.1.1.1/a"));
    EXPECT_FALSE(IpAddress::isValidIpAddressAndMaskLen("1.1.1.1/4x"));
    EXPECT_FALSE(IpAddress::isValidIpAddressAndMaskLen("1.1.1.1/33"));
    EXPECT_FALSE(IpAddress::isValidIpAddressAndMaskLen("1.1.1.1/100"));
    EXPECT_FALSE(IpAddress::isValidIpAddressAndMaskLen("1.1.1.1"));
}

TEST(IpAddressText, FormatReadsAddressOneCharacterShort) {
    std::string a = "10.1.1.20/24";
    EXPECT_TRUE(IpAddress::formateIpAddressAndMaskLen(a));
    EXPECT_EQ(a, "10.1.1.0/24");
    std::string b = "10.1.1.1/24";
    EXPECT_TRUE(IpAddress::formateIpAddressAndMaskLen(b));
    EXPECT_EQ(b, "0.0.0.0/24");
    std::string c = "10.1.1.10/8";
    EXPECT_TRUE(IpAddress::formateIpAddressAndMaskLen(c));
    EXPECT_EQ(c, "10.0.0.0/8");
    std::string bad = "1.1.1.1/33";
    EXPECT_FALSE(IpAddress::formateIpAddressAndMaskLen(bad));
    EXPECT_EQ(bad, "1.1.1.1/33");
}

TEST(IpAddressText, DottedFormsRoundTrip) {
    std::mt19937 rng(7);
    for (int i = 0; i < 2000; ++i) {
        unsigned int v = rng();
        IpAddress a(v);
        EXPECT_EQ(IpAddress(a.textForm()).bitForm(), v);
        char buf[16];
        TW_NetAddrIntoAscii(v, buf);
        EXPECT_EQ(a.textForm(), buf);
    }
    char* fresh = TW_NetAddrToAscii(0xFFFFFFFFu);
    ASSERT_NE(fresh, nullptr);
    EXPECT_STREQ(fresh, "255.255.255.255");
    std::free(fresh);
}

TEST(IpAddressClass, ClassMasksAndTheZeroAsymmetry) {
    EXPECT_EQ(IpAddress(0u).classMaskBits(), 0xFF000000u);
    EXPECT_EQ(IpAddress(0u).classMask().bitForm(), 0u);
    EXPECT_EQ(IpAddress(Ip("10.1.2.3")).classMask().bitForm(), 0xFF000000u);
    EXPECT_EQ(IpAddress(Ip("172.16.1.1")).classMaskBits(), 0xFFFF0000u);
    EXPECT_EQ(IpAddress(Ip("192.168.1.1")).classMaskBits(), 0xFFFFFF00u);
    EXPECT_EQ(IpAddress(Ip("224.0.0.1")).classMaskBits(), 0xF0000000u);
    EXPECT_EQ(IpAddress(Ip("240.0.0.1")).classMaskBits(), 0xF0000000u);
    EXPECT_EQ(IpAddress(Ip("172.16.9.9")).network().textForm(), "172.16.0.0");
    EXPECT_TRUE(IpAddress(Ip("10.1.0.0")).netMatch(IpAddress(Ip("10.200.3.4"))));
    EXPECT_FALSE(IpAddress(Ip("172.16.0.0")).netMatch(IpAddress(Ip("172.17.0.0"))));
}

TEST(IpAddressMask, LengthsFromNumbersAndText) {
    EXPECT_EQ(IpAddress::getMaskLength(std::string("255.255.0.255")), -1);
    EXPECT_EQ(IpAddress::getMaskLength(std::string("255.255.255.128")), 25);
    EXPECT_EQ(IpAddress::getMaskLength(std::string("0.0.0.0")), 0);
    EXPECT_EQ(IpAddress::getMaskLength(std::string("255.0.255.0")), -1);
    EXPECT_EQ(IpAddress::getMaskLength(std::string("255.128.128.0")), -1);
    EXPECT_EQ(IpAddress::getMaskLength(std::string("255.255.255.255")), 32);
    EXPECT_EQ(IpAddress::getMaskLength(std::string("255.255.255")), -1);
    EXPECT_EQ(IpAddress::getMaskLength(0xFFFF0000u), 16);
    EXPECT_EQ(IpAddress::getMaskLength(0xFF00FF00u), 24);  // holes not seen
    EXPECT_EQ(IpAddress::getMaskLength(0u), 0);
    EXPECT_TRUE(IpAddress::isValidNetmask("255.255.254.0"));
    EXPECT_FALSE(IpAddress::isValidNetmask("255.255.1.0"));

    EXPECT_TRUE(IpAddress(0u).isValidNetMask());
    EXPECT_TRUE(IpAddress(0xFFFFFFFFu).isValidNetMask());
    EXPECT_FALSE(IpAddress(0xFF00FF00u).isValidNetMask());

    EXPECT_EQ(IpAddress::getBitMaskByLength(0), 0u);
    EXPECT_EQ(IpAddress::getBitMaskByLength(-3), 0u);
    EXPECT_EQ(IpAddress::getBitMaskByLength(1), 0x80000000u);
    EXPECT_EQ(IpAddress::getBitMaskByLength(32), 0xFFFFFFFFu);
    EXPECT_EQ(IpAddress::getMask(20), "255.255.240.0");
    for (int len = 0; len <= 32; ++len) {
        EXPECT_EQ(IpAddress::getMaskLength(IpAddress::getBitMaskByLength(len)), len);
        EXPECT_EQ(IpAddress::getMaskLength(IpAddress::getMask(len)), len);
    }

    EXPECT_EQ(IpAddress(0u).getLeftNonZeroLen(), 0);
    EXPECT_EQ(IpAddress(0u).getRightZeroLen(), 32);
    EXPECT_EQ(IpAddress(Ip("10.1.0.0")).getLeftNonZeroLen(), 16);
    EXPECT_TRUE(IpAddress(Ip("10.1.0.0")).doesInclude(IpAddress(Ip("10.1.255.1"))));
    EXPECT_FALSE(IpAddress(Ip("10.1.0.0")).doesInclude(IpAddress(Ip("10.2.0.1"))));
    EXPECT_TRUE(IpAddress(0u).doesInclude(IpAddress(Ip("1.2.3.4"))));
}

TEST(IpAddressArithmetic, WrapsAndComplements) {
    IpAddress a(0xFFFFFFFFu);
    a += 2;
    EXPECT_EQ(a.bitForm(), 1u);
    a -= 3;
    EXPECT_EQ(a.bitForm(), 0xFFFFFFFEu);
    EXPECT_EQ(a.getRevertedAddress().bitForm(), 1u);
    a.invert();
    EXPECT_EQ(a.bitForm(), 1u);
    EXPECT_TRUE(IpAddress(1u) < IpAddress(0x80000000u));  // unsigned order
    EXPECT_EQ(IpAddress(1u) != IpAddress(2u), 1);
}

TEST(IpAddressSubnets, WalkToZeroWithDistinctNetworks) {
    EXPECT_EQ(Texts(IpAddress(Ip("10.0.0.0")).getAllPossibleSubnets()),
              (std::vector<std::string>{"10.0.0.0", "8.0.0.0", "0.0.0.0"}));
    EXPECT_EQ(Texts(IpAddress(0u).getAllPossibleSubnets()), (std::vector<std::string>{"0.0.0.0"}));
    // Address with the top bit: n = 31 still leaves 128.0.0.0, so 0 is appended.
    auto top = IpAddress(0x80000001u).getAllPossibleSubnets();
    EXPECT_EQ(Texts(top), (std::vector<std::string>{"128.0.0.1", "128.0.0.0", "0.0.0.0"}));
    std::mt19937 rng(3);
    for (int i = 0; i < 500; ++i) {
        unsigned int v = rng();
        auto list = IpAddress(v).getAllPossibleSubnets();
        ASSERT_FALSE(list.empty());
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
    std::map<IpAddress, IpAddress> r;
    ASSERT_TRUE(IpAddress::GetIpRangByIpPrefixStr("10.1.1", r));
    std::map<std::string, std::string> got;
    for (auto& [a, b] : r) got[a.textForm()] = b.textForm();
    EXPECT_EQ(got, (std::map<std::string, std::string>{{"10.1.1.0", "10.1.1.255"},
                                                        {"10.1.10.0", "10.1.19.255"},
                                                        {"10.1.100.0", "10.1.199.255"}}));
    r.clear();
    ASSERT_TRUE(IpAddress::GetIpRangByIpPrefixStr("10.1.25", r));
    ASSERT_EQ(r.size(), 2u);
    EXPECT_EQ(r[IpAddress(Ip("10.1.25.0"))].textForm(), "10.1.25.255");
    EXPECT_EQ(r[IpAddress(Ip("10.1.250.0"))].textForm(), "10.1.255.255");

    r.clear();
    ASSERT_TRUE(IpAddress::GetIpRangByIpPrefixStr("10.", r));
    EXPECT_EQ(r[IpAddress(Ip("10.0.0.0"))].textForm(), "10.255.255.255");
    r.clear();
    ASSERT_TRUE(IpAddress::GetIpRangByIpPrefixStr("1.2.3.4", r));
    EXPECT_EQ(r[IpAddress(Ip("1.2.3.4"))].textForm(), "1.2.3.4");
    r.clear();
    ASSERT_TRUE(IpAddress::GetIpRangByIpPrefixStr("10.1.1.0", r));  // a token of zeros is no token
    EXPECT_EQ(r[IpAddress(Ip("10.1.1.0"))].textForm(), "10.1.1.255");
    r.clear();
    ASSERT_TRUE(IpAddress::GetIpRangByIpPrefixStr("1.2.3.4.", r));
    EXPECT_EQ(r[IpAddress(Ip("1.2.3.4"))].textForm(), "1.2.3.4");
    // Without a dot the limit's shift wraps: below 128 the last address is 0.
    r.clear();
    ASSERT_TRUE(IpAddress::GetIpRangByIpPrefixStr("12", r));
    EXPECT_EQ(r[IpAddress(Ip("12.0.0.0"))].textForm(), "0.0.0.0");
    // ... unless the upper bound itself crosses 128 and turns negative.
    EXPECT_EQ(r[IpAddress(Ip("120.0.0.0"))].textForm(), "129.255.255.255");
    r.clear();
    ASSERT_TRUE(IpAddress::GetIpRangByIpPrefixStr("200", r));
    EXPECT_EQ(r[IpAddress(Ip("200.0.0.0"))].textForm(), "200.255.255.255");

    for (const char* bad : {"", "01", "1..2", "1234", "1.2.3.4.5", "1.2.3.4.5.", "1.x", ".1"}) {
        std::map<IpAddress, IpAddress> none;
        EXPECT_FALSE(IpAddress::GetIpRangByIpPrefixStr(bad, none)) << bad;
    }
}

TEST(IpAddressRanges, PairFromTwoAddresses) {
    std::pair<IpAddress, IpAddress> range;
    ASSERT_TRUE(IpAddress::GetIpRangByStr("10.0.0.9-10.0.0.1", range, "-"));
    EXPECT_EQ(range.first.textForm(), "10.0.0.1");
    EXPECT_EQ(range.second.textForm(), "10.0.0.9");
    EXPECT_FALSE(IpAddress::GetIpRangByStr("0.0.0.0-10.0.0.1", range, "-"));
    EXPECT_FALSE(IpAddress::GetIpRangByStr("10.0.0.1", range, "-"));
    EXPECT_FALSE(IpAddress::GetIpRangByStr("1.1.1.1-2.2.2.2-3.3.3.3", range, "-"));
}

TEST(IpAddressHost, LiteralsNeedNoLookupAndLoopbackResolves) {
    EXPECT_EQ(IpAddress::GetIpByHostName("10.9.8.7").textForm(), "10.9.8.7");
    EXPECT_EQ(IpAddress::GetIpByHostName("localhost").textForm(), "127.0.0.1");
    EXPECT_TRUE(IpAddress::GetIpByHostName("no-such-host.invalid").isNull());
    EXPECT_TRUE(IpAddress::GetIpByHostName("").isNull());
    EXPECT_FALSE(IpAddress::GetHostNamebyIP(IpAddress(Ip("127.0.0.1"))).empty());
    std::vector<IpAddress> ips{IpAddress(1u)};
    if (IpAddress::GetLocalIps(ips)) {
        EXPECT_GE(ips.size(), 2u);  // appended, not replaced
        EXPECT_LE(ips.size(), 11u);
        EXPECT_EQ(ips.front().bitForm(), 1u);
        IpAddress one;
        EXPECT_TRUE(IpAddress::GetLocalIp(one));
        EXPECT_EQ(one, ips[1]);
    }
}

TEST(IpLocationOrder, KeyIsAddressTimesAllOnesPlusMask) {
    IpLocation a(0x0A000001u, 0u), b(0x0A000000u, 0xFFFFFFFFu);
    // Two different values, equivalent in the key order.
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(a < b);
    EXPECT_FALSE(b < a);
    std::map<IpLocation, int> m;
    m[a] = 1;
    m[b] = 2;
    EXPECT_EQ(m.size(), 1u);
    EXPECT_EQ(m.begin()->first, a);  // the first key stays
    // Not lexical: a longer mask on a lower address can sort after.
    EXPECT_TRUE(IpLocation(0x0A000000u, 0xFF000000u) < IpLocation(0x0A000000u, 0xFFFF0000u));
    EXPECT_TRUE(IpLocation(0x0A000000u, 0xFFFFFFFFu) < IpLocation(0x0A000002u, 0u));
    std::mt19937 rng(11);
    for (int i = 0; i < 2000; ++i) {
        IpLocation x(rng(), rng()), y(rng(), rng());
        unsigned __int128 kx = (unsigned __int128)x.unmaskedAddress().bitForm() * 0xFFFFFFFFu + x.subnetMask().bitForm();
        unsigned __int128 ky = (unsigned __int128)y.unmaskedAddress().bitForm() * 0xFFFFFFFFu + y.subnetMask().bitForm();
        EXPECT_EQ(x < y, kx < ky);
    }
}

TEST(IpLocationText, ReadersAcceptWhatUsersType) {
    IpAddress a(5u), m(6u);
    EXPECT_TRUE(IpLocation::get_ip_mask("1.2.3.4 junk", a, m));
    EXPECT_EQ(a.textForm(), "1.2.3.4");
    EXPECT_EQ(m.bitForm(), 0u);
    EXPECT_TRUE(IpLocation::get_ip_mask("  1.2.3.4  ", a, m));
    EXPECT_EQ(m.bitForm(), 0xFFFFFFFFu);
    EXPECT_TRUE(IpLocation::get_ip_mask("10.0.0.0 255.0.0.0", a, m));
    EXPECT_EQ(m.textForm(), "255.0.0.0");
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
    IpLocation l;
    EXPECT_TRUE(l.fromString("1.1.1.1/0"));
    EXPECT_EQ(l.subnetMask().bitForm(), 0u);
    EXPECT_TRUE(l.fromString("1.1.1.1/255.255.0.0"));
    EXPECT_EQ(l.getMaskLen(), 16);
    IpLocation keep(7u, 8u);
    EXPECT_FALSE(keep.fromString("1.1.1.1/33"));
    EXPECT_FALSE(keep.fromString("1.1.1.1/00"));
    EXPECT_EQ(keep, IpLocation(7u, 8u));
    // Untrimmed: the validator trims, the strict reader does not.
    EXPECT_TRUE(l.fromString("1.1.1.1 /8"));
    EXPECT_TRUE(l.unmaskedAddress().isNull());
    EXPECT_EQ(l.getMaskLen(), 8);
    EXPECT_TRUE(l.fromString2("  2.2.2.2   24 "));
    EXPECT_EQ(l.textFormByMaskLen(), "2.2.2.2/24");
    EXPECT_TRUE(l.fromString2("2.2.2.2 255.255.255.252"));
    EXPECT_EQ(l.getMaskLen(), 30);

    EXPECT_EQ(IpLocation(std::string("10.1.2.3/16")).textForm(), "10.1.2.3 255.255.0.0");  // host bits kept
    EXPECT_EQ(IpLocation(std::string("10.1.2.3")).getMaskLen(), 32);
    EXPECT_EQ(IpLocation(std::string("garbage")), IpLocation(0u, 0u));
    EXPECT_EQ(IpLocation("10.0.0.0", "0.0.0.255", true).textFormByMaskLen(), "10.0.0.0/24");
    EXPECT_EQ(IpLocation("10.0.0.0", "nonsense", false).subnetMask().bitForm(), 0u);
    EXPECT_EQ(IpLocation(IpAddress(Ip("10.0.0.0")), 0).subnetMask().bitForm(), 0u);
    EXPECT_EQ(IpLocation(IpAddress(0u), 0).textFormForUI(true), "No IP Address");
    EXPECT_EQ(IpLocation(IpAddress(0u), 8).textFormForUI(false), "");
    EXPECT_EQ(IpLocation(IpAddress(Ip("1.0.0.0")), 8).textFormForUI(false), "1.0.0.0/8");
    EXPECT_EQ(IpLocation(IpAddress(Ip("1.0.0.0")), 8).textForm(false), "1.0.0.0");
    EXPECT_EQ(IpLocation(IpAddress(Ip("1.0.0.0")), 8).maskTextFrom(), "255.0.0.0");
}

TEST(IpLocationNets, RelationsBetweenNetworks) {
    IpLocation net16(Ip("10.1.0.0"), 0xFFFF0000u), net24(Ip("10.1.2.0"), 0xFFFFFF00u);
    EXPECT_TRUE(net16.isSupernet(net24));
    EXPECT_FALSE(net24.isSupernet(net16));
    EXPECT_TRUE(net24.isSummarynet(net16));
    EXPECT_TRUE(net16.inSameNet(IpAddress(Ip("10.1.99.1"))));
    EXPECT_TRUE(net16.isSameNet(IpLocation(Ip("10.1.5.5"), 0xFFFF0000u)));
    EXPECT_FALSE(net16.isSameNet(IpLocation(Ip("10.1.5.5"), 0xFF000000u)));  // each side by its own mask
    EXPECT_TRUE(net24.isSubnet());
    EXPECT_FALSE(IpLocation(Ip("10.0.0.0"), 0xFF000000u).isSubnet());
    EXPECT_TRUE(IpLocation(Ip("10.0.0.0"), 0xFE000000u).isSupernet());
    EXPECT_TRUE(IpLocation(Ip("10.0.0.0"), 0xFF000000u).summarized());
    EXPECT_TRUE(IpLocation(Ip("10.0.0.0"), 0xFFFF0000u).zeroSubnet());
    EXPECT_FALSE(net16.zeroSubnet());
    EXPECT_TRUE(IpLocation(Ip("10.1.2.3"), 0xFFFFFF00u).isHostAddress());
    EXPECT_TRUE(net24.isSubnetAddress());
    EXPECT_TRUE(net24.validMask());
    EXPECT_FALSE(IpLocation(1u, 0xFF00FF00u).validMask());
    IpLocation s(Ip("172.16.5.1"), 0xFFFFFF00u);
    s.summary();
    EXPECT_EQ(s.textFormByMaskLen(), "172.16.0.0/16");
    EXPECT_EQ(net24.GetSubnetIpLocation(), net24);
    EXPECT_EQ(IpLocation(Ip("10.1.2.3"), 0xFFFFFF00u).GetSubnetIpLocation(), net24);

    EXPECT_TRUE(IpLocation::IsLanNetworkAddr(IpAddress(Ip("10.1.2.0")), IpLocation(Ip("10.1.2.9"), 0xFFFFFF00u)));
    EXPECT_TRUE(IpLocation::IsLanBroadcastAddr(IpAddress(Ip("10.1.2.255")), net24));
    EXPECT_FALSE(IpLocation::IsLanBroadcastAddr(IpAddress(Ip("10.1.3.255")), net24));

    auto hosts = IpLocation(Ip("10.0.0.5"), 0xFFFFFFFCu).getAllSubnetsInSameNetwork();
    EXPECT_EQ(Texts(hosts), (std::vector<std::string>{"10.0.0.4", "10.0.0.5", "10.0.0.6"}));
    EXPECT_TRUE(IpLocation(Ip("10.0.0.5"), 0xFFFFFFFFu).getAllSubnetsInSameNetwork().empty());
}

TEST(IpLocationSupernets, WalkIsOneBitShorterUntilTheAddressIsZero) {
    EXPECT_EQ(Texts(IpLocation(0u, 0xFFFFFF00u).getAllPossibleSupnets()),
              (std::vector<std::string>{"0.0.0.0 0.0.0.0"}));
    // 10.0.0.0/8: the first reduction already clears nothing, the address
    // reaches 0 at /4, and 0/0 closes the list.
    auto walk = Texts(IpLocation(Ip("10.0.0.0"), 0xFF000000u).getAllPossibleSupnets());
    EXPECT_EQ(walk, (std::vector<std::string>{"10.0.0.0 255.0.0.0", "10.0.0.0 254.0.0.0", "8.0.0.0 252.0.0.0",
                                              "8.0.0.0 248.0.0.0", "0.0.0.0 240.0.0.0", "0.0.0.0 0.0.0.0"}));
    // Host bits are cleared cumulatively from the first reduction on.
    auto host = IpLocation(Ip("192.168.1.7"), 0xFFFFFFFFu).getAllPossibleSupnets();
    ASSERT_EQ(host.size(), 33u);
    EXPECT_EQ(host[0].textFormByMaskLen(), "192.168.1.7/32");
    EXPECT_EQ(host[1].textFormByMaskLen(), "192.168.1.6/31");
    EXPECT_EQ(host[8].textFormByMaskLen(), "192.168.1.0/24");
    EXPECT_EQ(host[31].textFormByMaskLen(), "128.0.0.0/1");
    EXPECT_EQ(host[32].textFormByMaskLen(), "0.0.0.0/0");
    // A location with mask 0 and a non-zero address: itself, then 0/0.
    EXPECT_EQ(IpLocation(Ip("10.0.0.1"), 0u).getAllPossibleSupnets().size(), 2u);
    // A mask with holes keeps its holes while shortening.
    auto holes = IpLocation(Ip("10.255.0.0"), 0xFF00FF00u).getAllPossibleSupnets();
    EXPECT_EQ(holes[1].subnetMask().bitForm(), 0xFF00FE00u);
}

TEST(IpWildcardMatch, DontCareBits) {
    IpWildcard w(IpAddress(Ip("10.1.1.0")), std::string("0.0.0.255"));
    EXPECT_TRUE(w.matchIP(IpAddress(Ip("10.1.1.77"))));
    EXPECT_FALSE(w.matchIP(IpAddress(Ip("10.1.2.77"))));
    EXPECT_EQ(w.genIPString(), "10.1.1.0/24");
    IpWildcard exact(IpAddress(Ip("10.1.1.1")), 0u);
    EXPECT_TRUE(exact.matchIP(IpAddress(Ip("10.1.1.1"))));
    EXPECT_FALSE(exact.matchIP(IpAddress(Ip("10.1.1.0"))));
    EXPECT_EQ(exact.genIPString(), "10.1.1.1");
    IpWildcard odd(IpAddress(Ip("10.0.0.1")), 0x00FF0000u);  // non-contiguous
    EXPECT_TRUE(odd.matchIP(IpAddress(Ip("10.77.0.1"))));
    EXPECT_FALSE(odd.matchIP(IpAddress(Ip("10.77.0.2"))));
}

TEST(IpNetMasksIter, LongestFirstThenZeroEndsAndRearms) {
    IpNetMasks m;
    m.add(0xFFFFFF00u);
    m.add(0xFF000000u);
    m.add(0u);
    m.add(0xFFFFFF00u);
    EXPECT_TRUE(m.zeroMask());
    EXPECT_EQ(m.iter(), 0xFFFFFF00u);
    IpNetMasks copy = m;  // takes the iteration state along
    EXPECT_EQ(m.iter(), 0xFF000000u);
    EXPECT_EQ(m.iter(), 0u);
    EXPECT_EQ(m.iter(), 0xFFFFFF00u);  // rearmed
    EXPECT_EQ(copy.iter(), 0xFF000000u);
    copy.resetIter();
    EXPECT_EQ(copy.iter(), 0xFFFFFF00u);

    IpNetMasks all;
    for (int len = 1; len <= 32; ++len) all.add(IpAddress::getBitMaskByLength(len));
    EXPECT_FALSE(all.zeroMask());
    for (int len = 32; len >= 1; --len) EXPECT_EQ(all.iter(), IpAddress::getBitMaskByLength(len));
    EXPECT_EQ(all.iter(), 0u);
}
