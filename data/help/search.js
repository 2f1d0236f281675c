// Shows every place of the help that has all the words of the address, and then what is typed.
"use strict";

function placesOf(page, html) {
  var body = new DOMParser().parseFromString(html, "text/html").body;
  var place = { page: page, head: "", id: "" };
  var title = "";
  var places = [];
  body.querySelectorAll("h1, h2, p, li, tr, pre").forEach(function (block) {
    var text = block.textContent.replace(/\s+/g, " ").trim();
    if (block.tagName === "H1")
      title = text;
    if (block.tagName === "H2")
      place = { page: page, head: text, id: block.id };
    // The cells of a row would run into one another.
    if (block.tagName === "TR")
      text = Array.from(block.cells, function (cell) { return cell.textContent.trim(); }).join(" \u2013 ");
    if (block.tagName !== "H1" && block.tagName !== "H2")
      places.push({ page: page, id: place.id, head: [title, place.head].filter(Boolean).join(", "), text: text });
  });
  return places;
}

function plain(text) {
  return text.normalize("NFKD").replace(/[\u0300-\u036f]/g, "").toLowerCase();
}

function search(query, places) {
  var wanted = plain(query).split(/\s+/).filter(Boolean);
  return wanted.length === 0 ? [] : places.filter(function (place) {
    var there = plain(place.head + " " + place.text);
    return wanted.every(function (word) { return there.includes(word); });
  });
}

function show(query, places) {
  var found = search(query, places);
  var list = document.getElementById("found");
  list.textContent = "";
  found.forEach(function (place) {
    var line = list.appendChild(document.createElement("li"));
    var link = line.appendChild(document.createElement("a"));
    link.href = place.page + (place.id ? "#" + place.id : "");
    link.textContent = place.head;
    line.appendChild(document.createElement("br"));
    line.appendChild(document.createTextNode(place.text));
  });
  var form = found.length === 0 ? words.none : found.length === 1 ? words.one : words.many;
  document.getElementById("count").textContent = query.trim() ? form.replace("%n", found.length) : "";
}

if (typeof document !== "undefined") {
  var all = Object.keys(pages).reduce(function (places, page) { return places.concat(placesOf(page, pages[page])); }, []);
  var field = document.querySelector("input[type=search]");
  field.value = new URLSearchParams(location.search).get("q") || "";
  field.addEventListener("input", function () { show(field.value, all); });
  field.focus();
  show(field.value, all);
}
