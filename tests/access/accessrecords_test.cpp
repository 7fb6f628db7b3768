// Access records: the jump box's two ways of being built, the equality rules
// of each record, what clear keeps, SNMP content equality and the key folder.
#include <gtest/gtest.h>

#include <sys/stat.h>

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

TEST(TelnetProxy, DefaultsDifferBetweenInitAndJson) {
  const QLIX_TelnetProxy built;
  EXPECT_EQ(built.loginPrompt, "Username:");
  EXPECT_EQ(built.passwordPrompt, "Password:");
  EXPECT_EQ(built.commandPrompt, ">");
  EXPECT_EQ(built.yesNoPrompt, "(yes/no)?");
  EXPECT_EQ(built.quitCmd, "exit");
  EXPECT_EQ(built.mode, 0);
  EXPECT_TRUE(built.IsProxyTelnet());
  EXPECT_FALSE(built.IsValid());

  const QLIX_TelnetProxy fromEmpty(Json("{}"));
  EXPECT_EQ(fromEmpty.loginPrompt, "Username:");
  EXPECT_EQ(fromEmpty.passwordPrompt, "Password:");
  EXPECT_EQ(fromEmpty.yesNoPrompt, "(yes/no)?");
  EXPECT_EQ(fromEmpty.quitCmd, "exit");
  EXPECT_EQ(fromEmpty.commandPrompt, "");

  // A null member is the same as a missing one; a present empty string is kept.
  const QLIX_TelnetProxy nulls(Json("{\"loginPrompt\": null, \"quitCmd\": \"\", \"port\": null}"));
  EXPECT_EQ(nulls.loginPrompt, "Username:");
  EXPECT_EQ(nulls.quitCmd, "");
  EXPECT_EQ(nulls.port, 0);
}

TEST(TelnetProxy, ReadsEveryKey) {
  const QLIX_TelnetProxy p(Json(R"({
    "ID": "p1", "alias": "jump", "type": 4, "ipAddr": "10.0.0.1", "port": 2222, "mode": 2,
    "userName": "u", "password": "pw", "loginPrompt": "login:", "passwordPrompt": "pass:",
    "commandPrompt": "$", "yesNoPrompt": "[y/n]", "refCount": 3, "enableCmd": "su",
    "enablePasswordPrompt": "Password for su:", "enablePassword": "root", "enablePrompt": "#",
    "userId": "owner", "quitCmd": "logout", "SSHKeyId": "k9", "telnetCommand": "telnet %s",
    "SSHCommand": "ssh %s"})"));
  EXPECT_EQ(p.id, "p1");
  EXPECT_EQ(p.alias, "jump");
  EXPECT_EQ(p.type, 4);
  EXPECT_EQ(p.ipAddr, "10.0.0.1");
  EXPECT_EQ(p.port, 2222);
  EXPECT_TRUE(p.IsProxySSHv2());
  EXPECT_TRUE(p.IsProxySSH());
  EXPECT_FALSE(p.IsProxySSHv1());
  EXPECT_EQ(p.userName, "u");
  EXPECT_EQ(p.password, "pw");
  EXPECT_EQ(p.loginPrompt, "login:");
  EXPECT_EQ(p.passwordPrompt, "pass:");
  EXPECT_EQ(p.commandPrompt, "$");
  EXPECT_EQ(p.yesNoPrompt, "[y/n]");
  EXPECT_EQ(p.refCount, 3);
  EXPECT_EQ(p.enableCmd, "su");
  EXPECT_EQ(p.enablePasswordPrompt, "Password for su:");
  EXPECT_EQ(p.enablePassword, "root");
  EXPECT_EQ(p.enablePrompt, "#");
  EXPECT_EQ(p.userId, "owner");
  EXPECT_EQ(p.quitCmd, "logout");
  EXPECT_EQ(p.SSHKeyId, "k9");
  EXPECT_EQ(p.telnetCommand, "telnet %s");
  EXPECT_EQ(p.SSHCommand, "ssh %s");
  EXPECT_TRUE(p.IsValid());

  // Init resets only its own fields.
  QLIX_TelnetProxy q = p;
  q.Init();
  EXPECT_EQ(q.id, "");
  EXPECT_EQ(q.userId, "");
  EXPECT_EQ(q.SSHKeyId, "");
  EXPECT_EQ(q.port, 0);
  EXPECT_EQ(q.commandPrompt, ">");
  EXPECT_EQ(q.ipAddr, "10.0.0.1");
  EXPECT_EQ(q.userName, "u");
  EXPECT_EQ(q.enablePassword, "root");
}

TEST(TelnetProxy, WrongTypesConvertWithoutHarm) {
  const QLIX_TelnetProxy p(Json(R"({"port": "22", "mode": 1.9, "ipAddr": 10, "alias": [1], "type": {}})"));
  EXPECT_EQ(p.port, 22);
  EXPECT_EQ(p.mode, 1);
  EXPECT_EQ(p.ipAddr, "10");
  EXPECT_EQ(p.alias, "");
  EXPECT_EQ(p.type, 0);
  // Not an object at all: every member reads as missing.
  const QLIX_TelnetProxy fromArray(Json("[1,2]"));
  EXPECT_EQ(fromArray.quitCmd, "exit");
  EXPECT_EQ(fromArray.ipAddr, "");
}

TEST(TelnetProxy, SameBoxMeansSameAddressAndPort) {
  QLIX_TelnetProxy a, b;
  a.ipAddr = b.ipAddr = "10.1.1.1";
  a.port = b.port = 22;
  a.userName = "alice";
  b.userName = "bob";
  a.mode = 0;
  b.mode = 2;
  EXPECT_TRUE(a == b);
  b.port = 23;
  EXPECT_TRUE(a != b);
  b.port = 22;
  b.ipAddr = "10.1.1.2";
  EXPECT_FALSE(a == b);
}

TEST(TelnetProxy, MoveLeavesSourceStringsEmpty) {
  QLIX_TelnetProxy a;
  a.ipAddr = "a fairly long address string beyond any small buffer";
  a.userName = "u";
  QLIX_TelnetProxy b(std::move(a));
  EXPECT_EQ(b.ipAddr, "a fairly long address string beyond any small buffer");
  EXPECT_TRUE(a.ipAddr.empty());  // NOLINT
  EXPECT_TRUE(a.userName.empty());
  EXPECT_TRUE(a.loginPrompt.empty());
}

TEST(AccessRecords, ClearKeepsWhatItShould) {
  QLIX_TelnetInfo info{"id", 5, "alias", "user", "pw", 2, 1, "key"};
  info.clear();
  EXPECT_EQ(info, (QLIX_TelnetInfo{"", 0, "", "", "", 0, 0, "key"}));

  QLIX_SSHPrivateKey key{"id", "alias", "name", "content", "phrase", "file", 3, "note"};
  key.clear();
  EXPECT_EQ(key.id, "id");
  EXPECT_EQ(key.alias, "alias");
  EXPECT_EQ(key.keyName + key.keyContent + key.passwordPhrase + key.localKeyFile + key.keyNote, "");
  EXPECT_EQ(key.refCount, 0);

  QLIX_SnmpRoInfo ro{"id", "alias", "public", 161, 2, 3, {3, 1, 2, "u", "a", "e", "c"}};
  ro.clear();
  EXPECT_EQ(ro, QLIX_SnmpRoInfo{});

  QLIX_EnablePasswd en{"id", "alias", "user", "pw", 4};
  en.clear();
  EXPECT_EQ(en, QLIX_EnablePasswd{});

  const QLIX_Appliance appliance;
  EXPECT_EQ(appliance.nsPort, 9099);
  EXPECT_EQ(appliance.refCount + appliance.maxDeviceCount + appliance.timeOut, 0);
}

TEST(AccessRecords, EqualityComparesEveryField) {
  const QLIX_TelnetInfo base{"id", 1, "alias", "user", "pw", 2, 1, "key"};
  QLIX_TelnetInfo other = base;
  EXPECT_EQ(base, other);
  other.sshKeyID = "key2";
  EXPECT_NE(base, other);
  other = base;
  other.refCount = 3;
  EXPECT_NE(base, other);

  const QLIX_Snmpv3 v3{3, 1, 2, "u", "a", "e", "ctx"};
  QLIX_Snmpv3 v3b = v3;
  v3b.contextName = "other";
  EXPECT_NE(v3, v3b);

  QLIX_SnmpRoInfo ro{"id", "alias", "public", 161, 0, 3, v3};
  QLIX_SnmpRoInfo rob = ro;
  EXPECT_EQ(ro, rob);
  rob.v3 = v3b;
  EXPECT_NE(ro, rob);

  const QLIX_EnablePasswd en{"id", "alias", "user", "pw", 4};
  QLIX_EnablePasswd enb = en;
  enb.refCount = 5;
  EXPECT_NE(en, enb);
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

TEST(SSHPrivateKey, LocalKeyFileLiesInTheTempFolder) {
  const std::string folder = TWFileSystem::GetTempFolder() + "SSHKEY/";
  QLIX_SSHPrivateKey key;
  EXPECT_EQ(key.GetLocalKeyFilePath(), folder);  // empty file name: the folder itself
  struct stat st {};
  ASSERT_EQ(::stat(folder.c_str(), &st), 0);
  EXPECT_TRUE(S_ISDIR(st.st_mode));

  key.localKeyFile = "0a1b2c.key";
  EXPECT_EQ(key.GetLocalKeyFilePath(), folder + "0a1b2c.key");
  EXPECT_NE(::stat((folder + "0a1b2c.key").c_str(), &st), 0);  // the key itself isn't written
  // Created again when it has gone away in between.
  ASSERT_EQ(::rmdir(folder.c_str()), 0);
  key.GetLocalKeyFilePath();
  EXPECT_EQ(::stat(folder.c_str(), &st), 0);
}

}  // namespace
