// Turning Python errors, texts and times into native ones, and the quote-aware
// name replacement.
#include <gtest/gtest.h>

#include <ctime>

#include "netloom/lockmgr.h"
#include "pythonlib/pyharness.h"

namespace {

class Helpers : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    pytest::PrepareEnvironment();
    pythonlib_init_ex(nullptr, 1, 1);
  }
  static void TearDownTestSuite() { pythonlib_destroy(); }
};

// Defines module "probe" from source and returns it (new reference).
PyObject* MakeModule(const char* source) {
  PyObject* code = Py_CompileString(source, "probe.py", Py_file_input);
  if (!code) return nullptr;
  PyObject* module = PyImport_ExecCodeModule("probe", code);
  Py_DECREF(code);
  return module;
}

long IntAttr(PyObject* obj, const char* name) {
  PyObject* value = PyObject_GetAttrString(obj, name);
  const long n = value ? PyLong_AsLong(value) : -1;
  Py_XDECREF(value);
  return n;
}

// Calls probe.<name>() and leaves its error pending.
void CallFailing(const char* name) {
  PyObject* module = MakeModule(
      "def outer():\n"
      "    inner()\n"
      "\n"
      "def inner():\n"
      "    raise ValueError('bad value')\n");
  ASSERT_NE(module, nullptr);
  PyObject* result = PyObject_CallMethod(module, name, nullptr);
  EXPECT_EQ(result, nullptr);
  Py_DECREF(module);
}

TEST_F(Helpers, LastErrorMessageConsumesTheErrorFrameByFrame) {
  PyThreadStateLock lock(0, __FILE__, __LINE__);
  std::string text = "stale";
  EXPECT_TRUE(last_python_error_msg(text));
  EXPECT_EQ(text, "");

  CallFailing("outer");
  ASSERT_TRUE(PyErr_Occurred());
  EXPECT_TRUE(last_python_error_msg(text));
  EXPECT_EQ(text,
            "File \"probe.py\", line 2 in outer\n"
            "File \"probe.py\", line 5 in inner\n"
            "bad value\n");
  EXPECT_FALSE(PyErr_Occurred());

  PyErr_SetString(PyExc_RuntimeError, "no frames");
  EXPECT_TRUE(last_python_error_msg(text));
  EXPECT_EQ(text, "no frames\n");
}

TEST_F(Helpers, ErrorInfoShowsTracebackAndKeepsErrorPending) {
  PyThreadStateLock lock(0, __FILE__, __LINE__);
  std::string text = "stale";
  EXPECT_FALSE(PythonHelper::PyErr_GetInfo(text));
  EXPECT_EQ(text, "");

  CallFailing("outer");
  ASSERT_TRUE(PythonHelper::PyErr_GetInfo(text));
  EXPECT_EQ(text,
            "Traceback (most recent call last):\n"
            "  File \"probe.py\", line 2, in outer\n"
            "  File \"probe.py\", line 5, in inner\n"
            "ValueError: bad value\n");
  ASSERT_TRUE(PyErr_Occurred());
  EXPECT_TRUE(PyErr_ExceptionMatches(PyExc_ValueError));
  // sys.stderr is back where it was.
  EXPECT_EQ(PySys_GetObject("stderr"), PySys_GetObject("__stderr__"));
  PyErr_Clear();

  PyErr_SetString(PyExc_KeyError, "k");
  ASSERT_TRUE(PythonHelper::PyErr_GetInfo(text));
  EXPECT_EQ(text, "KeyError: 'k'\n");
  PyErr_Clear();

  PyErr_SetNone(PyExc_SystemExit);
  EXPECT_FALSE(PythonHelper::PyErr_GetInfo(text));
  EXPECT_EQ(text, "");
  EXPECT_TRUE(PyErr_Occurred());
  PyErr_Clear();
}

TEST_F(Helpers, ObjectAsStringUsesSharedBufferForText) {
  PyThreadStateLock lock(0, __FILE__, __LINE__);
  PyObject* number = PyLong_FromLong(12);
  EXPECT_STREQ(PyObject_AsString(number), "");
  EXPECT_STREQ(PyObject_AsString(nullptr), "");
  Py_DECREF(number);

  PyObject* bytes = PyBytes_FromString("raw\x01");
  EXPECT_EQ(PyObject_AsString(bytes), PyBytes_AsString(bytes));  // no copy
  Py_DECREF(bytes);

  PyObject* ascii = PyUnicode_FromString("GigabitEthernet0/1");
  const char* first = PyObject_AsString(ascii);
  EXPECT_STREQ(first, "GigabitEthernet0/1");
  PyObject* other = PyUnicode_FromString("eth0");
  EXPECT_EQ(PyObject_AsString(other), first);  // one buffer for all
  EXPECT_STREQ(first, "eth0");

  // At most as many bytes as the text has characters: a character whose
  // encoded form no longer fits is cut, whole.
  PyObject* accented = PyUnicode_FromString("h\xc3\xa9llo");  // 5 characters, 6 bytes
  EXPECT_STREQ(PyObject_AsString(accented), "h\xc3\xa9ll");
  PyObject* surrogate = PyUnicode_DecodeUTF8("a\xed\xa0\x80z", 5, "surrogatepass");
  ASSERT_NE(surrogate, nullptr);
  EXPECT_STREQ(PyObject_AsString(surrogate), "a?z");
  EXPECT_FALSE(PyErr_Occurred());

  const std::string longText(5000, 'x');
  PyObject* big = PyUnicode_FromStringAndSize(longText.data(), static_cast<Py_ssize_t>(longText.size()));
  EXPECT_EQ(PyObject_AsString(big), longText);
  for (PyObject* o : {ascii, other, accented, surrogate, big}) Py_DECREF(o);
}

TEST_F(Helpers, TimesRoundTripInLocalTime) {
  PyThreadStateLock lock(0, __FILE__, __LINE__);
  for (std::int64_t t : {std::int64_t{0}, std::int64_t{1700000000}, std::int64_t{951782400} /* leap day */}) {
    PyObject* dt = nullptr;
    ASSERT_TRUE(CTimeToPyTime(t, dt)) << t;
    ASSERT_NE(dt, nullptr);
    EXPECT_TRUE(CheckIsPyTime(dt));
    EXPECT_EQ(PyObject_GetAttrString(dt, "tzinfo"), Py_None);
    Py_DECREF(Py_None);
    std::time_t when = static_cast<std::time_t>(t);
    std::tm local{};
    localtime_r(&when, &local);
    EXPECT_EQ(IntAttr(dt, "year"), local.tm_year + 1900);
    EXPECT_EQ(IntAttr(dt, "hour"), local.tm_hour);
    std::int64_t back = -2;
    EXPECT_TRUE(PyTimeToCTime(dt, back));
    EXPECT_EQ(back, t);
    Py_DECREF(dt);
  }

  PyObject* module = MakeModule(
      "import datetime\n"
      "class Stamp(datetime.datetime):\n"
      "    pass\n"
      "sub = Stamp(2021, 3, 4, 5, 6, 7, 999999)\n"
      "day = datetime.date(2021, 3, 4)\n");
  ASSERT_NE(module, nullptr);
  PyObject* sub = PyObject_GetAttrString(module, "sub");
  PyObject* day = PyObject_GetAttrString(module, "day");
  EXPECT_TRUE(CheckIsPyTime(sub));
  EXPECT_FALSE(CheckIsPyTime(day));
  EXPECT_FALSE(CheckIsPyTime(nullptr));
  std::int64_t t = 5;
  ASSERT_TRUE(PyTimeToCTime(sub, t));  // microseconds dropped
  std::tm expected{};
  expected.tm_year = 121, expected.tm_mon = 2, expected.tm_mday = 4;
  expected.tm_hour = 5, expected.tm_min = 6, expected.tm_sec = 7, expected.tm_isdst = -1;
  EXPECT_EQ(t, static_cast<std::int64_t>(std::mktime(&expected)));
  t = 5;
  EXPECT_FALSE(PyTimeToCTime(nullptr, t));
  EXPECT_FALSE(PyTimeToCTime(day, t));
  EXPECT_EQ(t, 5);
  Py_DECREF(sub);
  Py_DECREF(day);
  Py_DECREF(module);
}

TEST_F(Helpers, LockScopesAreTracedByTheirId) {
  CLockMgr::Instance()->SetRun(true);
  void* key = reinterpret_cast<void*>(static_cast<std::intptr_t>(4321));
  {
    PyThreadStateLock outer(4321, "driver.cpp", 12);
    {
      PyThreadStateLock inner(4321, "other.cpp", 99);
      const CLockInfo info = CLockMgr::Instance()->GetInfo(key);
      EXPECT_EQ(info.fileName, "driver.cpp");
      EXPECT_EQ(info.line, 12);
      EXPECT_EQ(info.times, 2);
    }
    EXPECT_EQ(CLockMgr::Instance()->GetInfo(key).times, 1);
    PyErr_SetString(PyExc_RuntimeError, "left behind");
    testing::internal::CaptureStderr();
  }
  const std::string printed = testing::internal::GetCapturedStderr();
  EXPECT_NE(printed.find("RuntimeError: left behind"), std::string::npos) << printed;
  EXPECT_EQ(CLockMgr::Instance()->GetInfo(key).times, 0);
  CLockMgr::Instance()->SetRun(false);
  PyThreadStateLock after(0, __FILE__, __LINE__);
  EXPECT_FALSE(PyErr_Occurred());
}

TEST(QuotedNames, ReplaceNameChangesWholeWordsInsideQuotes) {
  std::string text = "print('dev', \"dev\")";
  PythonHelper::ReplaceName(text, "dev", "device");
  EXPECT_EQ(text, "print('device', \"device\")");

  std::string partial = "'devices' 'dev'";
  PythonHelper::ReplaceName(partial, "dev", "x");
  EXPECT_EQ(partial, "'devices' 'x'");

  std::string outside = "dev = 'dev'";
  PythonHelper::ReplaceName(outside, "dev", "x");
  EXPECT_EQ(outside, "dev = 'x'");
}

}  // namespace
