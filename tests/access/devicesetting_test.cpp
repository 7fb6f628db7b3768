// Device setting record: the 420 text form column by column, the reader's
// version and column rules (including its two odd id columns), credentials
// across an omitted write, the external-server list, setters and the
// modified flag, and the login-script block that rides behind the record.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "netloom/devicesetting.h"
#include "netloom/util/aes.h"
#include "netloom/util/csvparser.h"

struct DeviceSettingAccess {
    static std::string RealString(const DeviceSetting& d, const std::string& t) { return d.getRealString(t); }
    static void PassWordsPrompt(DeviceSetting& d, const std::string& t) { d.setPassWordsPrompt(t); }
};

namespace {

DeviceSetting Sample() {
    DeviceSetting d;
    d.setAccessMethod(5);
    d.setAccessAbility(6);
    d.setLiveStatus(7);
    d.setTelnetProxyID("65");
    d.setSnmpVersion(3);
    d.setApplianceID("appliance-x");
    d.setLiveHostName("live,\"name\"");
    d.setUserName("admin");
    d.setPassWord("p,a\"ss\nword");
    d.setEnablePW("en");
    d.setSnmpRO("public");
    d.setSnmpRW("private");
    d.setLoginPrompt("login:");
    d.setPasswordPrompt("pw:");
    d.setEnPasswordPrompt("enpw:");
    d.setPrivilegePrompt("#>");
    d.setNonPrivilegePrompt(">>");
    d.setManageIp("10.1.2.3");
    d.setTelnetPort(2323);
    d.setMonitorMethod(9);
    d.setSSHPort(2222);
    d.setHostName("core-1");
    d.setType(1036);
    d.setSNMPPort(1161);
    QLIX_Snmpv3 v3;
    v3.authMode = 3;
    v3.authPro = 2;
    v3.encryptPro = 4;
    v3.userName = "v3user";
    v3.authPassword = "authpw";
    v3.encryptPassword = "privpw";
    v3.contextName = "ctx";
    d.setSnmpV3(v3);
    d.SetDriverId(TW128Guid::FromString("0f1e2d3c-4b5a-6978-8796-a5b4c3d2e1f0"));
    d.setEnableUserName("enuser");
    d.setEnUserNamePrompt("User:");
    d.setCpuExpression("cpu()");
    d.setMemoryExpression("mem()");
    d.SetSSHKeyID("key-1");
    d.setExternalServers({{"srv", "tech"}});
    d.defModeLoginScript("terminal length 0");
    return d;
}

std::string Text(const DeviceSetting& d, bool omit = false) {
    std::ostringstream out;
    d.generateString(out, omit);
    return out.str();
}

// Splits a generated record into its header, its CSV fields and the rest.
struct Parsed {
    std::string header;
    std::vector<std::string> cols;
    std::string rest;
};
Parsed Parse(const std::string& text) {
    Parsed p;
    std::istringstream in(text);
    std::getline(in, p.header);
    CSVLineParser line("");
    line.ReadFromStream(in);
    p.cols = line.Fields();
    std::ostringstream rest;
    rest << in.rdbuf();
    p.rest = rest.str();
    return p;
}

std::string WithColumns(std::vector<std::string> cols, const std::string& header = "version,420") {
    CSVLineParser line("");
    for (size_t i = 0; i < cols.size(); ++i) line.SetAt(static_cast<int>(i), cols[i]);
    std::ostringstream out;
    out << header << "\n";
    line.WriteToStream(out);
    return out.str();
}

bool Load(DeviceSetting& d, const std::string& text, bool keep = false) {
    std::istringstream in(text);
    return d.loadFromString(in, keep);
}

// ----------------------------------------------------------- the 420 form

TEST(DeviceSettingText, ColumnsInOrder) {
    const DeviceSetting d = Sample();
    const Parsed p = Parse(Text(d));
    EXPECT_EQ(p.header, "version,420");
    ASSERT_EQ(p.cols.size(), 45u);
    const std::pair<int, std::string> plain[] = {
        {0, "0"},        {1, "5"},      {2, "6"},     {3, "7"},           {4, "65"},
        {5, "3"},        {6, "appliance-x"}, {7, "live,\"name\""}, {8, ""}, {9, ""},
        {10, ""},        {21, "10.1.2.3"}, {22, "2323"}, {23, ""},         {24, ""},
        {25, "9"},       {26, "2222"},  {27, ""},     {29, "1036"},       {30, ""},
        {31, "1161"},    {32, "3"},     {33, "2"},    {34, "4"},          {38, "0f1e2d3c-4b5a-6978-8796-a5b4c3d2e1f0"},
        {39, "enuser"},  {40, "User:"}, {41, "cpu()"}, {42, "mem()"},     {43, "key-1"},
        {44, "srv&tech"}};
    for (const auto& [col, want] : plain) EXPECT_EQ(p.cols[col], want) << "column " << col;
    const std::pair<int, std::string> sealed[] = {
        {11, "admin"}, {12, "p,a\"ss\nword"}, {13, "en"},   {14, "public"}, {15, "private"}, {16, "login:"},
        {17, "pw:"},   {18, "enpw:"},         {19, "#>"},   {20, ">>"},     {28, "core-1"},  {35, "v3user"},
        {36, "authpw"}, {37, "privpw"}};
    for (const auto& [col, want] : sealed) {
        EXPECT_NE(p.cols[col], want) << "column " << col << " is in clear";
        EXPECT_EQ(TWAes::Decrypt(p.cols[col]), want) << "column " << col;
    }
    EXPECT_EQ(p.rest, d.getDeviceModeString());
    // Omitted credentials leave their cells empty, not sealed empties.
    const Parsed q = Parse(Text(d, true));
    EXPECT_EQ(q.cols[11], "");
    EXPECT_EQ(q.cols[12], "");
    EXPECT_EQ(q.cols[13], "");
    EXPECT_FALSE(q.cols[14].empty());
}

TEST(DeviceSettingText, RoundTripKeepsEveryStoredField) {
    const DeviceSetting d = Sample();
    DeviceSetting r;
    ASSERT_TRUE(Load(r, Text(d)));
    EXPECT_FALSE(r.isModified());
    EXPECT_EQ(r.getCurVersion(), 420);
    EXPECT_EQ(r.getAccessMethod(), 5);
    EXPECT_EQ(r.getAccessAbility(), 6);
    EXPECT_EQ(r.getLiveStatus(), 7);
    EXPECT_EQ(r.getSnmpVersion(), 3);
    EXPECT_EQ(r.getLiveHostName(), d.getLiveHostName());
    EXPECT_EQ(r.getUserName(), "admin");
    EXPECT_EQ(r.getPassWord(), d.getPassWord());
    EXPECT_EQ(r.getEnablePW(), "en");
    EXPECT_EQ(r.getSnmpRO(), "public");
    EXPECT_EQ(r.getSnmpRW(), "private");
    EXPECT_EQ(r.getLoginPrompt(), "login:");
    EXPECT_EQ(r.getPasswordPrompt(), "pw:");
    EXPECT_EQ(r.getEnPasswordPrompt(), "enpw:");
    EXPECT_EQ(r.getPrivilegePrompt(), "#>");
    EXPECT_EQ(r.getNonPrivilegePrompt(), ">>");
    EXPECT_EQ(r.getManageIpAddr(), "10.1.2.3");
    EXPECT_EQ(r.getTelnetPort(), 2323);
    EXPECT_EQ(r.getMonitorMethod(), 9);
    EXPECT_EQ(r.getSSHPort(), 2222);
    EXPECT_EQ(r.getHostName(), "core-1");
    EXPECT_EQ(r.getType(), 1036);
    EXPECT_EQ(r.getSNMPPort(), 1161);
    QLIX_Snmpv3 v3 = d.getSnmpV3();
    v3.contextName.clear();  // not part of the text form
    EXPECT_EQ(r.getSnmpV3(), v3);
    EXPECT_EQ(r.GetDriverId(), d.GetDriverId());
    EXPECT_EQ(r.getEnableUserName(), "enuser");
    EXPECT_EQ(r.getEnUserNamePrompt(), "User:");
    EXPECT_EQ(r.getCpuExpression(), "cpu()");
    EXPECT_EQ(r.getMemoryExpression(), "mem()");
    EXPECT_EQ(r.GetSSHKeyID(), "key-1");
    EXPECT_EQ(r.getExternalServers(), d.getExternalServers());
    EXPECT_EQ(r.getModeLoginScript(), d.getModeLoginScript());
}

TEST(DeviceSettingText, IdColumnsReadAsOneCharacter) {
    DeviceSetting d = Sample();
    DeviceSetting r;
    ASSERT_TRUE(Load(r, Text(d)));
    EXPECT_EQ(r.getTelnetProxyID(), "A");  // "65" read as the number 65
    ASSERT_EQ(r.getApplianceID().size(), 1u);
    EXPECT_EQ(r.getApplianceID()[0], '\0');  // not a number: one NUL byte...
    EXPECT_TRUE(r.isApplianceUsed());        // ...which still counts as set

    d.setTelnetProxyID("321");  // only the low byte survives: 321 - 256 = 65
    d.setApplianceID("");
    ASSERT_TRUE(Load(r, Text(d)));
    EXPECT_EQ(r.getTelnetProxyID(), "A");
    EXPECT_EQ(r.getApplianceID(), std::string(1, '\0'));
}

TEST(DeviceSettingText, HeaderVersions) {
    const std::string record = Text(Sample());
    const std::string body = record.substr(record.find('\n') + 1);

    DeviceSetting a;
    std::istringstream noHeader("hostname,foo\n" + body);
    EXPECT_FALSE(a.loadFromString(noHeader, false));
    EXPECT_EQ(a.getCurVersion(), 100);
    std::string next;
    std::getline(noHeader, next);
    EXPECT_EQ(next, body.substr(0, body.find('\n')));  // the first line is gone

    DeviceSetting b;
    b.setHostName("before");
    b.setModify(true);
    EXPECT_FALSE(Load(b, "version,320\n" + body));
    EXPECT_EQ(b.getCurVersion(), 320);
    EXPECT_EQ(b.getHostName(), "before");
    EXPECT_FALSE(b.isModified());

    DeviceSetting c;
    EXPECT_TRUE(Load(c, "version,999\n" + body));
    EXPECT_EQ(c.getCurVersion(), 420);
    EXPECT_EQ(c.getHostName(), "core-1");

    DeviceSetting e;
    EXPECT_TRUE(Load(e, "version,410\n" + body));
    EXPECT_EQ(e.getCurVersion(), 410);
    EXPECT_FALSE(Load(e, "version,1.01\n" + body));
    EXPECT_EQ(e.getCurVersion(), 101);
    // Once an old form was read, an unknown word keeps the old number.
    EXPECT_FALSE(Load(e, "version,abc\n" + body));
    EXPECT_EQ(e.getCurVersion(), 101);
    // A header longer than the reader's buffer fails the read, not the process.
    DeviceSetting f;
    EXPECT_FALSE(Load(f, "version," + std::string(5000, '4') + "\n" + body));
}

TEST(DeviceSettingText, ColumnCounts) {
    const Parsed p = Parse(Text(Sample()));
    DeviceSetting d;
    d.setExternalServers({{"keep", "me"}});
    d.SetSSHKeyID("old-key");
    std::vector<std::string> cols43(p.cols.begin(), p.cols.begin() + 43);
    ASSERT_TRUE(Load(d, WithColumns(cols43) + p.rest));
    EXPECT_EQ(d.GetSSHKeyID(), "");
    ASSERT_EQ(d.getExternalServers().size(), 1u);
    EXPECT_EQ(d.getExternalServers()[0].ExternalServerId, "keep");
    EXPECT_EQ(d.getHostName(), "core-1");

    DeviceSetting e;
    std::vector<std::string> cols42(p.cols.begin(), p.cols.begin() + 42);
    EXPECT_FALSE(Load(e, WithColumns(cols42) + p.rest));
    EXPECT_TRUE(e.isModified());
    EXPECT_FALSE(Load(e, "version,420\n"));  // no CSV line at all

    std::vector<std::string> cols = p.cols;
    cols[31] = "0";
    cols[38] = "";
    DeviceSetting g;
    g.SetDriverId(TW128Guid::NewGuid());
    ASSERT_TRUE(Load(g, WithColumns(cols) + p.rest));
    EXPECT_EQ(g.getSNMPPort(), 161);
    EXPECT_TRUE(g.GetDriverId().IsNull());
    // A damaged cipher cell reads as empty, the rest as usual.
    cols[28] = cols[28].substr(4);
    ASSERT_TRUE(Load(g, WithColumns(cols) + p.rest));
    EXPECT_EQ(g.getHostName(), "");
    EXPECT_EQ(g.getUserName(), "admin");
}

TEST(DeviceSettingText, CredentialsAcrossAnOmittedWrite) {
    DeviceSetting d = Sample();
    const std::string omitted = Text(d, true);
    ASSERT_TRUE(Load(d, omitted, true));
    EXPECT_EQ(d.getUserName(), "admin");
    EXPECT_EQ(d.getPassWord(), "p,a\"ss\nword");
    EXPECT_EQ(d.getEnablePW(), "en");

    ASSERT_TRUE(Load(d, omitted, false));
    EXPECT_EQ(d.getUserName(), "");
    EXPECT_EQ(d.getPassWord(), "");
    EXPECT_EQ(d.getEnablePW(), "");

    // Keeping needs something to keep: an object without credentials takes
    // those of the stream, even when asked to keep.
    DeviceSetting fresh;
    ASSERT_TRUE(Load(fresh, Text(Sample()), true));
    EXPECT_EQ(fresh.getUserName(), "admin");
    // One kept field brings back all three.
    DeviceSetting partial;
    partial.setEnablePW("mine");
    ASSERT_TRUE(Load(partial, Text(Sample()), true));
    EXPECT_EQ(partial.getUserName(), "");
    EXPECT_EQ(partial.getEnablePW(), "mine");
}

// --------------------------------------------------------- external servers

TEST(DeviceSettingServers, StoredShape) {
    DeviceSetting d;
    d.setExternalServers({{"a", "b"}});
    EXPECT_EQ(d.SaveExternalServerToString(), "a&b");
    d.setExternalServers({{"a", "b"}, {"c", "d"}, {"e", "f"}});
    EXPECT_EQ(d.SaveExternalServerToString(), "a&bc&d&&e&f&&");
    // Three read back as the last one only; two as none.
    DeviceSetting r;
    r.LoadExternalServerFromString(d.SaveExternalServerToString());
    EXPECT_EQ(r.getExternalServers(), (std::vector<ExternalServerInfo>{{"e", "f"}}));
    d.setExternalServers({{"a", "b"}, {"c", "d"}});
    r.LoadExternalServerFromString(d.SaveExternalServerToString());
    EXPECT_TRUE(r.getExternalServers().empty());

    r.setExternalServers({{"x", "y"}});
    r.LoadExternalServerFromString("");  // no piece: list untouched
    EXPECT_EQ(r.getExternalServers().size(), 1u);
    r.LoadExternalServerFromString("p&q&&r&s&&t&&u&v&w");
    EXPECT_EQ(r.getExternalServers(), (std::vector<ExternalServerInfo>{{"p", "q"}, {"r", "s"}}));
}

// ------------------------------------------------------ setters and flags

TEST(DeviceSettingFields, SettersMarkOnlyRealChanges) {
    DeviceSetting d;
    d.setHostName("");
    d.setTelnetPort(23);
    d.setLoginPrompt("Username:");
    d.setSnmpV3(QLIX_Snmpv3());
    d.SetDriverId(TW128Guid());
    d.setExternalServers({});
    d.setEnableLoginScript(false);
    EXPECT_FALSE(d.isModified());
    d.SetOpUser("op");
    d.SetOpUserId("42");
    EXPECT_FALSE(d.isModified());
    EXPECT_EQ(d.GetOpUser(), "op");

    d.setHostName("r1");
    EXPECT_TRUE(d.isModified());
    d.setModify(false);
    d.setHostName("r1");
    EXPECT_FALSE(d.isModified());

    d.setExternalServers({{"a", "1"}, {"b", "2"}});
    d.setModify(false);
    d.setExternalServers({{"b", "2"}, {"a", "1"}});  // same set
    EXPECT_FALSE(d.isModified());
    d.setExternalServers({{"b", "2"}, {"a", "9"}});
    EXPECT_TRUE(d.isModified());

    d.setModify(false);
    d.setModeLoginScript(d.getModeLoginScript());  // always marks
    EXPECT_TRUE(d.isModified());
    d.setModify(false);
    d.setNeedSave(false);
    EXPECT_FALSE(d.isModified());
}

TEST(DeviceSettingFields, TelnetWay) {
    DeviceSetting d;
    EXPECT_EQ(d.getTelnetWay(), 0);
    d.setTelnetWay(3);
    d.setTelnetWay(0);
    EXPECT_EQ(d.getAccessMethod(), 0);
    EXPECT_FALSE(d.isModified());
    d.setTelnetWay(2);
    EXPECT_EQ(d.getAccessMethod(), 2);
    EXPECT_EQ(d.getTelnetWay(), 2);
    EXPECT_TRUE(d.isModified());
    d.setAccessMethod(2 | 4 | 1);
    d.setModify(false);
    EXPECT_EQ(d.getTelnetWay(), 1);
    d.setTelnetWay(1);  // bit 1 already set: clears bit 2 without marking
    EXPECT_EQ(d.getAccessMethod(), 1 | 4);
    EXPECT_FALSE(d.isModified());
    d.setAccessMethod(4);
    EXPECT_EQ(d.getTelnetWay(), 0);
}

TEST(DeviceSettingFields, ManageIpDropsTheMask) {
    DeviceSetting d;
    char buffer[] = "10.0.0.1/24";
    d.setManageIp(buffer);
    EXPECT_EQ(d.getManageIpAddr(), "10.0.0.1");
    EXPECT_STREQ(buffer, "10.0.0.1");  // the caller's buffer is cut too
    d.setManageIp("192.168.1.1/255.255.255.0");
    EXPECT_EQ(d.getManageIpAddr(), "192.168.1.1");
    d.setModify(false);
    d.setManageIp("192.168.1.1");
    EXPECT_FALSE(d.isModified());
    d.setManageIp(static_cast<const char*>(nullptr));
    EXPECT_EQ(d.getManageIpAddr(), "192.168.1.1");
}

TEST(DeviceSettingFields, PromptsAndMacros) {
    DeviceSetting d;
    DeviceSettingAccess::PassWordsPrompt(d, "Pass:&&&Enable pass:&&&x");
    EXPECT_EQ(d.getPasswordPrompt(), "Pass:");
    EXPECT_EQ(d.getEnPasswordPrompt(), "Enable pass:&&&x");
    DeviceSettingAccess::PassWordsPrompt(d, "Only:");
    EXPECT_EQ(d.getPasswordPrompt(), "Only:");
    EXPECT_EQ(d.getEnPasswordPrompt(), "Enable pass:&&&x");

    d.setLoginPrompt("login:");
    d.setPrivilegePrompt("#");
    EXPECT_EQ(DeviceSettingAccess::RealString(d, "$(login prompt) $(password prompt)"), "login: $(password prompt)");
    EXPECT_EQ(DeviceSettingAccess::RealString(d, "$(password prompt)$(privilege prompt)$(privilege prompt)"),
              "$(password prompt)##");
    EXPECT_EQ(DeviceSettingAccess::RealString(d, "$(password prompt)!"), "Only:!");
    EXPECT_EQ(DeviceSettingAccess::RealString(d, "$(non-privilege prompt)"), ">");
    EXPECT_EQ(DeviceSettingAccess::RealString(d, "plain"), "plain");
}

TEST(DeviceSettingFields, SnmpIdentity) {
    DeviceSetting d;
    d.setSnmpVersion(2);
    d.setSNMPPort(1161);
    d.setSnmpRO("ro");
    d.setManageIp("10.0.0.1");
    QLIX_Snmpv3 v3;
    v3.userName = "u3";
    CustomizeSnmpInfo custom;
    custom.setSnmpVersion(3);
    custom.setSNMPPort(2161);
    custom.setSnmpRO("custom-ro");
    custom.setSnmpV3(v3);
    custom.setManageIp("10.9.9.9");
    d.setCustomizeSnmpInfo(custom);

    QLIX_SnmpRoInfo info;
    info.alias = "stale";
    d.GetSnmpInfo(info, false);  // customised data not switched on yet
    EXPECT_EQ(info.snmpVersion, 2);
    EXPECT_EQ(info.snmpPort, 1161);
    EXPECT_EQ(info.roString, "ro");
    EXPECT_EQ(info.alias, "");
    EXPECT_EQ(d.GetSuitableSNMPMngIp(false), "10.0.0.1");

    d.setIsUseCustomizeSnmp(true);
    d.GetSnmpInfo(info, false);
    EXPECT_EQ(info.snmpVersion, 3);
    EXPECT_EQ(info.snmpPort, 2161);
    EXPECT_EQ(info.roString, "");
    EXPECT_EQ(info.v3.userName, "u3");
    EXPECT_EQ(d.GetSuitableSNMPMngIp(false), "10.9.9.9");
    EXPECT_EQ(d.GetSuitableSNMPMngIp(true), "10.0.0.1");
    d.GetSnmpInfo(info, true);
    EXPECT_EQ(info.roString, "ro");

    d.setSnmpVersion(7);  // unknown version: neither community nor v3
    d.setSnmpV3(v3);
    d.GetSnmpInfo(info, true);
    EXPECT_EQ(info.roString, "");
    EXPECT_EQ(info.v3.userName, "");

    EXPECT_EQ(d.getSnmpROForLiveAccess(), "ro");
    d.setSnmpRO("");
    d.setSnmpRW("rw");
    EXPECT_EQ(d.getSnmpROForLiveAccess(), "rw");
    EXPECT_NE(custom, CustomizeSnmpInfo());
}

TEST(DeviceSettingFields, SmallAnswers) {
    DeviceSetting d;
    EXPECT_FALSE(d.isValid());
    EXPECT_FALSE(d.save("x", true));
    d.setHostName("h");
    EXPECT_TRUE(d.isValid());
    EXPECT_TRUE(d.save("x", true));
    d.setNeedSave(false);
    EXPECT_FALSE(d.save("x", true));
    EXPECT_FALSE(d.saveFile("x", true, true));
    EXPECT_FALSE(d.load("x", true, true));
    EXPECT_EQ(d.getRealHostName(), "h");
    d.setLiveHostName("live");
    EXPECT_EQ(d.getRealHostName(), "live");
    EXPECT_EQ(d.getBackendBandwidth("Gi0/1"), -1);
    EXPECT_FALSE(d.isExternalServerUsed());
    EXPECT_FALSE(d.isApplianceUsed());
}

// --------------------------------------------------- scripts and copying

TEST(DeviceSettingScripts, DefaultScript) {
    DeviceSetting d;
    d.defModeLoginScript("term len 0");
    EXPECT_TRUE(d.isModified());
    EXPECT_TRUE(d.doesEnableLoginScript());
    const std::vector<ExpectItem> user = {{"username:", "$(username)", 0},
                                          {"password:", "$(password)", 0},
                                          {"$(hostname)>", "term len 0", 0},
                                          {"$(hostname)>", "", 0}};
    const std::vector<ExpectItem> enable = {
        {"$(hostname)>", "enable", 1}, {"password:", "$(privilege password)", 1}, {"$(hostname)#", "", 1}};
    EXPECT_EQ(d.getLoginScript(0).GetItems(), user);
    EXPECT_EQ(d.getLoginScript(1).GetItems(), enable);
    EXPECT_TRUE(d.getLoginScript(2).IsEmpty());

    d.defModeLoginScript("");
    EXPECT_EQ(d.getLoginScript(0).GetCount(), 3u);
    d.defModeLoginScript(nullptr);
    EXPECT_EQ(d.getLoginScript(0).GetCount(), 3u);

    d.setStateFlag(true);
    d.clearModeLoginScript();
    EXPECT_TRUE(d.getStateFlag());
    EXPECT_FALSE(d.doesEnableLoginScript());
    EXPECT_TRUE(d.getLoginScript(0).IsEmpty());
    d.defModeLoginScript(nullptr);
    d.setModify(false);
    d.Clear();
    EXPECT_FALSE(d.getStateFlag());
    EXPECT_FALSE(d.doesEnableLoginScript());
    EXPECT_TRUE(d.isModified());
    d.setStateFlag(true);
    d.setModify(false);
    d.Reset();
    EXPECT_FALSE(d.getStateFlag());
    EXPECT_FALSE(d.isModified());
}

TEST(DeviceSettingScripts, CopyDataLeavesFourFields) {
    DeviceSetting src = Sample();
    const TW128Guid srcParent = TW128Guid::NewGuid();
    src.SetParentDevice(srcParent);
    src.SetExtension(kxJson::Value("src-ext"));
    src.SetOpUser("src-op");
    src.SetOpUserId("src-id");
    src.setLocked(true);
    src.setCheck(3);
    src.setCliForceTimeOut(30);
    src.setStateFlag(true);

    DeviceSetting dst;
    const TW128Guid dstParent = TW128Guid::NewGuid();
    dst.SetParentDevice(dstParent);
    dst.SetExtension(kxJson::Value(7));
    dst.SetOpUser("dst-op");
    dst.SetOpUserId("dst-id");
    src.CopyData(&dst);
    EXPECT_FALSE(dst.isModified());
    EXPECT_EQ(dst.GetParentDevice(), dstParent);
    EXPECT_EQ(dst.GetExtension(), kxJson::Value(7));
    EXPECT_EQ(dst.GetOpUser(), "dst-op");
    EXPECT_EQ(dst.GetOpUserId(), "dst-id");
    EXPECT_EQ(dst.getHostName(), "core-1");
    EXPECT_EQ(dst.getPassWord(), src.getPassWord());
    EXPECT_TRUE(dst.getLocked());
    EXPECT_EQ(dst.getCheck(), 3);
    EXPECT_EQ(dst.getCliForceTimeOut(), 30);
    EXPECT_TRUE(dst.getStateFlag());
    EXPECT_EQ(dst.getModeLoginScript(), src.getModeLoginScript());
    EXPECT_EQ(dst.getSnmpV3(), src.getSnmpV3());
    src.CopyData(nullptr);
}

// ------------------------------------------------------ login-script block

TEST(LoginScriptBlock, SaveAndLoadShareOneStream) {
    ModeLoginScript script;
    script.AddExpectItem({"user,name:", "a%b\r\nc", 0});
    script.AddExpectItem({"", "", 5});
    script.AddExpectItem({"#", std::string("\x01\x7f\xff", 3), -2});
    script.SetUseLoginScript(true);

    std::ostringstream out;
    out << "before the block\n";
    script.save(out);
    out << "after\n";
    std::istringstream in(out.str());
    std::string line;
    std::getline(in, line);
    ModeLoginScript read;
    ASSERT_TRUE(read.load(in));
    EXPECT_EQ(read, script);
    std::getline(in, line);
    EXPECT_EQ(line, "after");

    // Nothing left: an empty script, switched off.
    std::istringstream empty("");
    ASSERT_TRUE(read.load(empty));
    EXPECT_EQ(read, ModeLoginScript());
}

TEST(LoginScriptBlock, DamagedBlocksChangeNothing) {
    ModeLoginScript script;
    script.AddExpectItem({"a", "b", 0});
    const char* const damaged[] = {
        "LoginScript,1,1,2\nstep,0,a,b\n",       // one step short
        "LoginScript,2,1,0\n",                  // unknown format
        "LoginScript,1,7,0\n",                  // switch not 0 or 1
        "LoginScript,1,1,99999999999\n",        // absurd count
        "LoginScript,1,1,1\nstep,0,a%4,b\n",    // cut escape
        "LoginScript,1,1,1\nstep,0,a,b,c\n",    // extra field
        "LoginScript,1,1,1\nstep,x,a,b\n",      // bad mode
        "garbage\n",
    };
    for (const char* text : damaged) {
        ModeLoginScript s = script;
        std::istringstream in(text);
        EXPECT_FALSE(s.load(in)) << text;
        EXPECT_EQ(s, script) << text;
    }
}

}  // namespace
