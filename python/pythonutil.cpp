// The process's one embedded interpreter: its start and stop sequences, the
// directories on its path, the scope guards, and the conversions of times,
// texts and errors that every Python-facing module uses.
//
// Two locks: the start/stop mutex, and the interpreter lock. The mutex always
// comes first. Everything else here (the directory set, the text buffer,
// the datetime table) is protected by the interpreter lock alone.
#include "netloom/pythonutil.h"

#include <datetime.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <set>
#include <string>

#include "netloom/lockmgr.h"
#include "netloom/twp3pythontaskpool.h"
#include "netloom/util/conf.h"
#include "netloom/util/pathname.h"
#include "netloom/util/strformat.h"
#include "netloom/util/twfilesystem.h"
#include "python/pythonstate.h"

namespace {

// Debian's interpreter. sys.executable and the search for the standard
// library start from the program name, which would otherwise come from PATH
// (where a pyenv or a virtualenv may stand first).
constexpr wchar_t kProgramName[] = L"/usr/bin/python3";

constexpr char kInitModule[] = "tarnwick.sysext.pyinit";

TW_Lock::Mutex python_start_mutex;
std::atomic<bool> python_inited{false};
PyThreadState* python_main_state = nullptr;
PyThreadState* python_launch_state = nullptr;
std::set<std::string> python_directories;
char* python_text_buffer = nullptr;
std::size_t python_text_capacity = 0;
std::atomic<CTWP3PythonTaskPool*> python_pool{nullptr};
// The datetime capsule is the header's own PyDateTimeAPI (one per
// translation unit), loaded in the main interpreter and shared by all.

void* TraceKey(int id) { return reinterpret_cast<void*>(static_cast<std::intptr_t>(id)); }

// str(obj) as UTF-8; "" when it has none. Leaves no error behind.
std::string Str(PyObject* obj) {
  if (!obj) return {};
  std::string text;
  if (PyObject* s = PyObject_Str(obj)) {
    Py_ssize_t size = 0;
    if (const char* utf8 = PyUnicode_AsUTF8AndSize(s, &size)) text.assign(utf8, static_cast<std::size_t>(size));
    Py_DECREF(s);
  }
  if (PyErr_Occurred()) PyErr_Clear();
  return text;
}

std::string Repr(PyObject* obj) {
  if (!obj) return {};
  std::string text;
  if (PyObject* r = PyObject_Repr(obj)) {
    text = Str(r);
    Py_DECREF(r);
  }
  if (PyErr_Occurred()) PyErr_Clear();
  return text;
}

// Calls `function` of the start-up package with `args` (a new reference,
// null for no arguments) and drops the result. A missing module leaves its
// import error pending for the caller's guard to print.
void CallInitModule(const char* function, PyObject* args) {
  PyObject* module = PyImport_ImportModule(kInitModule);
  if (module) {
    PyObject* callable = PyDict_GetItemString(PyModule_GetDict(module), function);
    if (callable) {
      PyObject* result = PyObject_CallObject(callable, args);
      Py_XDECREF(result);
    }
    Py_DECREF(module);
  }
  Py_XDECREF(args);
}

// Starts the main interpreter as Py_Initialize would, but with the program
// name fixed. Python's own configuration, with two changes that keep the
// host's process as it was: no C-locale coercion (it would rewrite LC_CTYPE
// in the host's environment), and UTF-8 mode only when the locale is C or
// POSIX, where the system's text is UTF-8 anyway on this platform.
void InitializeInterpreter() {
  PyPreConfig preconfig;
  PyPreConfig_InitPythonConfig(&preconfig);
  preconfig.coerce_c_locale = 0;
  preconfig.coerce_c_locale_warn = 0;
  preconfig.parse_argv = 0;
  PyStatus status = Py_PreInitialize(&preconfig);
  if (PyStatus_Exception(status)) Py_ExitStatusException(status);

  PyConfig config;
  PyConfig_InitPythonConfig(&config);
  config.parse_argv = 0;
  status = PyConfig_SetString(&config, &config.program_name, kProgramName);
  if (!PyStatus_Exception(status)) status = Py_InitializeFromConfig(&config);
  PyConfig_Clear(&config);
  if (PyStatus_Exception(status)) Py_ExitStatusException(status);
}

// Runs with the interpreter held, right after it starts.
void pythonlib_setup_paths() {
  PyRun_SimpleString("import sys");
  PyRun_SimpleString("import datetime");

  const std::string bin = TWFileSystem::GetSystemBinFolder();
  if (!bin.empty()) {
    char statement[1024];
    std::snprintf(statement, sizeof statement, "sys.path.append(\"%s\") if \"%s\" not in sys.path else None",
                  bin.c_str(), bin.c_str());
    PyRun_SimpleString(statement);
  }

  PyDateTime_IMPORT;
  if (!PyDateTimeAPI) PyErr_Clear();

  const std::string drivers = TWFileSystem::GetTempFolder() + "Drivers/";
  Pathname(drivers).mkdirHier(0775);

  PyThreadStateLock lock(340, __FILE__, __LINE__);
  if (python_directories.count(drivers) == 0) {
    PyRun_SimpleString((StrFormat("sys.path.append('{0}')") << drivers).str().c_str());
    python_directories.insert(drivers);
  }
}

// Puts `dir` on, or takes it off, sys.path of the current interpreter, and
// keeps the process-wide record. `add` chooses which.
bool ChangeDirectory(int id, const char* file, int line, const std::string& dir, bool add) {
  // Taking the interpreter lock before a start would crash; a caller that
  // asks too early gets the answer it would get anyway.
  if (!python_inited) return false;
  PyThreadStateLock lock(id, file, line);
  if (!python_inited) return false;
  const bool known = python_directories.count(dir) != 0;
  if (add && !known) {
    PyRun_SimpleString((StrFormat("sys.path.append('{0}')") << dir).str().c_str());
    python_directories.insert(dir);
  } else if (!add && known) {
    PyRun_SimpleString((StrFormat("sys.path.remove('{0}')") << dir).str().c_str());
    python_directories.erase(dir);
  }
  return true;
}

}  // namespace

namespace netloom::detail {

PyThreadState* PythonLaunchState() { return python_launch_state; }

}  // namespace netloom::detail

// ---- Lifecycle -------------------------------------------------------------

void pythonlib_init() {
  CConf fix("fix_procedure3.ini");
  CConf plain("procedure3.ini");
  const int initCount = CConf::LoadIntValue(fix, plain, "run", "init_thread_count", 2);
  const int maxCount = CConf::LoadIntValue(fix, plain, "run", "max_thread_count", 16);
  pythonlib_init_ex(nullptr, initCount, maxCount);
}

bool pythonlib_init_ex(const char* logFolder, int initThreads, int maxThreads) {
  TW_LOCK_GUARD(python_start_mutex);
  if (python_inited) return false;

  ::setenv("PYTHONHOME", TWFileSystem::GetSystemPythonFolder().c_str(), 1);
  InitializeInterpreter();
  pythonlib_setup_paths();
  // PyEval_InitThreads is not called: since 3.7 the interpreter lock exists
  // from the start, and since 3.9 the call does nothing (deprecated).
  python_launch_state = PyThreadState_New(PyInterpreterState_Main());
  python_main_state = PyEval_SaveThread();

  python_text_buffer = static_cast<char*>(std::malloc(1024));
  python_text_capacity = python_text_buffer ? 1024 : 0;

  python_inited = true;
  pythonlib_init_func(logFolder);

  auto* pool = new CTWP3PythonTaskPool();
  python_pool = pool;
  pool->InitPool(initThreads, maxThreads);
  return true;
}

void pythonlib_init_func(const char* logFolder) {
  CConf fix("fix_livesetting.ini");
  CConf plain("livesetting.ini");
  const int debugFlag = CConf::LoadIntValue(fix, plain, "discover", "pythondebug", 0) != 0 ? 1 : 0;

  PyThreadStateLock lock(0, __FILE__, __LINE__);
  const std::string folder = logFolder && *logFolder ? std::string(logFolder) : TWFileSystem::GetLogFolder();
  PyObject* module = PyImport_ImportModule(kInitModule);
  if (!module) return;
  PyObject* function = PyDict_GetItemString(PyModule_GetDict(module), "pythonlib_init");
  if (function) {
    PyObject* result = PyObject_CallFunction(function, "si", folder.c_str(), debugFlag);
    Py_XDECREF(result);
  }
  Py_DECREF(module);
}

void pythonlib_destroy() {
  TW_LOCK_GUARD(python_start_mutex);
  if (!python_inited) return;

  CTWP3PythonTaskPool* pool = python_pool.exchange(nullptr);
  if (pool && pool->IsRunning()) {
    // The tasks that never ran belong to whoever queued them.
    pool->Stop(true, true);
  }
  delete pool;

  pythonlib_clear_func();

  // The state is deliberately not released: after Py_Finalize there is no
  // interpreter to give it back to.
  PyGILState_Ensure();
  Py_Finalize();
  PyDateTimeAPI = nullptr;
  python_main_state = nullptr;
  python_launch_state = nullptr;  // freed by Py_Finalize with its interpreter

  python_inited = false;
  python_directories.clear();
  std::free(python_text_buffer);
  python_text_buffer = nullptr;
  python_text_capacity = 0;
}

bool pythonlib_is_inited() {
  TW_LOCK_GUARD(python_start_mutex);
  return python_inited;
}

bool pythonlib_add_directory(const std::string& dir) { return ChangeDirectory(340, __FILE__, __LINE__, dir, true); }

bool pythonlib_remove_directory(const std::string& dir) {
  return ChangeDirectory(341, __FILE__, __LINE__, dir, false);
}

void pythonlib_reomve_module(const std::string& name) {
  PyThreadStateLock lock(5, __FILE__, __LINE__);
  // A name that is not UTF-8 fails here, and the guard prints why.
  PyObject* args = Py_BuildValue("(s#)", name.data(), static_cast<Py_ssize_t>(name.size()));
  if (args) CallInitModule("remove_module", args);
}

void pythonlib_clear_func() {
  PyThreadStateLock lock(0, __FILE__, __LINE__);
  CallInitModule("pythonlib_clear", nullptr);
}

CTWP3PythonTaskPool* GetSubInterpreterPool() { return python_pool.load(std::memory_order_acquire); }

// ---- Scope guards ------------------------------------------------------------

PyThreadStateLock::PyThreadStateLock(int id, const char* file, int line)
    : m_state(static_cast<int>(PyGILState_Ensure())), m_id(id) {
  CLockMgr::Instance()->AddLock(TraceKey(id), file, line);
}

PyThreadStateLock::~PyThreadStateLock() {
  if (PyErr_Occurred()) {
    if (PyErr_ExceptionMatches(PyExc_SystemExit)) {
      // PyErr_Print would end the host process on a driver's sys.exit():
      // show it like any other error instead.
      PyObject *type, *value, *traceback;
      PyErr_Fetch(&type, &value, &traceback);
      PyErr_NormalizeException(&type, &value, &traceback);
      PyErr_Display(type, value, traceback);
      Py_XDECREF(type);
      Py_XDECREF(value);
      Py_XDECREF(traceback);
    } else {
      PyErr_Print();
    }
    PyErr_Clear();
  }
  CLockMgr::Instance()->DelLock(TraceKey(m_id));
  PyGILState_Release(static_cast<PyGILState_STATE>(m_state));
}

CSavePythonThread::CSavePythonThread() : m_state(PyEval_SaveThread()) {}

CSavePythonThread::~CSavePythonThread() { PyEval_RestoreThread(m_state); }

// ---- Conversions ---------------------------------------------------------------

bool CTimeToPyTime(std::int64_t t, PyObject*& out) {
  if (!PyDateTimeAPI) return false;
  const std::time_t when = static_cast<std::time_t>(t);
  std::tm local{};
  if (!localtime_r(&when, &local)) return false;
  out = PyDateTimeAPI->DateTime_FromDateAndTime(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                                                local.tm_min, local.tm_sec, 0, Py_None, PyDateTimeAPI->DateTimeType);
  return out != nullptr;
}

bool PyTimeToCTime(PyObject* dt, std::int64_t& t) {
  // The fields are read in place, which is only sound for a datetime.
  if (!dt || !CheckIsPyTime(dt)) return false;
  std::tm local{};
  local.tm_year = PyDateTime_GET_YEAR(dt) - 1900;
  local.tm_mon = PyDateTime_GET_MONTH(dt) - 1;
  local.tm_mday = PyDateTime_GET_DAY(dt);
  local.tm_hour = PyDateTime_DATE_GET_HOUR(dt);
  local.tm_min = PyDateTime_DATE_GET_MINUTE(dt);
  local.tm_sec = PyDateTime_DATE_GET_SECOND(dt);
  local.tm_isdst = -1;
  t = static_cast<std::int64_t>(std::mktime(&local));
  return true;
}

bool CheckIsPyTime(PyObject* obj) { return obj && PyDateTimeAPI && PyDateTime_Check(obj); }

const char* PyObject_AsString(void* obj) {
  PyObject* o = static_cast<PyObject*>(obj);
  if (!o) return "";
  if (!PyUnicode_Check(o)) return PyBytes_Check(o) ? PyBytes_AsString(o) : "";

  // The text in the system code page (UTF-8) at most as many bytes long as
  // the text has characters, like the wide-to-narrow conversion this stands
  // for; PyUnicode_AsUnicode, which gave the wide form, is deprecated. A
  // character that no longer fits is dropped whole.
  const Py_ssize_t length = PyUnicode_GetLength(o);
  if (length < 0) {
    PyErr_Clear();
    return "";
  }
  PyObject* encoded = nullptr;
  Py_ssize_t size = 0;
  const char* utf8 = PyUnicode_AsUTF8AndSize(o, &size);
  if (!utf8) {
    // Lone surrogates have no UTF-8 form.
    PyErr_Clear();
    encoded = PyUnicode_AsEncodedString(o, "utf-8", "replace");
    if (!encoded) {
      PyErr_Clear();
      return "";
    }
    utf8 = PyBytes_AS_STRING(encoded);
    size = PyBytes_GET_SIZE(encoded);
  }

  const std::size_t need = static_cast<std::size_t>(length) + 1;
  if (python_text_capacity < need || !python_text_buffer) {
    std::free(python_text_buffer);
    python_text_capacity = std::max(need, python_text_capacity);
    python_text_buffer = static_cast<char*>(std::malloc(python_text_capacity));
    if (!python_text_buffer) {
      python_text_capacity = 0;
      Py_XDECREF(encoded);
      return "";
    }
  }
  std::size_t n = std::min(static_cast<std::size_t>(size), static_cast<std::size_t>(length));
  if (n < static_cast<std::size_t>(size)) {
    while (n > 0 && (static_cast<unsigned char>(utf8[n]) & 0xC0) == 0x80) --n;
  }
  std::memcpy(python_text_buffer, utf8, n);
  std::memset(python_text_buffer + n, 0, need - n);
  Py_XDECREF(encoded);
  return python_text_buffer;
}

bool last_python_error_msg(std::string& out) {
  PyObject *type, *value, *traceback;
  PyErr_Fetch(&type, &value, &traceback);
  std::string text;
  if (type) {
    PyErr_NormalizeException(&type, &value, &traceback);
    for (PyObject* entry = traceback; entry && PyTraceBack_Check(entry);) {
      auto* tb = reinterpret_cast<PyTracebackObject*>(entry);
      PyCodeObject* code = PyFrame_GetCode(tb->tb_frame);
      PyObject* line = PyObject_GetAttrString(entry, "tb_lineno");
      text += "File \"" + Str(code->co_filename) + "\", line " + Str(line) + " in " + Str(code->co_name) + "\n";
      Py_XDECREF(line);
      Py_DECREF(code);
      entry = reinterpret_cast<PyObject*>(tb->tb_next);
    }
    if (value) text += Str(value) + "\n";
  }
  Py_XDECREF(value);
  Py_XDECREF(type);
  Py_XDECREF(traceback);
  if (PyErr_Occurred()) PyErr_Clear();
  out = text;
  return true;
}

// ---- PythonHelper --------------------------------------------------------------

bool PythonHelper::PyErr_GetInfo(std::string& out) {
  out.clear();
  if (!PyErr_Occurred() || PyErr_ExceptionMatches(PyExc_SystemExit)) return false;

  PyObject *type, *value, *traceback;
  PyErr_Fetch(&type, &value, &traceback);
  out = Repr(type);
  PyErr_NormalizeException(&type, &value, &traceback);
  if (!traceback) {
    traceback = Py_None;
    Py_INCREF(traceback);
  }
  if (value) PyException_SetTraceback(value, traceback);

  PyObject* io = PyImport_AddModule("io");
  PyObject* ioDict = io ? PyModule_GetDict(io) : nullptr;
  PyObject* stringIOClass = ioDict ? PyDict_GetItemString(ioDict, "StringIO") : nullptr;
  PyObject* buffer = stringIOClass ? PyObject_CallObject(stringIOClass, nullptr) : nullptr;
  if (!buffer) {
    PyErr_Restore(type, value, traceback);
    return true;
  }

  PyObject* stderrSaved = PySys_GetObject("stderr");
  PyObject* realStderrSaved = PySys_GetObject("__stderr__");
  Py_XINCREF(stderrSaved);
  Py_XINCREF(realStderrSaved);
  PySys_SetObject("stderr", buffer);
  PySys_SetObject("__stderr__", buffer);
  PyErr_Display(type, value, traceback);
  PySys_SetObject("stderr", stderrSaved);
  PySys_SetObject("__stderr__", realStderrSaved);
  Py_XDECREF(stderrSaved);
  Py_XDECREF(realStderrSaved);
  PyErr_Restore(type, value, traceback);

  // Python refuses to call anything while an error is set, so the error is
  // held aside for the call and put back after it, just as it was.
  PyObject *heldType, *heldValue, *heldTraceback;
  PyErr_Fetch(&heldType, &heldValue, &heldTraceback);
  PyObject* name = PyUnicode_FromString("getvalue");
  PyObject* getvalue = name ? PyObject_GenericGetAttr(buffer, name) : nullptr;
  PyObject* shown = getvalue ? PyObject_CallObject(getvalue, nullptr) : nullptr;
  if (shown && PyUnicode_Check(shown)) {
    Py_ssize_t size = 0;
    if (const char* utf8 = PyUnicode_AsUTF8AndSize(shown, &size)) out.assign(utf8, static_cast<std::size_t>(size));
  }
  Py_XDECREF(shown);
  Py_XDECREF(getvalue);
  Py_XDECREF(name);
  Py_DECREF(buffer);
  PyErr_Restore(heldType, heldValue, heldTraceback);
  return true;
}

const char* PythonHelper::PyUnicode_AsString(PyObject* s) { return s ? PyUnicode_AsUTF8(s) : nullptr; }

PyObject* PythonHelper::PyObject_Create(const std::string& /*ignored*/) {
  PyObject* modules = PyImport_GetModuleDict();
  if (!modules) return nullptr;
  PyObject *key, *module;
  Py_ssize_t pos = 0;
  while (PyDict_Next(modules, &pos, &key, &module)) {
    if (!PyUnicode_Check(key) || module == Py_None || !PyModule_Check(module)) continue;
    PyObject* cls = PyDict_GetItemString(PyModule_GetDict(module), "CDevice");
    if (cls) return PyObject_CallObject(cls, nullptr);
  }
  return nullptr;
}

bool PythonHelper::IsInString(std::string& text, size_t pos) {
  if (pos >= text.size()) return false;
  int state = -1;
  bool escaped = false;
  for (size_t i = 0; i <= pos; ++i) {
    const char c = text[i];
    if (c == '\\') {
      escaped = true;
      continue;
    }
    if (!escaped) {
      if (c == '\'') state = state == -1 ? 1 : -1;
      else if (c == '"') state = state == -1 ? 2 : -1;
    }
    escaped = false;
  }
  return state == -1;
}

void PythonHelper::ReplaceName(std::string& text, const std::string& oldName, const std::string& newName) {
  if (oldName.empty()) return;
  auto isWordChar = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
  };
  std::string result;
  size_t start = 0;
  size_t from = 0;
  for (;;) {
    const size_t hit = text.find(oldName, from);
    if (hit == std::string::npos) break;
    const size_t end = hit + oldName.size();
    const bool qualifies = (hit == 0 || !isWordChar(text[hit - 1])) && (end >= text.size() || !isWordChar(text[end])) &&
                           !IsInString(text, hit);
    if (qualifies) {
      result.append(text, start, hit - start).append(newName);
      start = end;
      from = end;
    } else {
      // Left as it stands; the search goes on past it.
      from = hit + 1;
    }
  }
  result.append(text, start, std::string::npos);
  text.swap(result);
}
