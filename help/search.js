// Finds words in all pages of the help as they are typed. The text of the pages is in search-index.js beside each
// page, so that it works on files, without a server. The box is shown by this script alone: without it the pages are
// as they are.
"use strict";

(() => {
    const form = document.getElementById("find");
    const main = document.querySelector("main");
    if (!form || !main || typeof helpIndex === "undefined") return;
    const box = form.querySelector("input");
    const letter = /[\p{L}\p{N}]/u;
    let parts = null; // made when the first word is typed

    // Without case and accents; at[i] is where the letter i of the folded text stands in the text.
    function fold(text) {
        let folded = "";
        const at = [];
        for (let i = 0; i < text.length; i++) {
            const plain = text[i].normalize("NFD").replace(/\p{M}/gu, "").toLowerCase();
            const letters = plain.replace("ß", "ss").replace("’", "'");
            for (let k = 0; k < letters.length; k++) at.push(i);
            folded += letters;
        }
        at.push(text.length);
        return {text, folded, at};
    }

    function readIndex() {
        parts = [];
        for (const {page, parts: ofPage} of helpIndex)
            ofPage.forEach(([anchor, heading, text], i) =>
                parts.push({page, anchor, title: ofPage[0][1], first: i === 0, heading: fold(heading), text: fold(text)}));
    }

    // Where the word stands in a folded text: at the begin of a word, or with inside anywhere.
    function places({folded}, word, inside) {
        const found = [];
        const free = inside || !letter.test(word[0]);
        for (let i = folded.indexOf(word); i >= 0; i = folded.indexOf(word, i + 1))
            if (free || i === 0 || !letter.test(folded[i - 1])) found.push(i);
        return found;
    }

    function has(part, {word, inside}) {
        return places(part.heading, word, inside).length > 0 || places(part.text, word, inside).length > 0;
    }

    // A word that begins nowhere is looked for inside other words, such as the second half of a compound.
    function wordsOf(query) {
        const typed = fold(query.normalize("NFC")).folded.split(/[\s"“”„]+/).filter(word => word !== "");
        return [...new Set(typed)].map(word => {
            const plain = {word, inside: false};
            return parts.some(part => has(part, plain)) ? plain : {word, inside: true};
        });
    }

    function weight(part, words) {
        let sum = 0;
        for (const {word, inside} of words) {
            if (places(part.heading, word, inside).length > 0) sum += part.first ? 15 : 10;
            sum += Math.min(places(part.text, word, inside).length, 5);
        }
        return sum;
    }

    // The parts with all words; of a page that has them in several parts, the one with most of them.
    function search(words) {
        const found = parts.filter(part => words.every(word => has(part, word)));
        const pages = new Set(found.map(part => part.page));
        for (const {page} of helpIndex) {
            const own = parts.filter(part => part.page === page);
            if (pages.has(page) || !words.every(word => own.some(part => has(part, word)))) continue;
            const count = part => words.filter(word => has(part, word)).length;
            found.push(own.reduce((best, part) => (count(part) > count(best) ? part : best)));
        }
        const weights = new Map(found.map(part => [part, weight(part, words)]));
        const whole = new Set(found.filter(part => pages.has(part.page)));
        return found.sort((a, b) => whole.has(b) - whole.has(a) || weights.get(b) - weights.get(a));
    }

    // Writes text.text from begin to end into the element, with the words marked.
    function write(element, text, words, begin, end) {
        const marks = [];
        for (const {word, inside} of words)
            for (const i of places(text, word, inside)) marks.push([text.at[i], text.at[i + word.length - 1] + 1]);
        marks.sort((a, b) => a[0] - b[0]);
        let written = begin;
        for (const [from, to] of marks) {
            if (from < written || to > end) continue;
            element.append(text.text.slice(written, from));
            const mark = document.createElement("mark");
            mark.textContent = text.text.slice(from, to);
            element.append(mark);
            written = to;
        }
        element.append(text.text.slice(written, end));
    }

    // The passage that has most of the words.
    function passage(element, text, words) {
        const before = 60, length = 220;
        const all = words.map(({word, inside}) => places(text, word, inside));
        let best = 0, most = 0;
        for (const place of all.flat().sort((a, b) => a - b)) {
            const near = all.filter(list => list.some(i => i >= place && i < place + length - before)).length;
            if (near > most) [best, most] = [text.at[place], near];
        }
        let begin = Math.max(0, best - before);
        if (begin > 0) begin = text.text.indexOf(" ", begin - 1) + 1;
        let end = Math.min(text.text.length, begin + length);
        if (end < text.text.length) end = text.text.lastIndexOf(" ", end);
        if (begin > 0) element.append("… ");
        write(element, text, words, begin, end);
        if (end < text.text.length) element.append(" …");
    }

    function item(part, words) {
        const entry = document.createElement("li");
        const link = document.createElement("a");
        link.href = part.anchor === "" ? part.page : part.page + "#" + part.anchor;
        if (!part.first) link.append(part.title + " › ");
        write(link, part.heading, words, 0, part.heading.text.length);
        const text = document.createElement("p");
        passage(text, part.text, words);
        entry.append(link, text);
        return entry;
    }

    const results = document.createElement("section");
    results.id = "results";
    const heading = document.createElement("h1");
    heading.textContent = form.dataset.results;
    const status = document.createElement("p");
    status.setAttribute("role", "status");
    const list = document.createElement("ol");
    results.append(heading, status, list);
    main.prepend(results);
    results.hidden = true;

    function sentence(words, found) {
        if (found.length === 1) return form.dataset.one;
        if (found.length > 1) return form.dataset.many.replace("%1", found.length);
        const missing = words.find(word => !parts.some(part => has(part, word)));
        return missing ? form.dataset.nowhere.replace("%1", () => missing.word) : form.dataset.apart;
    }

    function show() {
        if (parts === null) readIndex();
        const words = wordsOf(box.value);
        const finding = words.length > 0;
        document.body.classList.toggle("finding", finding);
        results.hidden = !finding;
        const found = finding ? search(words) : [];
        list.replaceChildren(...found.map(part => item(part, words)));
        status.textContent = finding ? sentence(words, found) : "";
    }

    // The words stand in the address, so that the way back from a page leads to the results.
    const inAddress = () => location.hash.startsWith("#find=");
    function keepInAddress() {
        if (box.value.trim() === "" && !inAddress()) return;
        const address = new URL(location.href);
        address.hash = box.value.trim() === "" ? "" : "find=" + encodeURIComponent(box.value);
        try {
            history.replaceState(null, "", address.href);
        } catch {
            // A browser that does not allow it for files only loses the way back.
        }
    }
    function takeFromAddress() {
        try {
            box.value = inAddress() ? decodeURIComponent(location.hash.slice("#find=".length)) : "";
        } catch {
            box.value = "";
        }
        if (box.value !== "" || !results.hidden) show();
    }

    function clear() {
        box.value = "";
        show();
        keepInAddress();
    }

    form.addEventListener("submit", event => event.preventDefault());
    box.addEventListener("input", () => {
        show();
        if (!results.hidden) scrollTo(0, 0);
        keepInAddress();
    });
    form.addEventListener("keydown", event => {
        const first = list.querySelector("a");
        if (event.key === "Escape" && box.value !== "") clear();
        else if ((event.key === "ArrowDown" || event.key === "Enter") && first && !event.isComposing) first.focus();
        else return;
        event.preventDefault();
    });
    list.addEventListener("keydown", event => {
        const links = [...list.querySelectorAll("a")];
        const here = links.indexOf(document.activeElement);
        const targets = {ArrowDown: links[here + 1] || links[here], ArrowUp: links[here - 1] || box, Home: links[0],
                         End: links[links.length - 1]};
        const plain = !event.ctrlKey && !event.altKey && !event.metaKey && !event.shiftKey;
        if (here < 0 || !plain) return;
        if (event.key === "Escape") clear();
        const target = event.key === "Escape" ? box : targets[event.key];
        if (!target) return;
        event.preventDefault();
        target.focus();
    });
    document.addEventListener("keydown", event => {
        if (event.key !== "/" || event.ctrlKey || event.altKey || event.metaKey || event.target === box) return;
        event.preventDefault();
        box.focus();
        box.select();
    });
    window.addEventListener("hashchange", () => {
        takeFromAddress();
        if (inAddress()) return;
        const target = document.getElementById(location.hash.slice(1));
        if (target) target.scrollIntoView();
        else scrollTo(0, 0);
    });

    form.hidden = false;
    takeFromAddress();
})();
