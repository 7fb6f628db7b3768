// Synthetic route listings for the benchmarks: every kind of line the
// parser knows, in a fixed mix, with distinct prefixes.
#pragma once

#include <ostream>
#include <string>

namespace netloom_bench {

inline std::string Addr(unsigned v) {
  return std::to_string(v >> 24) + "." + std::to_string(v >> 16 & 255) + "." + std::to_string(v >> 8 & 255) + "." +
         std::to_string(v & 255);
}

// Writes a listing with `routes` routes that runs through every kind of line
// the parser knows: routes with and without age and interface, continuation
// paths, wrapped routes, connected, local and summary routes, subnetted
// headers, and masks as lengths, dotted quads and hexadecimal. Returns the
// number of lines written.
inline size_t WriteListing(std::ostream& out, size_t routes) {
  out << "Codes: L - local, C - connected, S - static, R - RIP, M - mobile, B - BGP\n"
         "       D - EIGRP, EX - EIGRP external, O - OSPF, IA - OSPF inter area\n\n"
         "Gateway of last resort is 10.0.0.1 to network 0.0.0.0\n\n";
  size_t lines = 5;
  size_t made = 0;
  for (unsigned i = 0; made < routes; ++i) {
    const std::string a = Addr(0x0B000000u + i * 256u);
    const std::string hop = Addr(0x0A000000u + (i % 4000) * 4u + 1u);
    switch (i % 12) {
      case 0:
        out << "      " << Addr(0x0B000000u + i * 256u) << "/16 is variably subnetted, 4 subnets, 2 masks\n"
            << "O        " << a << "/24 [110/" << (i % 900) << "] via " << hop << ", 00:01:02, GigabitEthernet0/1\n"
            << "                [110/" << (i % 900) << "] via " << Addr(0x0A100001u + i % 255) << ", 00:01:02, GigabitEthernet0/2\n";
        lines += 3, made += 2;
        break;
      case 1: out << "C        " << a << "/24 is directly connected, Vlan10\n"; lines += 1, made += 1; break;
      case 2: out << "L        " << a << "/32 is directly connected, Vlan10\n"; lines += 1, made += 1; break;
      case 3: out << "D        " << a << "/24 is a summary, 1d02h, Null0\n"; lines += 1, made += 1; break;
      case 4: out << "S        " << a << "/24 [1/0] via " << hop << "\n"; lines += 1, made += 1; break;
      case 5:
        out << "D EX     " << a << "/24\n           [170/2816] via " << hop << ", 3d07h, Vlan20\n";
        lines += 2, made += 1;
        break;
      case 6:
        out << "R        " << a << " 255.255.255.0 [120/3] via " << hop << ", 00:00:12, Serial0/0/0\n";
        lines += 1, made += 1;
        break;
      case 7:
        out << "O E2     " << a << " 0xFFFFFF00 [110/20] via " << hop << ", 2w0d, Port-channel1\n";
        lines += 1, made += 1;
        break;
      case 8: out << "i L2     " << a << "/24 [115/20] via " << hop << ", TenGigabitEthernet1/0/1\n"; lines += 1, made += 1; break;
      case 9: out << "B        " << a << "/24 [20/0] via " << hop << ", 1w2d\n"; lines += 1, made += 1; break;
      case 10:
        out << "      " << a << " 255.255.255.0 is subnetted, 2 subnets\n"
            << "C        " << a << " is directly connected, Vlan30\n";
        lines += 2, made += 1;
        break;
      default:
        out << "O IA     " << a << "/24 [110/" << (i % 77) << "] via " << hop << ", 6w0d, Vlan20\n";
        lines += 1, made += 1;
        break;
    }
  }
  return lines;
}

}  // namespace netloom_bench
