// Login scripts: what a CLI session expects to see and what it answers, per
// login mode (0 the user level, 1 the privileged level, and so on). A
// device's record carries one ModeLoginScript and stores it as a small text
// block behind its own line, so the block's reader must stop exactly where
// its writer stopped.
#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "netloom/export.h"

// One step: wait for `expect`, then send `send`. `mode` is the login mode
// the step belongs to.
struct NETLOOM_API ExpectItem {
    ExpectItem() = default;
    ExpectItem(std::string expectText, std::string sendText, int modeOf = 0)
        : expect(std::move(expectText)), send(std::move(sendText)), mode(modeOf) {}

    std::string expect;
    std::string send;
    int mode = 0;

    bool operator==(const ExpectItem& o) const {
        return expect == o.expect && send == o.send && mode == o.mode;
    }
    bool operator!=(const ExpectItem& o) const { return !(*this == o); }
};

// The steps of one mode, in order.
class NETLOOM_API LoginScript {
public:
    void AddItem(const ExpectItem& item) { m_items.push_back(item); }
    const std::vector<ExpectItem>& GetItems() const { return m_items; }
    size_t GetCount() const { return m_items.size(); }
    bool IsEmpty() const { return m_items.empty(); }
    void Clear() { m_items.clear(); }

    bool operator==(const LoginScript& o) const { return m_items == o.m_items; }
    bool operator!=(const LoginScript& o) const { return !(*this == o); }

private:
    std::vector<ExpectItem> m_items;
};

class NETLOOM_API ModeLoginScript {
public:
    // Empties every mode; the on/off switch stays.
    void Clear() { m_scripts.clear(); }
    bool IsUseLoginScript() const { return m_useLoginScript; }
    void SetUseLoginScript(bool use) { m_useLoginScript = use; }

    // Appends a step to the script of its own mode.
    void AddExpectItem(const ExpectItem& item) { m_scripts[item.mode].AddItem(item); }
    // The script of one mode; false (and `out` empty) when the mode has none.
    bool GetLoginScript(int mode, LoginScript& out) const;
    const std::map<int, LoginScript>& GetScripts() const { return m_scripts; }

    // Text block: a header line, then one line per step. `load` reads
    // exactly what `save` wrote, from where the stream stands. At the very
    // end of a stream there is no block, which reads as an empty script
    // switched off. A damaged block gives false and changes nothing.
    void save(std::ostream& out) const;
    bool load(std::istream& in);

    bool operator==(const ModeLoginScript& o) const {
        return m_useLoginScript == o.m_useLoginScript && m_scripts == o.m_scripts;
    }
    bool operator!=(const ModeLoginScript& o) const { return !(*this == o); }

private:
    std::map<int, LoginScript> m_scripts;
    bool m_useLoginScript = false;
};
