// Settings that apply to every device - how to talk CLI, how to discover
// live, how to ping, how to use SNMP - filled once from the platform's
// settings document, and the process-wide switches of GlobalSetting.
//
// Prompt sets travel in JSON as one string with the prompts joined by "||";
// here each set holds one prompt per element, in byte order.
//
// Loaders read members through kxJson's conversion rules (see kxjson.h): a
// missing member reads as 0, false or "", and so does one of a type that
// does not convert. They always return true.
#pragma once

#include <cstdint>
#include <list>
#include <set>
#include <string>

#include <rapidjson/fwd.h>

#include "netloom/export.h"

namespace kxJson {
class Value;
}

class NETLOOM_API GlobalCliSetting {
 public:
  using PromptSet = std::set<std::string>;

  PromptSet userPrompts;            // "userPrompts"
  PromptSet passwordPrompts;        // "passwordPrompts"
  PromptSet nonprivilegePrompts;    // "nonprivilegePrompts"
  PromptSet enableUserNamePrompts;  // "enableUserNamePrompts"
  PromptSet enablePasswordPrompts;  // "enablePasswordPrompts"
  PromptSet privilegePrompts;       // "privilegePrompts"
  bool isEncryptUsername = false;   // "isEncryptUsername"
  std::int32_t exitTimeout = 3;     // "exitTimeout", seconds
  std::int32_t cliTimeout = 30;     // "cliTimeout", seconds
  std::int32_t checkTime = 5;       // "checkTime", seconds
  std::int32_t waitTime = 2;        // "waitTime", seconds
  std::int32_t forceTime = 600;     // "forceTime", seconds
  bool isSendSSH = true;            // "isSendSSH"
  bool isSaveReceivedData = false;  // "isSaveReceivedData"
  std::int32_t retriRTMaxNum = 100000;  // "retriRTMaxNum": most routes to retrieve

  GlobalCliSetting();
  GlobalCliSetting(const GlobalCliSetting&) = default;
  GlobalCliSetting(GlobalCliSetting&&) noexcept = default;
  GlobalCliSetting& operator=(const GlobalCliSetting&) = default;
  GlobalCliSetting& operator=(GlobalCliSetting&&) noexcept = default;

  bool LoadFromJson(const kxJson::Value& json);
  // The same through RapidJSON; a member that is missing or of another type
  // reads as it would through kxJson.
  bool LoadFromRapidJson(const rapidjson::Value& json);
  // Writes every key the loaders read; `json` becomes an object.
  bool SaveToJson(kxJson::Value& json) const;
  void ClearAllPrompts();
};

class NETLOOM_API GlobalLiveSetting {
 public:
  std::int32_t domainOption = 0;      // "domainOption"
  std::string domainName;             // "domainName"
  std::int32_t pollingOrder = 0;      // "pollingOrder"
  std::int32_t accessOrder = 0;       // "accessOrder"
  std::string intfOrder;              // "intfOrder"
  bool snmpIfPingFailed = false;      // "snmpIfPingFailed"
  bool telnetIfPingFailed = false;    // "telnetIfPingFailed"
  bool updateDeviceSetting = false;   // "updateDeviceSetting"
  std::list<std::string> internalList;  // never loaded or saved
  bool buildL3TopoAfterDiscovery = true;  // "buildL3TopoAfterDiscovery", never saved
  bool guessDeviceType = false;       // "guessDeviceType"

  GlobalLiveSetting() = default;
  GlobalLiveSetting(const GlobalLiveSetting&) = default;
  GlobalLiveSetting& operator=(const GlobalLiveSetting&) = default;

  // buildL3TopoAfterDiscovery becomes true unless the document has the member.
  bool LoadFromJson(const kxJson::Value& json);
  bool SaveToJson(kxJson::Value& json) const;
};

class NETLOOM_API GlobalPingSetting {
 public:
  std::int32_t pingTimeout = 2;   // "pingTimeout", seconds
  std::int32_t pingTryCount = 2;  // "pingTryCount"

  bool LoadFromJson(const kxJson::Value& json);
};

class NETLOOM_API GlobalSnmpSetting {
 public:
  std::int32_t snmpPort = 161;                         // "snmpPort"
  std::string snmpAccessibleOid = "1.3.6.1.2.1.1.3.0";  // "snmpAccessibleOid"
  bool isEncryptUsername = false;                      // "isEncryptUsername"
  std::int32_t snmpTimeout = 2;                        // "snmpTimeout", seconds

  GlobalSnmpSetting() = default;
  GlobalSnmpSetting(const GlobalSnmpSetting&) = default;
  GlobalSnmpSetting& operator=(const GlobalSnmpSetting&) = default;

  bool LoadFromJson(const kxJson::Value& json);
};

// Process-wide switches, read by route lookups and path code. Unsynchronised:
// set them before threads start.
class NETLOOM_API GlobalSetting {
 public:
  static bool gCheckAcl_;
  static bool gUseOrt_;
  static std::int32_t maxRoutingPath_;
};
