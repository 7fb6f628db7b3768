// Secret hiding in device configuration text. A small rule file names, per
// device type, the keywords that open a secret-bearing line and a marker;
// wherever such a keyword opens a line, the rest of the line is replaced by
// the marker, the keyword and asterisks. Hidden lines keep their keyword so
// the text stays readable, and the marker makes a second pass a no-op.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "netloom/export.h"

namespace kxJson {
class Value;
}

// One device type's rule: the marker and the keywords, in rule-file order.
struct NETLOOM_API SecuritySetting {
    int type = 0;
    std::string prefix;
    std::vector<std::string> items;
};

class NETLOOM_API CConfFileSecurity {
public:
    CConfFileSecurity() = default;
    CConfFileSecurity(const CConfFileSecurity&) = default;
    CConfFileSecurity(CConfFileSecurity&&) = default;
    CConfFileSecurity& operator=(const CConfFileSecurity& other);
    CConfFileSecurity& operator=(CConfFileSecurity&& other);
    ~CConfFileSecurity() = default;

    // Takes the switch from "option" (1 means on) and the rules from
    // "content", which is rule-file text.
    bool LoadFromJson(const kxJson::Value& json);

    // The text with secrets hidden when hiding is on, else the text as is.
    std::string ModifyConfigFileSecurity(const std::string& text, int type);

    // Replaces all rules by those of a rule-file text; lines that are not
    // rules are skipped. Always true.
    bool ParseFileString(const std::string& text);

    // One pass of substring searches per keyword over the whole text; the
    // text is never cut into lines, since configurations can be large.
    std::string ModifyConfigFileContext1(const std::string& text, int type);
    // Line-by-line variant: any line containing a keyword is replaced whole.
    std::string ModifyConfigFileContext2(const std::string& text, int type);

    // Replaces a line that contains a keyword of the rule (seven asterisks).
    std::string ReplaceItem(const std::string& line, SecuritySetting& rule);
    // The same for the rule of a type (eight asterisks).
    std::string ReplaceItem(const std::string& line, int type);

    const std::map<int, SecuritySetting>& Rules() const { return rules; }

private:
    friend struct ConfFileSecurityAccess;  // white-box tests of the file side

    bool ModifyConfigFile(const std::string& path, int type);
    bool LoadFile();
    bool SaveFile();
    bool FormFileString(std::string& out);
    bool GetFileString(std::string& out);
    bool GetOptionFileString(std::string& out);
    bool GetSettingFileString(std::string& out);
    bool SetOptionFileString(const std::string& text);
    bool SetSettingFileString(const std::string& text);
    bool SetIsRemoveSecureity(bool flag);
    bool GetIsRemoveSecureity(bool& out);

    std::map<int, SecuritySetting> rules;
    bool isRemoveSecureity = true;
};
