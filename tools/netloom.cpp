// netloom: answers from device data without writing a program.
//
//   netloom route parse LISTING [-o TABLE.csv] [--stream]
//   netloom route lookup TABLE ADDRESS... [--resolve]
//   netloom route diff A B
//   netloom config hide --type N FILE... [--in-place]
//   netloom ifname --driver ID NAME...
//   netloom arp|mac|cdp diff A B
//
// Every command takes --json. Errors are one line on stderr and exit code 1
// (2 for a command line that doesn't parse).
#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>

#include "commands.h"

using namespace netloom_tool;

namespace netloom_tool {
extern bool g_json;
}

int main(int argc, char** argv) {
  CLI::App app{"netloom: route tables, device tables and configurations from network devices"};
  app.require_subcommand(1);
  bool json = false;
  app.add_flag("--json", json, "print results as JSON")->configurable(false);

  Report report;
  std::function<void()> run;

  // route
  auto* route = app.add_subcommand("route", "route listings and route tables")->require_subcommand(1);
  RouteParseOptions parse;
  auto* rp = route->add_subcommand("parse", "turn a device's route listing into a route table file");
  rp->add_option("LISTING", parse.listing, "the listing text (\"show ip route\")")->required();
  rp->add_option("-o,--output", parse.output, "write the route table here (default: stdout)");
  rp->add_flag("--stream", parse.stream, "convert a huge listing in place, keeping little in memory (needs -o)");
  rp->add_flag("--json", json, "print results as JSON");
  rp->callback([&] { report.command = "route parse"; run = [&] { RouteParse(parse, report, json); }; });

  RouteLookupOptions lookup;
  auto* rl = route->add_subcommand("lookup", "the routes an address matches in a route table");
  rl->add_option("TABLE", lookup.table, "route table file")->required();
  rl->add_option("ADDRESS", lookup.addresses, "IPv4 addresses")->required();
  rl->add_flag("--resolve", lookup.resolve, "follow next hops recursively to the outgoing interface");
  rl->add_flag("--json", json, "print results as JSON");
  rl->callback([&] { report.command = "route lookup"; run = [&] { RouteLookup(lookup, report); }; });

  DiffOptions routeDiff;
  auto* rd = route->add_subcommand("diff", "compare two route tables");
  rd->add_option("A", routeDiff.left, "left route table")->required();
  rd->add_option("B", routeDiff.right, "right route table")->required();
  rd->add_flag("--all", routeDiff.all, "list unchanged routes too");
  rd->add_flag("--json", json, "print results as JSON");
  rd->callback([&] { report.command = "route diff"; run = [&] { RouteDiff(routeDiff, report); }; });

  // config
  auto* config = app.add_subcommand("config", "device configurations")->require_subcommand(1);
  HideOptions hide;
  auto* ch = config->add_subcommand("hide", "hide secrets in configuration files");
  ch->add_option("--type", hide.type, "device type number whose rules apply")->required();
  ch->add_option("FILE", hide.files, "configuration files")->required();
  ch->add_flag("--in-place", hide.inPlace, "rewrite the files (through a temporary file and a rename)");
  ch->add_option("--rules", hide.rules, "rule file to use instead of the site's");
  ch->add_flag("--json", json, "print results as JSON");
  ch->callback([&] { report.command = "config hide"; run = [&] { ConfigHide(hide, report); }; });

  // ifname
  IfNameOptions ifname;
  auto* in = app.add_subcommand("ifname", "full interface names from short ones");
  in->add_option("--driver", ifname.driver, "driver id whose names apply (a GUID)");
  in->add_option("NAME", ifname.names, "interface names")->required();
  in->add_flag("--json", json, "print results as JSON");
  in->callback([&] { report.command = "ifname"; run = [&] { IfName(ifname, report); }; });

  // device tables
  DiffOptions arp, mac, cdp;
  struct TableCmd { const char* name; const char* what; DiffOptions* o; void (*fn)(const DiffOptions&, Report&); };
  const TableCmd tables[] = {{"arp", "ARP tables", &arp, ArpDiff},
                             {"mac", "MAC tables", &mac, MacDiff},
                             {"cdp", "CDP tables", &cdp, CdpDiff}};
  for (const auto& t : tables) {
    auto* sub = app.add_subcommand(t.name, t.what)->require_subcommand(1);
    auto* diff = sub->add_subcommand("diff", std::string("compare two ") + t.what);
    diff->add_option("A", t.o->left, "left table file")->required();
    diff->add_option("B", t.o->right, "right table file")->required();
    diff->add_flag("--all", t.o->all, "list unchanged rows too");
    diff->add_flag("--json", json, "print results as JSON");
    auto fn = t.fn;
    auto* opts = t.o;
    const std::string label = std::string(t.name) + " diff";
    diff->callback([&, fn, opts, label] { report.command = label; run = [&, fn, opts] { fn(*opts, report); }; });
  }

  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp& e) {
    return app.exit(e);
  } catch (const CLI::CallForAllHelp& e) {
    return app.exit(e);
  } catch (const CLI::ParseError& e) {
    std::cerr << "netloom: " << e.what() << " (see netloom --help)\n";
    return 2;
  }

  try {
    g_json = json;
    if (run) run();
    report.Print(std::cout, json);
    std::cout.flush();
    if (!std::cout) {
      std::cerr << "netloom: cannot write the output\n";
      return 1;
    }
    return 0;
  } catch (const ToolError& e) {
    std::cerr << "netloom: " << e.message << "\n";
    return e.code;
  } catch (const std::bad_alloc&) {
    std::cerr << "netloom: out of memory\n";
  } catch (const std::exception& e) {
    std::cerr << "netloom: " << e.what() << "\n";
  } catch (...) {
    std::cerr << "netloom: unexpected failure\n";
  }
  return 1;
}
