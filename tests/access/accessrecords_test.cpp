// Access records: the jump box's two ways of being built, the equality rules
// of each record, what clear keeps, and SNMP content equality.
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>

#include "netloom/accessrecords.h"
#include "netloom/util/kxjson.h"
#include "netloom/util/twfilesystem.h"

namespace {

kxJson::Value Json(const std::string& text) {
  kxJson::Value v;
  kxJson::Reader reader;
  EXPECT_TRUE(reader.parse(text, v)) << text;
  return v;
}

using Text = std::string QLIX_TelnetProxy::*;

// The prompts and quit command as one line, to compare defaults at a glance.
std::string Prompts(const QLIX_TelnetProxy& p) {
  return p.loginPrompt + "|" + p.passwordPrompt + "|" + p.commandPrompt + "|" + p.yesNoPrompt + "|" + p.quitCmd;
}

TEST(TelnetProxy, DefaultsAndOddJson) {
  const QLIX_TelnetProxy built;
  EXPECT_EQ(Prompts(built), "Username:|Password:|>|(yes/no)?|exit");
  EXPECT_EQ(built.mode, 0);
  EXPECT_TRUE(built.IsProxyTelnet());
  EXPECT_FALSE(built.IsValid());
  // From JSON the command prompt has no default.
  EXPECT_EQ(Prompts(QLIX_TelnetProxy(Json("{}"))), "Username:|Password:||(yes/no)?|exit");

  // A null member is the same as a missing one; a present empty string is kept.
  const QLIX_TelnetProxy nulls(Json("{\"loginPrompt\": null, \"quitCmd\": \"\", \"port\": null}"));
  EXPECT_EQ(Prompts(nulls), "Username:|Password:||(yes/no)?|");
  EXPECT_EQ(nulls.port, 0);

  // Members of the wrong type convert where they can, and read as missing otherwise.
  const QLIX_TelnetProxy p(Json(R"({"port": "22", "mode": 1.9, "ipAddr": 10, "alias": [1], "type": {}})"));
  EXPECT_EQ(std::make_tuple(p.port, p.mode, p.ipAddr, p.alias, p.type),
            std::make_tuple(22, 1, std::string("10"), std::string(), 0));
  // Not an object at all: every member reads as missing.
  EXPECT_EQ(Prompts(QLIX_TelnetProxy(Json("[1,2]"))), "Username:|Password:||(yes/no)?|exit");
}

TEST(TelnetProxy, ReadsEveryKeyAndInitResetsItsOwn) {
  const QLIX_TelnetProxy p(Json(R"({
    "ID": "p1", "alias": "jump", "type": 4, "ipAddr": "10.0.0.1", "port": 2222, "mode": 2,
    "userName": "u", "password": "pw", "loginPrompt": "login:", "passwordPrompt": "pass:",
    "commandPrompt": "$", "yesNoPrompt": "[y/n]", "refCount": 3, "enableCmd": "su",
    "enablePasswordPrompt": "Password for su:", "enablePassword": "root", "enablePrompt": "#",
    "userId": "owner", "quitCmd": "logout", "SSHKeyId": "k9", "telnetCommand": "telnet %s",
    "SSHCommand": "ssh %s"})"));
  using P = QLIX_TelnetProxy;
  const std::pair<Text, const char*> texts[] = {
      {&P::id, "p1"}, {&P::alias, "jump"}, {&P::ipAddr, "10.0.0.1"}, {&P::userName, "u"}, {&P::password, "pw"},
      {&P::loginPrompt, "login:"}, {&P::passwordPrompt, "pass:"}, {&P::commandPrompt, "$"},
      {&P::yesNoPrompt, "[y/n]"}, {&P::enableCmd, "su"}, {&P::enablePasswordPrompt, "Password for su:"},
      {&P::enablePassword, "root"}, {&P::enablePrompt, "#"}, {&P::userId, "owner"}, {&P::quitCmd, "logout"},
      {&P::SSHKeyId, "k9"}, {&P::telnetCommand, "telnet %s"}, {&P::SSHCommand, "ssh %s"}};
  for (const auto& [field, want] : texts) EXPECT_EQ(p.*field, want) << want;
  EXPECT_EQ(p.type, 4);
  EXPECT_EQ(p.port, 2222);
  EXPECT_EQ(p.refCount, 3);
  EXPECT_TRUE(p.IsProxySSHv2() && p.IsProxySSH());
  EXPECT_FALSE(p.IsProxySSHv1());
  EXPECT_TRUE(p.IsValid());

  // Init resets only its own fields.
  QLIX_TelnetProxy q = p;
  q.Init();
  EXPECT_EQ(q.id + q.userId + q.SSHKeyId, "");
  EXPECT_EQ(q.port, 0);
  EXPECT_EQ(q.commandPrompt, ">");
  EXPECT_EQ(q.ipAddr + "|" + q.userName + "|" + q.enablePassword, "10.0.0.1|u|root");
}

TEST(AccessRecords, ClearKeepsWhatItShould) {
  QLIX_TelnetInfo info{"id", 5, "alias", "user", "pw", 2, 1, "key"};
  info.clear();
  EXPECT_EQ(info, (QLIX_TelnetInfo{"", 0, "", "", "", 0, 0, "key"}));

  QLIX_SSHPrivateKey key{"id", "alias", "name", "content", "phrase", "file", 3, "note"};
  key.clear();
  EXPECT_EQ(key.id + key.alias, "idalias");
  EXPECT_EQ(key.keyName + key.keyContent + key.passwordPhrase + key.localKeyFile + key.keyNote, "");
  EXPECT_EQ(key.refCount, 0);

  QLIX_SnmpRoInfo ro{"id", "alias", "public", 161, 2, 3, {3, 1, 2, "u", "a", "e", "c"}};
  ro.clear();
  EXPECT_EQ(ro, QLIX_SnmpRoInfo{});

  QLIX_EnablePasswd en{"id", "alias", "user", "pw", 4};
  en.clear();
  EXPECT_EQ(en, QLIX_EnablePasswd{});
}

QLIX_SnmpRoInfo V3(int authMode, const char* user, int authPro, const char* authPw, int encPro, const char* encPw) {
  QLIX_SnmpRoInfo r;
  r.snmpVersion = 3;
  r.v3.authMode = authMode;
  r.v3.userName = user;
  r.v3.authPro = authPro;
  r.v3.authPassword = authPw;
  r.v3.encryptPro = encPro;
  r.v3.encryptPassword = encPw;
  return r;
}

TEST(SnmpRoInfo, ContentEqualityByVersionAndMode) {
  QLIX_SnmpRoInfo v2a, v2b;
  v2a.snmpVersion = v2b.snmpVersion = 2;
  v2a.roString = v2b.roString = "public";
  v2a.alias = "one";
  v2b.alias = "two";
  EXPECT_TRUE(v2a.IsContentEqual(v2b));
  EXPECT_FALSE(v2a == v2b);
  // Versions 1 and 2 share community strings.
  v2b.snmpVersion = 1;
  EXPECT_TRUE(v2a.IsContentEqual(v2b));
  // Different communities fall through to the version 3 comparison, which
  // needs equal versions.
  v2b.roString = "private";
  EXPECT_FALSE(v2a.IsContentEqual(v2b));
  v2b.snmpVersion = 2;
  v2a.v3.authMode = v2b.v3.authMode = 1;
  EXPECT_TRUE(v2a.IsContentEqual(v2b));

  // Mode 1 needs only the user; the passwords don't matter.
  EXPECT_TRUE(V3(1, "u", 1, "a", 1, "e").IsContentEqual(V3(1, "u", 2, "x", 2, "y")));
  EXPECT_FALSE(V3(1, "u", 1, "a", 1, "e").IsContentEqual(V3(1, "v", 1, "a", 1, "e")));
  // Mode 2 looks at authentication only.
  EXPECT_TRUE(V3(2, "u", 1, "a", 1, "e").IsContentEqual(V3(2, "u", 1, "a", 9, "z")));
  EXPECT_FALSE(V3(2, "u", 1, "a", 1, "e").IsContentEqual(V3(2, "u", 2, "a", 1, "e")));
  EXPECT_FALSE(V3(2, "u", 1, "a", 1, "e").IsContentEqual(V3(2, "u", 1, "b", 1, "e")));
  // Mode 3 looks at both.
  EXPECT_TRUE(V3(3, "u", 1, "a", 2, "e").IsContentEqual(V3(3, "u", 1, "a", 2, "e")));
  EXPECT_FALSE(V3(3, "u", 1, "a", 2, "e").IsContentEqual(V3(3, "u", 1, "a", 3, "e")));
  EXPECT_FALSE(V3(3, "u", 1, "a", 2, "e").IsContentEqual(V3(3, "u", 1, "a", 2, "f")));
  // Different modes, and unknown modes even against themselves, are never equal.
  EXPECT_FALSE(V3(2, "u", 1, "a", 1, "e").IsContentEqual(V3(3, "u", 1, "a", 1, "e")));
  const QLIX_SnmpRoInfo mode0 = V3(0, "u", 1, "a", 1, "e");
  EXPECT_FALSE(mode0.IsContentEqual(mode0));
  EXPECT_FALSE(V3(4, "u", 1, "a", 1, "e").IsContentEqual(V3(4, "u", 1, "a", 1, "e")));
}

}  // namespace
