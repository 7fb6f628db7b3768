"""Python-side start-up of the driver package, as the tests see it.

Every call is recorded twice: in ``calls`` of this module, which is private
to the interpreter that imported it, and, when TARNWICK_RECORD is set, as a
line appended to that file, so that a test can see the calls made in every
interpreter of the process (sub-interpreters included).
"""

import os
import sys

calls = []


def _record(name, *args):
    calls.append((name,) + args)
    path = os.environ.get("TARNWICK_RECORD")
    if path:
        # id(sys.modules) tells interpreters apart: each has its own.
        fields = [name, "%x" % id(sys.modules)] + [repr(a) for a in args]
        with open(path, "a", encoding="utf-8") as out:
            out.write("\t".join(fields) + "\n")
    # Tests name the calls that should fail in TARNWICK_RAISE.
    if name in os.environ.get("TARNWICK_RAISE", "").split(","):
        raise RuntimeError("%s refused" % name)


def pythonlib_init(log_folder, debug_flag):
    _record("pythonlib_init", log_folder, debug_flag)


def pythonlib_clear():
    _record("pythonlib_clear")


def remove_module(name):
    _record("remove_module", name)
    sys.modules.pop(name, None)
