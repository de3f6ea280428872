#!/usr/bin/env python3
"""A second, independent writer of filing documents: the plain rules of the conversion of all three
families and nothing of the library's code. The golden documents come from here, so that a fault of
the library can't become its own expectation.

For each folder of tests/golden/ it reads request.json, the sample named there and the definition
file, and writes expected.mok: the document of a plain conversion on the request's day. The request
names the procedure, and the procedure decides the family.

    tests/model/write_golden.py             write the documents
    tests/model/write_golden.py --check     write nothing; exit 1 if a document differs

What it leaves out, because no golden case holds it: cells with a CDATA section, comment or
processing instruction and start tags beyond the limit (it stops at each of these), and all checks.
The request is taken to be a good one.

Needs Python 3.9 or newer and nothing else.
"""

import json
import sys
from pathlib import Path

sys.dont_write_bytecode = True

import base  # noqa: E402
import finance  # noqa: E402

ROOT = Path(__file__).resolve().parents[2]
BUNDLE = ROOT / "resources" / "KZEkaMok.bundle"
GOLDEN = ROOT / "tests" / "golden"


def document(request):
    family = finance if finance.knows(request["tetsuzuki"]) else base
    return family.document(request, ROOT / "samples" / request["csv"], BUNDLE)


def main():
    check = sys.argv[1:] == ["--check"]
    if sys.argv[1:] and not check:
        sys.exit(__doc__)
    differing = []
    for request_path in sorted(GOLDEN.glob("*/request.json")):
        request = json.loads(request_path.read_text(encoding="utf-8"))
        content = document(request).encode("utf-8")
        path = request_path.with_name("expected.mok")
        if check:
            if not path.is_file() or path.read_bytes() != content:
                differing.append(str(path.relative_to(ROOT)))
        else:
            path.write_bytes(content)
            print(f"{path.relative_to(ROOT)}: {len(content)} bytes")
    if differing:
        sys.exit("differs from the model's document: " + ", ".join(differing))


if __name__ == "__main__":
    main()
