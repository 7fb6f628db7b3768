#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "netloom/macaddress.h"

namespace {

constexpr long long kSample = 0x001a2b3c4d5eLL;

TEST(MacAddressText, EveryNotationGivesTheSameValue) {
  const char* notations[] = {
      "00:1A:2b:3c:4d:5e", "001a.2b3c.4d5e", "0x001A2B3C4D5E", "0X001a2b3c4d5e",
      "00-1a-2b-3c-4d-5e", "00 1a 2b 3c 4d 5e", "001A2B3C4D5E", " 001a:2b3c:4d5e \t",
  };
  for (const char* text : notations) {
    SCOPED_TRACE(text);
    EXPECT_TRUE(MacAddress::IsMacAddress(text));
    EXPECT_EQ(MacAddress(std::string(text)).LonglongForm(), kSample);
  }
}

TEST(MacAddressText, LettersOutsideHexVanishButHexLettersStay) {
  // "mac" loses m; its "a" and "c" stay and count as digits.
  EXPECT_EQ(MacAddress(std::string("mac 1a2b3c4d5e")).LonglongForm(), 0xac1a2b3c4d5eLL);
  EXPECT_TRUE(MacAddress::IsMacAddress("zz001a2b3c4d5ezz"));
  EXPECT_FALSE(MacAddress::IsMacAddress("deadbeef"));
}

TEST(MacAddressText, LengthRules) {
  // 14 digits: the constructor keeps the first 12, the test refuses.
  EXPECT_FALSE(MacAddress::IsMacAddress("001a2b3c4d5e6f"));
  EXPECT_EQ(MacAddress(std::string("001a2b3c4d5e6f")).LonglongForm(), kSample);
  // 11 digits read as nothing.
  EXPECT_FALSE(MacAddress::IsMacAddress("001a2b3c4d5"));
  EXPECT_EQ(MacAddress(std::string("001a2b3c4d5")).LonglongForm(), 0);
  EXPECT_FALSE(MacAddress(std::string("")).isValid());
  EXPECT_FALSE(MacAddress(std::string("not an address")).isValid());
}

TEST(MacAddressText, HexPrefixRemovedBeforeFiltering) {
  // Without prefix removal the "0" of "0x" would be a 13th digit.
  EXPECT_TRUE(MacAddress::IsMacAddress("0x1a2b3c4d5e6f"));
  EXPECT_EQ(MacAddress(std::string("0x1a2b3c4d5e6f")).LonglongForm(), 0x1a2b3c4d5e6fLL);
  // Each pair of hex words has its own prefix.
  EXPECT_EQ(MacAddress(std::string("0x001a 0x2b3c 0x4d5e")).LonglongForm(), kSample);
}

TEST(MacAddressTextForm, Groupings) {
  const MacAddress mac(kSample);
  EXPECT_EQ(mac.TextForm(4), "001a.2b3c.4d5e");
  EXPECT_EQ(mac.TextForm(2), "00.1a.2b.3c.4d.5e");
  EXPECT_EQ(mac.TextForm(3), "001.a2b.3c4.d5e");
  EXPECT_EQ(mac.TextForm(6), "001a2b.3c4d5e");
  EXPECT_EQ(mac.TextForm(12), "001a2b3c4d5e");
  EXPECT_EQ(mac.TextForm(20), "001a2b3c4d5e");
  EXPECT_EQ(MacAddress(0xFFFFFFFFFFFFLL).TextForm(4), "ffff.ffff.ffff");
}

TEST(MacAddressTextForm, NullAndOddGroups) {
  EXPECT_EQ(MacAddress().TextForm(4), "");
  EXPECT_EQ(MacAddress(0LL).TextForm(2), "");
  // No grouping is possible with a non-positive group; must not hang.
  EXPECT_EQ(MacAddress(kSample).TextForm(0), "001a2b3c4d5e");
  EXPECT_EQ(MacAddress(kSample).TextForm(-3), "001a2b3c4d5e");
}

TEST(MacAddressTextForm, RoundTripsThroughTheTextConstructor) {
  for (long long v : {1LL, 0xabcLL, kSample, 0x800000000000LL, 0xFFFFFFFFFFFFLL}) {
    for (int group : {2, 4, 12}) {
      EXPECT_EQ(MacAddress(MacAddress(v).TextForm(group)).LonglongForm(), v);
    }
  }
}

TEST(MacAddressCompare, SignedOrderOfTheNumber) {
  const MacAddress a(1LL), b(2LL), neg(-1LL), same(1LL);
  EXPECT_TRUE(a == same);
  EXPECT_EQ(a != b, 1);
  EXPECT_EQ(a != same, 0);
  EXPECT_TRUE(a < b);
  EXPECT_TRUE(b > a);
  EXPECT_TRUE(neg < a);
  EXPECT_FALSE(a < a);
  MacAddress c;
  c = b;
  EXPECT_TRUE(c == b);
}

std::vector<std::string> Find(const std::vector<std::string>& words, bool normalize) {
  std::vector<std::string> found;
  MacAddress::GetMacAddress(words, found, normalize);
  return found;
}

TEST(GetMacAddress, JoinsSplitWordsAtEachStep) {
  using V = std::vector<std::string>;
  // One word.
  EXPECT_EQ(Find(V{"001a.2b3c.4d5e"}, false), V{"001a.2b3c.4d5e"});
  // Two words.
  EXPECT_EQ(Find(V{"001a2b", "3c4d5e"}, false), V{"001a2b 3c4d5e"});
  // Three words.
  EXPECT_EQ(Find(V{"001a", "2b3c", "4d5e"}, false), V{"001a 2b3c 4d5e"});
  // Six words.
  EXPECT_EQ(Find(V{"00", "1a", "2b", "3c", "4d", "5e"}, false), V{"00 1a 2b 3c 4d 5e"});
  EXPECT_EQ(Find(V{"00", "1a", "2b", "3c", "4d", "5e"}, true), V{"001a.2b3c.4d5e"});
}

TEST(GetMacAddress, SkipsNonAddressesOneByOne) {
  using V = std::vector<std::string>;
  const V words = {"Vlan", "10", "dynamic", "001a.2b3c.4d5e", "port", "Gi0/1",
                   "00:11:22:33:44:55", "static"};
  EXPECT_EQ(Find(words, true), (V{"001a.2b3c.4d5e", "0011.2233.4455"}));
  EXPECT_EQ(Find(words, false), (V{"001a.2b3c.4d5e", "00:11:22:33:44:55"}));
}

TEST(GetMacAddress, WordWithoutHexDigitsJoinsTheAddressAfterIt) {
  using V = std::vector<std::string>;
  // "port" cleans to nothing, so the two-word step already passes with it.
  EXPECT_EQ(Find(V{"port", "001a2b3c4d5e"}, false), V{"port 001a2b3c4d5e"});
  EXPECT_EQ(Find(V{"port", "001a2b3c4d5e"}, true), V{"001a.2b3c.4d5e"});
}

TEST(GetMacAddress, ContinuesAfterTheWordsUsed) {
  using V = std::vector<std::string>;
  // After a three-word address the walk goes on at the fourth word.
  EXPECT_EQ(Find(V{"001a", "2b3c", "4d5e", "0011.2233.4455"}, false),
            (V{"001a 2b3c 4d5e", "0011.2233.4455"}));
  // A word that joins nothing is passed over, and the next one is a new start:
  // "1" with the following words is 13 digits, "001a" onwards makes 12.
  EXPECT_EQ(Find(V{"1", "001a", "2b3c", "4d5e"}, false), V{"001a 2b3c 4d5e"});
}

TEST(GetMacAddress, MissingWordsAtTheEndCountAsEmpty) {
  using V = std::vector<std::string>;
  // Five words: the six-word step sees an empty sixth word and 12 digits.
  EXPECT_EQ(Find(V{"00", "1a", "2b", "3c", "4d5e"}, false), V{"00 1a 2b 3c 4d5e "});
  EXPECT_TRUE(Find(V{}, true).empty());
  EXPECT_TRUE(Find(V{"", "", ""}, true).empty());
}

TEST(GetMacAddress, AppendsWithoutClearing) {
  std::vector<std::string> found = {"keep"};
  MacAddress::GetMacAddress({"001a2b3c4d5e"}, found, true);
  EXPECT_EQ(found, (std::vector<std::string>{"keep", "001a.2b3c.4d5e"}));
}

}  // namespace
