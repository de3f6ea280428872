"""Opens the page of a batch in Chromium and uses it as a person would.

batch_page.py PATH_OF_KZEKAMOK SAMPLES [--pictures FOLDER]
"""

import argparse
import glob
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
import urllib.parse

import chromium

SKIPPED = 77  # exit status
STRANGE = "&<img src=x onerror=alert(1)> 50%#?.csv"

OPTIONS = None
FOLDER = None
BROWSER = None

ROWS = "Array.from(document.querySelectorAll('#files tbody tr'))"
SHOWN = ROWS + ".filter(row => row.getClientRects().length > 0)"
FIRST_CELLS = SHOWN + ".map(row => row.cells[{}].textContent)"


def make_batch():
    """A batch over all samples, and files that can't be checked or have a strange name."""
    files = os.path.join(FOLDER, "in")
    os.mkdir(files)
    for path in glob.glob(os.path.join(OPTIONS.samples, "*_[pf]a[si][sl].csv")):
        shutil.copy(path, files)
    shutil.copy(os.path.join(files, "PGE5020_pass.csv"), os.path.join(files, STRANGE))
    with open(os.path.join(files, "torn.csv"), "wb") as file:
        file.write(b"002,\x81\n")
    for language in ("en", "ja"):
        subprocess.run(
            [OPTIONS.kzekamok, "--lang", language, "batch", "in", "-o", language,
             "--profile", os.path.join(OPTIONS.samples, "filer.toml"),
             "--teishutsu-date", "2026-11-20", "--nozeisha-zip1", "100", "--nozeisha-zip2",
             "0001"],
            cwd=FOLDER, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False,
            timeout=300)


class BatchPage(unittest.TestCase):
    def page(self, language="en", width=1280, scripts=True):
        page = chromium.Page(BROWSER, width)
        self.addCleanup(page.call, "Page.close")
        if not scripts:
            page.disable_scripts()
        page.open(os.path.join(FOLDER, language, "index.html"))
        return page

    def test_nothing_goes_wrong_on_opening(self):
        page = self.page()
        self.assertEqual(page.complaints(), [])
        self.assertEqual(page.eval("document.images.length"), 0)

    def test_every_file_has_a_row_and_problems_come_first(self):
        cells = self.page().eval(FIRST_CELLS.format(0))
        self.assertEqual(len(cells), len(os.listdir(os.path.join(FOLDER, "in"))))
        self.assertEqual(cells[0], "in/torn.csv")
        self.assertIn("in/" + STRANGE, cells)

    def test_every_link_leads_to_its_document(self):
        links = self.page().eval("Array.from(document.links, link => link.href)")
        self.assertEqual(len(links), 30)
        for link in links:
            path = urllib.parse.unquote(urllib.parse.urlparse(link).path)
            self.assertTrue(os.path.isfile(path), link)

    def test_words_filter_the_files(self):
        page = self.page()
        page.click("[name=words]")
        page.type("5020 FAIL")
        self.assertEqual(page.eval(FIRST_CELLS.format(0)), ["in/PGE5020_fail.csv"])
        self.assertEqual(page.eval("document.getElementById('shown').textContent"), "1 / 60")

    def test_result_filters_the_files(self):
        page = self.page()
        page.eval("(() => { const o = document.querySelector('[name=outcome]');"
                  "o.value = 'not_checked'; o.dispatchEvent(new Event('change')); })()")
        self.assertEqual(page.eval(FIRST_CELLS.format(1)), ["not checked"])

    def test_numbers_are_sorted_as_numbers_up_and_down(self):
        page = self.page()
        numbers = SHOWN + ".map(row => Number(row.cells[3].dataset.key))"
        page.click("#files th:nth-child(4) button")
        ascending = page.eval(numbers)
        self.assertEqual(ascending, sorted(ascending))
        self.assertGreater(ascending[-1], 9)
        page.click("#files th:nth-child(4) button")
        self.assertEqual(page.eval(numbers), ascending[::-1])
        self.assertEqual(page.eval("document.querySelector('[aria-sort]').ariaSort"), "descending")

    def test_errors_of_a_file_unfold(self):
        page = self.page()
        refused = "#files [data-outcome=refused] "
        page.click(refused + "summary")
        self.assertEqual(page.eval(f"document.querySelector('{refused} details').open"), True)
        self.assertIn("record ", page.eval(f"document.querySelector('{refused} li').textContent"))

    def test_page_is_whole_without_scripts(self):
        page = self.page(scripts=False)
        self.assertEqual(page.eval(ROWS + ".length"), 60)
        self.assertEqual(
            page.eval("document.getElementById('filter').getClientRects().length"), 0)

    def test_narrow_page_doesnt_scroll_sideways(self):
        page = self.page(width=400)
        self.assertLessEqual(page.eval("document.documentElement.scrollWidth"), 400)

    def test_japanese_page(self):
        page = self.page("ja")
        self.assertEqual(page.eval("document.documentElement.lang"), "ja")
        self.assertEqual(page.eval("document.querySelector('h1').textContent"), "バッチ処理の結果")

    def test_pictures(self):
        if OPTIONS.pictures is None:
            self.skipTest("no folder is named")
        for language, width, scheme in (("en", 1280, "light"), ("ja", 1280, "dark"),
                                        ("ja", 400, "light"), ("en", 400, "dark")):
            page = self.page(language, width)
            page.prefer(scheme)
            page.screenshot(os.path.join(OPTIONS.pictures, f"batch-{width}-{scheme}.png"),
                            whole=True)


def main():
    global OPTIONS, FOLDER, BROWSER
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("kzekamok", type=os.path.abspath)
    parser.add_argument("samples", type=os.path.abspath)
    parser.add_argument("--pictures", type=os.path.abspath)
    OPTIONS = parser.parse_args()
    if chromium.find() is None:
        print("left out, as there is no Chromium", file=sys.stderr)
        return SKIPPED
    with tempfile.TemporaryDirectory() as FOLDER, chromium.Browser() as BROWSER:
        make_batch()
        result = unittest.main(argv=[sys.argv[0]], exit=False).result
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
