// CConfFileSecurity: the rule files, their parser and the hiding passes.
#include "netloom/conffilesecurity.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>

#include "netloom/util/kxjson.h"
#include "netloom/util/stlhelper.h"
#include "netloom/util/twfilesystem.h"

namespace netloom::detail {
namespace {

const char kOptionFile[] = "ConfigFileHiding.ini";
const char kRuleFile[] = "fix_ConfigFileHiding.ini";

std::string ConfPath(const char* name) { return TWFileSystem::GetSystemConfFolder() + name; }

bool ReadWhole(const std::string& path, std::string& out) {
    std::ifstream in(StlHelper::AToW(path), std::ios::binary);
    if (!in) return false;
    out = StlHelper::fromStram(in);
    return true;
}

bool WriteWhole(const std::string& path, const std::string& text) {
    std::ofstream out(StlHelper::AToW(path), std::ios::binary | std::ios::trunc);
    if (!out) return false;
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    return true;
}

// Whether an occurrence of `prefix` ends exactly at `pos`, judged the way a
// backward search from pos - 1 sees it: the last occurrence that starts at
// or before pos - 1 decides. Only starts in [pos - len, pos - 1] can end at
// or beyond pos, so the window is all that needs looking at, which keeps a
// keyword far from any marker from costing a scan back to the text's start.
bool MarkerEndsAt(const std::string& text, const std::string& prefix, size_t pos) {
    const size_t len = prefix.size();
    const size_t first = pos >= len ? pos - len : 0;
    for (size_t s = pos; s-- > first;) {
        if (text.compare(s, len, prefix) == 0) return s + len == pos;
    }
    return false;
}

// Finds the occurrences of one keyword left to right, as repeated
// std::string::find would. glibc's memmem skips through text far faster
// than a scan for the keyword's first letter, which in configuration text
// is a common letter more often than not. The window grows from a few
// kilobytes while nothing is found, so a search never looks much further
// than its answer: checked builds, which look at every byte a call is
// given, stay linear too.
class KeywordFinder {
public:
    KeywordFinder(const std::string& text, const std::string& what) : m_text(text), m_what(what) {}

    size_t From(size_t from) const {
        const size_t n = m_text.size(), k = m_what.size();
        size_t window = std::max<size_t>(4096, 2 * k);
        while (from < n && n - from >= k) {
            const size_t len = std::min(window, n - from);
            if (const void* hit = ::memmem(m_text.data() + from, len, m_what.data(), k))
                return static_cast<size_t>(static_cast<const char*>(hit) - m_text.data());
            if (len == n - from) break;
            from += len - (k - 1);  // a match across the edge lies wholly in the next window
            window *= 2;
        }
        return std::string::npos;
    }

private:
    const std::string& m_text;
    const std::string& m_what;
};

}  // namespace
}  // namespace netloom::detail

using namespace netloom::detail;

CConfFileSecurity& CConfFileSecurity::operator=(const CConfFileSecurity& other) {
    if (this != &other) {
        rules.clear();
        rules = other.rules;
        isRemoveSecureity = other.isRemoveSecureity;
    }
    return *this;
}

CConfFileSecurity& CConfFileSecurity::operator=(CConfFileSecurity&& other) {
    if (this != &other) {
        rules.clear();
        rules = std::move(other.rules);
        isRemoveSecureity = other.isRemoveSecureity;
    }
    return *this;
}

bool CConfFileSecurity::LoadFromJson(const kxJson::Value& json) {
    isRemoveSecureity = json["option"].asInt() == 1;
    rules.clear();
    return ParseFileString(json["content"].asString());
}

std::string CConfFileSecurity::ModifyConfigFileSecurity(const std::string& text, int type) {
    return isRemoveSecureity ? ModifyConfigFileContext1(text, type) : text;
}

bool CConfFileSecurity::ParseFileString(const std::string& text) {
    rules.clear();
    std::vector<std::string> lines;
    StlHelper::splitStringToLines(text, lines);
    for (const std::string& line : lines) {
        std::vector<std::string> fields;
        StlHelper::splitString(line, "|", fields);
        if (fields.size() < 3) continue;
        std::vector<std::string> types, items;
        StlHelper::splitString(fields[0], ",", types);
        StlHelper::splitString(fields[2], ",", items);
        for (const std::string& t : types) {
            const int type = std::atoi(t.c_str());
            if (type < 0) continue;
            SecuritySetting& rule = rules[type];
            rule.type = type;
            rule.prefix = fields[1];
            rule.items = items;
        }
    }
    return true;
}

std::string CConfFileSecurity::ModifyConfigFileContext1(const std::string& text, int type) {
    if (text.empty()) return text;
    const auto found = rules.find(type);
    if (found == rules.end() || found->second.prefix.empty()) return text;
    const SecuritySetting& rule = found->second;

    // Position of each hit and the index of its keyword; the replacement is
    // built when written.
    std::map<size_t, size_t> hits;
    for (size_t index = 0; index < rule.items.size(); ++index) {
        const std::string& item = rule.items[index];
        if (item.empty()) continue;
        // The nearest non-blank character before `pos` is looked for
        // backwards, but never past the previous occurrence looked at: what
        // lies before that is remembered. So a keyword costs one sweep of
        // the text even over long runs of blanks.
        size_t floor = 0;                          // text[0, floor) is settled
        size_t floorSolid = std::string::npos;     // last non-blank in it
        const KeywordFinder finder(text, item);
        for (size_t pos = finder.From(0); pos != std::string::npos; pos = finder.From(pos + item.size())) {
            bool hit = pos == 0;
            if (!hit && !MarkerEndsAt(text, rule.prefix, pos)) {
                size_t solid = std::string::npos;
                for (size_t p = pos; p > floor;) {
                    --p;
                    if (text[p] != ' ' && text[p] != '\t') {
                        solid = p;
                        break;
                    }
                }
                if (solid == std::string::npos) solid = floorSolid;
                floor = pos;
                floorSolid = solid;
                hit = solid == std::string::npos || text[solid] == '\n';
            }
            if (hit) hits.emplace(pos, index);
        }
    }
    if (hits.empty()) return text;

    std::string out;
    out.reserve(text.size() + text.size() / 8);
    size_t cursor = 0;
    for (const auto& [pos, index] : hits) {
        // When a hit lies on a line an earlier hit already consumed, the
        // length wraps and the copy runs to the end of the text; stored
        // outputs depend on that, so it stays.
        out.append(text, cursor, pos - cursor);
        out += rule.prefix;
        out += rule.items[index];
        out += " ********\n";
        const size_t eol = text.find('\n', pos + 1);
        if (eol == std::string::npos) return out;
        cursor = eol + 1;
    }
    out.append(text, cursor, std::string::npos);
    return out;
}

std::string CConfFileSecurity::ModifyConfigFileContext2(const std::string& text, int type) {
    const auto found = rules.find(type);
    if (found == rules.end()) return text;
    std::vector<std::string> lines;
    StlHelper::splitStringToLines(text, lines);
    std::string out;
    out.reserve(text.size() + lines.size());
    for (const std::string& line : lines) {
        out += ReplaceItem(line, found->second);
        out += '\n';
    }
    return out;
}

std::string CConfFileSecurity::ReplaceItem(const std::string& line, SecuritySetting& rule) {
    for (const std::string& item : rule.items) {
        if (line.find(item) != std::string::npos) return rule.prefix + item + " *******";
    }
    return line;
}

std::string CConfFileSecurity::ReplaceItem(const std::string& line, int type) {
    const auto found = rules.find(type);
    if (found == rules.end()) return line;
    for (const std::string& item : found->second.items) {
        if (line.find(item) != std::string::npos) return found->second.prefix + item + " ********";
    }
    return line;
}

bool CConfFileSecurity::ModifyConfigFile(const std::string& path, int type) {
    if (path.empty()) return false;
    std::string content;
    if (!ReadWhole(path, content)) return false;
    const std::string text = isRemoveSecureity ? ModifyConfigFileContext1(content, type) : content;
    return WriteWhole(path, text);
}

bool CConfFileSecurity::LoadFile() {
    std::string text;
    GetFileString(text);
    return ParseFileString(text);
}

bool CConfFileSecurity::SaveFile() { return false; }

bool CConfFileSecurity::FormFileString(std::string&) { return true; }

bool CConfFileSecurity::GetFileString(std::string& out) {
    std::string option, setting;
    GetOptionFileString(option);
    GetSettingFileString(setting);
    out = option + "\r\n" + setting;
    return true;
}

bool CConfFileSecurity::GetOptionFileString(std::string& out) {
    out = "Option=0\n";
    std::string content;
    if (!ReadWhole(ConfPath(kOptionFile), content)) return true;
    std::vector<std::string> lines;
    StlHelper::splitStringToLines(content, lines);
    if (!lines.empty()) out = lines.front();
    return true;
}

bool CConfFileSecurity::GetSettingFileString(std::string& out) {
    out.clear();
    return ReadWhole(ConfPath(kRuleFile), out);
}

bool CConfFileSecurity::SetOptionFileString(const std::string& text) {
    return WriteWhole(ConfPath(kOptionFile), text);
}

bool CConfFileSecurity::SetSettingFileString(const std::string& text) {
    return WriteWhole(ConfPath(kRuleFile), text);
}

bool CConfFileSecurity::SetIsRemoveSecureity(bool flag) {
    isRemoveSecureity = flag;
    return SetOptionFileString(flag ? "Option=1\n" : "Option=0\n");
}

bool CConfFileSecurity::GetIsRemoveSecureity(bool& out) {
    out = isRemoveSecureity;
    return true;
}
