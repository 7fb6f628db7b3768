// Loading and saving the global settings records.
#include "netloom/globalsetting.h"

#include <rapidjson/document.h>

#include "netloom/util/kxjson.h"
#include "netloom/util/stlhelper.h"

bool GlobalSetting::gCheckAcl_ = false;
bool GlobalSetting::gUseOrt_ = false;
std::int32_t GlobalSetting::maxRoutingPath_ = 0;

namespace netloom::detail {
namespace {

constexpr const char* kPromptSeparator = "||";

// The prompt sets in the order they travel, with their keys.
struct PromptKey {
  const char* key;
  GlobalCliSetting::PromptSet GlobalCliSetting::*set;
};
constexpr PromptKey kPromptKeys[] = {
    {"userPrompts", &GlobalCliSetting::userPrompts},
    {"passwordPrompts", &GlobalCliSetting::passwordPrompts},
    {"nonprivilegePrompts", &GlobalCliSetting::nonprivilegePrompts},
    {"enableUserNamePrompts", &GlobalCliSetting::enableUserNamePrompts},
    {"enablePasswordPrompts", &GlobalCliSetting::enablePasswordPrompts},
    {"privilegePrompts", &GlobalCliSetting::privilegePrompts},
};

void AddPrompts(GlobalCliSetting::PromptSet& set, const std::string& joined) {
  for (const std::string& prompt : StlHelper::splitString(joined, kPromptSeparator)) set.insert(prompt);
}

std::string JoinPrompts(const GlobalCliSetting::PromptSet& set) {
  std::string out;
  bool first = true;
  for (const std::string& prompt : set) {
    if (!first) out += kPromptSeparator;
    out += prompt;
    first = false;
  }
  return out;
}

// A RapidJSON scalar as a kxJson value, so that both loaders convert members
// by the same rules. Containers say nothing to these records and read as null.
kxJson::Value FromRapid(const rapidjson::Value& v) {
  switch (v.GetType()) {
    case rapidjson::kFalseType: return kxJson::Value(false);
    case rapidjson::kTrueType: return kxJson::Value(true);
    case rapidjson::kStringType: return kxJson::Value(v.GetString(), v.GetString() + v.GetStringLength());
    case rapidjson::kNumberType:
      if (v.IsInt64()) return kxJson::Value(static_cast<kxJson::Int64>(v.GetInt64()));
      if (v.IsUint64()) return kxJson::Value(static_cast<kxJson::UInt64>(v.GetUint64()));
      return kxJson::Value(v.GetDouble());
    default: return kxJson::Value();
  }
}

}  // namespace
}  // namespace netloom::detail

namespace d = netloom::detail;

// ------------------------------------------------------------- CLI

GlobalCliSetting::GlobalCliSetting()
    : userPrompts{"Login Name:", "User Name:", "login:", "username:", "User:"},
      passwordPrompts{"passcode:", "password:"},
      nonprivilegePrompts{">"},
      enableUserNamePrompts(userPrompts),
      enablePasswordPrompts(passwordPrompts),
      privilegePrompts{"#", "(enable)"} {}

void GlobalCliSetting::ClearAllPrompts() {
  for (const auto& p : d::kPromptKeys) (this->*p.set).clear();
}

bool GlobalCliSetting::LoadFromJson(const kxJson::Value& json) {
  ClearAllPrompts();
  for (const auto& p : d::kPromptKeys) d::AddPrompts(this->*p.set, json[p.key].asString());
  isEncryptUsername = json["isEncryptUsername"].asBool();
  exitTimeout = json["exitTimeout"].asInt();
  cliTimeout = json["cliTimeout"].asInt();
  checkTime = json["checkTime"].asInt();
  waitTime = json["waitTime"].asInt();
  checkTime = json["checkTime"].asInt();  // read twice, as the settings page's readers have always done
  forceTime = json["forceTime"].asInt();
  isSendSSH = json["isSendSSH"].asBool();
  isSaveReceivedData = json["isSaveReceivedData"].asBool();
  retriRTMaxNum = json["retriRTMaxNum"].asInt();
  return true;
}

bool GlobalCliSetting::LoadFromRapidJson(const rapidjson::Value& json) {
  kxJson::Value members(kxJson::objectValue);
  if (json.IsObject()) {
    for (auto it = json.MemberBegin(); it != json.MemberEnd(); ++it) {
      if (!it->name.IsString()) continue;
      members[std::string(it->name.GetString(), it->name.GetStringLength())] = d::FromRapid(it->value);
    }
  }
  return LoadFromJson(members);
}

bool GlobalCliSetting::SaveToJson(kxJson::Value& json) const {
  for (const auto& p : d::kPromptKeys) json[p.key] = d::JoinPrompts(this->*p.set);
  json["isEncryptUsername"] = isEncryptUsername;
  json["exitTimeout"] = exitTimeout;
  json["cliTimeout"] = cliTimeout;
  json["checkTime"] = checkTime;
  json["waitTime"] = waitTime;
  json["forceTime"] = forceTime;
  json["isSendSSH"] = isSendSSH;
  json["isSaveReceivedData"] = isSaveReceivedData;
  json["retriRTMaxNum"] = retriRTMaxNum;
  return true;
}

// ------------------------------------------------------------- live discovery

bool GlobalLiveSetting::LoadFromJson(const kxJson::Value& json) {
  domainOption = json["domainOption"].asInt();
  domainName = json["domainName"].asString();
  pollingOrder = json["pollingOrder"].asInt();
  accessOrder = json["accessOrder"].asInt();
  intfOrder = json["intfOrder"].asString();
  snmpIfPingFailed = json["snmpIfPingFailed"].asBool();
  telnetIfPingFailed = json["telnetIfPingFailed"].asBool();
  updateDeviceSetting = json["updateDeviceSetting"].asBool();
  guessDeviceType = json["guessDeviceType"].asBool();
  buildL3TopoAfterDiscovery = true;
  if (const kxJson::Value* build = json.GetChild("buildL3TopoAfterDiscovery")) {
    buildL3TopoAfterDiscovery = build->asBool();
  }
  return true;
}

// The topology flag stays out: a saved document reloads with the default.
bool GlobalLiveSetting::SaveToJson(kxJson::Value& json) const {
  json["domainOption"] = domainOption;
  json["domainName"] = domainName;
  json["pollingOrder"] = pollingOrder;
  json["accessOrder"] = accessOrder;
  json["intfOrder"] = intfOrder;
  json["snmpIfPingFailed"] = snmpIfPingFailed;
  json["telnetIfPingFailed"] = telnetIfPingFailed;
  json["updateDeviceSetting"] = updateDeviceSetting;
  json["guessDeviceType"] = guessDeviceType;
  return true;
}

// ------------------------------------------------------------- ping and SNMP

bool GlobalPingSetting::LoadFromJson(const kxJson::Value& json) {
  pingTimeout = json["pingTimeout"].asInt();
  pingTryCount = json["pingTryCount"].asInt();
  return true;
}

bool GlobalSnmpSetting::LoadFromJson(const kxJson::Value& json) {
  snmpPort = json["snmpPort"].asInt();
  snmpAccessibleOid = json["snmpAccessibleOid"].asString();
  isEncryptUsername = json["isEncryptUsername"].asBool();
  snmpTimeout = json["snmpTimeout"].asInt();
  return true;
}
