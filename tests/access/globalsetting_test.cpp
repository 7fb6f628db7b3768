// Global settings: prompt sets through their "||" text, defaults, the two
// loaders agreeing, and the live settings' unsaved topology flag.
#include <gtest/gtest.h>

#include <rapidjson/document.h>

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

void ExpectCliDoc(const GlobalCliSetting& s) {
  EXPECT_EQ(s.userPrompts, (Set{"Username:", "login:"}));  // repeats collapse
  EXPECT_EQ(s.passwordPrompts, (Set{"Password:"}));       // one element, no separator
  EXPECT_EQ(s.nonprivilegePrompts, (Set{">", "$"}));
  EXPECT_TRUE(s.enableUserNamePrompts.empty());
  EXPECT_EQ(s.enablePasswordPrompts, (Set{"pw:"}));
  EXPECT_EQ(s.privilegePrompts, (Set{"#", "(enable)"}));
  EXPECT_TRUE(s.isEncryptUsername);
  EXPECT_EQ(s.exitTimeout, 4);
  EXPECT_EQ(s.cliTimeout, 60);
  EXPECT_EQ(s.checkTime, 7);
  EXPECT_EQ(s.waitTime, 1);
  EXPECT_EQ(s.forceTime, 900);
  EXPECT_FALSE(s.isSendSSH);
  EXPECT_TRUE(s.isSaveReceivedData);
  EXPECT_EQ(s.retriRTMaxNum, 250000);
}

TEST(GlobalCliSetting, Defaults) {
  const GlobalCliSetting s;
  EXPECT_EQ(s.userPrompts, (Set{"Login Name:", "User Name:", "login:", "username:", "User:"}));
  EXPECT_EQ(s.passwordPrompts, (Set{"passcode:", "password:"}));
  EXPECT_EQ(s.nonprivilegePrompts, (Set{">"}));
  EXPECT_EQ(s.enableUserNamePrompts, s.userPrompts);
  EXPECT_EQ(s.enablePasswordPrompts, s.passwordPrompts);
  EXPECT_EQ(s.privilegePrompts, (Set{"#", "(enable)"}));
  EXPECT_FALSE(s.isEncryptUsername);
  EXPECT_EQ(s.exitTimeout, 3);
  EXPECT_EQ(s.cliTimeout, 30);
  EXPECT_EQ(s.checkTime, 5);
  EXPECT_EQ(s.waitTime, 2);
  EXPECT_EQ(s.forceTime, 600);
  EXPECT_TRUE(s.isSendSSH);
  EXPECT_FALSE(s.isSaveReceivedData);
  EXPECT_EQ(s.retriRTMaxNum, 100000);
}

TEST(GlobalCliSetting, LoadsFromEitherJsonLibrary) {
  GlobalCliSetting viaKx;
  ASSERT_TRUE(viaKx.LoadFromJson(Json(kCliDoc)));
  ExpectCliDoc(viaKx);

  rapidjson::Document doc;
  doc.Parse(kCliDoc);
  ASSERT_FALSE(doc.HasParseError());
  GlobalCliSetting viaRapid;
  ASSERT_TRUE(viaRapid.LoadFromRapidJson(doc));
  ExpectCliDoc(viaRapid);
}

TEST(GlobalCliSetting, LoadReplacesThePromptsNotAddsToThem) {
  GlobalCliSetting s;
  ASSERT_TRUE(s.LoadFromJson(Json(R"({"userPrompts": "only:"})")));
  EXPECT_EQ(s.userPrompts, (Set{"only:"}));
  EXPECT_TRUE(s.passwordPrompts.empty());  // missing reads as empty
  EXPECT_EQ(s.cliTimeout, 0);              // and numbers as 0
  s.ClearAllPrompts();
  EXPECT_TRUE(s.userPrompts.empty() && s.privilegePrompts.empty());
}

TEST(GlobalCliSetting, SaveAndReloadKeepsTheSets) {
  GlobalCliSetting s;
  ASSERT_TRUE(s.LoadFromJson(Json(kCliDoc)));
  kxJson::Value saved;
  ASSERT_TRUE(s.SaveToJson(saved));
  // Sets are written in byte order, not the order they came in.
  EXPECT_EQ(saved["userPrompts"].asString(), "Username:||login:");
  EXPECT_EQ(saved["privilegePrompts"].asString(), "#||(enable)");
  EXPECT_EQ(saved.getMemberNames().front(), "userPrompts");
  EXPECT_EQ(saved.getMemberNames().back(), "retriRTMaxNum");

  GlobalCliSetting back;
  kxJson::Value reparsed;
  kxJson::Reader reader;
  ASSERT_TRUE(reader.parse(saved.toString(), reparsed));
  ASSERT_TRUE(back.LoadFromJson(reparsed));
  ExpectCliDoc(back);
  // An empty prompt in a set travels too.
  s.userPrompts = {"", "x"};
  ASSERT_TRUE(s.SaveToJson(saved));
  ASSERT_TRUE(back.LoadFromJson(saved));
  EXPECT_EQ(back.userPrompts, (Set{"", "x"}));
}

TEST(GlobalCliSetting, RapidJsonMembersOfOddTypesDoNotAbort) {
  rapidjson::Document doc;
  doc.Parse(R"({"userPrompts": 5, "cliTimeout": "45", "isSendSSH": "true", "exitTimeout": [1],
                "forceTime": 1e12, "checkTime": null})");
  ASSERT_FALSE(doc.HasParseError());
  GlobalCliSetting s;
  ASSERT_TRUE(s.LoadFromRapidJson(doc));
  EXPECT_EQ(s.userPrompts, (Set{"5"}));
  EXPECT_EQ(s.cliTimeout, 45);
  EXPECT_TRUE(s.isSendSSH);
  EXPECT_EQ(s.exitTimeout, 0);
  EXPECT_EQ(s.forceTime, 2147483647);
  EXPECT_EQ(s.checkTime, 0);

  rapidjson::Document notObject;
  notObject.Parse("[1, 2]");
  ASSERT_TRUE(s.LoadFromRapidJson(notObject));
  EXPECT_TRUE(s.userPrompts.empty());
}

TEST(GlobalLiveSetting, TopologyFlagDefaultsToTrueAndIsNotSaved) {
  GlobalLiveSetting s;
  s.buildL3TopoAfterDiscovery = false;
  ASSERT_TRUE(s.LoadFromJson(Json(R"({"domainOption": 2, "domainName": "corp", "pollingOrder": 1,
      "accessOrder": 3, "intfOrder": "eth", "snmpIfPingFailed": true, "telnetIfPingFailed": true,
      "updateDeviceSetting": true, "guessDeviceType": true})")));
  EXPECT_TRUE(s.buildL3TopoAfterDiscovery);  // absent: true, whatever it held
  EXPECT_EQ(s.domainOption, 2);
  EXPECT_EQ(s.domainName, "corp");
  EXPECT_EQ(s.pollingOrder, 1);
  EXPECT_EQ(s.accessOrder, 3);
  EXPECT_EQ(s.intfOrder, "eth");
  EXPECT_TRUE(s.snmpIfPingFailed && s.telnetIfPingFailed && s.updateDeviceSetting && s.guessDeviceType);

  ASSERT_TRUE(s.LoadFromJson(Json(R"({"buildL3TopoAfterDiscovery": false})")));
  EXPECT_FALSE(s.buildL3TopoAfterDiscovery);
  ASSERT_TRUE(s.LoadFromJson(Json(R"({"buildL3TopoAfterDiscovery": null})")));
  EXPECT_FALSE(s.buildL3TopoAfterDiscovery);  // present, even if null

  GlobalLiveSetting a;
  a.domainName = "x";
  a.guessDeviceType = true;
  a.buildL3TopoAfterDiscovery = false;
  kxJson::Value saved;
  ASSERT_TRUE(a.SaveToJson(saved));
  EXPECT_FALSE(saved.isMember("buildL3TopoAfterDiscovery"));
  EXPECT_EQ(saved.size(), 9u);
  GlobalLiveSetting b;
  ASSERT_TRUE(b.LoadFromJson(saved));
  EXPECT_EQ(b.domainName, "x");
  EXPECT_TRUE(b.guessDeviceType);
  EXPECT_TRUE(b.buildL3TopoAfterDiscovery);
}

TEST(GlobalPingAndSnmp, DefaultsAndLoading) {
  GlobalPingSetting ping;
  EXPECT_EQ(ping.pingTimeout, 2);
  EXPECT_EQ(ping.pingTryCount, 2);
  ASSERT_TRUE(ping.LoadFromJson(Json(R"({"pingTimeout": 5, "pingTryCount": 1})")));
  EXPECT_EQ(ping.pingTimeout, 5);
  EXPECT_EQ(ping.pingTryCount, 1);

  GlobalSnmpSetting snmp;
  EXPECT_EQ(snmp.snmpPort, 161);
  EXPECT_EQ(snmp.snmpAccessibleOid, "1.3.6.1.2.1.1.3.0");
  EXPECT_FALSE(snmp.isEncryptUsername);
  EXPECT_EQ(snmp.snmpTimeout, 2);
  ASSERT_TRUE(snmp.LoadFromJson(Json(R"({"snmpPort": 1161, "snmpAccessibleOid": "1.3.6.1",
                                         "isEncryptUsername": true, "snmpTimeout": 9})")));
  const GlobalSnmpSetting copy = snmp;
  EXPECT_EQ(copy.snmpPort, 1161);
  EXPECT_EQ(copy.snmpAccessibleOid, "1.3.6.1");
  EXPECT_TRUE(copy.isEncryptUsername);
  EXPECT_EQ(copy.snmpTimeout, 9);
}

TEST(GlobalSetting, SwitchesAreProcessWide) {
  GlobalSetting::gCheckAcl_ = true;
  GlobalSetting::gUseOrt_ = true;
  GlobalSetting::maxRoutingPath_ = 8;
  EXPECT_TRUE(GlobalSetting::gCheckAcl_);
  EXPECT_TRUE(GlobalSetting::gUseOrt_);
  EXPECT_EQ(GlobalSetting::maxRoutingPath_, 8);
}

}  // namespace
