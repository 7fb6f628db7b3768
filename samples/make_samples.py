#!/usr/bin/env python3
"""Writes the sample data the README's run command uses.

The listings imitate what routers print for "show ip route" in three mask
notations (prefix length, dotted mask, hexadecimal mask), with every kind of
line the route parser reads: subnetted headers, connected and local routes,
summaries, routes wrapped over two lines, load-balanced continuation lines and
the route codes of every protocol. Addresses come from private and
documentation ranges. Output is deterministic (fixed seed).
"""
import random
import sys
from pathlib import Path

LEGEND = """Codes: L - local, C - connected, S - static, R - RIP, M - mobile, B - BGP
       D - EIGRP, EX - EIGRP external, O - OSPF, IA - OSPF inter area
       N1 - OSPF NSSA external type 1, N2 - OSPF NSSA external type 2
       E1 - OSPF external type 1, E2 - OSPF external type 2
       i - IS-IS, su - IS-IS summary, L1 - IS-IS level-1, L2 - IS-IS level-2
       ia - IS-IS inter area, * - candidate default, U - per-user static route
       o - ODR, P - periodic downloaded static route, H - NHRP, l - LISP
       + - replicated route, % - next hop override
"""

PROTOCOLS = [  # code, distance, metric range
    ("O", 110, (2, 200)), ("O IA", 110, (2, 300)), ("O E2", 110, (20, 20)), ("O E1", 110, (21, 90)),
    ("O N2", 110, (20, 20)), ("O N1", 110, (30, 60)), ("D", 90, (2816, 300000)),
    ("D EX", 170, (2816, 300000)), ("B", 20, (0, 0)), ("R", 120, (1, 15)), ("i L1", 115, (10, 60)),
    ("i L2", 115, (10, 80)), ("S", 1, (0, 0)),
]
INTERFACES = ["GigabitEthernet0/0", "GigabitEthernet0/1", "TenGigabitEthernet1/0/1", "Vlan10", "Vlan20",
              "Port-channel1", "Serial0/0/0"]
NEXT_HOPS = {"GigabitEthernet0/0": "10.0.0.1", "GigabitEthernet0/1": "10.0.0.5",
             "TenGigabitEthernet1/0/1": "10.0.0.9", "Vlan10": "10.10.0.2", "Vlan20": "10.20.0.2",
             "Port-channel1": "10.0.0.13", "Serial0/0/0": "10.0.0.17"}


def age(rng):
    kind = rng.randrange(3)
    if kind == 0:
        return "%02d:%02d:%02d" % (rng.randrange(24), rng.randrange(60), rng.randrange(60))
    if kind == 1:
        return "%dd%02dh" % (rng.randrange(1, 7), rng.randrange(24))
    return "%dw%dd" % (rng.randrange(1, 30), rng.randrange(7))


def mask_len_to_dotted(n):
    m = (0xFFFFFFFF << (32 - n)) & 0xFFFFFFFF if n else 0
    return ".".join(str((m >> s) & 255) for s in (24, 16, 8, 0))


def mask_text(n, notation):
    if notation == "len":
        return "/%d" % n
    if notation == "dotted":
        return " " + mask_len_to_dotted(n)
    m = (0xFFFFFFFF << (32 - n)) & 0xFFFFFFFF if n else 0
    return " 0x%08X" % m


def listing(seed, notation, routes, drop=(), change=()):
    """One device's listing. `drop`/`change` hold route numbers to leave out or alter."""
    rng = random.Random(seed)
    out = [LEGEND, "Gateway of last resort is 10.0.0.1 to network 0.0.0.0", ""]
    out.append("S*    0.0.0.0%s [1/0] via 10.0.0.1" % mask_text(0, notation))
    # Connected and local routes of the device's own interfaces.
    out.append("      10.0.0.0%s is variably subnetted, 14 subnets, 3 masks" % mask_text(8, notation)
               if notation == "len" else "      10.0.0.0%s is subnetted, 14 subnets" % mask_text(30, notation))
    for i, ifname in enumerate(INTERFACES):
        net = "10.0.0.%d" % (i * 4)
        out.append("C        %s%s is directly connected, %s" % (net, mask_text(30, notation), ifname))
        if notation == "len":
            out.append("L        10.0.0.%d/32 is directly connected, %s" % (i * 4 + 2, ifname))
    # A connected route whose interface wrapped onto the next line.
    out.append("C        10.255.255.0%s" % mask_text(24, notation))
    out.append("            is directly connected, Loopback0")
    out.append("S        10.99.0.0%s is directly connected, Null0" % mask_text(16, notation))
    out.append("D        172.16.0.0%s is a summary, 1d02h, Null0" % mask_text(12, notation))
    number = 0
    for block in range(routes // 20):
        first = 20 + block % 200
        second = block // 200
        length = 16
        out.append("      %d.%d.0.0%s is subnetted, 20 subnets" % (first, second, mask_text(length, notation))
                   if notation != "len" else
                   "      %d.%d.0.0/%d is variably subnetted, 20 subnets, 2 masks" % (first, second, length))
        for k in range(20):
            number += 1
            kept = out
            if number in drop:  # draw the same numbers, print nothing: the rest stays the same
                out = []
            code, distance, (lo, hi) = rng.choice(PROTOCOLS)
            metric = rng.randint(lo, hi)
            if number in change:
                metric += 7
            plen = rng.choice([24, 24, 24, 25, 26, 28, 30])
            dest = "%d.%d.%d.%d" % (first, second, k * 12 % 256, 0 if plen <= 24 else rng.choice([0, 64, 128]))
            ifname = rng.choice(INTERFACES)
            hop = NEXT_HOPS[ifname]
            prefix = dest + mask_text(plen, notation)
            code_col = (code + " " * 9)[:9]
            if code == "S":
                out.append("%s%s [%d/%d] via %s" % (code_col, prefix, distance, metric, hop))
                out = kept
                continue
            if code == "B":
                out.append("%s%s [%d/%d] via 203.0.113.%d, %s" % (code_col, prefix, distance, metric,
                                                                  rng.randrange(1, 250), age(rng)))
                out = kept
                continue
            when = age(rng)
            if rng.random() < 0.08:  # too long for one line: the path goes on the next one
                out.append("%s%s" % (code_col, prefix))
                out.append("           [%d/%d] via %s, %s, %s" % (distance, metric, hop, when, ifname))
            else:
                out.append("%s%s [%d/%d] via %s, %s, %s" % (code_col, prefix, distance, metric, hop, when, ifname))
            if rng.random() < 0.1:  # equal-cost second path
                other = rng.choice([i for i in INTERFACES if i != ifname])
                out.append("                     [%d/%d] via %s, %s, %s" % (distance, metric, NEXT_HOPS[other],
                                                                           when, other))
            out = kept
    return "\n".join(out) + "\n"


CONFIG = """!
version 15.2
service timestamps debug datetime msec
service password-encryption
!
hostname edge1
!
enable secret 5 $1$mERr$hx5rVt7rPNoS4wqbXKX7m0
enable password 7 0822455D0A16
!
username admin privilege 15 secret 5 $1$uNiT$9Hx8sYtL2vGv1yYvZ1eSd/
username backup password 7 094F471A1A0A
!
aaa new-model
tacacs-server host 192.0.2.10 key 7 13061E010803
radius-server key 7 045802150C2E
!
interface GigabitEthernet0/0
 description uplink to core1
 ip address 10.0.0.2 255.255.255.252
 ip ospf authentication-key 7 070C285F4D06
 ip ospf message-digest-key 1 md5 7 1511021F0725
!
interface Vlan10
 ip address 10.10.0.1 255.255.255.0
 standby 10 authentication md5 key-string 7 0205095A0F
!
router ospf 1
 area 0 authentication message-digest
 network 10.0.0.0 0.0.0.3 area 0
!
router bgp 65001
 neighbor 203.0.113.1 remote-as 64496
 neighbor 203.0.113.1 password 7 104D000A0618
!
crypto isakmp key Sup3rS3cr3t address 198.51.100.7
!
snmp-server community n3tl00m-ro RO
snmp-server community n3tl00m-rw RW
!
ntp authentication-key 1 md5 0215055500 7
ntp trusted-key 1
!
line vty 0 4
 password 7 00071A150754
 transport input ssh
!
end
"""


def arp_table(seed, drop=(), moved=()):
    """An ARP table in the CSV form: hosts on the device's VLANs and uplinks."""
    rng = random.Random(seed)
    rows = ["version:1.0,hostname:core1", "Interface,IP Address,MAC Address,Vendor"]
    vendors = [("0050.56", "VMware"), ("001b.21", "Intel"), ("3c52.82", "HP"), ("0025.b5", "Cisco")]
    for i in range(120):
        vlan = (10, 20)[i % 2]
        prefix, vendor = vendors[rng.randrange(len(vendors))]
        mac = "%s%02x.%04x" % (prefix, rng.randrange(256), rng.randrange(65536))
        if i in drop:
            continue
        ifname = "Vlan%d" % vlan
        if i in moved:
            mac = "%s%02x.%04x" % (prefix, (i * 7) % 256, (i * 977) % 65536)
        rows.append("%s,10.%d.0.%d,%s,%s" % (ifname, vlan, i // 2 + 10, mac, vendor))
    return "\n".join(rows) + "\n"


def main(folder):
    root = Path(folder)
    (root / "routes").mkdir(parents=True, exist_ok=True)
    (root / "config").mkdir(parents=True, exist_ok=True)
    (root / "routes" / "core1-monday.txt").write_text(listing(7, "len", 300))
    (root / "routes" / "core1-tuesday.txt").write_text(
        listing(7, "len", 300, drop={5, 77, 150}, change={12, 13, 200}))
    (root / "routes" / "branch-dotted.txt").write_text(listing(11, "dotted", 100))
    (root / "routes" / "branch-hexmask.txt").write_text(listing(13, "hex", 100))
    (root / "config" / "edge1.cfg").write_text(CONFIG)
    (root / "arp").mkdir(parents=True, exist_ok=True)
    (root / "arp" / "core1-arp-monday.csv").write_text(arp_table(5))
    (root / "arp" / "core1-arp-tuesday.csv").write_text(arp_table(5, drop={7, 40}, moved={12, 99}))


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else str(Path(__file__).parent))
