#include "batch/PageParts.h"

namespace host {

const char* const PAGE_STYLE = R"(
:root{color-scheme:light dark;--ground:#fff;--text:#1c2127;--soft:#5b6672;--line:#d5dae0;
--panel:#f5f7f9;--good:#1b6e3c;--bad:#a8231b;--doubt:#8a5a00;--link:#0b57a8}
@media(prefers-color-scheme:dark){:root{--ground:#14181d;--text:#e4e8ec;--soft:#9aa6b2;
--line:#343c46;--panel:#1c222a;--good:#6fcf97;--bad:#ff8a80;--doubt:#f2c063;--link:#7ab8ff}}
*{box-sizing:border-box}
body{margin:0 auto;padding:1.5rem;max-width:90rem;background:var(--ground);color:var(--text);
font:15px/1.5 system-ui,"Noto Sans CJK JP","Hiragino Sans","Yu Gothic UI",sans-serif}
h1{font-size:1.4rem;margin:0 0 .25rem}
h2{font-size:1.1rem;margin:2rem 0 .5rem}
p{margin:.25rem 0}
a{color:var(--link)}
.soft{color:var(--soft)}
.counts{display:flex;flex-wrap:wrap;gap:.75rem;margin:1rem 0;padding:0;list-style:none}
.counts li{padding:.5rem 1rem;border:1px solid var(--line);border-radius:.5rem;
background:var(--panel)}
.counts b{display:block;font-size:1.5rem;font-variant-numeric:tabular-nums}
.bar{display:flex;height:.75rem;border-radius:.4rem;overflow:hidden;background:var(--line)}
.bar span{display:block}
.side{display:flex;flex-wrap:wrap;gap:0 2.5rem;align-items:flex-start}
.side section{max-width:100%}
.scroll{overflow-x:auto}
.wide{overflow:visible}
table{border-collapse:collapse;font-size:.92rem}
#files{width:100%}
th,td{padding:.3rem .6rem;border-bottom:1px solid var(--line);text-align:left;vertical-align:top;
overflow-wrap:anywhere}
th{background:var(--panel);white-space:nowrap}
#files thead th{position:sticky;top:0}
.n{text-align:right;white-space:nowrap;font-variant-numeric:tabular-nums}
.k,.o{white-space:nowrap}
.o{font-weight:600}
.good{color:var(--good)}.bad{color:var(--bad)}.doubt{color:var(--doubt)}
.bar .good{background:var(--good)}.bar .bad{background:var(--bad)}.bar .doubt{background:var(--doubt)}
th button{all:unset;cursor:pointer}
th button:focus-visible,input:focus-visible,select:focus-visible{outline:2px solid var(--link);
outline-offset:2px}
th[aria-sort=ascending] button::after{content:" ▲"}
th[aria-sort=descending] button::after{content:" ▼"}
form{display:flex;flex-wrap:wrap;gap:.75rem;align-items:center;margin:.5rem 0}
form[hidden]{display:none}
input,select{font:inherit;padding:.3rem .5rem;color:inherit;background:var(--ground);
border:1px solid var(--line);border-radius:.3rem}
details ul{margin:.25rem 0;padding-left:1.2rem}
code{font-family:ui-monospace,"Noto Sans Mono CJK JP",monospace}
@media(max-width:60rem){body{padding:.75rem}th,td{padding:.25rem .35rem}.wide{overflow-x:auto}
#files{min-width:50rem}}
@media print{form{display:none!important}#files thead th{position:static}}
)";

const char* const PAGE_SCRIPT = R"js(
"use strict";
(() => {
  const table = document.getElementById("files");
  if (!table) return;
  const form = document.getElementById("filter");
  const words = form.elements.words, outcome = form.elements.outcome;
  const shown = document.getElementById("shown");
  const body = table.tBodies[0];
  let rows = Array.from(body.rows, row => ({row, text: row.textContent.toLowerCase()}));
  const filter = () => {
    const wanted = words.value.toLowerCase().split(/\s+/).filter(word => word);
    let count = 0;
    for (const {row, text} of rows) {
      const fits = (!outcome.value || row.dataset.outcome === outcome.value) &&
        wanted.every(word => text.includes(word));
      row.hidden = !fits;
      if (fits) ++count;
    }
    shown.textContent = count + " / " + rows.length;
  };
  const key = (row, column) => {
    const cell = row.cells[column];
    return cell.dataset.key === undefined ? cell.textContent : Number(cell.dataset.key);
  };
  const headers = Array.from(table.tHead.rows[0].cells);
  headers.forEach((header, column) => {
    const button = document.createElement("button");
    button.type = "button";
    button.append(...header.childNodes);
    header.append(button);
    button.addEventListener("click", () => {
      const down = header.getAttribute("aria-sort") === "ascending";
      for (const other of headers) other.removeAttribute("aria-sort");
      header.setAttribute("aria-sort", down ? "descending" : "ascending");
      const keyed = rows.map(each => ({...each, key: key(each.row, column)}));
      keyed.sort((a, b) => (a.key < b.key ? -1 : a.key > b.key ? 1 : 0) * (down ? -1 : 1));
      rows = keyed;
      body.append(...rows.map(each => each.row));
    });
  });
  words.addEventListener("input", filter);
  outcome.addEventListener("change", filter);
  form.addEventListener("submit", event => event.preventDefault());
  form.hidden = false;
  filter();
})();
)js";

}  // namespace host
