#!/bin/sh
# Secret hiding throughput, ours against a perl one-liner, on one generated
# 100 MB configuration with 20 keywords. Both outputs must be identical.
# Usage: bench/confhiding_vs_perl.sh <build-dir>   (built with -DNETLOOM_BUILD_BENCH=ON)
set -eu
build=${1:-build-bench}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

python3 - "$work/config.txt" <<'PY'
import random, sys
random.seed(42)
kw = ["enable secret", "username", "snmp-server community", "tacacs-server key", "key-string",
      "pre-shared-key", "ip ospf authentication-key", "ntp authentication-key", "password", "secret"]
plain = ["interface GigabitEthernet1/0/1", " description uplink to core", " switchport mode trunk",
         " switchport trunk allowed vlan 10,20,30", " ip address 10.20.30.40 255.255.255.0", "!",
         " no shutdown", "router ospf 100", " network 10.0.0.0 0.255.255.255 area 0", " spanning-tree portfast"]
out, size, n = [], 0, 0
while size < 100 * 1024 * 1024:
    if random.randrange(8) == 0:
        line = random.choice(["", " "]) + random.choice(kw) + " 7 0822455D0A16" + str(n); n += 1
    else:
        line = random.choice(plain)
    out.append(line + "\n"); size += len(line) + 1
open(sys.argv[1], "w").write("".join(out))
PY
bytes=$(stat -c %s "$work/config.txt")

# The same 20 keywords, in the same order: at one position the first listed wins.
kws='enable secret|enable password|username|snmp-server community|snmp-server host|tacacs-server key|radius-server key|key-string|crypto isakmp key|pre-shared-key|ip ospf authentication-key|ip ospf message-digest-key|ntp authentication-key|wpa-psk|isis password|area-password|domain-password|ppp chap password|password|secret'

NETLOOM_BENCH_CONFIG="$work/config.txt" NETLOOM_BENCH_OUT="$work/ours.txt" \
  "$build/bench/bench_confhiding" --benchmark_format=json >"$work/ours.json"
ours=$(python3 -c 'import json,sys; b=json.load(open(sys.argv[1]))["benchmarks"][0]; print("%.1f" % (b["bytes_per_second"]/1e6))' "$work/ours.json")

start=$(date +%s.%N)
perl -pe "s/^([ \\t]*)($kws)[^\\n]*/\$1!\$2 ********/o" "$work/config.txt" >"$work/perl.txt"
end=$(date +%s.%N)
perl=$(python3 -c "print('%.1f' % ($bytes/1e6/($end-$start)))")

if cmp -s "$work/ours.txt" "$work/perl.txt"; then same=identical; else same=DIFFERENT; fi
echo "input: $bytes bytes, outputs $same"
echo "ours (ModifyConfigFileContext1): $ours MB/s"
echo "perl -pe one-liner:              $perl MB/s"
python3 -c "print('ratio ours/perl: %.1fx' % ($ours/$perl))"
