// Topology store: a topology lives in one folder as nine text files with
// fixed names. CTopoFileSystem knows that folder and forms the file paths;
// CTopoStrings holds the content of eight of those files in memory. Writing
// the content is left to the programs that produce it.
#pragma once

#include <string>

#include "netloom/export.h"

// The folder of one topology and the paths of its files. Paths join the
// folder and a file name with "/"; trailing separators of the folder given
// are dropped, so that GetFolder(false) never ends in one.
class NETLOOM_API CTopoFileSystem {
 public:
  explicit CTopoFileSystem(const std::string& folder);

  // Stores the folder without its trailing "/" and "\" characters. A folder
  // made of nothing but those characters is kept as given.
  void SetFolder(const std::string& folder);
  // The folder; with the flag, followed by "/".
  std::string GetFolder(bool withSeparator) const;
  // True when a folder is set.
  bool IsValid() const;
  // Folder, "/" and the file name.
  std::string BuildTopoFilePath(const std::string& fileName) const;
  // Removes the nine topology files; missing files are no error.
  void RemoveAllTopoFiles() const;

  static std::string GetRouteTopoFileName();
  static std::string GetLanTopoFileName();
  static std::string GetLinkTopoFileName();
  static std::string GetInterfaceTopoFileName();
  static std::string GetEndHostTopoFileName();
  static std::string GetCallManagerFileName();
  static std::string GetOtherFileName();
  static std::string GetExchangeIfFileName();
  static std::string GetTimerFileName();

  std::string GetRouteTopoFilePath() const;
  std::string GetLanTopoFilePath() const;
  std::string GetLinkTopoFilePath() const;
  std::string GetInterfaceTopoFilePath() const;
  std::string GetEndHostTopoFilePath() const;
  std::string GetCallManagerFilePath() const;
  std::string GetOtherFilePath() const;
  std::string GetExchangeIfFilePath() const;
  std::string GetTimerFilePath() const;

 private:
  std::string m_folder;
};

// The content of a topology's files, one string per file; the timer file has
// no counterpart here. The static names are the file names, in the order of
// the files, and s_strAllFileNames lists all nine in that order.
class NETLOOM_API CTopoStrings {
 public:
  static const std::string s_strRouteTopoFileName;
  static const std::string s_strLanTopoFileName;
  static const std::string s_strLinkTopoFileName;
  static const std::string s_strInterfaceTopoFileName;
  static const std::string s_strEndHostTopoFileName;
  static const std::string s_strCallManagerFileName;
  static const std::string s_strOtherFileName;
  static const std::string s_strExchangeIfFileName;
  static const std::string s_strTimerFileName;
  static const std::string s_strAllFileNames[9];

  const std::string& GetRouterTopo() const { return m_routerTopo; }
  void SetRouterTopo(const std::string& text) { m_routerTopo = text; }
  const std::string& GetLanTopo() const { return m_lanTopo; }
  void SetLanTopo(const std::string& text) { m_lanTopo = text; }
  const std::string& GetLinkTopo() const { return m_linkTopo; }
  void SetLinkTopo(const std::string& text) { m_linkTopo = text; }
  const std::string& GetInterfaceTopo() const { return m_interfaceTopo; }
  void SetInterfaceTopo(const std::string& text) { m_interfaceTopo = text; }
  const std::string& GetEndhostTopo() const { return m_endhostTopo; }
  void SetEndhostTopo(const std::string& text) { m_endhostTopo = text; }
  const std::string& GetCallManagerTopo() const { return m_callManagerTopo; }
  void SetCallManagerTopo(const std::string& text) { m_callManagerTopo = text; }
  const std::string& GetOtherTopo() const { return m_otherTopo; }
  void SetOtherTopo(const std::string& text) { m_otherTopo = text; }
  const std::string& GetExchangeInterfaceTopo() const { return m_exchangeInterfaceTopo; }
  void SetExchangeInterfaceTopo(const std::string& text) { m_exchangeInterfaceTopo = text; }

 private:
  std::string m_routerTopo;
  std::string m_lanTopo;
  std::string m_linkTopo;
  std::string m_interfaceTopo;
  std::string m_endhostTopo;
  std::string m_callManagerTopo;
  std::string m_otherTopo;
  std::string m_exchangeInterfaceTopo;
};
