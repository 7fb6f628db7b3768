// Secret hiding in configuration text: the rule parser, the one-pass
// rewriter (checked against a line-by-line model on generated configs), the
// line-wise variant and the two rule files.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "common/testenv.h"
#include "netloom/conffilesecurity.h"
#include "netloom/util/kxjson.h"
#include "netloom/util/twfilesystem.h"

// Reaches the file side, which the class keeps private.
struct ConfFileSecurityAccess {
    static bool ModifyConfigFile(CConfFileSecurity& s, const std::string& path, int type) {
        return s.ModifyConfigFile(path, type);
    }
    static bool LoadFile(CConfFileSecurity& s) { return s.LoadFile(); }
    static bool GetFileString(CConfFileSecurity& s, std::string& out) { return s.GetFileString(out); }
    static bool GetOptionFileString(CConfFileSecurity& s, std::string& out) {
        return s.GetOptionFileString(out);
    }
    static bool SetIsRemoveSecureity(CConfFileSecurity& s, bool flag) { return s.SetIsRemoveSecureity(flag); }
    static bool GetIsRemoveSecureity(CConfFileSecurity& s) {
        bool out = false;
        s.GetIsRemoveSecureity(out);
        return out;
    }
    static bool SaveFile(CConfFileSecurity& s) { return s.SaveFile(); }
};

namespace {

using netloom_test::ReadFile;
using netloom_test::WriteFile;

CConfFileSecurity WithRules(const std::string& rules) {
    CConfFileSecurity s;
    s.ParseFileString(rules);
    return s;
}

// ------------------------------------------------------------ rule parsing

TEST(ConfHidingRules, LineShapes) {
    CConfFileSecurity s = WithRules(
        "Option=0\r\n"
        "7|!|only two\n"  // three fields: a rule, despite the look
        "1|!\n"           // two fields: skipped
        "-1,3|# |secret,password|ignored|fields\n"
        "x|@|community\n"  // not a number: type 0
        "4|!|a\n"
        "4|%|b,c\n");       // replaces the earlier rule for 4, no merge
    // Each rule as "key: type|prefix|items,".
    std::string all;
    for (const auto& [key, rule] : s.Rules()) {
        all += std::to_string(key) + ": " + std::to_string(rule.type) + "|" + rule.prefix + "|";
        for (const std::string& item : rule.items) all += item + ",";
        all += "\n";
    }
    EXPECT_EQ(all, "0: 0|@|community,\n3: 3|# |secret,password,\n4: 4|%|b,c,\n7: 7|!|only two,\n");

    // A new text replaces all rules.
    s.ParseFileString("9|!|k\n");
    EXPECT_EQ(s.Rules().size(), 1u);
    EXPECT_TRUE(s.ParseFileString(""));
    EXPECT_TRUE(s.Rules().empty());
}

// ------------------------------------------------------- one-pass rewrite

TEST(ConfHidingPass, OnlyLineStartsAreHidden) {
    CConfFileSecurity s = WithRules("1|!|secret\n2||secret\n");
    const std::tuple<int, const char*, const char*> cases[] = {
        {1, "", ""},
        {5, "secret x\n", "secret x\n"},  // no rule
        {2, "secret x\n", "secret x\n"},  // empty marker
        {1, "no secrets here\n", "no secrets here\n"},
        {1, "description secret\n", "description secret\n"},
        {1, "secret abc\nnext\n", "!secret ********\nnext\n"},
        {1, "  secret abc", "  !secret ********\n"},
        {1, "a\n \t secret x y\nb", "a\n \t !secret ********\nb"},
        // Only LF opens a line; a CR in between does not count as a blank.
        {1, "a\rsecret x\n", "a\rsecret x\n"},
        {1, "a\n\rsecret x\n", "a\n\rsecret x\n"},
        // A CRLF line loses its CR along with the rest of the hidden line.
        {1, "secret x\r\nz\r\n", "!secret ********\nz\r\n"},
        // Every line, not just the first.
        {1, "secret 1\nx\n secret 2\n", "!secret ********\nx\n !secret ********\n"}};
    for (const auto& [type, in, want] : cases) EXPECT_EQ(s.ModifyConfigFileContext1(in, type), want) << in;
}

TEST(ConfHidingPass, OverlappingKeywords) {
    // At one position the first listed keyword wins.
    CConfFileSecurity a = WithRules("1|!|key,key-string\n");
    CConfFileSecurity b = WithRules("1|!|key-string,key\n");
    EXPECT_EQ(a.ModifyConfigFileContext1(" key-string 7 X\n", 1), " !key ********\n");
    EXPECT_EQ(b.ModifyConfigFileContext1(" key-string 7 X\n", 1), " !key-string ********\n");
    // " b" and "b" both open the line " b 1": the second hit lies before the
    // cursor, and the rest of the text is written again before it.
    CConfFileSecurity s = WithRules("1|!| b,b\n");
    EXPECT_EQ(s.ModifyConfigFileContext1(" b 1\nz\n", 1), "! b ********\nz\n!b ********\nz\n");
    // With no line end behind the second hit the output stops there.
    EXPECT_EQ(s.ModifyConfigFileContext1(" b 1", 1), "! b ********\n");
}

// A line-by-line model of the rewrite for keywords that do not begin with a
// blank or tab, on text whose lines end in LF.
std::string ModelHide(const std::string& text, const SecuritySetting& rule) {
    std::string out;
    size_t start = 0;
    while (start < text.size()) {
        size_t eol = text.find('\n', start);
        const bool last = eol == std::string::npos;
        const std::string line = text.substr(start, last ? std::string::npos : eol - start);
        const size_t lead = line.find_first_not_of(" \t");
        std::string hidden;
        if (lead != std::string::npos) {
            for (const std::string& kw : rule.items) {
                if (!kw.empty() && line.compare(lead, kw.size(), kw) == 0) {
                    hidden = line.substr(0, lead) + rule.prefix + kw + " ********";
                    break;
                }
            }
        }
        if (!hidden.empty())
            out += hidden + "\n";
        else
            out += line + (last ? "" : "\n");
        if (last) break;
        start = eol + 1;
    }
    return out;
}

std::string RulesFile() { return ReadFile(netloom_test::SourcePath("resources/fix_ConfigFileHiding.ini")); }

// Random configuration text: secret lines for the rule's keywords with
// random indentation, ordinary lines, and keywords in mid-line.
std::string GenerateConfig(const SecuritySetting& rule, size_t lines, std::mt19937& rng) {
    static const char* const plain[] = {"interface GigabitEthernet0/1", "description uplink secret",
                                        "ip address 10.0.0.1 255.255.255.0", "!", "router ospf 1",
                                        " network 10.0.0.0 0.0.0.255 area 0", "no shutdown", ""};
    std::string out;
    for (size_t i = 0; i < lines; ++i) {
        const unsigned pick = rng() % 10;
        const std::string indent(rng() % 3, rng() % 2 ? ' ' : '\t');
        if (pick < 4) {
            const std::string& kw = rule.items[rng() % rule.items.size()];
            out += indent + kw + " 7 S3cr3t" + std::to_string(i);
        } else if (pick < 5) {
            out += indent + "description " + rule.items[rng() % rule.items.size()] + " K" + std::to_string(i);
        } else {
            out += indent + plain[rng() % (sizeof plain / sizeof *plain)];
        }
        out += '\n';
    }
    return out;
}

TEST(ConfHidingPass, ShippedRulesAgreeWithLineModelAndAreIdempotent) {
    CConfFileSecurity s = WithRules(RulesFile());
    ASSERT_GE(s.Rules().size(), 10u);
    std::mt19937 rng(20261123);
    for (const auto& [type, rule] : s.Rules()) {
        ASSERT_FALSE(rule.items.empty()) << type;
        const std::string text = GenerateConfig(rule, 400, rng);
        const std::string once = s.ModifyConfigFileContext1(text, type);
        EXPECT_EQ(once, ModelHide(text, rule)) << "type " << type;
        EXPECT_EQ(s.ModifyConfigFileContext1(once, type), once) << "type " << type;
        EXPECT_EQ(once.find("S3cr3t"), std::string::npos) << "type " << type;
    }
}

TEST(ConfHidingPass, KeywordsAcrossSearchWindowEdges) {
    // The search reads the text in growing windows; a keyword may straddle
    // any edge between them.
    CConfFileSecurity s = WithRules("1|!|secret\n");
    for (size_t at : {4090u, 4093u, 4096u, 12280u, 12283u, 12286u, 28660u, 28670u}) {
        const std::string text = std::string(at - 1, 'a') + "\nsecret 1\n";
        EXPECT_EQ(s.ModifyConfigFileContext1(text, 1), std::string(at - 1, 'a') + "\n!secret ********\n") << at;
        std::string many;
        for (int i = 0; i < 3; ++i) many += std::string(at - 1, 'b') + "\nsecret x\n";
        const std::string once = s.ModifyConfigFileContext1(many, 1);
        EXPECT_EQ(once.find("secret x"), std::string::npos) << at;
    }
}

// ------------------------------------------------------- line-wise variant

TEST(ConfHidingLines, ReplaceItemAndVariant) {
    CConfFileSecurity s = WithRules("1|!|secret,password\n");
    SecuritySetting rule = s.Rules().at(1);
    // Anywhere in the line, whole line replaced; seven asterisks with a rule.
    EXPECT_EQ(s.ReplaceItem("description password x", rule), "!password *******");
    EXPECT_EQ(s.ReplaceItem("secret password", rule), "!secret *******");
    EXPECT_EQ(s.ReplaceItem("nothing", rule), "nothing");
    // Eight with a type; unknown type unchanged.
    EXPECT_EQ(s.ReplaceItem("a secret", 1), "!secret ********");
    EXPECT_EQ(s.ReplaceItem("a secret", 2), "a secret");

    EXPECT_EQ(s.ModifyConfigFileContext2("x\r\n y password z\nsecret", 1), "x\n!password *******\n!secret *******\n");
    EXPECT_EQ(s.ModifyConfigFileContext2("x password\n", 9), "x password\n");
}

TEST(ConfHidingRules, LoadFromJsonSetsSwitchAndRules) {
    CConfFileSecurity s = WithRules("9|!|old\n");
    // Option 1 switches hiding on, any other value off; a missing content leaves no rules.
    const std::tuple<const char*, size_t, const char*> cases[] = {
        {R"({"option":0,"content":"1|!|secret\n2|#|key"})", 2, "secret x\n"},
        {R"({"option":1,"content":"1|!|secret"})", 1, "!secret ********\n"},
        {R"({"option":2})", 0, "secret x\n"}};
    for (const auto& [text, rules, want] : cases) {
        kxJson::Value json;
        ASSERT_TRUE(kxJson::Reader().parse(text, json));
        s.LoadFromJson(json);
        EXPECT_EQ(s.Rules().size(), rules) << text;
        EXPECT_EQ(s.ModifyConfigFileSecurity("secret x\n", 1), want) << text;
    }
    s.LoadFromJson(kxJson::Value());
    EXPECT_TRUE(s.Rules().empty());
}

// ------------------------------------------------------------- the files

TEST(ConfHidingFiles, SwitchAndRulesFromConfFolder) {
    const std::string conf = TWFileSystem::GetSystemConfFolder();
    CConfFileSecurity s;
    std::string option;
    ConfFileSecurityAccess::GetOptionFileString(s, option);
    EXPECT_EQ(option, "Option=0\n");  // no file yet

    WriteFile(conf + "ConfigFileHiding.ini", "Option=0\r\nOption=1\n");
    WriteFile(conf + "fix_ConfigFileHiding.ini", "1|!|secret\n");
    std::string whole;
    EXPECT_TRUE(ConfFileSecurityAccess::GetFileString(s, whole));
    EXPECT_EQ(whole, "Option=0\r\n1|!|secret\n");

    // The option line makes no rule and does not switch hiding off.
    EXPECT_TRUE(ConfFileSecurityAccess::LoadFile(s));
    EXPECT_EQ(s.Rules().size(), 1u);
    EXPECT_TRUE(ConfFileSecurityAccess::GetIsRemoveSecureity(s));
    EXPECT_EQ(s.ModifyConfigFileSecurity("secret a\n", 1), "!secret ********\n");

    EXPECT_TRUE(ConfFileSecurityAccess::SetIsRemoveSecureity(s, false));
    EXPECT_EQ(ReadFile(conf + "ConfigFileHiding.ini"), "Option=0\n");
    EXPECT_EQ(s.ModifyConfigFileSecurity("secret a\n", 1), "secret a\n");
    EXPECT_TRUE(ConfFileSecurityAccess::SetIsRemoveSecureity(s, true));
    EXPECT_EQ(ReadFile(conf + "ConfigFileHiding.ini"), "Option=1\n");
    EXPECT_FALSE(ConfFileSecurityAccess::SaveFile(s));
}

TEST(ConfHidingFiles, ModifyConfigFileInPlace) {
    const std::string dir = netloom_test::MakeTempDir("cfg");
    const std::string path = WriteFile(dir + "run.cfg", "hostname r1\n secret 5 $1$abc\n");
    CConfFileSecurity s = WithRules("1|!|secret\n");

    EXPECT_FALSE(ConfFileSecurityAccess::ModifyConfigFile(s, "", 1));
    EXPECT_FALSE(ConfFileSecurityAccess::ModifyConfigFile(s, dir + "missing.cfg", 1));

    ConfFileSecurityAccess::SetIsRemoveSecureity(s, false);
    EXPECT_TRUE(ConfFileSecurityAccess::ModifyConfigFile(s, path, 1));
    EXPECT_EQ(ReadFile(path), "hostname r1\n secret 5 $1$abc\n");

    ConfFileSecurityAccess::SetIsRemoveSecureity(s, true);
    EXPECT_TRUE(ConfFileSecurityAccess::ModifyConfigFile(s, path, 1));
    EXPECT_EQ(ReadFile(path), "hostname r1\n !secret ********\n");
}

}  // namespace
