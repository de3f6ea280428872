"""Checks JSON and SARIF reports of kzekamok against their schemas.

report_schemas.py PATH_OF_KZEKAMOK SAMPLES_FOLDER
"""

import json
import os
import shutil
import subprocess
import sys
import tempfile

DEBIAN_PYTHON = "/usr/bin/python3"
SKIPPED = 77  # exit status

try:
    import jsonschema
except ImportError:
    # The package may belong to another Python than the one that runs this.
    if sys.executable != DEBIAN_PYTHON and os.path.exists(DEBIAN_PYTHON):
        os.execv(DEBIAN_PYTHON, [DEBIAN_PYTHON, *sys.argv])
    print("left out, as there is no jsonschema", file=sys.stderr)
    sys.exit(SKIPPED)

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
SCHEMAS = {
    "json": os.path.join(ROOT, "docs", "schemas", "report.schema.json"),
    "sarif": os.path.join(HERE, "sarif-subset.schema.json"),
}

FIELDS = ["--zeimusho-cd", "90101", "--nozeisha-id", "9900000000000017",
          "--nozeisha-nm", "見本", "--nozeisha-adr", "例町"]


def write(name, data):
    with open(name, "wb") as file:
        file.write(data)


def commands(samples):
    """Command lines that end in each way there is."""
    csvs = sorted(name for name in os.listdir(samples) if name.endswith(".csv"))
    for name in csvs:
        shutil.copy(os.path.join(samples, name), ".")
        yield ["check", name]
    name = os.fsdecode(b"\x82\xa0: [1].csv")
    shutil.copy(csvs[0], name)
    write("empty.csv", b"")
    write("unknown.csv", b"999,1\r\n")
    write("short.csv", b"002,1,2\r\n")
    write("hostile.csv", b"002,\x1b{0}[a](1)" + b"," * 34 + b"\r\n")
    write("notsjis.csv", b"002,\xff\xff\r\n")
    write("nul.csv", b"002,\0\r\n")
    yield ["check", "--limit", "2", *csvs[:4], "absent.csv", name, "empty.csv", "unknown.csv",
           "short.csv", "hostile.csv", "notsjis.csv", "nul.csv", os.path.abspath(csvs[0])]
    for option in ([], FIELDS):
        yield ["convert", "PGE5020_pass.csv", *option, "-o", "out.mok"]
    yield ["convert", "PGE5020_fail.csv", *FIELDS, "-o", "other.mok"]
    yield ["convert", "PGE5020_pass.csv", *FIELDS, "-o", "absent/out.mok"]


def problems_of_sarif(document):
    """What a schema can't tell: references between the parts."""
    run = document["runs"][0]
    rules = run["tool"]["driver"]["rules"]
    for result in run["results"]:
        if rules[result["ruleIndex"]]["id"] != result["ruleId"]:
            yield f"rule {result['ruleIndex']} isn't {result['ruleId']}"
        place = result["locations"][0]["physicalLocation"]["artifactLocation"]
        if run["artifacts"][place["index"]]["location"]["uri"] != place["uri"]:
            yield f"artifact {place['index']} isn't {place['uri']}"
    if run["invocations"][0]["executionSuccessful"] != (run["invocations"][0]["exitCode"] < 2):
        yield "the run's success isn't that of its status"


def main():
    kzekamok, samples = map(os.path.abspath, sys.argv[1:])
    validators = {}
    for form, path in SCHEMAS.items():
        with open(path, encoding="utf-8") as file:
            schema = json.load(file)
        jsonschema.Draft202012Validator.check_schema(schema)
        validators[form] = jsonschema.Draft202012Validator(schema)

    count = failures = 0
    with tempfile.TemporaryDirectory() as folder:
        os.chdir(folder)
        for command in commands(samples):
            for form, validator in validators.items():
                language = "en" if count % 4 < 2 else "ja"
                output = subprocess.run(
                    [kzekamok, "--lang", language, *command, "--format", form],
                    stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False).stdout
                document = json.loads(output.decode("utf-8"))
                told = [f"{error.json_path}: {error.message}"[:300]
                        for error in validator.iter_errors(document)]
                if form == "sarif":
                    told += problems_of_sarif(document)
                count += 1
                failures += bool(told)
                for problem in told[:5]:
                    print(f"{form} of {' '.join(command[:4])!a}: {problem}")
    print(f"{count} reports, {failures} of them wrong")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
