import ctypes
import os
import sys

library = ctypes.CDLL(os.environ.get("KZEKAMOK_LIBRARY", "libKZEkaMok.so.2"))
library.KZEkaMok_CsvCheck.restype = ctypes.c_void_p
result = ctypes.c_void_p(library.KZEkaMok_CsvCheck(sys.argv[1].encode()))
for name in ("Result", "DetailErrorInfo"):
    text = getattr(library, "KZEkaMokResult_" + name)
    text.restype = ctypes.c_char_p
    print(text(result).decode(), end=" ")
library.KZEkaMokResult_Free(result)
library.KZEkaMok_Terminate()
