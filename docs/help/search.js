// The search field of every help page: looks through the texts of sections.js, which is read from the same folder,
// so that it works from files as well as from a server. Without scripts there is no field, and the table of contents
// on the start page serves.
"use strict";

const kMostFound = 20;
const kAround = 60; // letters shown on either side of what was found

// What is found in a title stands before what is found in a text.
function find(wanted) {
  const words = wanted.toLowerCase().split(/\s+/).filter(Boolean);
  if (words.length === 0)
    return [];
  return kSections
    .map(([link, title, text]) => {
      const inTitle = words.filter((word) => title.toLowerCase().includes(word)).length;
      const hasAll = words.every((word) => (title + " " + text).toLowerCase().includes(word));
      return { link, title, text, inTitle, hasAll };
    })
    .filter((section) => section.hasAll)
    .sort((a, b) => b.inTitle - a.inTitle);
}

function titleOfPage(link) {
  return kSections.find(([first]) => first === link.split("#")[0])[1];
}

// The text about the first word that is in it, with that word marked.
function excerpt(text, wanted) {
  const word = wanted.toLowerCase().split(/\s+/).find((one) => one && text.toLowerCase().includes(one)) || "";
  const at = text.toLowerCase().indexOf(word);
  const begin = Math.max(0, at - kAround), end = Math.min(text.length, at + word.length + kAround);
  const mark = document.createElement("mark");
  mark.textContent = text.slice(at, at + word.length);
  const line = document.createElement("p");
  line.append((begin > 0 ? "…" : "") + text.slice(begin, at), mark,
              text.slice(at + word.length, end) + (end < text.length ? "…" : ""));
  return line;
}

function show(list, wanted) {
  const found = find(wanted);
  list.replaceChildren(...found.slice(0, kMostFound).map((section) => {
    const link = document.createElement("a");
    link.href = section.link;
    const page = titleOfPage(section.link);
    link.textContent = page === section.title ? page : `${page}: ${section.title}`;
    const item = document.createElement("li");
    item.append(link, excerpt(section.text, wanted));
    return item;
  }));
  if (wanted.trim() !== "" && found.length === 0)
    list.append("Nothing found. Try fewer letters, or the contents on the start page.");
  if (found.length > kMostFound)
    list.append(`${found.length - kMostFound} more places; another word finds fewer.`);
}

function addSearch() {
  const field = document.createElement("input");
  field.type = "search";
  field.id = "txtSearch";
  field.placeholder = "Search the help";
  field.setAttribute("aria-label", "Search the help");
  const list = document.createElement("ol");
  list.id = "lstFound";
  list.setAttribute("aria-live", "polite");
  field.addEventListener("input", () => show(list, field.value));
  list.addEventListener("click", (event) => {
    if (event.target.closest("a"))
      field.value = "", list.replaceChildren(); // the place may be on this page
  });
  document.querySelector("nav").append(field);
  document.querySelector("nav").after(list);
}

addSearch();
