// Route codes and ages as devices print them: the four-character code of a
// route type, its long name for the user interface, and the age forms
// ("1w2d", "3d04h", "01:02:03") that route listings carry.
#include <cstdio>
#include <cstring>

#include "netloom/routingtable.h"

namespace netloom::detail {

struct AlgName {
    TW_RoutingAlgorithm alg;
    const char* code;
    const char* full;
};

constexpr AlgName kAlgNames[] = {
    {RT_ALG_RIP, "R   ", "RIP (R)"},
    {RT_ALG_IGRP, "I   ", "IGRP (I)"},
    {RT_ALG_STATIC, "S   ", "static (S)"},
    {RT_ALG_CONNECTED, "C   ", "connected (C)"},
    {RT_ALG_EIGRP, "D   ", "EIGRP (D)"},
    {RT_ALG_EIGRP_EX, "D EX", "EIGRP external (EX)"},
    {RT_ALG_OSPF_N2, "O N2", "OSPF NSSA external type 2 (N2)"},
    {RT_ALG_OSPF_E2, "O E2", "OSPF external type 2 (E2)"},
    {RT_ALG_OSPF_N1, "O N1", "OSPF NSSA external type (N1)"},
    {RT_ALG_OSPF_E1, "O E1", "OSPF external type 1 (E1)"},
    {RT_ALG_OSPF_IA, "O IA", "OSPF inter area (IA)"},
    {RT_ALG_OSPF, "O   ", "OSPF (O)"},
    {RT_ALG_BGP, "B   ", "BGP (B)"},
    {RT_ALG_ISIS, "i   ", "IS-IS (i)"},
    {RT_ALG_ISIS_L1, "i L1", "IS-IS level-1 (L1)"},
    {RT_ALG_ISIS_L2, "i L2", "IS-IS level-2 (L2)"},
    {RT_ALG_ODR, "o   ", "ODR (o)"},
    {RT_ALG_FIXUP, "F UP", "Fixup"},
};

const AlgName* FindAlg(TW_RoutingAlgorithm alg) {
    for (const AlgName& n : kAlgNames)
        if (n.alg == alg) return &n;
    return nullptr;
}

// Route code letter and suffix to type; a suffix not listed takes the
// letter's plain type.
struct CodeRule {
    char first;
    const char* suffix;  // nullptr: any suffix
    TW_RoutingAlgorithm alg;
};

constexpr CodeRule kCodeRules[] = {
    {'B', nullptr, RT_ALG_BGP},        {'C', nullptr, RT_ALG_CONNECTED},  {'D', "EX", RT_ALG_EIGRP_EX},
    {'D', nullptr, RT_ALG_EIGRP},      {'F', "UP", RT_ALG_FIXUP},         {'F', nullptr, RT_ALG_UNKNOWN},
    {'I', nullptr, RT_ALG_IGRP},       {'O', "IA", RT_ALG_OSPF_IA},       {'O', "E1", RT_ALG_OSPF_E1},
    {'O', "E2", RT_ALG_OSPF_E2},       {'O', "N1", RT_ALG_OSPF_N1},       {'O', "N2", RT_ALG_OSPF_N2},
    {'O', nullptr, RT_ALG_OSPF},       {'R', nullptr, RT_ALG_RIP},        {'S', nullptr, RT_ALG_STATIC},
    {'i', "L1", RT_ALG_ISIS_L1},       {'i', "L2", RT_ALG_ISIS_L2},       {'i', nullptr, RT_ALG_ISIS},
    {'o', nullptr, RT_ALG_ODR},
};

}  // namespace netloom::detail

using namespace netloom::detail;

std::string RoutingTable::GetAlgorithmNameByType(TW_RoutingAlgorithm alg) {
    const AlgName* n = FindAlg(alg);
    return n != nullptr ? n->code : "-   ";
}

std::string RoutingTable::GetAlgorithmNameByType(TW_RoutingAlgorithm alg, bool star) {
    std::string code = GetAlgorithmNameByType(alg);
    if (star) code[1] = '*';
    return code;
}

std::string RoutingTable::GetFullAlgNameByType(TW_RoutingAlgorithm alg) {
    const AlgName* n = FindAlg(alg);
    return n != nullptr ? n->full : "";
}

TW_RoutingAlgorithm RoutingTable::GetAlgByFullName(const char* name) {
    if (name == nullptr) return RT_ALG_UNKNOWN;
    for (const AlgName& n : kAlgNames)
        if (std::strcmp(n.full, name) == 0) return n.alg;
    return RT_ALG_UNKNOWN;
}

TW_RoutingAlgorithm RoutingTable::GetAlgorithmTypeByString(const char* code, bool& star) {
    star = false;
    if (code == nullptr || code[0] == '\0') return RT_ALG_UNKNOWN;
    const size_t len = std::strlen(code);
    star = len >= 2 && code[1] == '*';
    const std::string suffix = len > 2 ? std::string(code + 2) : std::string();
    for (const CodeRule& rule : kCodeRules) {
        if (rule.first != code[0]) continue;
        if (rule.suffix == nullptr || suffix == rule.suffix) return rule.alg;
    }
    return RT_ALG_UNKNOWN;
}

std::string RoutingTable::FormatSecondToTime(unsigned int seconds) {
    if (seconds == 0 || seconds == 0xFFFFFFFFu) return "";
    const unsigned int weeks = seconds / 604800, days = (seconds / 86400) % 7;
    const unsigned int hours = seconds / 3600 - 24 * (seconds / 86400);
    char buf[64];
    if (weeks >= 1)
        std::snprintf(buf, sizeof(buf), "%uw%ud%02uh", weeks, days, hours);
    else if (days != 0)
        std::snprintf(buf, sizeof(buf), "%ud%02uh", days, hours);
    else
        std::snprintf(buf, sizeof(buf), "%02u:%02u:%02u", hours, (seconds / 60) % 60, seconds % 60);
    return buf;
}

unsigned int RoutingTable::FormatTimeToSecond(const char* text) {
    if (text == nullptr) return 0;
    int a = 0, b = 0, c = 0;
    // Unsigned arithmetic: a hostile age wraps instead of overflowing.
    if (std::strchr(text, 'w') != nullptr) {
        std::sscanf(text, "%dw%dd", &a, &b);
        return (unsigned(a) * 7u + unsigned(b)) * 86400u;
    }
    if (std::strchr(text, 'd') != nullptr) {
        std::sscanf(text, "%dd%dh", &a, &b);
        return (unsigned(a) * 24u + unsigned(b)) * 3600u;
    }
    if (std::strchr(text, ':') != nullptr) {
        std::sscanf(text, "%d:%d:%d", &a, &b, &c);
        return (unsigned(a) * 60u + unsigned(b)) * 60u + unsigned(c);
    }
    return 0;
}
