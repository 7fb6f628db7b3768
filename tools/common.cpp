// Shared pieces of the commands: file checks and the names of compare codes.
#include <sys/stat.h>
#include <unistd.h>

#include "commands.h"
#include "netloom/commontablecompareresult.h"

namespace netloom_tool {

bool g_json = false;

void RequireReadableFile(const std::string& path) {
  struct stat st;
  if (::stat(path.c_str(), &st) != 0) throw ToolError{"no such file: " + path};
  if (S_ISDIR(st.st_mode)) throw ToolError{"is a folder, not a file: " + path};
  if (::access(path.c_str(), R_OK) != 0) throw ToolError{"cannot read: " + path};
}

std::string CompareCodeName(int code) {
  switch (code) {
    case CommonTableCompareResult::m_iSame: return "same";
    case CommonTableCompareResult::m_iDiff: return "changed";
    case CommonTableCompareResult::m_iOnlyInleft: return "only-in-A";
    case CommonTableCompareResult::m_iOnlyInRight: return "only-in-B";
    default: return "code-" + std::to_string(code);
  }
}

}  // namespace netloom_tool
