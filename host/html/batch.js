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
