"""Checks what `kzekamok rules` writes against its schema.

rules_schema.py PATH_OF_KZEKAMOK
"""

import copy
import json
import os
import subprocess
import sys

sys.dont_write_bytecode = True

from report_schemas import ROOT, jsonschema  # noqa: E402


def read(program, *type_ids):
    output = subprocess.run([program, "rules", *type_ids], stdout=subprocess.PIPE, check=True)
    return json.loads(output.stdout.decode("utf-8"))


def references(rules):
    """What the schema can't tell: names that the document itself has to explain."""
    keywords = {item["keyword"] for item in rules["checkItems"]}
    codes = {message["code"] for message in rules["messages"]}
    for item in rules["checkItems"]:
        yield from (f"{code} of {item['keyword']}" for code in item["codes"] if code not in codes)
    for procedure in rules["procedures"]:
        for form in procedure["forms"]:
            for item in form["items"]:
                for check in item["checks"]:
                    names = [check, *check["conditions"]]
                    yield from (name["keyword"] for name in names
                                if name["keyword"] not in keywords)
                    if check["code"] is not None and check["code"] not in codes:
                        yield check["code"]


def spoilt(rules):
    """Documents that the schema must not take."""
    for path in (["messages", 0, "advice", "ja"], ["procedures", 0, "forms", 0, "label"],
                 ["checkItems", 0, "keyword"]):
        other = copy.deepcopy(rules)
        place = other
        for step in path[:-1]:
            place = place[step]
        del place[path[-1]]
        yield f"without {path}", other
    other = copy.deepcopy(rules)
    other["procedures"][0]["forms"][0]["items"][0]["column"] = 0
    yield "with a column 0", other


def main():
    program = os.path.abspath(sys.argv[1])
    with open(os.path.join(ROOT, "docs", "schemas", "rules.schema.json"), encoding="utf-8") as file:
        schema = json.load(file)
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)

    everything = read(program)
    some = read(program, "001", "302")
    problems = [f"{error.json_path}: {error.message}"[:300]
                for rules in (everything, some) for error in validator.iter_errors(rules)]
    problems += [f"unknown: {name}" for name in references(everything)]
    if [each["typeId"] for each in some["procedures"]] != ["001", "302"]:
        problems.append("two type ids don't give two procedures")
    problems += [f"a document {what} fits" for what, rules in spoilt(some)
                 if validator.is_valid(rules)]
    for problem in problems[:20]:
        print(problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
