// Each worker of the pool lives inside a sub-interpreter of its own. The
// worker creates it with the interpreter lock taken through a main-interpreter
// state lent for the purpose; the first thread state of the worker thread is
// the sub-interpreter's, so PyGILState_Ensure on that thread lands there from
// then on.
#include "netloom/twp3pythontaskpool.h"

#include <string>

#include "netloom/util/logger.h"
#include "netloom/util/stlhelper.h"
#include "netloom/util/strformat.h"
#include "netloom/util/twfilesystem.h"
#include "python/pythonstate.h"

namespace {

constexpr char kModule[] = "TWP3Python";
constexpr char kBeginFunction[] = "CTWP3PythonTaskPool::OnThreadBegin";
constexpr char kEndFunction[] = "CTWP3PythonTaskPool::OnThreadEnd";

void Log(const char* message, const char* function, int line, ELogLevel level) {
  ILogger::GetInstance()->LogStr(message, kModule, __FILE__, function, line, level);
}

}  // namespace

CTWP3PythonTaskPool::CTWP3PythonTaskPool() = default;

CTWP3PythonTaskPool::~CTWP3PythonTaskPool() {
  // The hooks are ours: the workers must be gone before this object is.
  Stop(true, true);
}

void CTWP3PythonTaskPool::OnThreadBegin(std::thread::id id) {
  TW_LOCK_GUARD(m_mutex);
  PyThreadState* launch = netloom::detail::PythonLaunchState();
  if (!launch) return;
  PyEval_RestoreThread(launch);

  Log("Py_NewInterpreter Begin\n", kBeginFunction, __LINE__, LOG_TRACE);
  PyThreadState* tstate = Py_NewInterpreter();
  Log("Py_NewInterpreter End\n", kBeginFunction, __LINE__, LOG_TRACE);
  if (!tstate) {
    // Python has printed why. The worker runs its tasks in the main
    // interpreter rather than not at all.
    PyErr_Clear();
    PyEval_SaveThread();
    return;
  }
  {
    std::lock_guard<std::mutex> maps(m_mapMutex);
    m_interpreters[id] = tstate;
  }

  PyRun_SimpleString("import sys");
  std::string drivers = TWFileSystem::GetTempFolder() + "Drivers";
  StlHelper::replaceString(drivers, "\\", "\\\\");
  PyRun_SimpleString((StrFormat("sys.path.append('{0}')") << drivers).str().c_str());
  pythonlib_init_func(nullptr);

  PyThreadState* saved = PyEval_SaveThread();
  std::lock_guard<std::mutex> maps(m_mapMutex);
  m_savedStates[id] = saved;
}

void CTWP3PythonTaskPool::OnThreadEnd(std::thread::id id) {
  TW_LOCK_GUARD(m_mutex);
  PyThreadState* tstate = nullptr;
  PyThreadState* saved = nullptr;
  {
    std::lock_guard<std::mutex> maps(m_mapMutex);
    if (auto it = m_interpreters.find(id); it != m_interpreters.end()) {
      tstate = it->second;
      m_interpreters.erase(it);
    }
    if (auto it = m_savedStates.find(id); it != m_savedStates.end()) {
      saved = it->second;
      m_savedStates.erase(it);
    }
  }
  if (!tstate || !saved) return;  // this worker never got an interpreter

  try {
    PyEval_RestoreThread(saved);
    PyErr_Clear();
    Py_EndInterpreter(tstate);
    Log("Py_EndInterpreter End\n", kEndFunction, __LINE__, LOG_DEBUG);
    // No thread state is current now, yet the interpreter lock is held.
    // PyEval_ReleaseLock would need a current state (and is deprecated), so
    // the lent main-interpreter state is made current and released with
    // PyEval_ReleaseThread, as the C API documents.
    PyThreadState* launch = netloom::detail::PythonLaunchState();
    PyThreadState_Swap(launch);
    PyEval_ReleaseThread(launch);
  } catch (...) {
    Log("Unkown error in end interpreter.", kEndFunction, __LINE__, LOG_DEBUG);
  }
}

PyThreadState* CTWP3PythonTaskPool::GetCurrentTISState() {
  std::lock_guard<std::mutex> maps(m_mapMutex);
  auto it = m_interpreters.find(std::this_thread::get_id());
  return it == m_interpreters.end() ? nullptr : it->second;
}
