"""Checks the lines of a batch's report against their schema.

batch_schema.py PATH_OF_KZEKAMOK SAMPLES_FOLDER
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

SCHEMAS = os.path.join(
    os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__)))), "docs", "schemas")


def read_schema(name):
    with open(os.path.join(SCHEMAS, name), encoding="utf-8") as file:
        return json.load(file)


def make_files(samples):
    """Files that end in each way there is."""
    os.mkdir("in")
    for name in os.listdir(samples):
        if name.endswith(".csv"):
            shutil.copy(os.path.join(samples, name), "in")
    shutil.copy("in/PGE5020_pass.csv", os.path.join(b"in", b"\x82\xa0.csv"))
    shutil.copy("in/PGE5020_pass.csv", "in/wrong.csv")
    with open("in/wrong.toml", "w", encoding="utf-8") as file:
        file.write('nozeisha_nam = "x"\n')
    os.makedirs("in/taken")
    shutil.copy("in/PGE5020_pass.csv", "in/taken/a.csv")
    os.mkdir("out")
    with open("out/taken", "wb"):
        pass
    with open("in/torn.csv", "wb") as file:
        file.write(b"002,\x81\n")
    os.symlink("nowhere", "in/absent.csv")


def main():
    kzekamok, samples = map(os.path.abspath, sys.argv[1:])
    line_schema = read_schema("batch.schema.json")
    jsonschema.Draft202012Validator.check_schema(line_schema)
    line_validator = jsonschema.Draft202012Validator(line_schema)
    file_validator = jsonschema.Draft202012Validator(
        {"$defs": read_schema("report.schema.json")["$defs"], "$ref": "#/$defs/file"})

    count = failures = 0
    results = set()
    with tempfile.TemporaryDirectory() as folder:
        os.chdir(folder)
        make_files(samples)
        for options in (["out", "--profile", os.path.join(samples, "filer.toml")],
                        ["checked", "--check-only", "--limit", "1", "--lang", "ja"]):
            subprocess.run([kzekamok, "batch", "in", "-o", *options], stdout=subprocess.DEVNULL,
                           stderr=subprocess.DEVNULL, check=False)
            with open(options[0] + "/report.json", encoding="utf-8") as file:
                lines = [json.loads(line) for line in file]
            for line in lines:
                told = [error.message for error in line_validator.iter_errors(line)]
                line.pop("batch", None)
                told += [error.message for error in file_validator.iter_errors(line)]
                results.add(line["result"])
                count += 1
                failures += bool(told)
                for problem in told[:5]:
                    print(f"{line['file']!a}: {problem[:300]}")
    missing = set(line_schema["properties"]["result"]["enum"]) - results
    print(f"{count} lines, {failures} of them wrong, results not seen: {sorted(missing)}")
    return 1 if failures or missing or count == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
