// Topology store: file names and paths of a topology folder.
#include "netloom/topofilesystem.h"

#include <cstdio>

namespace netloom::detail {
namespace {

// Literals rather than std::string objects, so that the name getters are safe
// to call while other translation units are still being initialised.
constexpr const char* kRouteTopo = "router.topo";
constexpr const char* kLanTopo = "lan.topo";
constexpr const char* kLinkTopo = "link.topo";
constexpr const char* kInterfaceTopo = "interface.topo";
constexpr const char* kEndHostTopo = "endhost.topo";
constexpr const char* kCallManagerTopo = "callmanager.topo";
constexpr const char* kOtherTopo = "other.topo";
constexpr const char* kExchangeIfTopo = "exchangeif.topo";
constexpr const char* kTimerTopo = "timer.topo";

constexpr const char* kAllTopoFiles[] = {kRouteTopo,   kLanTopo,         kLinkTopo,
                                         kInterfaceTopo, kEndHostTopo, kCallManagerTopo,
                                         kOtherTopo,   kExchangeIfTopo,  kTimerTopo};

constexpr char kSeparator = '/';

bool IsSeparator(char c) { return c == '/' || c == '\\'; }

}  // namespace
}  // namespace netloom::detail

namespace nd = netloom::detail;

CTopoFileSystem::CTopoFileSystem(const std::string& folder) { SetFolder(folder); }

void CTopoFileSystem::SetFolder(const std::string& folder) {
  std::string::size_type end = folder.size();
  while (end > 0 && nd::IsSeparator(folder[end - 1])) --end;
  // Nothing but separators: keep the text, it names a root.
  m_folder = end == 0 ? folder : folder.substr(0, end);
}

std::string CTopoFileSystem::GetFolder(bool withSeparator) const {
  return withSeparator ? m_folder + nd::kSeparator : m_folder;
}

bool CTopoFileSystem::IsValid() const { return !m_folder.empty(); }

std::string CTopoFileSystem::BuildTopoFilePath(const std::string& fileName) const {
  std::string path;
  path.reserve(m_folder.size() + 1 + fileName.size());
  path += m_folder;
  path += nd::kSeparator;
  path += fileName;
  return path;
}

void CTopoFileSystem::RemoveAllTopoFiles() const {
  // Without a folder the paths would point at the file system's root; a store
  // that was never given a folder has no files to remove.
  if (!IsValid()) return;
  for (const char* name : nd::kAllTopoFiles) std::remove(BuildTopoFilePath(name).c_str());
}

std::string CTopoFileSystem::GetRouteTopoFileName() { return nd::kRouteTopo; }
std::string CTopoFileSystem::GetLanTopoFileName() { return nd::kLanTopo; }
std::string CTopoFileSystem::GetLinkTopoFileName() { return nd::kLinkTopo; }
std::string CTopoFileSystem::GetInterfaceTopoFileName() { return nd::kInterfaceTopo; }
std::string CTopoFileSystem::GetEndHostTopoFileName() { return nd::kEndHostTopo; }
std::string CTopoFileSystem::GetCallManagerFileName() { return nd::kCallManagerTopo; }
std::string CTopoFileSystem::GetOtherFileName() { return nd::kOtherTopo; }
std::string CTopoFileSystem::GetExchangeIfFileName() { return nd::kExchangeIfTopo; }
std::string CTopoFileSystem::GetTimerFileName() { return nd::kTimerTopo; }

std::string CTopoFileSystem::GetRouteTopoFilePath() const { return BuildTopoFilePath(nd::kRouteTopo); }
std::string CTopoFileSystem::GetLanTopoFilePath() const { return BuildTopoFilePath(nd::kLanTopo); }
std::string CTopoFileSystem::GetLinkTopoFilePath() const { return BuildTopoFilePath(nd::kLinkTopo); }
std::string CTopoFileSystem::GetInterfaceTopoFilePath() const {
  return BuildTopoFilePath(nd::kInterfaceTopo);
}
std::string CTopoFileSystem::GetEndHostTopoFilePath() const {
  return BuildTopoFilePath(nd::kEndHostTopo);
}
std::string CTopoFileSystem::GetCallManagerFilePath() const {
  return BuildTopoFilePath(nd::kCallManagerTopo);
}
std::string CTopoFileSystem::GetOtherFilePath() const { return BuildTopoFilePath(nd::kOtherTopo); }
std::string CTopoFileSystem::GetExchangeIfFilePath() const {
  return BuildTopoFilePath(nd::kExchangeIfTopo);
}
std::string CTopoFileSystem::GetTimerFilePath() const { return BuildTopoFilePath(nd::kTimerTopo); }

const std::string CTopoStrings::s_strRouteTopoFileName = nd::kRouteTopo;
const std::string CTopoStrings::s_strLanTopoFileName = nd::kLanTopo;
const std::string CTopoStrings::s_strLinkTopoFileName = nd::kLinkTopo;
const std::string CTopoStrings::s_strInterfaceTopoFileName = nd::kInterfaceTopo;
const std::string CTopoStrings::s_strEndHostTopoFileName = nd::kEndHostTopo;
const std::string CTopoStrings::s_strCallManagerFileName = nd::kCallManagerTopo;
const std::string CTopoStrings::s_strOtherFileName = nd::kOtherTopo;
const std::string CTopoStrings::s_strExchangeIfFileName = nd::kExchangeIfTopo;
const std::string CTopoStrings::s_strTimerFileName = nd::kTimerTopo;
const std::string CTopoStrings::s_strAllFileNames[9] = {
    nd::kRouteTopo,   nd::kLanTopo,   nd::kLinkTopo,        nd::kInterfaceTopo, nd::kEndHostTopo,
    nd::kCallManagerTopo, nd::kOtherTopo, nd::kExchangeIfTopo, nd::kTimerTopo};
