// DeviceSetting: accessors, the login-script defaults and the versioned
// text form.
#include "netloom/devicesetting.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <istream>

#include "netloom/util/aes.h"
#include "netloom/util/csvparser.h"
#include "netloom/util/stlhelper.h"

namespace netloom::detail {
namespace {

constexpr int kFormVersion = 420;
// Oldest form the reader still understands.
constexpr int kOldestReadable = 321;
// Columns of the CSV line; a line of fewer than kMinColumns is refused.
constexpr int kColumns = 45;
constexpr size_t kMinColumns = 43;
constexpr size_t kHeaderBuffer = 1024;

// Header words of the forms that were ever written.
struct FormWord {
    const char* text;
    int version;
};
constexpr FormWord kForms[] = {{"1.01", 101}, {"110", 110}, {"120", 120}, {"200", 200}, {"201", 201},
                               {"233", 233},  {"320", 320}, {"410", 410}, {"420", 420}};

// Columns that are always written and read the same way.
enum Col {
    kConst = 0, kAccessMethod = 1, kAccessAbility = 2, kLiveStatus = 3, kTelnetProxy = 4, kSnmpVersion = 5,
    kAppliance = 6, kLiveHostName = 7, kUserName = 11, kPassWord = 12, kEnablePW = 13, kSnmpRO = 14,
    kSnmpRW = 15, kLoginPrompt = 16, kPasswordPrompt = 17, kEnPasswordPrompt = 18, kPrivilegePrompt = 19,
    kNonPrivilegePrompt = 20, kManageIp = 21, kTelnetPort = 22, kMonitorMethod = 25, kSshPort = 26,
    kHostName = 28, kType = 29, kSnmpPort = 31, kV3AuthMode = 32, kV3AuthPro = 33, kV3EncryptPro = 34,
    kV3UserName = 35, kV3AuthPassword = 36, kV3EncryptPassword = 37, kDriverId = 38, kEnableUserName = 39,
    kEnUserNamePrompt = 40, kCpuExpression = 41, kMemoryExpression = 42, kSshKeyId = 43, kExternalServers = 44,
};

}  // namespace
}  // namespace netloom::detail

using namespace netloom::detail;

// ------------------------------------------------------- CustomizeSnmpInfo

bool CustomizeSnmpInfo::operator==(const CustomizeSnmpInfo& o) const {
    return manageIp == o.manageIp && snmpVersion == o.snmpVersion && snmpPort == o.snmpPort &&
           snmpRO == o.snmpRO && snmpRW == o.snmpRW && snmpV3 == o.snmpV3 && liveStatus == o.liveStatus;
}

// ------------------------------------------------------------- accessors

template <class T>
void DeviceSetting::assign(T& field, const T& value) {
    if (field == value) return;
    field = value;
    modified = true;
}

void DeviceSetting::setStateFlag(bool v) { assign(stateFlag, v); }
void DeviceSetting::setAccessMethod(int v) { assign(accessMethod, v); }
void DeviceSetting::setAccessAbility(int v) { assign(accessAbility, v); }
void DeviceSetting::setLiveStatus(int v) { assign(liveStatus, v); }
void DeviceSetting::setTelnetProxyID(const std::string& v) { assign(telnetProxyID, v); }
void DeviceSetting::setSnmpVersion(int v) { assign(snmpVersion, v); }
void DeviceSetting::setApplianceID(const std::string& v) { assign(applianceID, v); }
void DeviceSetting::setMonitorMethod(int v) { assign(monitorMethod, v); }
void DeviceSetting::setTelnetPort(int v) { assign(telnetPort, v); }
void DeviceSetting::setSSHPort(int v) { assign(sshPort, v); }
void DeviceSetting::setType(int v) { assign(type, v); }
void DeviceSetting::setSNMPPort(int v) { assign(snmpPort, v); }
void DeviceSetting::setHostName(const std::string& v) { assign(hostName, v); }
void DeviceSetting::setLiveHostName(const std::string& v) { assign(liveHostName, v); }
void DeviceSetting::setUserName(const std::string& v) { assign(userName, v); }
void DeviceSetting::setPassWord(const std::string& v) { assign(passWord, v); }
void DeviceSetting::setEnablePW(const std::string& v) { assign(enablePW, v); }
void DeviceSetting::setLoginPrompt(const std::string& v) { assign(loginPrompt, v); }
void DeviceSetting::setPasswordPrompt(const std::string& v) { assign(passwordPrompt, v); }
void DeviceSetting::setEnPasswordPrompt(const std::string& v) { assign(enPasswordPrompt, v); }
void DeviceSetting::setPrivilegePrompt(const std::string& v) { assign(privilegePrompt, v); }
void DeviceSetting::setNonPrivilegePrompt(const std::string& v) { assign(nonPrivilegePrompt, v); }
void DeviceSetting::setSnmpRO(const std::string& v) { assign(snmpRO, v); }
void DeviceSetting::setSnmpRW(const std::string& v) { assign(snmpRW, v); }
void DeviceSetting::setLocked(bool v) { assign(locked, v); }
void DeviceSetting::setCheck(int v) { assign(check, v); }
void DeviceSetting::setSnmpV3(const QLIX_Snmpv3& v) { assign(snmpV3, v); }
void DeviceSetting::SetDriverId(const TW128Guid& v) { assign(driverId, v); }
void DeviceSetting::SetDeviceId(const TW128Guid& v) { assign(deviceId, v); }
void DeviceSetting::setEnableUserName(const std::string& v) { assign(enableUserName, v); }
void DeviceSetting::setEnUserNamePrompt(const std::string& v) { assign(enUserNamePrompt, v); }
void DeviceSetting::setCpuExpression(const std::string& v) { assign(cpuExpression, v); }
void DeviceSetting::setMemoryExpression(const std::string& v) { assign(memoryExpression, v); }
void DeviceSetting::SetSSHKeyID(const std::string& v) { assign(sshKeyID, v); }
void DeviceSetting::SetParentDevice(const TW128Guid& v) { assign(parentDevice, v); }
void DeviceSetting::SetExtension(const kxJson::Value& v) { assign(extension, v); }
void DeviceSetting::setCliForceTimeOut(int v) { assign(cliForceTimeOut, v); }
void DeviceSetting::setIsUseCustomizeSnmp(bool v) { assign(isUseCustomizeSnmp, v); }
void DeviceSetting::setCustomizeSnmpInfo(const CustomizeSnmpInfo& v) { assign(customizeSnmpInfo, v); }

void DeviceSetting::setExternalServers(const std::vector<ExternalServerInfo>& v) {
    // Order does not matter: the same members in any order are no change.
    const bool same = v.size() == externalServers.size() &&
                      std::all_of(externalServers.begin(), externalServers.end(), [&](const ExternalServerInfo& e) {
                          return std::find(v.begin(), v.end(), e) != v.end();
                      });
    if (same) return;
    externalServers = v;
    modified = true;
}

void DeviceSetting::setManageIp(char* text) {
    if (!text) return;
    if (char* slash = std::strchr(text, '/')) *slash = '\0';
    assign(manageIpAddr, std::string(text));
}

void DeviceSetting::setManageIp(const char* text) {
    if (!text) return;
    const char* slash = std::strchr(text, '/');
    assign(manageIpAddr, slash ? std::string(text, slash) : std::string(text));
}

// ---------------------------------------------------------- derived answers

int DeviceSetting::getTelnetWay() const {
    if (accessMethod == 0) return 0;
    if (accessMethod & 1) return 1;
    if (accessMethod & 2) return 2;
    return 0;
}

void DeviceSetting::setTelnetWay(int way) {
    if (way != 1 && way != 2) return;
    const int set = way == 1 ? 1 : 2;
    const int cleared = way == 1 ? 2 : 1;
    if (!(accessMethod & set)) modified = true;
    accessMethod = (accessMethod | set) & ~cleared;
}

int DeviceSetting::getBackendBandwidth(const char*) const { return -1; }

void DeviceSetting::GetSnmpInfo(QLIX_SnmpRoInfo& out, bool useOwn) const {
    if (!useOwn && isUseCustomizeSnmp) {
        const CustomizeSnmpInfo& c = customizeSnmpInfo;
        GetSnmpInfo(out, c.getSnmpVersion(), c.getSNMPPort(), c.getSnmpRO(), c.getSnmpV3());
    } else {
        GetSnmpInfo(out, snmpVersion, snmpPort, snmpRO, snmpV3);
    }
}

void DeviceSetting::GetSnmpInfo(QLIX_SnmpRoInfo& out, int version, int port, const std::string& community,
                                const QLIX_Snmpv3& v3) {
    out.clear();
    out.snmpVersion = version;
    out.snmpPort = port;
    if (version == 1 || version == 2)
        out.roString = community;
    else if (version == 3)
        out.v3 = v3;
}

const std::string& DeviceSetting::GetSuitableSNMPMngIp(bool useOwn) const {
    return useOwn || !isUseCustomizeSnmp ? manageIpAddr : customizeSnmpInfo.getManageIpAddr();
}

void DeviceSetting::setPassWordsPrompt(const std::string& text) {
    const size_t sep = text.find("&&&");
    if (sep == std::string::npos) {
        setPasswordPrompt(text);
        return;
    }
    setPasswordPrompt(text.substr(0, sep));
    setEnPasswordPrompt(text.substr(sep + 3));
}

std::string DeviceSetting::getRealString(const std::string& text) const {
    const std::pair<const char*, const std::string*> macros[] = {
        {"$(privilege prompt)", &privilegePrompt},
        {"$(non-privilege prompt)", &nonPrivilegePrompt},
        {"$(login prompt)", &loginPrompt},
        {"$(password prompt)", &passwordPrompt},
    };
    std::string out = text;
    for (const auto& [macro, value] : macros) {
        if (out.find(macro) != std::string::npos) {
            StlHelper::replaceString(out, macro, *value);
            break;
        }
    }
    return out;
}

// ------------------------------------------------------------ life cycle

void DeviceSetting::Clear() {
    stateFlag = false;
    clearModeLoginScript();
}

void DeviceSetting::CopyData(DeviceSetting* target) const {
    if (!target) return;
    const TW128Guid parent = target->parentDevice;
    kxJson::Value ext = std::move(target->extension);
    std::string user = std::move(target->opUser);
    std::string userId = std::move(target->opUserId);
    *target = *this;
    target->parentDevice = parent;
    target->extension = std::move(ext);
    target->opUser = std::move(user);
    target->opUserId = std::move(userId);
    target->modified = false;
}

// ------------------------------------------------------------ login scripts

void DeviceSetting::clearModeLoginScript() {
    loginScripts.Clear();
    loginScripts.SetUseLoginScript(false);
    modified = true;
}

void DeviceSetting::setEnableLoginScript(bool enable) {
    if (loginScripts.IsUseLoginScript() == enable) return;
    loginScripts.SetUseLoginScript(enable);
    modified = true;
}

LoginScript DeviceSetting::getLoginScript(int mode) const {
    LoginScript out;
    loginScripts.GetLoginScript(mode, out);
    return out;
}

void DeviceSetting::setModeLoginScript(const ModeLoginScript& script) {
    loginScripts = script;
    modified = true;
}

void DeviceSetting::defModeLoginScript(const char* userLine) {
    loginScripts.Clear();
    loginScripts.AddExpectItem(ExpectItem("username:", "$(username)", 0));
    loginScripts.AddExpectItem(ExpectItem("password:", "$(password)", 0));
    if (userLine && *userLine) loginScripts.AddExpectItem(ExpectItem("$(hostname)>", userLine, 0));
    loginScripts.AddExpectItem(ExpectItem("$(hostname)>", "", 0));
    loginScripts.AddExpectItem(ExpectItem("$(hostname)>", "enable", 1));
    loginScripts.AddExpectItem(ExpectItem("password:", "$(privilege password)", 1));
    loginScripts.AddExpectItem(ExpectItem("$(hostname)#", "", 1));
    loginScripts.SetUseLoginScript(true);
    modified = true;
}

// ---------------------------------------------------------------- text form

std::string DeviceSetting::getDeviceModeString() const {
    std::ostringstream out;
    loginScripts.save(out);
    return out.str();
}

std::string DeviceSetting::SaveExternalServerToString() const {
    // No separator between the first two elements and one behind each later
    // element: stored records have this shape, so it stays.
    std::string out;
    for (size_t i = 0; i < externalServers.size(); ++i) {
        out += externalServers[i].ExternalServerId;
        out += '&';
        out += externalServers[i].ExternalServerTechId;
        if (i > 0) out += "&&";
    }
    return out;
}

void DeviceSetting::LoadExternalServerFromString(const std::string& text) {
    std::vector<std::string> pieces;
    if (StlHelper::splitString(text, "&&", pieces) == 0) return;
    externalServers.clear();
    std::vector<std::string> parts;
    for (const std::string& piece : pieces) {
        if (StlHelper::splitString(piece, "&", parts) == 2) externalServers.push_back({parts[0], parts[1]});
    }
}

void DeviceSetting::generateString(std::ostringstream& out, bool omitCredentials) const {
    out << "version," << kFormVersion << "\n";

    CSVLineParser line("");
    auto num = [&](int col, int value) { line.SetAt(col, StlHelper::toString(value)); };
    auto plain = [&](int col, const std::string& value) { line.SetAt(col, value); };
    auto sealed = [&](int col, const std::string& value) { line.SetAt(col, TWAes::Encrypt(value)); };

    plain(kConst, "0");
    num(kAccessMethod, accessMethod);
    num(kAccessAbility, accessAbility);
    num(kLiveStatus, liveStatus);
    plain(kTelnetProxy, telnetProxyID);
    num(kSnmpVersion, snmpVersion);
    plain(kAppliance, applianceID);
    plain(kLiveHostName, liveHostName);
    if (omitCredentials) {
        plain(kUserName, "");
        plain(kPassWord, "");
        plain(kEnablePW, "");
    } else {
        sealed(kUserName, userName);
        sealed(kPassWord, passWord);
        sealed(kEnablePW, enablePW);
    }
    sealed(kSnmpRO, snmpRO);
    sealed(kSnmpRW, snmpRW);
    sealed(kLoginPrompt, loginPrompt);
    sealed(kPasswordPrompt, passwordPrompt);
    sealed(kEnPasswordPrompt, enPasswordPrompt);
    sealed(kPrivilegePrompt, privilegePrompt);
    sealed(kNonPrivilegePrompt, nonPrivilegePrompt);
    plain(kManageIp, manageIpAddr);
    num(kTelnetPort, telnetPort);
    num(kMonitorMethod, monitorMethod);
    num(kSshPort, sshPort);
    sealed(kHostName, hostName);
    num(kType, type);
    num(kSnmpPort, snmpPort);
    num(kV3AuthMode, snmpV3.authMode);
    num(kV3AuthPro, snmpV3.authPro);
    num(kV3EncryptPro, snmpV3.encryptPro);
    sealed(kV3UserName, snmpV3.userName);
    sealed(kV3AuthPassword, snmpV3.authPassword);
    sealed(kV3EncryptPassword, snmpV3.encryptPassword);
    plain(kDriverId, driverId.ToString());
    plain(kEnableUserName, enableUserName);
    plain(kEnUserNamePrompt, enUserNamePrompt);
    plain(kCpuExpression, cpuExpression);
    plain(kMemoryExpression, memoryExpression);
    plain(kSshKeyId, sshKeyID);
    plain(kExternalServers, SaveExternalServerToString());
    static_assert(kExternalServers + 1 == kColumns, "the last column closes the line");
    line.WriteToStream(out);

    out << getDeviceModeString();
}

bool DeviceSetting::loadFromString(std::istream& in, bool keepCredentials) {
    modified = false;

    char header[kHeaderBuffer] = {};
    in.getline(header, sizeof header);
    if (std::strncmp(header, "version", 7) != 0) {
        version = 100;
    } else if (const char* comma = std::strchr(header, ',')) {
        for (const FormWord& form : kForms) {
            if (std::strcmp(comma + 1, form.text) == 0) version = form.version;
        }
    }

    const std::string oldUser = userName, oldPassword = passWord, oldEnable = enablePW;
    if (version < kOldestReadable) return false;
    if (!loadVersion410(in)) {
        modified = true;
        return false;
    }
    if (keepCredentials && !(oldUser.empty() && oldPassword.empty() && oldEnable.empty())) {
        userName = oldUser;
        passWord = oldPassword;
        enablePW = oldEnable;
    }
    return true;
}

bool DeviceSetting::loadVersion410(std::istream& in) {
    CSVLineParser line("");
    if (!line.ReadFromStream(in) || line.size() < kMinColumns) return false;
    const auto& f = line.Fields();
    auto num = [&](int col) { return std::atoi(f[col].c_str()); };
    auto open = [&](int col) { return TWAes::Decrypt(f[col]); };

    accessMethod = num(kAccessMethod);
    accessAbility = num(kAccessAbility);
    liveStatus = num(kLiveStatus);
    // These two ids were once numbers, and the reader still takes them so:
    // the id becomes the one character whose code is the number's low byte.
    telnetProxyID = static_cast<char>(num(kTelnetProxy));
    snmpVersion = num(kSnmpVersion);
    applianceID = static_cast<char>(num(kAppliance));
    liveHostName = f[kLiveHostName];
    userName = open(kUserName);
    passWord = open(kPassWord);
    enablePW = open(kEnablePW);
    snmpRO = open(kSnmpRO);
    snmpRW = open(kSnmpRW);
    loginPrompt = open(kLoginPrompt);
    passwordPrompt = open(kPasswordPrompt);
    enPasswordPrompt = open(kEnPasswordPrompt);
    privilegePrompt = open(kPrivilegePrompt);
    nonPrivilegePrompt = open(kNonPrivilegePrompt);
    manageIpAddr = f[kManageIp];
    telnetPort = num(kTelnetPort);
    monitorMethod = num(kMonitorMethod);
    sshPort = num(kSshPort);
    hostName = open(kHostName);
    type = num(kType);
    snmpPort = num(kSnmpPort);
    if (snmpPort < 1) snmpPort = 161;
    snmpV3.authMode = num(kV3AuthMode);
    snmpV3.authPro = num(kV3AuthPro);
    snmpV3.encryptPro = num(kV3EncryptPro);
    snmpV3.userName = open(kV3UserName);
    snmpV3.authPassword = open(kV3AuthPassword);
    snmpV3.encryptPassword = open(kV3EncryptPassword);
    driverId.SetNull();
    if (!f[kDriverId].empty()) driverId.ParserStr(f[kDriverId]);
    enableUserName = f[kEnableUserName];
    enUserNamePrompt = f[kEnUserNamePrompt];
    cpuExpression = f[kCpuExpression];
    memoryExpression = f[kMemoryExpression];
    sshKeyID = f.size() > static_cast<size_t>(kSshKeyId) ? f[kSshKeyId] : std::string();
    if (f.size() > static_cast<size_t>(kExternalServers)) LoadExternalServerFromString(f[kExternalServers]);

    return loginScripts.load(in);
}

bool DeviceSetting::save(const std::string&, bool) const { return needSave && !hostName.empty(); }
bool DeviceSetting::saveFile(const std::string&, bool, bool) const { return false; }
bool DeviceSetting::load(const std::string&, bool, bool) { return false; }
