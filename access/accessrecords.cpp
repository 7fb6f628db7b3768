// Construction, clearing and comparison of the access records.
#include "netloom/accessrecords.h"

#include <tuple>

#include "netloom/util/kxjson.h"
#include "netloom/util/pathname.h"
#include "netloom/util/twfilesystem.h"

namespace netloom::detail {
namespace {

// A member's text, or `fallback` when the member is null or missing.
std::string TextOr(const kxJson::Value& json, const char* key, const char* fallback) {
  const kxJson::Value& v = json[key];
  return v.isNull() ? std::string(fallback) : v.asString();
}

std::int32_t NumberOr(const kxJson::Value& json, const char* key, std::int32_t fallback) {
  const kxJson::Value& v = json[key];
  return v.isNull() ? fallback : v.asInt();
}

}  // namespace
}  // namespace netloom::detail

// ------------------------------------------------------------- jump box

QLIX_TelnetProxy::QLIX_TelnetProxy() { Init(); }

QLIX_TelnetProxy::QLIX_TelnetProxy(const kxJson::Value& json) {
  using netloom::detail::NumberOr;
  using netloom::detail::TextOr;
  id = TextOr(json, "ID", "");
  alias = TextOr(json, "alias", "");
  type = NumberOr(json, "type", 0);
  ipAddr = TextOr(json, "ipAddr", "");
  port = NumberOr(json, "port", 0);
  mode = NumberOr(json, "mode", 0);
  userName = TextOr(json, "userName", "");
  password = TextOr(json, "password", "");
  loginPrompt = TextOr(json, "loginPrompt", "Username:");
  passwordPrompt = TextOr(json, "passwordPrompt", "Password:");
  commandPrompt = TextOr(json, "commandPrompt", "");
  yesNoPrompt = TextOr(json, "yesNoPrompt", "(yes/no)?");
  refCount = NumberOr(json, "refCount", 0);
  enableCmd = TextOr(json, "enableCmd", "");
  enablePasswordPrompt = TextOr(json, "enablePasswordPrompt", "");
  enablePassword = TextOr(json, "enablePassword", "");
  enablePrompt = TextOr(json, "enablePrompt", "");
  userId = TextOr(json, "userId", "");
  quitCmd = TextOr(json, "quitCmd", "exit");
  SSHKeyId = TextOr(json, "SSHKeyId", "");
  telnetCommand = TextOr(json, "telnetCommand", "");
  SSHCommand = TextOr(json, "SSHCommand", "");
}

void QLIX_TelnetProxy::Init() {
  type = 0;
  port = 0;
  mode = 0;
  refCount = 0;
  loginPrompt = "Username:";
  passwordPrompt = "Password:";
  commandPrompt = ">";
  yesNoPrompt = "(yes/no)?";
  quitCmd = "exit";
  id.clear();
  userId.clear();
  SSHKeyId.clear();
}

// ------------------------------------------------------------- CLI credential

void QLIX_TelnetInfo::clear() {
  deviceType = 0;
  refCount = 0;
  cliMode = 0;
  id.clear();
  alias.clear();
  userName.clear();
  password.clear();
}

bool QLIX_TelnetInfo::operator==(const QLIX_TelnetInfo& o) const {
  return std::tie(id, deviceType, alias, userName, password, refCount, cliMode, sshKeyID) ==
         std::tie(o.id, o.deviceType, o.alias, o.userName, o.password, o.refCount, o.cliMode, o.sshKeyID);
}

// ------------------------------------------------------------- SSH key

void QLIX_SSHPrivateKey::clear() {
  refCount = 0;
  keyName.clear();
  keyContent.clear();
  keyNote.clear();
  passwordPhrase.clear();
  localKeyFile.clear();
}

std::string QLIX_SSHPrivateKey::GetLocalKeyFilePath() const {
  const std::string folder = TWFileSystem::GetTempFolder() + "SSHKEY/";
  Pathname(folder).mkdirHier(0775);
  return folder + localKeyFile;
}

// ------------------------------------------------------------- SNMP

void QLIX_Snmpv3::clear() {
  authMode = 0;
  authPro = 0;
  encryptPro = 0;
  userName.clear();
  authPassword.clear();
  encryptPassword.clear();
  contextName.clear();
}

bool QLIX_Snmpv3::operator==(const QLIX_Snmpv3& o) const {
  return std::tie(authMode, authPro, encryptPro, userName, authPassword, encryptPassword, contextName) ==
         std::tie(o.authMode, o.authPro, o.encryptPro, o.userName, o.authPassword, o.encryptPassword,
                  o.contextName);
}

void QLIX_SnmpRoInfo::clear() {
  snmpPort = 0;
  refCount = 0;
  snmpVersion = 0;
  v3.clear();
  id.clear();
  alias.clear();
  roString.clear();
}

bool QLIX_SnmpRoInfo::operator==(const QLIX_SnmpRoInfo& o) const {
  return std::tie(id, alias, roString, snmpPort, refCount, snmpVersion, v3) ==
         std::tie(o.id, o.alias, o.roString, o.snmpPort, o.refCount, o.snmpVersion, o.v3);
}

bool QLIX_SnmpRoInfo::IsContentEqual(const QLIX_SnmpRoInfo& o) const {
  auto community = [](std::int32_t version) { return version == 1 || version == 2; };
  if (community(snmpVersion) && community(o.snmpVersion) && roString == o.roString) return true;
  if (snmpVersion != o.snmpVersion || v3.authMode != o.v3.authMode || v3.userName != o.v3.userName) return false;
  switch (v3.authMode) {
    case 1:
      return true;
    case 2:
      return v3.authPro == o.v3.authPro && v3.authPassword == o.v3.authPassword;
    case 3:
      return v3.authPro == o.v3.authPro && v3.encryptPro == o.v3.encryptPro &&
             v3.authPassword == o.v3.authPassword && v3.encryptPassword == o.v3.encryptPassword;
    default:
      return false;
  }
}

// ------------------------------------------------------------- enable credential

void QLIX_EnablePasswd::clear() {
  refCount = 0;
  id.clear();
  alias.clear();
  enableUserName.clear();
  enablePassword.clear();
}

bool QLIX_EnablePasswd::operator==(const QLIX_EnablePasswd& o) const {
  return std::tie(id, alias, enableUserName, enablePassword, refCount) ==
         std::tie(o.id, o.alias, o.enableUserName, o.enablePassword, o.refCount);
}
