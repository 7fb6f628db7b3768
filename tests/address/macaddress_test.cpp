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

TEST(MacAddressText, FilteringAndLengthRules) {
  // "mac" loses m; its "a" and "c" stay and count as digits.
  EXPECT_EQ(MacAddress(std::string("mac 1a2b3c4d5e")).LonglongForm(), 0xac1a2b3c4d5eLL);
  EXPECT_TRUE(MacAddress::IsMacAddress("zz001a2b3c4d5ezz"));
  // 14 digits: the constructor keeps the first 12, the test refuses; 11 read as nothing.
  EXPECT_FALSE(MacAddress::IsMacAddress("001a2b3c4d5e6f"));
  EXPECT_EQ(MacAddress(std::string("001a2b3c4d5e6f")).LonglongForm(), kSample);
  EXPECT_FALSE(MacAddress::IsMacAddress("001a2b3c4d5"));
  EXPECT_EQ(MacAddress(std::string("001a2b3c4d5")).LonglongForm(), 0);
  EXPECT_FALSE(MacAddress(std::string("not an address")).isValid());
  // Without prefix removal the "0" of "0x" would be a 13th digit; each word has its own prefix.
  EXPECT_EQ(MacAddress(std::string("0x1a2b3c4d5e6f")).LonglongForm(), 0x1a2b3c4d5e6fLL);
  EXPECT_EQ(MacAddress(std::string("0x001a 0x2b3c 0x4d5e")).LonglongForm(), kSample);
}

TEST(MacAddressTextForm, GroupingsAndRoundTrip) {
  const MacAddress mac(kSample);
  EXPECT_EQ(mac.TextForm(4), "001a.2b3c.4d5e");
  EXPECT_EQ(mac.TextForm(2), "00.1a.2b.3c.4d.5e");
  EXPECT_EQ(mac.TextForm(3), "001.a2b.3c4.d5e");
  EXPECT_EQ(mac.TextForm(20), "001a2b3c4d5e");
  EXPECT_EQ(MacAddress().TextForm(4), "");
  // No grouping is possible with a non-positive group; must not hang.
  EXPECT_EQ(mac.TextForm(0), "001a2b3c4d5e");
  EXPECT_EQ(mac.TextForm(-3), "001a2b3c4d5e");
  for (long long v : {1LL, 0xabcLL, kSample, 0x800000000000LL, 0xFFFFFFFFFFFFLL}) {
    for (int group : {2, 4, 12}) EXPECT_EQ(MacAddress(MacAddress(v).TextForm(group)).LonglongForm(), v);
  }
  EXPECT_TRUE(MacAddress(-1LL) < MacAddress(1LL));  // signed order of the number
}

TEST(GetMacAddress, JoinsSplitWordsAndSkipsTheRest) {
  using V = std::vector<std::string>;
  const struct {
    V words;
    bool normalize;
    V found;
  } cases[] = {
      {{"001a.2b3c.4d5e"}, false, {"001a.2b3c.4d5e"}},
      {{"001a2b", "3c4d5e"}, false, {"001a2b 3c4d5e"}},
      {{"001a", "2b3c", "4d5e"}, false, {"001a 2b3c 4d5e"}},
      {{"00", "1a", "2b", "3c", "4d", "5e"}, false, {"00 1a 2b 3c 4d 5e"}},
      {{"00", "1a", "2b", "3c", "4d", "5e"}, true, {"001a.2b3c.4d5e"}},
      {{"Vlan", "10", "dynamic", "001a.2b3c.4d5e", "port", "Gi0/1", "00:11:22:33:44:55", "static"},
       true, {"001a.2b3c.4d5e", "0011.2233.4455"}},
      {{"Vlan", "10", "00:11:22:33:44:55"}, false, {"00:11:22:33:44:55"}},
      // "port" cleans to nothing, so the two-word step already passes with it.
      {{"port", "001a2b3c4d5e"}, false, {"port 001a2b3c4d5e"}},
      {{"port", "001a2b3c4d5e"}, true, {"001a.2b3c.4d5e"}},
      // After a three-word address the walk goes on at the fourth word.
      {{"001a", "2b3c", "4d5e", "0011.2233.4455"}, false, {"001a 2b3c 4d5e", "0011.2233.4455"}},
      // "1" with the following words is 13 digits; "001a" onwards makes 12.
      {{"1", "001a", "2b3c", "4d5e"}, false, {"001a 2b3c 4d5e"}},
      // Five words: the six-word step sees an empty sixth word and 12 digits.
      {{"00", "1a", "2b", "3c", "4d5e"}, false, {"00 1a 2b 3c 4d5e "}},
      {{}, true, {}},
      {{"", "", ""}, true, {}},
  };
  for (const auto& c : cases) {
    V found = {"keep"};  // appended to, never cleared
    MacAddress::GetMacAddress(c.words, found, c.normalize);
    V expected = {"keep"};
    expected.insert(expected.end(), c.found.begin(), c.found.end());
    EXPECT_EQ(found, expected) << ::testing::PrintToString(c.words);
  }
}

}  // namespace
