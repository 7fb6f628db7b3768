// Rule text and configuration text of any bytes. Input: rules, a NUL byte,
// then the configuration text. Every rule is applied, and for rules that
// cannot hit their own hidden lines a second pass must change nothing.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "netloom/conffilesecurity.h"

namespace {

// Rules under which a second pass can change nothing: no keyword starts
// with a blank or tab (two hits on one line), the marker does not start
// with one either, and no keyword opens a hidden line, marker included.
bool Tame(const SecuritySetting& rule) {
    if (rule.prefix.empty() || rule.prefix[0] == ' ' || rule.prefix[0] == '\t') return false;
    for (const std::string& k : rule.items) {
        if (k.empty()) continue;
        if (k[0] == ' ' || k[0] == '\t') return false;
        for (const std::string& kw : rule.items) {
            if (kw.empty()) continue;
            if ((rule.prefix + kw + " ********").compare(0, k.size(), k) == 0) return false;
        }
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);
    const size_t cut = input.find('\0');
    const std::string rules = input.substr(0, cut);
    const std::string text = cut == std::string::npos ? std::string() : input.substr(cut + 1);

    CConfFileSecurity s;
    s.ParseFileString(rules);
    for (const auto& [type, rule] : s.Rules()) {
        const std::string once = s.ModifyConfigFileContext1(text, type);
        if (Tame(rule) && s.ModifyConfigFileContext1(once, type) != once) std::abort();
        s.ModifyConfigFileContext2(text, type);
    }
    s.ModifyConfigFileContext1(text, -5);
    return 0;
}
