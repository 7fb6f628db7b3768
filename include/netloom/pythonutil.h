// The embedded Python interpreter: starting and stopping it, the directories
// the library puts on its path, and the helpers every other Python-facing
// module stands on.
//
// There is one interpreter per process and no interpreter object: the state
// is process-wide, behind free functions. The host calls `pythonlib_init_ex`
// (or `pythonlib_init`) before any Python work and `pythonlib_destroy` at the
// end; the pool of sub-interpreters starts and stops inside those two calls.
//
// Every entry into Python, from any thread, goes through a
// `PyThreadStateLock` scope. On a pool thread it lands in that thread's own
// sub-interpreter, on any other thread in the main interpreter. The scope
// never lets a Python error out: whatever the code inside left pending is
// printed to the interpreter's stderr and cleared when the scope ends.
#pragma once

#ifndef PY_SSIZE_T_CLEAN
#define PY_SSIZE_T_CLEAN
#endif
#include <Python.h>

#include <cstdint>
#include <string>

#include "netloom/export.h"

class CTWP3PythonTaskPool;

// ---- Lifecycle -------------------------------------------------------------

// Starts with the thread counts of section "run" of "procedure3.ini" (keys
// init_thread_count, default 2, and max_thread_count, default 16), the
// "fix_" file first. Harmless once started.
NETLOOM_API void pythonlib_init();
// True when this call did the start, false when it was already done.
NETLOOM_API bool pythonlib_init_ex(const char* logFolder, int initThreads, int maxThreads);
// Runs the Python-side initialisation (tarnwick.sysext.pyinit) in the
// interpreter that is current for the calling thread. A null or empty
// folder means the library's log folder.
NETLOOM_API void pythonlib_init_func(const char* logFolder);
// Stops the pool, then the interpreter. A later start begins afresh.
NETLOOM_API void pythonlib_destroy();
NETLOOM_API bool pythonlib_is_inited();

// Put a directory on, or take it off, sys.path of the interpreter current
// for the calling thread. The record of added directories is process-wide,
// so a directory added on a pool thread counts as added for every thread.
// False only when the interpreter is not started.
NETLOOM_API bool pythonlib_add_directory(const std::string& dir);
NETLOOM_API bool pythonlib_remove_directory(const std::string& dir);
// The Python side (tarnwick.sysext.pyinit.remove_module) decides what
// removing a module means.
NETLOOM_API void pythonlib_reomve_module(const std::string& name);
NETLOOM_API void pythonlib_clear_func();

// The pool of sub-interpreters; null before start and after stop. Read
// without a lock.
NETLOOM_API CTWP3PythonTaskPool* GetSubInterpreterPool();

// ---- Scope guards ------------------------------------------------------------

// Holds the interpreter lock for its scope. `id` is a trace id for the lock
// tracer (constant per call site; 0 is not traced), `file` and `line` name
// the call site.
class NETLOOM_API PyThreadStateLock {
 public:
  PyThreadStateLock(int id, const char* file, int line);
  ~PyThreadStateLock();
  PyThreadStateLock(const PyThreadStateLock&) = delete;
  PyThreadStateLock& operator=(const PyThreadStateLock&) = delete;

 private:
  int m_state;  // PyGILState_STATE
  int m_id;
};

// The reverse: gives the interpreter lock away for its scope, inside a
// PyThreadStateLock scope, around native work that takes long.
class NETLOOM_API CSavePythonThread {
 public:
  CSavePythonThread();
  ~CSavePythonThread();
  CSavePythonThread(const CSavePythonThread&) = delete;
  CSavePythonThread& operator=(const CSavePythonThread&) = delete;

 private:
  PyThreadState* m_state;
};

// ---- Conversions (interpreter lock held) -------------------------------------

// Seconds since 1970 to a naive local-time datetime. False when the time has
// no local form or the interpreter is not started; `out` is then untouched.
NETLOOM_API bool CTimeToPyTime(std::int64_t t, PyObject*& out);
// A datetime (microseconds and tzinfo ignored) to seconds since 1970, read
// as local time; `t` gets -1 when the time cannot be represented. False for
// null and for anything that is not a datetime.
NETLOOM_API bool PyTimeToCTime(PyObject* dt, std::int64_t& t);
// True for datetime and its subclasses; a plain date is not a time here.
NETLOOM_API bool CheckIsPyTime(PyObject* obj);

// str as text in the system code page (UTF-8 here), bytes as they are,
// anything else as "". The text of a str lives in one buffer shared by all
// callers, valid until the next call from any thread: copy it at once, and
// never keep it past the end of the interpreter lock.
NETLOOM_API const char* PyObject_AsString(void* obj);

// Takes the pending Python error and writes its traceback, outermost call
// first, one line per frame ("File \"f\", line n in name"), then str() of
// the exception. Empty when no error is pending. Always true.
NETLOOM_API bool last_python_error_msg(std::string& out);

class NETLOOM_API PythonHelper {
 public:
  // Python's own traceback display of the pending error, the error left
  // pending. False, with `out` empty, when none is pending or it is
  // SystemExit.
  static bool PyErr_GetInfo(std::string& out);
  static const char* PyUnicode_AsString(PyObject* s);
  // A new object from the class "CDevice" of the first loaded module that
  // has one; null when none has. The argument has no effect.
  static PyObject* PyObject_Create(const std::string& ignored);
  // Replaces whole-word occurrences of `oldName` that stand inside quotes;
  // other occurrences are left as they are.
  static void ReplaceName(std::string& text, const std::string& oldName, const std::string& newName);
  // True when `pos` stands outside any quotes (the sense is the reverse of
  // the name). A quote of either kind closes a string opened by either kind.
  static bool IsInString(std::string& text, size_t pos);
};
