// Device setting record: the 420 text form column by column, the reader's
// version and column rules (including its two odd id columns), credentials
// across an omitted write, the external-server list, setters and the
// modified flag, and the login-script block that rides behind the record.
#include <gtest/gtest.h>

#include <iterator>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "netloom/devicesetting.h"
#include "netloom/util/aes.h"
#include "netloom/util/csvparser.h"

namespace {

// Every stored field set, each to a value of its own.
DeviceSetting Sample() {
    DeviceSetting d;
    d.setAccessMethod(5), d.setAccessAbility(6), d.setLiveStatus(7), d.setTelnetProxyID("65");
    d.setSnmpVersion(3), d.setApplianceID("appliance-x"), d.setLiveHostName("live,\"name\"");
    d.setUserName("admin"), d.setPassWord("p,a\"ss\nword"), d.setEnablePW("en");
    d.setSnmpRO("public"), d.setSnmpRW("private"), d.setLoginPrompt("login:"), d.setPasswordPrompt("pw:");
    d.setEnPasswordPrompt("enpw:"), d.setPrivilegePrompt("#>"), d.setNonPrivilegePrompt(">>");
    d.setManageIp("10.1.2.3"), d.setTelnetPort(2323), d.setMonitorMethod(9), d.setSSHPort(2222);
    d.setHostName("core-1"), d.setType(1036), d.setSNMPPort(1161);
    d.setSnmpV3({3, 2, 4, "v3user", "authpw", "privpw", "ctx"});
    d.SetDriverId(TW128Guid::FromString("0f1e2d3c-4b5a-6978-8796-a5b4c3d2e1f0"));
    d.setEnableUserName("enuser"), d.setEnUserNamePrompt("User:"), d.setCpuExpression("cpu()");
    d.setMemoryExpression("mem()"), d.SetSSHKeyID("key-1"), d.setExternalServers({{"srv", "tech"}});
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

const int kSealed[] = {11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 28, 35, 36, 37};

// A record's columns with the sealed ones opened, and the block behind it last.
std::vector<std::string> Opened(const std::string& text) {
    Parsed p = Parse(text);
    for (int c : kSealed)
        if (static_cast<size_t>(c) < p.cols.size()) p.cols[c] = TWAes::Decrypt(p.cols[c]);
    p.cols.push_back(p.rest);
    return p.cols;
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
    const std::string sealed[] = {"admin", "p,a\"ss\nword", "en", "public", "private", "login:", "pw:",
                                  "enpw:", "#>", ">>", "core-1", "v3user", "authpw", "privpw"};
    for (size_t i = 0; i < std::size(kSealed); ++i) {
        EXPECT_NE(p.cols[kSealed[i]], sealed[i]) << "column " << kSealed[i] << " is in clear";
        EXPECT_EQ(TWAes::Decrypt(p.cols[kSealed[i]]), sealed[i]) << "column " << kSealed[i];
    }
    EXPECT_EQ(p.rest, d.getDeviceModeString());
    // Omitted credentials leave their cells empty, not sealed empties.
    const Parsed q = Parse(Text(d, true));
    EXPECT_EQ(q.cols[11] + q.cols[12] + q.cols[13], "");
    EXPECT_FALSE(q.cols[14].empty());
}

TEST(DeviceSettingText, RoundTripAndTheTwoIdColumns) {
    DeviceSetting d = Sample();
    DeviceSetting r;
    ASSERT_TRUE(Load(r, Text(d)));
    EXPECT_FALSE(r.isModified());
    EXPECT_EQ(r.getCurVersion(), 420);
    // Written again, every column reads the same, except the two id columns.
    std::vector<std::string> want = Opened(Text(d)), got = Opened(Text(r));
    ASSERT_EQ(got.size(), want.size());
    for (int c : {4, 6}) got[c] = want[c];
    EXPECT_EQ(got, want);

    // The id columns read as one character: "65" as the number 65...
    EXPECT_EQ(r.getTelnetProxyID(), "A");
    // ...and a non-number as one NUL byte, which still counts as set.
    EXPECT_EQ(r.getApplianceID(), std::string(1, '\0'));
    EXPECT_TRUE(r.isApplianceUsed());
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

    DeviceSetting b;
    b.setHostName("before");
    b.setModify(true);
    EXPECT_FALSE(Load(b, "version,320\n" + body));
    EXPECT_EQ(b.getCurVersion(), 320);
    EXPECT_EQ(b.getHostName(), "before");
    EXPECT_FALSE(b.isModified());

    // In order on one object: once an old form was read, an unknown word keeps the old number.
    const std::tuple<const char*, bool, int> versions[] = {
        {"999", true, 420}, {"410", true, 410}, {"1.01", false, 101}, {"abc", false, 101}};
    DeviceSetting c;
    for (const auto& [word, ok, version] : versions) {
        EXPECT_EQ(Load(c, std::string("version,") + word + "\n" + body), ok) << word;
        EXPECT_EQ(c.getCurVersion(), version) << word;
    }
    EXPECT_EQ(c.getHostName(), "core-1");
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
    EXPECT_EQ(d.getExternalServers(), (std::vector<ExternalServerInfo>{{"keep", "me"}}));
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
    auto creds = [](const DeviceSetting& d) { return d.getUserName() + "|" + d.getPassWord() + "|" + d.getEnablePW(); };
    DeviceSetting d = Sample();
    const std::string omitted = Text(d, true);
    ASSERT_TRUE(Load(d, omitted, true));
    EXPECT_EQ(creds(d), "admin|p,a\"ss\nword|en");
    ASSERT_TRUE(Load(d, omitted, false));
    EXPECT_EQ(creds(d), "||");

    // Keeping needs something to keep: an object without credentials takes
    // those of the stream, even when asked to keep.
    DeviceSetting fresh;
    ASSERT_TRUE(Load(fresh, Text(Sample()), true));
    EXPECT_EQ(creds(fresh), "admin|p,a\"ss\nword|en");
    // One kept field brings back all three.
    DeviceSetting partial;
    partial.setEnablePW("mine");
    ASSERT_TRUE(Load(partial, Text(Sample()), true));
    EXPECT_EQ(creds(partial), "||mine");
}

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

TEST(DeviceSettingFields, SettersMarkOnlyRealChanges) {
    DeviceSetting d;  // setting what is already there, or an operator field, marks nothing
    d.setHostName(""), d.setTelnetPort(23), d.setLoginPrompt("Username:"), d.setSnmpV3(QLIX_Snmpv3());
    d.SetDriverId(TW128Guid()), d.setExternalServers({}), d.setEnableLoginScript(false), d.SetOpUser("op");
    EXPECT_FALSE(d.isModified());

    d.setHostName("r1");
    EXPECT_TRUE(d.isModified());
    d.setExternalServers({{"a", "1"}, {"b", "2"}});
    d.setModify(false);
    d.setExternalServers({{"b", "2"}, {"a", "1"}});  // same set
    EXPECT_FALSE(d.isModified());
    d.setExternalServers({{"b", "2"}, {"a", "9"}});
    EXPECT_TRUE(d.isModified());

    d.setModify(false);
    d.setModeLoginScript(d.getModeLoginScript());  // always marks
    EXPECT_TRUE(d.isModified());

    // The management address drops its mask, in the caller's buffer too.
    char buffer[] = "10.0.0.1/24";
    d.setManageIp(buffer);
    EXPECT_EQ(d.getManageIpAddr(), "10.0.0.1");
    EXPECT_STREQ(buffer, "10.0.0.1");
    d.setManageIp("192.168.1.1/255.255.255.0");
    EXPECT_EQ(d.getManageIpAddr(), "192.168.1.1");
    d.setModify(false);
    d.setManageIp("192.168.1.1");
    EXPECT_FALSE(d.isModified());
    d.setManageIp(static_cast<const char*>(nullptr));
    EXPECT_EQ(d.getManageIpAddr(), "192.168.1.1");
}

TEST(DeviceSettingScripts, DefaultScriptAndClearing) {
    DeviceSetting d;
    d.defModeLoginScript("term len 0");
    EXPECT_TRUE(d.isModified() && d.doesEnableLoginScript());
    const std::vector<ExpectItem> user = {{"username:", "$(username)", 0}, {"password:", "$(password)", 0},
                                          {"$(hostname)>", "term len 0", 0}, {"$(hostname)>", "", 0}};
    const std::vector<ExpectItem> enable = {
        {"$(hostname)>", "enable", 1}, {"password:", "$(privilege password)", 1}, {"$(hostname)#", "", 1}};
    EXPECT_EQ(d.getLoginScript(0).GetItems(), user);
    EXPECT_EQ(d.getLoginScript(1).GetItems(), enable);
    EXPECT_TRUE(d.getLoginScript(2).IsEmpty());
    d.defModeLoginScript(nullptr);
    EXPECT_EQ(d.getLoginScript(0).GetCount(), 3u);

    d.setStateFlag(true);
    d.clearModeLoginScript();  // the script only
    EXPECT_TRUE(d.getStateFlag() && d.getLoginScript(0).IsEmpty());
    EXPECT_FALSE(d.doesEnableLoginScript());
    d.defModeLoginScript(nullptr);
    d.setModify(false);
    d.Clear();
    EXPECT_FALSE(d.getStateFlag() || d.doesEnableLoginScript());
    EXPECT_TRUE(d.isModified());
    d.setStateFlag(true);
    d.setModify(false);
    d.Reset();
    EXPECT_FALSE(d.getStateFlag() || d.isModified());
}

TEST(DeviceSettingScripts, CopyDataLeavesFourFields) {
    DeviceSetting src = Sample();
    src.SetParentDevice(TW128Guid::NewGuid()), src.SetExtension(kxJson::Value("src-ext"));
    src.SetOpUser("src-op"), src.SetOpUserId("src-id");
    src.setLocked(true), src.setCheck(3), src.setCliForceTimeOut(30);
    DeviceSetting dst;
    const TW128Guid dstParent = TW128Guid::NewGuid();
    dst.SetParentDevice(dstParent), dst.SetExtension(kxJson::Value(7)), dst.SetOpUser("dst-op"), dst.SetOpUserId("dst-id");
    src.CopyData(&dst);
    EXPECT_FALSE(dst.isModified());
    EXPECT_EQ(dst.GetParentDevice(), dstParent);
    EXPECT_EQ(dst.GetExtension(), kxJson::Value(7));
    EXPECT_EQ(dst.GetOpUser() + dst.GetOpUserId(), "dst-opdst-id");
    EXPECT_EQ(Opened(Text(dst)), Opened(Text(src)));
    EXPECT_EQ(std::make_tuple(dst.getLocked(), dst.getCheck(), dst.getCliForceTimeOut()), std::make_tuple(true, 3, 30));
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
