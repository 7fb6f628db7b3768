// Randomised agreement between the table's map-based lookups and a plain
// model: a linear scan over every entry for each location of the public
// supernet walk, key equivalence included, then the classful and Distance
// rules applied to the scan's answer.
#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "netloom/routingtable.h"

namespace {

struct Model {
    // In Index order. Held by pointer: an entry copy resets its Index.
    std::vector<std::unique_ptr<RoutingTableEntry>> entries;

    static uint64_t Key(unsigned int a, unsigned int m) { return uint64_t(a) * 0xFFFFFFFFull + m; }

    // The supernet walk, written out independently of the library: the
    // location, then for n from 33 - L to 31 the stored mask with n low bits
    // cleared and the address reduced cumulatively, stopping once the
    // address is 0; 0/0 last. An address of 0 gives 0/0 alone.
    static std::vector<IpLocation> Walk(const IpLocation& location) {
        unsigned int a = location.unmaskedAddress().bitForm();
        const unsigned int m = location.subnetMask().bitForm();
        if (a == 0) return {IpLocation(0u, 0u)};
        std::vector<IpLocation> out{location};
        const int len = m == 0 ? 0 : 32 - __builtin_ctz(m);
        for (int n = 33 - len; n <= 31; ++n) {
            const unsigned int shorter = m & ~((1u << n) - 1);
            a &= shorter;
            out.emplace_back(a, shorter);
            if (a == 0) break;
        }
        out.emplace_back(0u, 0u);
        return out;
    }

    // First location of the walk that any entry's key is equivalent to.
    std::vector<unsigned int> Possible(const IpLocation& location) const {
        for (const IpLocation& probe : Walk(location)) {
            const uint64_t want = Key(probe.unmaskedAddress().bitForm(), probe.subnetMask().bitForm());
            std::vector<unsigned int> hits;
            for (const auto& e : entries)
                if (Key(e->DestIp.bitForm(), e->DestMask.bitForm()) == want) hits.push_back(e->Index);
            if (!hits.empty()) return hits;
        }
        return {};
    }

    const RoutingTableEntry* ByIndex(unsigned int index) const {
        for (const auto& e : entries)
            if (e->Index == index) return e.get();
        return nullptr;
    }

    const RoutingTableEntry* DefaultRoute() const {
        const RoutingTableEntry* chosen = nullptr;
        for (const auto& e : entries)
            if (e->CandidateDefault && e->Alg != RT_ALG_CONNECTED) chosen = e.get();
        return chosen;
    }

    bool KnownMajor(unsigned int network) const {
        for (const auto& e : entries) {
            if (e->DestIp.isNull() || e->DestMask < e->DestIp.classMask()) continue;
            if ((e->DestIp.bitForm() & e->DestIp.classMaskBits()) == network) return true;
        }
        return false;
    }

    std::vector<unsigned int> LookUp(const IpAddress& address, bool classless) const {
        std::vector<unsigned int> found = Possible(IpLocation(address, IpAddress(0xFFFFFFFFu)));
        if (found.empty() && DefaultRoute() != nullptr) found.push_back(DefaultRoute()->Index);
        if (!found.empty() && !classless && KnownMajor(address.networkForm())) {
            const RoutingTableEntry* m = ByIndex(found.front());
            if (m->DestMask < m->DestIp.classMask() || m->DestIp.isNull()) found.clear();
        }
        return found;
    }

    std::vector<unsigned int> Matched(const IpAddress& address) const {
        std::vector<unsigned int> found = LookUp(address, true);
        int best = 1 << 20;
        bool unknown = false;
        for (unsigned int i : found) {
            best = std::min<int>(best, ByIndex(i)->Distance);
            unknown |= ByIndex(i)->Distance == 65535;
        }
        if (unknown) best = 65535;
        std::vector<unsigned int> kept;
        for (unsigned int i : found)
            if (ByIndex(i)->Distance == best) kept.push_back(i);
        return kept;
    }
};

std::vector<unsigned int> Indexes(const std::vector<RoutingTableEntry*>& v) {
    std::vector<unsigned int> out;
    for (auto* e : v) out.push_back(e->Index);
    return out;
}

// Addresses from a narrow space so that probes and prefixes meet often,
// with some fully random ones and the class boundaries represented.
class Generator {
public:
    explicit Generator(unsigned int seed) : m_rng(seed) {}

    unsigned int Address() {
        static const unsigned int firsts[] = {0, 10, 11, 127, 128, 172, 191, 192, 223, 224, 255};
        if (Pick(10) == 0) return m_rng();
        unsigned int a = firsts[Pick(sizeof(firsts) / sizeof(firsts[0]))];
        return (a << 24) | (Pick(4) << 16) | (Pick(4) << 8) | Pick(8);
    }

    unsigned int Mask() {
        switch (Pick(20)) {
            case 0: return 0;
            case 1: return m_rng();  // with holes
            case 2: return 0xFFFFFFFFu;
            default: return IpAddress::getBitMaskByLength(1 + int(Pick(32)));
        }
    }

    RoutingTableEntry Entry() {
        RoutingTableEntry e;
        unsigned int mask = Mask();
        unsigned int addr = Address();
        // Mostly clean network addresses, sometimes with host bits kept.
        e.DestIp = IpAddress(Pick(5) == 0 ? addr : (addr & mask));
        e.DestMask = IpAddress(mask);
        e.NextHop = IpAddress(Address());
        static const unsigned short distances[] = {0, 1, 20, 90, 110, 110, 120, 200, 65535};
        e.Distance = distances[Pick(sizeof(distances) / sizeof(distances[0]))];
        e.Metric = Pick(3);
        e.Alg = Pick(6) == 0 ? RT_ALG_CONNECTED : RT_ALG_OSPF;
        e.CandidateDefault = Pick(12) == 0;
        return e;
    }

    unsigned int Pick(unsigned int n) { return std::uniform_int_distribution<unsigned int>(0, n - 1)(m_rng); }

private:
    std::mt19937 m_rng;
};

}  // namespace

TEST(LookupModel, MapProbesAgreeWithALinearScanOfTheWalk) {
    Generator gen(20240611);
    size_t nonEmpty = 0, probes = 0;
    for (int table = 0; table < 3000; ++table) {
        RoutingTable t("model");
        Model model;
        const unsigned int size = 1 + gen.Pick(table < 100 ? 3 : 60);
        for (unsigned int i = 0; i < size; ++i) {
            RoutingTableEntry e = gen.Entry();
            // Collisions in the key order: (A+1, 0) beside (A, all ones).
            if (i > 0 && gen.Pick(15) == 0) {
                const RoutingTableEntry& prev = *model.entries.back();
                if (prev.DestMask.bitForm() == 0xFFFFFFFFu) {
                    e.DestIp = IpAddress(prev.DestIp.bitForm() + 1);
                    e.DestMask = IpAddress(0u);
                } else if (prev.DestMask.bitForm() == 0 && !prev.DestIp.isNull()) {
                    e.DestIp = IpAddress(prev.DestIp.bitForm() - 1);
                    e.DestMask = IpAddress(0xFFFFFFFFu);
                }
            }
            t.AddRoute(&e);
            model.entries.push_back(std::make_unique<RoutingTableEntry>(e));
            model.entries.back()->Index = i + 1;
        }
        for (int p = 0; p < 40; ++p, ++probes) {
            IpAddress address(gen.Address());
            IpLocation location(gen.Address(), gen.Mask());
            ASSERT_EQ(location.getAllPossibleSupnets(), Model::Walk(location));
            ASSERT_EQ(Indexes(t.GetPossibleEntry(location)), model.Possible(location))
                << "table " << table << " location " << location.textForm();
            const auto classless = model.LookUp(address, true);
            ASSERT_EQ(Indexes(t.LookUp(address, true)), classless) << "table " << table << " " << address.textForm();
            ASSERT_EQ(Indexes(t.LookUp(address, false)), model.LookUp(address, false))
                << "table " << table << " " << address.textForm();
            std::vector<RoutingTableEntry*> out;
            const bool matched = t.GetMatchedRoutingEntry(address, out);
            ASSERT_EQ(matched, !classless.empty());
            ASSERT_EQ(Indexes(out), model.Matched(address));
            nonEmpty += !classless.empty();
        }
        // Rebuilding the network map from the index map changes no answer.
        if (table % 10 == 0) {
            t.GenerateNetworkMap();
            IpAddress address(gen.Address());
            ASSERT_EQ(Indexes(t.LookUp(address, true)), model.LookUp(address, true));
        }
    }
    // The generator must actually exercise hits, not only misses.
    EXPECT_GT(nonEmpty, probes / 4);
    EXPECT_LT(nonEmpty, probes);
}
