// Global settings: prompt sets through their "||" text, the two
// loaders agreeing, and the live settings' unsaved topology flag.
#include <gtest/gtest.h>

#include <rapidjson/document.h>

#include <string>
#include <tuple>
#include <utility>

#include "netloom/globalsetting.h"
#include "netloom/util/kxjson.h"

namespace {

using Set = GlobalCliSetting::PromptSet;

kxJson::Value Json(const std::string& text) {
  kxJson::Value v;
  kxJson::Reader reader;
  EXPECT_TRUE(reader.parse(text, v)) << text;
  return v;
}

const char* kCliDoc = R"({
  "userPrompts": "login:||Username:||login:", "passwordPrompts": "Password:",
  "nonprivilegePrompts": ">||$", "enableUserNamePrompts": "", "enablePasswordPrompts": "pw:",
  "privilegePrompts": "#||(enable)||#", "isEncryptUsername": true, "exitTimeout": 4,
  "cliTimeout": 60, "checkTime": 7, "waitTime": 1, "forceTime": 900, "isSendSSH": false,
  "isSaveReceivedData": true, "retriRTMaxNum": 250000})";

// The switches and numbers, in the document's order.
std::tuple<bool, int, int, int, int, int, bool, bool, int> Numbers(const GlobalCliSetting& s) {
  return {s.isEncryptUsername, s.exitTimeout, s.cliTimeout, s.checkTime, s.waitTime,
          s.forceTime,         s.isSendSSH,   s.isSaveReceivedData, s.retriRTMaxNum};
}

void ExpectCliDoc(const GlobalCliSetting& s) {
  EXPECT_EQ(s.userPrompts, (Set{"Username:", "login:"}));  // repeats collapse
  EXPECT_EQ(s.passwordPrompts, (Set{"Password:"}));       // one element, no separator
  EXPECT_EQ(s.nonprivilegePrompts, (Set{">", "$"}));
  EXPECT_TRUE(s.enableUserNamePrompts.empty());
  EXPECT_EQ(s.enablePasswordPrompts, (Set{"pw:"}));
  EXPECT_EQ(s.privilegePrompts, (Set{"#", "(enable)"}));
  EXPECT_EQ(Numbers(s), std::make_tuple(true, 4, 60, 7, 1, 900, false, true, 250000));
}

TEST(GlobalCliSetting, BothLoadersAndTheSavedForm) {
  rapidjson::Document doc;
  doc.Parse(kCliDoc);
  ASSERT_FALSE(doc.HasParseError());
  GlobalCliSetting viaRapid, s;
  ASSERT_TRUE(viaRapid.LoadFromRapidJson(doc));
  ExpectCliDoc(viaRapid);
  ASSERT_TRUE(s.LoadFromJson(Json(kCliDoc)));
  ExpectCliDoc(s);

  kxJson::Value saved;
  ASSERT_TRUE(s.SaveToJson(saved));
  // Sets are written in byte order, not the order they came in.
  EXPECT_EQ(saved["userPrompts"].asString(), "Username:||login:");
  EXPECT_EQ(saved["privilegePrompts"].asString(), "#||(enable)");
  EXPECT_EQ(saved.getMemberNames().front(), "userPrompts");
  EXPECT_EQ(saved.getMemberNames().back(), "retriRTMaxNum");
  GlobalCliSetting back;
  ASSERT_TRUE(back.LoadFromJson(Json(saved.toString())));
  ExpectCliDoc(back);
  // An empty prompt in a set travels too.
  s.userPrompts = {"", "x"};
  ASSERT_TRUE(s.SaveToJson(saved));
  ASSERT_TRUE(back.LoadFromJson(saved));
  EXPECT_EQ(back.userPrompts, (Set{"", "x"}));

  // A load replaces the prompts rather than adding to them; missing members
  // read as empty and 0.
  ASSERT_TRUE(s.LoadFromJson(Json(R"({"userPrompts": "only:"})")));
  EXPECT_EQ(s.userPrompts, (Set{"only:"}));
  EXPECT_TRUE(s.passwordPrompts.empty());
  EXPECT_EQ(s.cliTimeout, 0);
  s.ClearAllPrompts();
  EXPECT_TRUE(s.userPrompts.empty() && s.privilegePrompts.empty());
}

TEST(GlobalLiveSetting, TopologyFlagDefaultsToTrueAndIsNotSaved) {
  GlobalLiveSetting s;
  s.buildL3TopoAfterDiscovery = false;
  ASSERT_TRUE(s.LoadFromJson(Json(R"({"domainOption": 2, "domainName": "corp", "pollingOrder": 1,
      "accessOrder": 3, "intfOrder": "eth", "snmpIfPingFailed": true, "telnetIfPingFailed": true,
      "updateDeviceSetting": true, "guessDeviceType": true})")));
  EXPECT_TRUE(s.buildL3TopoAfterDiscovery);  // absent: true, whatever it held
  EXPECT_EQ(std::make_tuple(s.domainOption, s.domainName, s.pollingOrder, s.accessOrder, s.intfOrder),
            std::make_tuple(2, std::string("corp"), 1, 3, std::string("eth")));
  EXPECT_TRUE(s.snmpIfPingFailed && s.telnetIfPingFailed && s.updateDeviceSetting && s.guessDeviceType);

  // Never saved, even when false; read back, it is true again.
  s.buildL3TopoAfterDiscovery = false;
  kxJson::Value saved;
  ASSERT_TRUE(s.SaveToJson(saved));
  EXPECT_FALSE(saved.isMember("buildL3TopoAfterDiscovery"));
  EXPECT_EQ(saved.size(), 9u);
  GlobalLiveSetting b;
  ASSERT_TRUE(b.LoadFromJson(saved));
  EXPECT_EQ(b.domainName, "corp");
  EXPECT_TRUE(b.guessDeviceType && b.buildL3TopoAfterDiscovery);

  ASSERT_TRUE(b.LoadFromJson(Json(R"({"buildL3TopoAfterDiscovery": false})")));
  EXPECT_FALSE(b.buildL3TopoAfterDiscovery);
  ASSERT_TRUE(b.LoadFromJson(Json(R"({"buildL3TopoAfterDiscovery": null})")));
  EXPECT_FALSE(b.buildL3TopoAfterDiscovery);  // present, even if null
}

}  // namespace
