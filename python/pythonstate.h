// What the interpreter's owner shares with the pool of sub-interpreters and
// with no one else.
#pragma once

#include "netloom/pythonutil.h"

namespace netloom::detail {

// A thread state of the main interpreter that belongs to no thread. A pool
// thread takes the interpreter lock with it to create its sub-interpreter,
// and gives the lock back with it after ending that interpreter.
//
// Why not the main thread's own saved state: PyGILState_Ensure on the thread
// that started the interpreter finds that state in its thread-local slot and
// asks whether it is current, without holding the lock. While a pool thread
// had borrowed it, the answer would be yes, and the host thread would run
// Python beside the pool thread. A state that no thread's slot points to can
// be lent out safely. Null while the interpreter is not started.
PyThreadState* PythonLaunchState();

}  // namespace netloom::detail
