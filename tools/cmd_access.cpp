// config hide, ifname
#include <iostream>

#include "commands.h"
#include "netloom/conffilesecurity.h"
#include "netloom/ifnametransfermgr.h"
#include "netloom/util/pathname.h"
#include "netloom/util/stlhelper.h"
#include "netloom/util/twfilesystem.h"

namespace netloom_tool {

extern bool g_json;

namespace {

// The site's rules ("fix_" file first, as every setting pair), else the sample the library ships.
std::string RulesPath(const std::string& given) {
  if (!given.empty()) return given;
  for (const std::string& candidate :
       {TWFileSystem::GetSystemConfFolder() + "fix_ConfigFileHiding.ini",
        TWFileSystem::GetSystemConfFolder() + "ConfigFileHiding.ini",
        TWFileSystem::GetSystemResourceFolder() + "fix_ConfigFileHiding.ini"})
    if (Pathname(candidate).exists()) return candidate;
  throw ToolError{"no hiding rules found: give a rule file with --rules"};
}

size_t ChangedLines(const std::string& before, const std::string& after) {
  std::vector<std::string> a, b;
  StlHelper::splitStringToLines(before, a);
  StlHelper::splitStringToLines(after, b);
  size_t n = 0;
  for (size_t i = 0; i < std::max(a.size(), b.size()); ++i)
    n += i >= a.size() || i >= b.size() || a[i] != b[i];
  return n;
}

}  // namespace

void ConfigHide(const HideOptions& o, Report& r) {
  for (const auto& f : o.files) RequireReadableFile(f);
  const std::string rulesPath = RulesPath(o.rules);
  RequireReadableFile(rulesPath);
  CConfFileSecurity security;
  security.ParseFileString(FileHelper::GetFileContentByPath(rulesPath));
  if (!security.Rules().count(o.type))
    throw ToolError{"no hiding rule for device type " + std::to_string(o.type) + " in " + rulesPath};

  auto& s = r.Add("secrets hidden", {"file", "lines hidden", "written"});
  s.facts = {{"rules", rulesPath}, {"device type", std::to_string(o.type)}};
  const bool toStdout = !o.inPlace && !g_json;
  for (const auto& path : o.files) {
    const std::string text = FileHelper::GetFileContentByPath(path);
    const std::string hidden = security.ModifyConfigFileContext1(text, o.type);
    if (o.inPlace && hidden != text && !FileHelper::WriteFileAtomic(path, hidden))
      throw ToolError{"cannot rewrite: " + path};
    if (toStdout) {
      if (o.files.size() > 1) std::cout << "==> " << path << " <==\n";
      std::cout << hidden;
    }
    s.rows.push_back({path, std::to_string(ChangedLines(text, hidden)), o.inPlace ? (hidden != text ? "yes" : "unchanged") : "no"});
  }
  // Printing the configurations is the answer; the summary would only clutter it.
  if (toStdout) r.sections.clear();
}

void IfName(const IfNameOptions& o, Report& r) {
  IfNameTransfersMgr* mgr = IfNameTransfersMgr::Instant();
  if (!mgr->LoadData()) throw ToolError{"cannot read the interface type data (MultiVendorData/InterfaceType.json)"};
  // A driver id is needed to ask at all; the null id asks for the names every driver shares.
  const std::string driver = o.driver.empty() ? "00000000-0000-0000-0000-000000000000" : o.driver;
  auto& s = r.Add("interface names", {"name", "full name"});
  for (const auto& name : o.names) s.rows.push_back({name, mgr->GetFullIfNameFromPossibleName(driver, name)});
}

}  // namespace netloom_tool
