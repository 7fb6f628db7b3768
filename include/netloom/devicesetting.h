// The access record of one device: how to log in, which prompts to expect,
// which SNMP identity to use, through which jump box, appliance or external
// servers to go. A plain value with accessors and a modified flag; setters
// mark the record modified only on a real change.
//
// Its persistent form is a text record: the line "version,420", one CSV
// line of 45 columns with secrets sealed cell by cell, then the login-script
// block. Readers accept the forms from 410 on.
#pragma once

#include <iosfwd>
#include <sstream>
#include <string>
#include <vector>

#include "netloom/accessrecords.h"
#include "netloom/export.h"
#include "netloom/util/guid.h"
#include "netloom/util/kxjson.h"
#include "netloom/util/loginscript.h"

// One external server a device is reached through.
struct NETLOOM_API ExternalServerInfo {
    std::string ExternalServerId;
    std::string ExternalServerTechId;

    bool operator==(const ExternalServerInfo& o) const {
        return ExternalServerId == o.ExternalServerId && ExternalServerTechId == o.ExternalServerTechId;
    }
    bool operator!=(const ExternalServerInfo& o) const { return !(*this == o); }
};

// A second SNMP identity a device may carry beside its own.
class NETLOOM_API CustomizeSnmpInfo {
public:
    const std::string& getManageIpAddr() const { return manageIp; }
    void setManageIp(const std::string& v) { manageIp = v; }
    int getSnmpVersion() const { return snmpVersion; }
    void setSnmpVersion(int v) { snmpVersion = v; }
    int getSNMPPort() const { return snmpPort; }
    void setSNMPPort(int v) { snmpPort = v; }
    const std::string& getSnmpRO() const { return snmpRO; }
    void setSnmpRO(const std::string& v) { snmpRO = v; }
    const std::string& getSnmpRW() const { return snmpRW; }
    void setSnmpRW(const std::string& v) { snmpRW = v; }
    const QLIX_Snmpv3& getSnmpV3() const { return snmpV3; }
    void setSnmpV3(const QLIX_Snmpv3& v) { snmpV3 = v; }
    int getLiveStatus() const { return liveStatus; }
    void setLiveStatus(int v) { liveStatus = v; }

    bool operator==(const CustomizeSnmpInfo& o) const;
    bool operator!=(const CustomizeSnmpInfo& o) const { return !(*this == o); }

private:
    std::string manageIp;
    int snmpVersion = 0;  // no version chosen yet
    int snmpPort = 161;
    std::string snmpRO;
    std::string snmpRW;
    QLIX_Snmpv3 snmpV3;
    int liveStatus = -1;
};

class NETLOOM_API DeviceSetting {
public:
    // ---- state and derived answers
    bool isValid() const { return !hostName.empty(); }
    bool isModified() const { return modified; }
    void setModify(bool v) { modified = v; }
    bool getNeedSave() const { return needSave; }
    void setNeedSave(bool v) { needSave = v; }
    int getCurVersion() const { return version; }
    bool getStateFlag() const { return stateFlag; }
    void setStateFlag(bool v);
    bool isApplianceUsed() const { return !applianceID.empty(); }
    bool isExternalServerUsed() const { return !externalServers.empty(); }
    const std::string& getRealHostName() const { return liveHostName.empty() ? hostName : liveHostName; }
    // 1 telnet, 2 SSH, 0 neither, from the two low bits of the access method.
    int getTelnetWay() const;
    void setTelnetWay(int way);
    int getBackendBandwidth(const char* interfaceName) const;
    const std::string& getSnmpROForLiveAccess() const { return snmpRO.empty() ? snmpRW : snmpRO; }
    // The SNMP identity to use: the customised one unless `useOwn`.
    void GetSnmpInfo(QLIX_SnmpRoInfo& out, bool useOwn) const;
    const std::string& GetSuitableSNMPMngIp(bool useOwn) const;

    void Clear();
    void Reset() { stateFlag = false; }
    // Copies everything but the parent device, the extension data and the
    // operator, and leaves the target unmodified.
    void CopyData(DeviceSetting* target) const;

    // ---- login scripts
    void clearModeLoginScript();
    bool doesEnableLoginScript() const { return loginScripts.IsUseLoginScript(); }
    void setEnableLoginScript(bool enable);
    LoginScript getLoginScript(int mode) const;
    const ModeLoginScript& getModeLoginScript() const { return loginScripts; }
    void setModeLoginScript(const ModeLoginScript& script);
    // The usual user-then-enable script; `userLine`, when given, is sent at
    // the user prompt before the session goes on.
    void defModeLoginScript(const char* userLine);

    // ---- text form
    void generateString(std::ostringstream& out, bool omitCredentials) const;
    // `keepCredentials`: a record written without credentials does not
    // wipe the user name and passwords this object already holds.
    bool loadFromString(std::istream& in, bool keepCredentials);
    bool loadVersion410(std::istream& in);
    std::string getDeviceModeString() const;
    std::string SaveExternalServerToString() const;
    void LoadExternalServerFromString(const std::string& text);

    // Kept for callers of the file interface; there is no file form.
    bool save(const std::string& path, bool flag) const;
    bool saveFile(const std::string& path, bool a, bool b) const;
    bool load(const std::string& path, bool a, bool b);

    // ---- fields
    int getAccessMethod() const { return accessMethod; }
    void setAccessMethod(int v);
    int getAccessAbility() const { return accessAbility; }
    void setAccessAbility(int v);
    int getLiveStatus() const { return liveStatus; }
    void setLiveStatus(int v);
    const std::string& getTelnetProxyID() const { return telnetProxyID; }
    void setTelnetProxyID(const std::string& v);
    int getSnmpVersion() const { return snmpVersion; }
    void setSnmpVersion(int v);
    const std::string& getApplianceID() const { return applianceID; }
    void setApplianceID(const std::string& v);
    const std::vector<ExternalServerInfo>& getExternalServers() const { return externalServers; }
    void setExternalServers(const std::vector<ExternalServerInfo>& v);
    int getMonitorMethod() const { return monitorMethod; }
    void setMonitorMethod(int v);
    int getTelnetPort() const { return telnetPort; }
    void setTelnetPort(int v);
    int getSSHPort() const { return sshPort; }
    void setSSHPort(int v);
    int getType() const { return type; }
    void setType(int v);
    int getSNMPPort() const { return snmpPort; }
    void setSNMPPort(int v);
    const std::string& getHostName() const { return hostName; }
    void setHostName(const std::string& v);
    const std::string& getLiveHostName() const { return liveHostName; }
    void setLiveHostName(const std::string& v);
    const std::string& getUserName() const { return userName; }
    void setUserName(const std::string& v);
    const std::string& getPassWord() const { return passWord; }
    void setPassWord(const std::string& v);
    const std::string& getEnablePW() const { return enablePW; }
    void setEnablePW(const std::string& v);
    const std::string& getLoginPrompt() const { return loginPrompt; }
    void setLoginPrompt(const std::string& v);
    const std::string& getPasswordPrompt() const { return passwordPrompt; }
    void setPasswordPrompt(const std::string& v);
    const std::string& getEnPasswordPrompt() const { return enPasswordPrompt; }
    void setEnPasswordPrompt(const std::string& v);
    const std::string& getPrivilegePrompt() const { return privilegePrompt; }
    void setPrivilegePrompt(const std::string& v);
    const std::string& getNonPrivilegePrompt() const { return nonPrivilegePrompt; }
    void setNonPrivilegePrompt(const std::string& v);
    const std::string& getSnmpRO() const { return snmpRO; }
    void setSnmpRO(const std::string& v);
    std::string getSnmpRW() const { return snmpRW; }
    void setSnmpRW(const std::string& v);
    bool getLocked() const { return locked; }
    void setLocked(bool v);
    const std::string& getManageIpAddr() const { return manageIpAddr; }
    // Text up to a "/" is stored; the mask behind it is dropped. A writable
    // buffer is cut at the "/" in place, as callers of old expect.
    void setManageIp(char* text);
    void setManageIp(const char* text);
    int getCheck() const { return check; }
    void setCheck(int v);
    const QLIX_Snmpv3& getSnmpV3() const { return snmpV3; }
    void setSnmpV3(const QLIX_Snmpv3& v);
    // The driver, or a null guid while none valid is set.
    TW128Guid GetDriverId() const { return driverId.IsValid() ? driverId : TW128Guid(); }
    void SetDriverId(const TW128Guid& v);
    const TW128Guid& GetDeviceId() const { return deviceId; }
    void SetDeviceId(const TW128Guid& v);
    const std::string& getEnableUserName() const { return enableUserName; }
    void setEnableUserName(const std::string& v);
    const std::string& getEnUserNamePrompt() const { return enUserNamePrompt; }
    void setEnUserNamePrompt(const std::string& v);
    const std::string& getCpuExpression() const { return cpuExpression; }
    void setCpuExpression(const std::string& v);
    const std::string& getMemoryExpression() const { return memoryExpression; }
    void setMemoryExpression(const std::string& v);
    const std::string& GetSSHKeyID() const { return sshKeyID; }
    void SetSSHKeyID(const std::string& v);
    const TW128Guid& GetParentDevice() const { return parentDevice; }
    void SetParentDevice(const TW128Guid& v);
    const kxJson::Value& GetExtension() const { return extension; }
    void SetExtension(const kxJson::Value& v);
    int getCliForceTimeOut() const { return cliForceTimeOut; }
    void setCliForceTimeOut(int v);
    std::string GetOpUser() const { return opUser; }
    void SetOpUser(const std::string& v) { opUser = v; }
    std::string GetOpUserId() const { return opUserId; }
    void SetOpUserId(const std::string& v) { opUserId = v; }
    bool getIsUseCustomizeSnmp() const { return isUseCustomizeSnmp; }
    void setIsUseCustomizeSnmp(bool v);
    const CustomizeSnmpInfo& getCustomizeSnmpInfo() const { return customizeSnmpInfo; }
    void setCustomizeSnmpInfo(const CustomizeSnmpInfo& v);

private:
    friend struct DeviceSettingAccess;  // white-box tests

    void setPassWordsPrompt(const std::string& text);
    std::string getRealString(const std::string& text) const;
    static void GetSnmpInfo(QLIX_SnmpRoInfo& out, int version, int port, const std::string& community,
                            const QLIX_Snmpv3& v3);
    template <class T>
    void assign(T& field, const T& value);

    int accessMethod = 0;
    int accessAbility = 0;
    int liveStatus = -1;
    std::string telnetProxyID;
    int snmpVersion = 1;
    std::string applianceID;
    std::vector<ExternalServerInfo> externalServers;
    int monitorMethod = 0;
    int telnetPort = 23;
    int sshPort = 22;
    int type = 0;
    int snmpPort = 161;
    std::string hostName;
    std::string liveHostName;
    std::string userName;
    std::string passWord;
    std::string enablePW;
    std::string loginPrompt = "Username:";
    std::string passwordPrompt = "Password:";
    std::string enPasswordPrompt = "Password:";
    std::string privilegePrompt = "#";
    std::string nonPrivilegePrompt = ">";
    std::string snmpRO;
    std::string snmpRW;
    bool locked = false;
    std::string manageIpAddr;
    bool modified = false;
    int version = 420;
    bool stateFlag = false;
    bool needSave = true;
    int check = 0;
    ModeLoginScript loginScripts;
    QLIX_Snmpv3 snmpV3;
    TW128Guid driverId;
    TW128Guid deviceId;
    std::string enableUserName;
    std::string enUserNamePrompt;
    std::string cpuExpression;
    std::string memoryExpression;
    std::string sshKeyID;
    TW128Guid parentDevice;
    kxJson::Value extension;
    int cliForceTimeOut = -1;
    std::string opUser;
    std::string opUserId;
    bool isUseCustomizeSnmp = false;
    CustomizeSnmpInfo customizeSnmpInfo;
};
