#include "pythonlib/pyharness.h"

#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>

#include "common/testenv.h"

namespace pytest {

std::string PrepareEnvironment() {
  ::setenv("PYTHONPATH", netloom_test::TestSourcePath("python").c_str(), 1);
  // Keep the fixture's bytecode out of the source tree.
  ::setenv("PYTHONDONTWRITEBYTECODE", "1", 1);
  const std::string record = netloom_test::MakeTempDir("record") + "calls.tsv";
  ::setenv("TARNWICK_RECORD", record.c_str(), 1);
  return record;
}

std::vector<std::vector<std::string>> RecordedCalls(const std::string& file) {
  std::vector<std::vector<std::string>> rows;
  std::istringstream in(netloom_test::ReadFile(file));
  std::string line;
  while (std::getline(in, line)) {
    std::vector<std::string> fields;
    std::istringstream cells(line);
    std::string cell;
    while (std::getline(cells, cell, '\t')) fields.push_back(cell);
    rows.push_back(fields);
  }
  return rows;
}

std::string Eval(const std::string& expression) {
  PyThreadStateLock lock(0, __FILE__, __LINE__);
  PyObject* globals = PyModule_GetDict(PyImport_AddModule("__main__"));
  PyObject* result = PyRun_String(expression.c_str(), Py_eval_input, globals, globals);
  if (!result) return "<error>";
  PyObject* text = PyObject_Str(result);
  std::string out = text ? PyUnicode_AsUTF8(text) : "<error>";
  Py_XDECREF(text);
  Py_DECREF(result);
  return out;
}

bool Exec(const std::string& statements) {
  PyThreadStateLock lock(0, __FILE__, __LINE__);
  PyObject* globals = PyModule_GetDict(PyImport_AddModule("__main__"));
  PyObject* result = PyRun_String(statements.c_str(), Py_file_input, globals, globals);
  Py_XDECREF(result);
  return result != nullptr;
}

void RunOnDistinctWorkers(CTWTaskPool& pool, int n, const std::function<void(int)>& work) {
  Barrier all(n);
  std::vector<std::unique_ptr<FunctionTask>> tasks;
  for (int i = 0; i < n; ++i) {
    tasks.push_back(std::make_unique<FunctionTask>([&, i] {
      all.Arrive();
      work(i);
    }));
  }
  for (auto& t : tasks) pool.AddTask(t.get());
  for (auto& t : tasks) t->Wait();
}

long ResidentKb() {
  std::ifstream status("/proc/self/status");
  std::string key;
  while (status >> key) {
    if (key == "VmRSS:") {
      long kb = 0;
      status >> kb;
      return kb;
    }
    status.ignore(4096, '\n');
  }
  return 0;
}

}  // namespace pytest
