"use strict";

// The search index is the list zedSearch of [title, detail, page, words], made with the pages.
(function () {
    const form = document.querySelector(".search");
    const input = document.getElementById("search");
    const results = document.getElementById("results");
    const count = document.getElementById("result-count");
    const root = document.body.dataset.root;
    const most = 50;

    function close() {
        results.hidden = true;
        results.replaceChildren();
        count.textContent = "";
        count.classList.remove("none");
    }

    function entryFor(found) {
        const item = document.createElement("li");
        const link = document.createElement("a");
        const detail = document.createElement("small");
        link.href = root + found[2];
        link.textContent = found[0];
        detail.textContent = found[1];
        link.append(detail);
        item.append(link);
        return item;
    }

    function search() {
        const words = input.value.toLowerCase().split(/\s+/).filter(Boolean);
        if (words.length === 0) {
            close();
            return;
        }
        const all = window.zedSearch.filter(function (entry) {
            const text = (entry[0] + " " + entry[1] + " " + entry[3]).toLowerCase();
            return words.every(function (word) { return text.includes(word); });
        });
        const inTitle = function (entry) { return entry[0].toLowerCase().includes(words[0]) ? 0 : 1; };
        all.sort(function (a, b) { return inTitle(a) - inTitle(b); });
        results.replaceChildren(...all.slice(0, most).map(entryFor));
        results.hidden = all.length === 0;
        count.textContent = all.length === 0 ? "Nothing found" : all.length === 1 ? "1 found" : all.length + " found";
        count.classList.toggle("none", all.length === 0);
    }

    function moveFocus(step) {
        const stops = [input, ...results.querySelectorAll("a")];
        const next = stops.indexOf(document.activeElement) + step;
        if (next >= 0 && next < stops.length) {
            stops[next].focus();
        }
    }

    function onKey(event) {
        if (event.key === "Escape") {
            close();
            input.focus();
        } else if (event.key === "ArrowDown" || event.key === "ArrowUp") {
            moveFocus(event.key === "ArrowDown" ? 1 : -1);
            event.preventDefault();
        }
    }

    if (Array.isArray(window.zedSearch)) {
        form.hidden = false;
        input.addEventListener("input", search);
        form.addEventListener("keydown", onKey);
        form.addEventListener("submit", function (event) {
            event.preventDefault();
            const first = results.querySelector("a");
            if (first) {
                first.click();
            }
        });
        document.addEventListener("keydown", function (event) {
            if (event.key === "/" && !event.target.closest("input, textarea, select")) {
                event.preventDefault();
                input.focus();
            }
        });
        document.addEventListener("click", function (event) {
            if (!form.contains(event.target)) {
                close();
            }
        });
    }

    const defaults = document.getElementById("with-defaults");
    if (defaults) {
        const show = function () { document.body.classList.toggle("with-defaults", defaults.checked); };
        defaults.addEventListener("change", show);
        defaults.closest("p").hidden = false;
        show();
    }

    // A place in a source text that is folded away is unfolded when it is gone to.
    function unfold() {
        const target = location.hash && document.getElementById(location.hash.slice(1));
        const folded = target && target.closest("details");
        if (folded && !folded.open) {
            folded.open = true;
            target.scrollIntoView();
        }
    }
    window.addEventListener("hashchange", unfold);
    unfold();
})();
