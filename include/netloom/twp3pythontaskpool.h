// The pool of sub-interpreters: Python code of one device must not disturb
// Python code of another, and several can be under way at once. Each worker
// thread gets an interpreter of its own for its whole life, so every
// PyThreadStateLock taken on it lands in that interpreter, and a task needs
// to know nothing of this.
//
// The sub-interpreters isolate module state, not execution: they share the
// one interpreter lock, so only one thread runs Python at any moment.
//
// There is one pool per process, made by pythonlib_init_ex and deleted by
// pythonlib_destroy; GetSubInterpreterPool() returns it.
#pragma once

#include <map>
#include <mutex>
#include <thread>

#include "netloom/lockmgr.h"
#include "netloom/pythonutil.h"
#include "netloom/util/taskpool.h"

class NETLOOM_API CTWP3PythonTaskPool : public CTWTaskPool {
 public:
  CTWP3PythonTaskPool();
  ~CTWP3PythonTaskPool() override;

  // On the new worker: creates its sub-interpreter, puts the driver cache
  // folder on that interpreter's path and runs the Python-side start-up in
  // it. Workers begin one at a time.
  void OnThreadBegin(std::thread::id id) override;
  // On the worker, before it ends: ends its sub-interpreter.
  void OnThreadEnd(std::thread::id id) override;

  // The thread state Py_NewInterpreter gave the calling pool thread; null on
  // any other thread.
  PyThreadState* GetCurrentTISState();

 private:
  // Thread to the state of its sub-interpreter, and thread to the state it
  // saved when set up. Both hold the same state; they are kept apart so that
  // each step reads the one it is about.
  std::map<std::thread::id, PyThreadState*> m_interpreters;
  std::map<std::thread::id, PyThreadState*> m_savedStates;
  // Serialises the beginning and ending of workers; taken before the
  // interpreter lock.
  TW_Lock::Mutex m_mutex;
  // Guards the two maps alone and is never held while waiting for another
  // lock, so that a task may ask for its state while it holds the
  // interpreter lock, even while another worker is beginning.
  mutable std::mutex m_mapMutex;
};
