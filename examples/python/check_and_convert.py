#!/usr/bin/env python3
"""Checks a CSV file and turns it into a document in memory. Prints its errors or what came out.

    check_and_convert.py FILE.csv

The library is the installed one, or that of the variable KZEKAMOK_LIBRARY.
"""

import ctypes
import os
import sys

KEY = 1
FIELDS = ("Result", "DetailErrorInfo", "RecordCount", "ProcId", "MokData")


class Library:
    """The C functions of the library, with texts as str and results as dictionaries."""

    def __init__(self, path):
        self._functions = ctypes.CDLL(path)
        for field in FIELDS:
            getter = getattr(self._functions, "KZEkaMokResult_" + field)
            getter.argtypes = [ctypes.c_void_p]
            getter.restype = ctypes.c_char_p
        self._functions.KZEkaMokResult_Free.argtypes = [ctypes.c_void_p]
        self._functions.KZEkaMokResult_Free.restype = None

    def call(self, operation, *arguments):
        """Runs KZEkaMok_<operation>. A text may be None; an integer is a key."""
        function = getattr(self._functions, "KZEkaMok_" + operation)
        function.argtypes = [ctypes.c_int64 if isinstance(argument, int) else ctypes.c_char_p
                             for argument in arguments]
        function.restype = ctypes.c_void_p
        result = function(*(argument.encode("utf-8") if isinstance(argument, str) else argument
                            for argument in arguments))
        if not result:
            raise MemoryError(operation)
        try:
            return {field: getattr(self._functions, "KZEkaMokResult_" + field)(result).decode("utf-8")
                    for field in FIELDS}
        finally:
            self._functions.KZEkaMokResult_Free(result)

    def terminate(self):
        self._functions.KZEkaMok_Terminate.restype = None
        self._functions.KZEkaMok_Terminate()


def print_errors(result):
    """One entry "record-column-code" a line."""
    print(result["DetailErrorInfo"].replace(",", "\n"))


def run(library, path):
    check = library.call("ELCsvCheck", path, KEY)
    if check["Result"] != "S_OK":
        print_errors(check)
        return 1
    document = library.call(
        "ELCsvConvMok", KEY, "90101", "9900000000000017", None, "9990000000017",
        "見本&例証券株式会社", "紙原県見本市例町１丁目２番３号　見本ビル９階", "見本　太郎",
        "9900000000000025", "例田税理士事務所　例田　花子", "紙原県雛形市折目坂４－５－６",
        check["ProcId"])
    if document["Result"] != "S_OK":
        print_errors(document)
        return 1
    size = len(document["MokData"].encode("utf-8"))
    print(f"{check['ProcId']}: {check['RecordCount']} records, a document of {size} bytes")
    return 0


def main():
    if len(sys.argv) != 2:
        print(f"usage: {sys.argv[0]} FILE.csv", file=sys.stderr)
        return 2
    library = Library(os.environ.get("KZEKAMOK_LIBRARY", "libKZEkaMok.so.2"))
    try:
        return run(library, sys.argv[1])
    finally:
        library.terminate()


if __name__ == "__main__":
    sys.exit(main())
