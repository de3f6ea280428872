"""Opens the report pages of kzekamok in Chromium and uses them as a person would.

report_page.py PATH_OF_KZEKAMOK [--pictures FOLDER]
"""

import argparse
import os
import subprocess
import sys
import tempfile
import unittest

import chromium

SKIPPED = 77  # exit status

COLUMNS = 40
RECORDS = 5000
LABELS = {5: "<b>氏名</b>", 6: "金額\u202e"}

OPTIONS = None
FOLDER = None
BROWSER = None


def make_bundle(folder):
    """A resource folder with one form of numbers."""
    os.mkdir(folder)
    items = "".join(
        f'<item type="Normal" id="C{n}" parent="GEZ030" column="{n}" '
        f'label="{LABELS.get(n, f"欄{n}").replace("<", "&lt;")}"><valid id="number"/></item>'
        for n in range(2, COLUMNS + 1))
    with open(os.path.join(folder, "KZEkaDefine.xml"), "w", encoding="utf-8") as file:
        file.write('<?xml version="1.0" encoding="UTF-8"?>\n<define>'
                   f'<report id="003" columnNum="{COLUMNS}" procId="PGE5030" procVR="1.0" '
                   f'reportId="GEZ030" reportVR="1.0">{items}</report></define>')
    with open(os.path.join(folder, "TaxOffices.xml"), "w", encoding="utf-8") as file:
        file.write("<TaxOffices/>")


def write_csv(name, wrong, records=60):
    """wrong: values by record and column, both from 1; every other cell is right."""
    lines = []
    for record in range(1, records + 1):
        cells = ["003"] + [str(record * 100 + n) for n in range(2, COLUMNS + 1)]
        for (at, column), value in wrong.items():
            if at == record:
                cells[column - 1] = value
        lines.append(",".join(cells))
    with open(os.path.join(FOLDER, name), "w", encoding="cp932", newline="") as file:
        file.write("\r\n".join(lines))


HOSTILE = {
    (3, 5): "<img src=x onerror=alert(1)>",
    (3, 9): "abc",
    (7, 5): '"></a></td></table><script>alert(2)</script>',
    (7, 6): "\x1b[31m",
    (20, 5): "</style></script><b>",
    (59, 40): "x" * 300,
}


def report(*names, language="en", options=()):
    """Writes the page over files of the folder and returns its path."""
    page = os.path.join(FOLDER, "-".join([*names, language, *options]) + ".html")
    with open(page, "wb") as file:
        subprocess.run(
            [OPTIONS.kzekamok, "--lang", language, "check", "--format", "html", *options, *names],
            cwd=FOLDER, stdout=file, stderr=subprocess.DEVNULL, check=False,
            env={**os.environ, "HOME": FOLDER, "KZEKAMOK_BUNDLE": os.path.join(FOLDER, "bundle")})
    return page


class ReportPageTest(unittest.TestCase):
    longMessage = True

    @classmethod
    def setUpClass(cls):
        write_csv("wrong.csv", HOSTILE)
        write_csv("right.csv", {})
        cls.one = report("wrong.csv")

    def page(self, path=None, width=1280, **options):
        page = chromium.Page(BROWSER, width)
        if options.get("scripts") is False:
            page.disable_scripts()
        page.open(path or self.one, options.get("fragment", ""))
        self.addCleanup(page.call, "Page.close")
        return page

    def wait(self, page, milliseconds=100):
        page.eval(f"new Promise(done => setTimeout(done, {milliseconds}))")

    def shown_errors(self, page):
        return page.eval("[...document.querySelectorAll('.group li')]"
                         ".filter(e => e.offsetParent !== null).map(e => e.id)")

    def focused(self, page):
        """The id of the error or of the cell whose link has the focus."""
        return page.eval("document.activeElement.closest('li, td, tr')?.id ?? ''")

    def test_page_has_nothing_to_complain_about(self):
        page = self.page()
        self.assertEqual(page.complaints(), [])

    def test_values_never_become_markup(self):
        page = self.page()
        self.assertEqual(page.eval("document.querySelectorAll('script').length"), 1)
        self.assertEqual(page.eval("document.querySelectorAll('img, b').length"), 0)
        self.assertEqual(page.eval("document.querySelector('#c1-3-5').textContent"),
                         "<img src=x onerror=alert(1)>")
        self.assertEqual(page.eval("document.querySelector('#e1-4 samp').textContent"),
                         "\\u{1b}[31m")
        self.assertIn("金額\\u{202e}", page.eval("document.querySelector('.heads').textContent"))

    def test_policy_lets_no_other_script_run(self):
        page = self.page()
        page.eval("document.body.append(Object.assign(document.createElement('script'),"
                  "{textContent: 'window.foreign = 1'})) ?? 0")
        self.assertIsNone(page.eval("window.foreign"))
        self.assertTrue(any("Content Security Policy" in told for told in page.complaints()))

    def test_every_error_is_listed_and_its_cell_marked(self):
        page = self.page()
        self.assertEqual(self.shown_errors(page), ["e1-1", "e1-3", "e1-5", "e1-4", "e1-2", "e1-6"])
        self.assertEqual(
            page.eval("[...document.querySelectorAll('td.e')].map(e => e.id)"),
            ["c1-3-5", "c1-3-9", "c1-7-5", "c1-7-6", "c1-20-5", "c1-59-40"])
        title = page.eval("document.querySelector('#c1-3-9 a').title")
        self.assertIn("HE70004E", title)
        self.assertIn("半角数字以外の文字", title)

    def test_filter_by_text_hides_other_errors_and_unmarks_their_cells(self):
        page = self.page()
        page.press("/")
        page.type("ABC")
        self.wait(page, 400)
        self.assertEqual(self.shown_errors(page), ["e1-2"])
        self.assertEqual(page.eval("document.querySelector('.shown').textContent"), "1 / 6")
        self.assertEqual(
            page.eval("[...document.querySelectorAll('td.e:not(.off)')].map(e => e.id)"),
            ["c1-3-9"])
        page.click(".filter button")
        self.wait(page)
        self.assertEqual(len(self.shown_errors(page)), 6)

    def test_filter_by_column_and_by_code(self):
        page = self.page()
        page.eval("(() => { const c = document.querySelector('[name=column]');"
                  "c.selectedIndex = 1; c.dispatchEvent(new Event('change')); })()")
        self.assertEqual(self.shown_errors(page), ["e1-1", "e1-3", "e1-5"])
        page.eval("(() => { const c = document.querySelector('[name=code]');"
                  "c.value = 'HE70004E'; c.dispatchEvent(new Event('change')); })()")
        self.assertEqual(self.shown_errors(page), ["e1-1", "e1-3", "e1-5"])

    def test_bar_of_a_chart_filters(self):
        page = self.page()
        page.click(".charts a[data-field=column]")
        self.assertEqual(self.shown_errors(page), ["e1-1", "e1-3", "e1-5"])

    def test_records_without_errors_can_be_hidden(self):
        page = self.page()
        page.click("[name=only]")
        self.assertEqual(
            page.eval("[...document.querySelectorAll('.chunk tr')]"
                      ".filter(e => getComputedStyle(e).display !== 'none')"
                      ".map(e => e.cells[0].textContent)"),
            ["3", "7", "20", "59"])

    def test_keys_move_from_error_to_error(self):
        page = self.page()
        ways = []
        for key in ("n", "n", "p", "p", "ArrowDown", "ArrowUp"):
            page.press(key)
            ways.append(self.focused(page))
        self.assertEqual(ways, ["e1-1", "e1-3", "e1-1", "e1-6", "e1-1", "e1-6"])
        self.assertNotEqual(
            page.eval("getComputedStyle(document.activeElement).outlineStyle"), "none")

    def test_keys_skip_what_the_filter_hides(self):
        page = self.page()
        page.click(".charts a[data-field=column]")
        page.press("n")
        first = self.focused(page)
        page.press("n")
        page.press("n")
        page.press("n")
        self.assertEqual(self.focused(page), first)

    def test_enter_goes_to_the_cell_and_back(self):
        page = self.page()
        page.press("p")
        self.assertEqual(self.focused(page), "e1-6")
        page.press("Enter")
        self.wait(page)
        self.assertEqual(self.focused(page), "c1-59-40")
        self.assertTrue(page.eval(
            "(() => { const c = document.activeElement.getBoundingClientRect();"
            "const g = document.querySelector('.grid').getBoundingClientRect();"
            "return c.top >= g.top && c.bottom <= g.bottom && c.left >= g.left - 1 && "
            "c.right <= g.right + 1 && c.bottom <= innerHeight; })()"), "the cell can be seen")
        self.assertIn("record 59, column 40", page.eval(
            "document.querySelector('.now').textContent"))
        page.press("Enter")
        self.wait(page)
        self.assertEqual(self.focused(page), "e1-6")

    def test_keys_move_from_cell_to_cell_in_the_grid(self):
        page = self.page(fragment="#c1-3-5")
        self.wait(page)
        self.assertEqual(self.focused(page), "c1-3-5")
        ways = []
        for key in ("ArrowRight", "ArrowLeft", "ArrowDown", "ArrowDown", "ArrowUp", "n", "p"):
            page.press(key)
            ways.append(self.focused(page))
        self.assertEqual(ways, ["c1-3-9", "c1-3-5", "c1-7-5", "c1-20-5", "c1-7-5", "c1-7-6",
                                "c1-7-5"])

    def test_link_to_a_file_shows_its_head(self):
        page = self.page(report("right.csv", "wrong.csv"), fragment="#f2")
        self.wait(page)
        top = page.eval("document.querySelector('#f2').getBoundingClientRect().top")
        self.assertTrue(0 <= top < 100, top)

    def test_keys_mean_nothing_while_one_types(self):
        page = self.page()
        page.press("/")
        page.press("n")
        self.assertEqual(page.eval("document.activeElement.value"), "n")

    def test_colours_follow_the_preference(self):
        page = self.page()
        colours = {}
        for scheme in ("light", "dark"):
            page.prefer(scheme)
            colours[scheme] = page.eval(
                "[document.body, document.querySelector('td.e')].map(e =>"
                "getComputedStyle(e)).map(s => s.backgroundColor + s.color)")
        for light, dark in zip(colours["light"], colours["dark"]):
            self.assertNotEqual(light, dark)

    def test_no_width_makes_the_page_scroll_sideways(self):
        several = report("wrong.csv", "right.csv", "absent.csv")
        for path in (self.one, several):
            for width in (400, 1280):
                with self.subTest(width=width, path=path):
                    page = self.page(path, width)
                    self.assertLessEqual(
                        page.eval("document.documentElement.scrollWidth"), width)
                    self.assertTrue(page.eval(
                        "(() => { const g = document.querySelector('.grid');"
                        "return g.scrollWidth > g.clientWidth; })()"), "the grid scrolls")

    def test_everything_can_be_read_without_scripts(self):
        page = self.page(scripts=False)
        text = page.call("DOM.getDocument", depth=-1)
        texts = []

        def gather(node):
            if node["nodeName"] in ("STYLE", "SCRIPT"):
                return
            if node["nodeType"] == 3:
                texts.append(node["nodeValue"])
            for child in node.get("children", ()):
                gather(child)

        gather(text["root"])
        whole = " ".join(texts)
        for value in ("<img src=x onerror=alert(1)>", "abc", "\\u{1b}[31m", "</style></script><b>"):
            self.assertEqual(whole.count(value), 2, "in the list and in the grid")
        root = text["root"]["nodeId"]
        links = page.call("DOM.querySelectorAll", nodeId=root, selector=".group li a")["nodeIds"]
        for link in links:
            self.assertTrue(page.call("DOM.getBoxModel", nodeId=link)["model"]["width"] > 0)
        self.assertEqual(len(links), 6)
        form = page.call("DOM.querySelector", nodeId=root, selector=".filter")["nodeId"]
        with self.assertRaises(RuntimeError, msg="what needs the script isn't shown"):
            page.call("DOM.getBoxModel", nodeId=form)

    def test_head_of_the_grid_stays_in_sight(self):
        page = self.page(fragment="#c1-59-40")
        self.assertEqual(page.eval(
            "(() => { const g = document.querySelector('.grid').getBoundingClientRect();"
            "const h = document.querySelector('.heads').getBoundingClientRect();"
            "const r = document.querySelector('#c1-59-40').parentNode.cells[0]"
            ".getBoundingClientRect();"
            "return [Math.abs(h.top - g.top) <= 2, Math.abs(r.left - g.left) <= 2]; })()"),
            [True, True])

    def test_limit_leaves_cells_marked(self):
        page = self.page(report("wrong.csv", options=("--limit", "2")))
        self.assertEqual(self.shown_errors(page), ["e1-1", "e1-2"])
        self.assertEqual(page.eval("document.querySelectorAll('td.e').length"), 6)
        self.assertIn("4 of 6 errors", page.eval("document.querySelector('#more1').textContent"))

    def test_file_that_passed_has_its_contents_folded(self):
        page = self.page(report("right.csv"))
        self.assertEqual(page.eval("document.querySelector('.badge').textContent"), "passed")
        self.assertEqual(page.eval("document.querySelector('details').open"), False)
        self.assertEqual(page.eval("document.querySelectorAll('.chunk tr').length"), 60)

    def test_language_is_told(self):
        for language in ("en", "ja"):
            page = self.page(report("wrong.csv", language=language))
            self.assertEqual(page.eval("document.documentElement.lang"), language)

    def test_large_file_opens(self):
        wrong = {(record, column): "x" for record in range(9, RECORDS, 20)
                 for column in (5, 6 + record % 30)}
        write_csv("large.csv", wrong, RECORDS)
        path = report("large.csv")
        page = chromium.Page(BROWSER)
        self.addCleanup(page.call, "Page.close")
        seconds = page.open(path)
        self.assertEqual(page.eval("document.querySelectorAll('.chunk td').length"),
                         RECORDS * COLUMNS)
        self.assertEqual(len(self.shown_errors(page)), len(wrong))
        filtered = page.eval(
            "(() => { const c = document.querySelector('[name=column]');"
            "const start = performance.now(); c.selectedIndex = 1;"
            "c.dispatchEvent(new Event('change')); document.body.offsetHeight;"
            "return performance.now() - start; })()")
        print(f"{RECORDS} x {COLUMNS} cells, {len(wrong)} errors: {os.path.getsize(path)} bytes, "
              f"loaded in {seconds:.2f} s, filtered in {filtered:.0f} ms")

    def test_pictures(self):
        if OPTIONS.pictures is None:
            self.skipTest("no folder is named")
        several = report("wrong.csv", "right.csv", "absent.csv", language="ja")
        for name, path in (("one", self.one), ("several", several)):
            for width in (400, 1280):
                page = self.page(path, width)
                for scheme in ("light", "dark"):
                    page.prefer(scheme)
                    page.screenshot(os.path.join(OPTIONS.pictures, f"{name}-{width}-{scheme}.png"))


def main():
    global OPTIONS, FOLDER, BROWSER
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("kzekamok", type=os.path.abspath)
    parser.add_argument("--pictures", type=os.path.abspath)
    OPTIONS = parser.parse_args()
    if chromium.find() is None:
        print("left out, as there is no Chromium", file=sys.stderr)
        return SKIPPED
    with tempfile.TemporaryDirectory() as FOLDER, chromium.Browser() as BROWSER:
        make_bundle(os.path.join(FOLDER, "bundle"))
        result = unittest.main(argv=[sys.argv[0]], exit=False).result
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
