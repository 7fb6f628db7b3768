// The shared ways of reaching devices that device settings refer to by id: a
// jump box, a CLI credential, an SSH key, SNMP credentials, an enable
// credential, an appliance, plus the monitored-device records. Plain records
// with public fields; the platform's database keys are noted by each field
// where they differ from the field's name.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "netloom/export.h"

namespace kxJson {
class Value;
}

// A jump box between this host and a device.
struct NETLOOM_API QLIX_TelnetProxy {
  std::string id;  // "ID"
  std::string alias;
  std::int32_t type = 0;
  std::string ipAddr;
  std::int32_t port = 0;
  std::int32_t mode = 0;  // 0 telnet, 1 SSH version 1, 2 SSH version 2
  std::string userName;
  std::string password;
  std::string loginPrompt;
  std::string passwordPrompt;
  std::string commandPrompt;
  std::string yesNoPrompt;
  std::int32_t refCount = 0;
  std::string enableCmd;
  std::string enablePasswordPrompt;
  std::string enablePassword;
  std::string enablePrompt;
  std::string userId;
  std::string quitCmd;
  std::string SSHKeyId;
  std::string telnetCommand;
  std::string SSHCommand;

  // All strings empty, then Init.
  QLIX_TelnetProxy();
  // Each key read with operator[]; a null or missing member gives the
  // default ("Username:", "Password:", "(yes/no)?", "exit", 0, otherwise
  // empty - commandPrompt included).
  explicit QLIX_TelnetProxy(const kxJson::Value& json);
  QLIX_TelnetProxy(const QLIX_TelnetProxy&) = default;
  QLIX_TelnetProxy(QLIX_TelnetProxy&&) noexcept = default;
  QLIX_TelnetProxy& operator=(const QLIX_TelnetProxy&) = default;
  QLIX_TelnetProxy& operator=(QLIX_TelnetProxy&&) noexcept = default;
  ~QLIX_TelnetProxy() = default;

  // Resets the numbers, the prompts, quitCmd, id, userId and SSHKeyId;
  // leaves every other field as it is.
  void Init();

  bool IsProxyTelnet() const { return mode == 0; }
  bool IsProxySSHv1() const { return mode == 1; }
  bool IsProxySSHv2() const { return mode == 2; }
  bool IsProxySSH() const { return mode == 1 || mode == 2; }
  bool IsValid() const { return !id.empty(); }

  // Two records reaching the same address and port are the same box,
  // whatever their credentials or mode.
  bool operator==(const QLIX_TelnetProxy& other) const { return ipAddr == other.ipAddr && port == other.port; }
  bool operator!=(const QLIX_TelnetProxy& other) const { return !(*this == other); }
};

// A CLI credential. Database keys: "_id", "alias", "deviceType", "userName",
// "password", "refCount", "cliMode", "sshKeyID".
struct NETLOOM_API QLIX_TelnetInfo {
  std::string id;
  std::int32_t deviceType = 0;
  std::string alias;
  std::string userName;
  std::string password;
  std::int32_t refCount = 0;
  std::int32_t cliMode = 0;
  std::string sshKeyID;

  // Empties all but sshKeyID.
  void clear();
  bool operator==(const QLIX_TelnetInfo& other) const;
  bool operator!=(const QLIX_TelnetInfo& other) const { return !(*this == other); }
};

// An SSH key. Database keys: "_id", "alias", "keyName", "keyContent",
// "md5KeyContent" (for localKeyFile), "passwordPhrase", "refCount".
struct NETLOOM_API QLIX_SSHPrivateKey {
  std::string id;
  std::string alias;
  std::string keyName;
  std::string keyContent;
  std::string passwordPhrase;
  std::string localKeyFile;  // file name under the local key folder
  std::int32_t refCount = 0;
  std::string keyNote;

  // Empties all but id and alias.
  void clear();
  // The temporary folder + "SSHKEY/" + localKeyFile. Creates the folder
  // (mode 0775) on every call; the key file itself is not written.
  std::string GetLocalKeyFilePath() const;
};

// SNMP version 3 credentials.
struct NETLOOM_API QLIX_Snmpv3 {
  std::int32_t authMode = 0;  // 1 none, 2 authentication, 3 authentication and privacy
  std::int32_t authPro = 0;
  std::int32_t encryptPro = 0;
  std::string userName;
  std::string authPassword;
  std::string encryptPassword;
  std::string contextName;

  void clear();
  bool operator==(const QLIX_Snmpv3& other) const;
  bool operator!=(const QLIX_Snmpv3& other) const { return !(*this == other); }
};

// A read-only SNMP credential. Database keys: "_id", "alias", "roString",
// "snmpPort", "refCount", "snmpVersion", "v3".
struct NETLOOM_API QLIX_SnmpRoInfo {
  std::string id;
  std::string alias;
  std::string roString;
  std::int32_t snmpPort = 0;
  std::int32_t refCount = 0;
  std::int32_t snmpVersion = 0;
  QLIX_Snmpv3 v3;

  void clear();
  bool operator==(const QLIX_SnmpRoInfo& other) const;
  bool operator!=(const QLIX_SnmpRoInfo& other) const { return !(*this == other); }
  // Whether the two reach a device the same way: equal community strings
  // for versions 1 and 2, otherwise equal version 3 data as far as the
  // authentication mode needs it.
  bool IsContentEqual(const QLIX_SnmpRoInfo& other) const;
};

// An enable credential. Database keys: "_id", "alias", "enableUserName",
// "enablePassword", "refCount".
struct NETLOOM_API QLIX_EnablePasswd {
  std::string id;
  std::string alias;
  std::string enableUserName;
  std::string enablePassword;
  std::int32_t refCount = 0;

  void clear();
  bool operator==(const QLIX_EnablePasswd& other) const;
  bool operator!=(const QLIX_EnablePasswd& other) const { return !(*this == other); }
};

// A network server through which devices are reached. Database keys:
// "_id", "alias", "ipOrHostname", "aesKey", "nsPort", "refCount",
// "maxDeviceCount", "timeOut".
struct NETLOOM_API QLIX_Appliance {
  std::string id;
  std::string alias;
  std::string ipOrHostname;
  std::string aesKey;  // the cipher key text of that server
  std::int32_t nsPort = 9099;
  std::int32_t refCount = 0;
  std::int32_t maxDeviceCount = 0;
  std::int32_t timeOut = 0;
};

// One monitored interface.
struct NETLOOM_API sMonitorIntfData {
  std::int32_t ifIndex = 0;
  std::int32_t ifType = 0;
  std::string ifName;
};

// One monitored device. The library only stores and copies these; the
// names are this library's own.
struct NETLOOM_API sMonitorDeviceData {
  std::string deviceId;
  std::string deviceName;
  std::string manageIp;
  std::string vendor;
  std::string roString;
  std::int32_t snmpVersion = 0;
  std::int32_t snmpPort = 0;
  QLIX_Snmpv3 v3;
  std::string note;
  std::vector<sMonitorIntfData> interfaces;
};
