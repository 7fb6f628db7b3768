// MAC, interface-name and address checks, GUID texts, "{0}" templates and
// time texts: normal forms round-trip and junk is refused.
#include <gtest/gtest.h>

#include <set>
#include <thread>

#include "netloom/util/guid.h"
#include "netloom/util/misc.h"
#include "netloom/util/strformat.h"
#include "netloom/util/textcheck.h"

namespace {

TEST(MacText, NormalForms) {
  for (const char* text : {"0011.22AA.bbcc", "00:11:22:aa:bb:cc", "00-11-22-AA-BB-CC", "001122aabbcc",
                           "001122-aabbcc", "0x001122aabbcc"}) {
    EXPECT_EQ(NormalizeToMacAddress(text, 4), "0011.22aa.bbcc") << text;
    EXPECT_EQ(NormalizeToMacAddress(text, 2), "00:11:22:aa:bb:cc") << text;
    EXPECT_EQ(NormalizeToMacAddress(text, 0), "001122aabbcc") << text;
    EXPECT_TRUE(IsValidMacAddress(text, true)) << text;
    EXPECT_TRUE(StrIsMac(text)) << text;
    EXPECT_EQ(CountHexDigit(NormalizeToMacAddress(text, 4)), 12);
  }
  EXPECT_EQ(NormalizeToMacAddress("0011.2233", 4), "0011.2233");  // too few digits: unchanged
  EXPECT_EQ(Str2LongLong("00:11:22:aa:bb:cc"), 0x001122aabbccLL);
  EXPECT_EQ(Str2LongLong("zz"), 0);
  EXPECT_EQ(Str2LongLong("11112222333344445"), 0);  // 17 digits
}

TEST(MacText, Refusals) {
  for (const char* text : {"", "0011.2233.44", "0011.2233.4455.66", "00:11:22:33:44:5g", "00:11-22:33:44:55",
                           "0:011:22:33:44:55", "00::11:22:33:44:55", "0011.2233.4455 junk"}) {
    EXPECT_FALSE(IsValidMacAddress(text, false)) << text;
    EXPECT_FALSE(StrIsMac(text)) << text;
  }
  EXPECT_FALSE(StrIsMac(nullptr));
  EXPECT_TRUE(IsValidMacAddress("0000.0000.0000", false));
  EXPECT_FALSE(IsValidMacAddress("0000.0000.0000", true));
  EXPECT_FALSE(IsValidMacAddress("FFFF.FFFF.FFFF", true));
}

TEST(InterfaceName, Validity) {
  EXPECT_TRUE(IsValidInterfaceName("Port-channel 1"));
  EXPECT_TRUE(IsValidInterfaceName(std::string(256, 'a')));
  for (const std::string& bad : std::vector<std::string>{"", " Gi0/1", "Gi0/1\n", "Gi\x01" "0", "--/--", std::string(257, 'a')})
    EXPECT_FALSE(IsValidInterfaceName(bad)) << bad;
}

TEST(AddressText, IpAndMask) {
  EXPECT_TRUE(StrIsIP("10.0.0.255"));
  for (const char* bad : {"", "10.0.0", "10.0.0.256", "10.0.0.1.", "1..2.3", "a.b.c.d", "10.0.0.1 ", "0010.0.0.1"})
    EXPECT_FALSE(StrIsIP(bad)) << bad;
  EXPECT_FALSE(StrIsIP(nullptr));
  for (const char* good : {"10.1.0.0/0", "10.1.0.0/255.255.0.0", "10.1.0.0 255.255.255.252"})
    EXPECT_TRUE(StrIsIPMask(good)) << good;
  for (const char* bad : {"10.1.0.0", "10.1.0.0/33", "10.1.0.0/", "10.1.0.0/1x", "10.1.0.0 255.0.255.0",
                          "10.1.0.0 16", "10.1.0.0/123"})
    EXPECT_FALSE(StrIsIPMask(bad)) << bad;
  EXPECT_FALSE(StrIsIPMask(nullptr));
}

TEST(Guid, TextForms) {
  const TW128Guid g = TW128Guid::NewGuid();
  EXPECT_NE(g, TW128Guid::NewGuid());
  EXPECT_EQ(TW128Guid::FromString(g.ToString()), g);
  EXPECT_EQ(TW128Guid::FromString("{" + g.ToString() + "}"), g);
  TW128Guid h;

  const std::string text = "f9915809-00ee-40ea-b90d-7eb7ed9a370b";
  EXPECT_EQ(TW128Guid::FromString("F9915809-00EE-40EA-B90D-7EB7ED9A370B").ToString(), text);
  EXPECT_TRUE(h.ParserXHexStr("F991580900EE40EAB90D7EB7ED9A370B", false));
  EXPECT_EQ(h.ToString(), text);
  for (const char* bad : {"", "f9915809-00ee-40ea-b90d-7eb7ed9a370", "f9915809+00ee-40ea-b90d-7eb7ed9a370b",
                          "g9915809-00ee-40ea-b90d-7eb7ed9a370b", "{f9915809-00ee-40ea-b90d-7eb7ed9a370b"}) {
    TW128Guid x = TW128Guid::NewGuid();
    EXPECT_FALSE(x.ParserStr(bad)) << bad;
    EXPECT_TRUE(x.IsNull()) << bad;
  }
  EXPECT_FALSE(h.ParserXHexStr(std::string("F991580900EE40EA\0" "B90D7EB7ED9A370B", 33), true));
  EXPECT_TRUE(h.ParserXHexStr(text, true));
  EXPECT_FALSE(h.ParserXHexStr(text, false));
}

TEST(StrFormatTemplate, Substitution) {
  EXPECT_EQ((StrFormat("{1}{0}{1}") << "a" << "b").str(), "bab");
  EXPECT_EQ((StrFormat("{0} {2} {x} {") << 1).str(), "1 {2} {x} {");
  EXPECT_EQ((StrFormat("{0}") << "{0}").str(), "{0}");  // no second expansion
  EXPECT_EQ((StrFormat("{0}") << static_cast<const char*>(nullptr)).str(), "");
  EXPECT_EQ((StrFormat("{99999999999}") << "a").str(), "{99999999999}");
}

TEST(TimeText, RoundTripAndRefusals) {
  const time_t t = TimerHelper::String2STLTime("2024-02-29 13:45:07");
  ASSERT_NE(t, 0);
  EXPECT_EQ(TimerHelper::TimeToString(t), "2024-02-29 13:45:07");
  for (const char* bad : {"", "2024-13-01", "2024-01-01 24:00:00", "2024-01-01 10:00", "2024-01-01x", "junk"}) {
    EXPECT_FALSE(TimerHelper::IsStringValidTime(bad)) << bad;
    EXPECT_EQ(TimerHelper::String2STLTime(bad), 0) << bad;
  }
}

TEST(LastError, PerThread) {
  TWLastError::Instance()->SetTWError("main", 5);
  std::string seen;
  std::thread([&] { seen = TWLastError::Instance()->GetTWError(); }).join();
  EXPECT_EQ(seen, "");
  EXPECT_EQ(TWLastError::Instance()->GetTWErrorCode(), 5);
}

}  // namespace
