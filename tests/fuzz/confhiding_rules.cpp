// Rule text and configuration text of any bytes. Input: rules, a NUL byte,
// then the configuration text. Every rule is applied; a keyword that does
// not begin with a blank or tab can never make a second pass change text
// whose marker holds no keyword.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "netloom/conffilesecurity.h"

namespace {

bool Tame(const SecuritySetting& rule) {
    for (const std::string& k : rule.items) {
        if (!k.empty() && (k[0] == ' ' || k[0] == '\t')) return false;
        if (!k.empty() && rule.prefix.find(k) != std::string::npos) return false;
        if (rule.prefix.find('\n') != std::string::npos || rule.prefix.find_first_of(" \t") == 0) return false;
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
