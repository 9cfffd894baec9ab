// Written by kelto doc
// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Looks through window.manualIndex: entries of title, kind, module, address and further words.
(function () {
    "use strict";
    const box = document.querySelector("[role=search]");
    const input = box.querySelector("input");
    const status = box.querySelector("[role=status]");
    const list = box.querySelector("ul");
    const most = 20;

    function rank(entry, words) {
        const title = entry[0].toLowerCase();
        const text = (entry.slice(0, 3).join(" ") + " " + entry[4]).toLowerCase();
        if (!words.every(word => text.includes(word)))
            return 0;
        if (title.startsWith(words[0]))
            return 3;
        return words.every(word => title.includes(word)) ? 2 : 1;
    }

    function found(words) {
        return window.manualIndex.entries
            .map(entry => ({ entry: entry, rank: rank(entry, words) }))
            .filter(hit => hit.rank > 0)
            .sort((left, right) => right.rank - left.rank)
            .map(hit => hit.entry);
    }

    function item(entry) {
        const link = document.createElement("a");
        link.href = entry[3];
        link.textContent = entry[0];
        const origin = document.createElement("small");
        origin.textContent = entry.slice(1, 3).filter(text => text).join(" · ");
        const result = document.createElement("li");
        result.append(link, " ", origin);
        return result;
    }

    function show() {
        const words = input.value.toLowerCase().split(/\s+/).filter(word => word);
        const entries = words.length ? found(words) : [];
        list.replaceChildren(...entries.slice(0, most).map(item));
        status.textContent = !words.length ? ""
            : entries.length ? window.manualIndex.found.replace("%1", entries.length)
            : window.manualIndex.nothing;
    }

    input.addEventListener("input", show);
    box.addEventListener("keydown", event => {
        if (event.key === "Escape") {
            input.value = "";
            show();
            input.focus();
        }
    });
    list.addEventListener("click", () => {
        input.value = "";
        show();
    });
    box.hidden = false;
    show(); // a browser may have kept what was typed before
})();
