// Everything can be read without this script: it only adds filters and keys.
"use strict";

const WAIT = 120; // milliseconds from the last key in the search field to the search

// The link by which an error, a marked cell or a marked record is reached; null for other elements.
const linkOf = (element) => (element.matches("li, td, tr") ? element.querySelector("a") : null);

function reach(link) {
  for (let up = link.parentElement; up; up = up.parentElement)
    if (up.tagName === "DETAILS") up.open = true;
  link.scrollIntoView({ block: "center", inline: "center" });
  link.focus({ preventScroll: true });
}

function reachTarget() {
  const target = document.getElementById(decodeURIComponent(location.hash.slice(1)));
  const link = target && linkOf(target);
  if (link) reach(link);
}

// One file of the page: its errors, its cells and the filter over both.
class FileView {
  constructor(root) {
    this.root = root;
    this.grid = root.querySelector(".grid");
    this.filter = root.querySelector(".filter");
    this.now = root.querySelector(".now");
    if (this.filter) this.startFilter();
    if (this.grid) this.startGrid();
    root.querySelector(".charts")?.addEventListener("click", (event) => this.choose(event));
  }

  startFilter() {
    this.filter.hidden = false;
    const fields = this.filter.elements;
    this.filter.addEventListener("submit", (event) => event.preventDefault());
    this.filter.addEventListener("reset", () => setTimeout(() => this.apply()));
    fields.code.addEventListener("change", () => this.apply());
    fields.column.addEventListener("change", () => this.apply());
    fields.text.addEventListener("input", () => {
      clearTimeout(this.timer);
      this.timer = setTimeout(() => this.apply(), WAIT);
    });
    fields.only?.addEventListener("change", () =>
      this.grid.classList.toggle("only", fields.only.checked),
    );
    this.apply();
  }

  // A bar of a chart sets the filter to what it counts.
  choose(event) {
    const bar = event.target.closest("a[data-field]");
    if (!bar || !this.filter) return;
    this.filter.elements[bar.dataset.field].value = bar.dataset.value;
    this.apply();
  }

  apply() {
    const { code, column, text } = this.filter.elements;
    const wanted = text.value.toLowerCase();
    const seen = new Set();
    let all = 0;
    for (const group of this.root.querySelectorAll(".group")) {
      const fits =
        (!code.value || group.dataset.code === code.value) &&
        (!column.value || group.dataset.column === column.value);
      const whole = fits && this.headOf(group).includes(wanted);
      let some = false;
      for (const item of group.querySelectorAll("li")) {
        ++all;
        const shown = whole || (fits && item.textContent.toLowerCase().includes(wanted));
        if (item.hidden === shown) item.hidden = !shown;
        if (!shown) continue;
        some = true;
        seen.add(item.id);
      }
      group.hidden = !some;
    }
    this.markCells(seen, seen.size === all);
    this.root.querySelector(".shown").textContent = `${seen.size} / ${all}`;
  }

  // What stands over the errors of a group: column, label, code, text, rule, advice.
  headOf(group) {
    group.headText ??= [...group.children]
      .filter((child) => child.tagName !== "UL")
      .map((child) => child.textContent.toLowerCase())
      .join(" ");
    return group.headText;
  }

  markCells(seen, everything) {
    if (!this.grid) return;
    for (const cell of this.grid.querySelectorAll(".e")) {
      const ids = cell.dataset.e ? cell.dataset.e.split(" ") : [linkOf(cell).hash.slice(1)];
      cell.classList.toggle("off", !everything && !ids.some((id) => seen.has(id)));
    }
  }

  startGrid() {
    this.grid.addEventListener("focusin", (event) => {
      const place = event.target.dataset?.at;
      this.now.textContent = place ? `${place}\n${event.target.title}` : "";
    });
  }

  errors() {
    return [...this.root.querySelectorAll(".group:not([hidden]) li:not([hidden]) > a:first-child")];
  }

  cells() {
    return this.grid ? [...this.grid.querySelectorAll(".e:not(.off) > a, .x > th > a")] : [];
  }

  // The next or previous one, round in a ring.
  step(links, by) {
    if (links.length === 0) return;
    const at = links.indexOf(document.activeElement);
    const first = by > 0 ? 0 : links.length - 1;
    reach(links[at < 0 ? first : (at + by + links.length) % links.length]);
  }

  // The next or previous marked cell in the same column.
  stepColumn(by) {
    const index = document.activeElement.closest("td, th").cellIndex;
    this.step(
      this.cells().filter((link) => link.closest("td, th").cellIndex === index),
      by,
    );
  }

  // Returns whether the key meant something.
  press(key) {
    const inGrid = this.grid?.contains(document.activeElement);
    const onCell = inGrid && document.activeElement.tagName === "A";
    const onError = document.activeElement.matches(".group li > a");
    const by = { n: 1, p: -1, ArrowDown: 1, ArrowUp: -1, ArrowRight: 1, ArrowLeft: -1 }[key];
    if (key === "n" || key === "p") this.step(inGrid ? this.cells() : this.errors(), by);
    else if (by && onError) this.step(this.errors(), by);
    else if (onCell && (key === "ArrowDown" || key === "ArrowUp")) this.stepColumn(by);
    else if (by && onCell) this.step(this.cells(), by);
    else if (key === "/" && this.filter) this.filter.elements.text.focus();
    else return false;
    return true;
  }
}

const views = [...document.querySelectorAll(".file")].map((root) => new FileView(root));

// The file that has the focus, else the first with errors.
function currentView() {
  return (
    views.find((view) => view.root.contains(document.activeElement)) ??
    views.find((view) => view.filter)
  );
}

document.addEventListener("keydown", (event) => {
  const typing = event.target.closest?.("input, select, textarea");
  if (event.key === "Escape" && typing) typing.blur();
  if (typing || event.ctrlKey || event.altKey || event.metaKey) return;
  if (currentView()?.press(event.key)) event.preventDefault();
});

// A link inside the page moves the focus, even if its target is the one of before.
document.addEventListener("click", (event) => {
  const link = event.target.closest?.("a[href^='#']");
  if (link && link.hash === location.hash) reachTarget();
});
window.addEventListener("hashchange", reachTarget);
// The browser's own way to the target, which leaves the focus nowhere, comes first.
if (location.hash) window.addEventListener("load", () => setTimeout(reachTarget));
