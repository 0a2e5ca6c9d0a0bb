// The editor against a model: random commands of a user, and after each the boxes of the screen, the
// rows of the dictionary, the list, the store of hits and the enabled buttons compared.
const dictionary = tempDir() + "/model.mdb";
const kSteps = 3000, kMilliseconds = 40000;

// A generator of its own, so that a run can be repeated.
let seed = 20240229;
const random = limit => {
    seed = (Math.imul(seed, 1664525) + 1013904223) >>> 0;
    return Math.floor(seed / 4294967296 * limit);
};
const pick = list => list[random(list.length)];

const kWords = ["a", "aa", "ab", "a b", "abc", "b", "ba", "b a", "1", "1a", "b'c", "c", " ca ", "cab"];
const kTexts = ["", "x", " y ", "z\r\nz", "　"];
const trim = value => value.replace(/^[ 　]+|[ 　]+$/g, "");

// The dictionary.
let table = [], lastNumber = 0;
const before = (one, other) => one.word < other.word ? -1 : one.word > other.word ? 1 : one.id - other.id;
const insert = row => {
    row.id = ++lastNumber;
    table.push(row);
    table.sort(before);
    return row;
};
for (const word of ["b", "a", "ab", "aa", "c", "a", "1"])
    insert({word, pronunciation: "", kind: 1, description: "x", example: ""});
makeDictionary(dictionary, table.slice().sort((one, other) => one.id - other.id)
    .map(row => [row.word, row.pronunciation, row.kind, row.description, row.example]));
const tableFirst = table[0].id;

// The main window: its list, its store, and the text that a change of the list is searched by again.
const main = {mode: "incremental", list: [], hits: [], searched: ""};
const placeOf = key => {
    if (table.length > 0 && table[0].word === key) {
        const at = table.filter(row => row.word < key || row.word === key && row.id <= tableFirst).length - 1;
        return at < 0 ? table.length : at;
    }
    const at = table.findIndex(row => row.word >= key);
    return at < 0 ? table.length : at;
};

// The editor.
let form = null;
// What the user is shown in a step, and what he answers.
let asked = [];
class Failure {}
const ask = (title, ...words) => {
    const word = pick(words);
    asked.push([title, word]);
    return word;
};
const tell = title => asked.push([title, "OK"]);
const fail = () => {
    tell("エラー");
    throw new Failure();
};
const yesNo = title => ask(title, "はい", "いいえ");
const yesNoCancel = title => ask(title, "はい", "いいえ", "キャンセル");

const show = row => {
    form.current = row;
    form.boxes = [row.word, row.pronunciation, row.description, row.example];
    form.kind = row.kind;
    form.shown = {boxes: form.boxes.slice(), kind: row.kind};
    form.save = form.undo = false;
};
const enterEdit = () => form.adding = false;
const enterAdd = () => {
    form.adding = true;
    form.cancelCaption = "キャンセル(&U)";
    form.undo = form.undo || form.boxes.some(value => value !== "");
    form.boxes = ["", "", "", ""];
    form.kind = 1;
    form.shown = {boxes: ["", "", "", ""], kind: 1};
    form.save = false;
};
const values = kind => {
    const stored = form.adding ? ["", "", "", ""] : [form.current.word, form.current.pronunciation, form.current.description, form.current.example];
    const [word, pronunciation, description, example] =
        form.boxes.map((value, i) => value === form.shown.boxes[i] ? stored[i] : trim(value));
    return {word, pronunciation, kind, description, example};
};
const dirty = () => {
    const changed = i => trim(form.boxes[i]) !== trim(form.shown.boxes[i]);
    if (changed(0))
        return 2;
    return changed(1) || changed(2) || changed(3) || form.kind !== form.shown.kind ? 1 : 0;
};
const removeFromMain = row => {
    if (!form.fromList)
        return;
    const at = main.list.findIndex(listed => listed.id === row.id);
    if (at >= 0) {
        main.list.splice(at, 1);
        form.listChanged = true;
    }
    main.hits = main.hits && main.hits.filter(id => id !== row.id);
};
const lacksWhatIsNeeded = () => {
    if (trim(form.boxes[0]) === "") {
        tell("入力必須項目");
        return true;
    }
    return trim(form.boxes[2]) === "" && yesNo("空欄項目確認") === "いいえ";
};
const addRecord = () => {
    const row = insert(values(form.kind));
    enterEdit();
    show(row);
};
const saveEdits = () => {
    if (dirty() === 2) {
        const word = trim(form.boxes[0]);
        if (word.includes("'"))
            fail();
        if (table.some(row => row.word === word) && yesNo("重複保存確認") === "いいえ")
            return false;
        const old = form.current;
        const row = insert(values(form.kind));
        table.splice(table.indexOf(old), 1);
        removeFromMain(old);
        show(row);
        return true;
    }
    Object.assign(form.current, values(form.kind));
    table.sort(before);
    show(form.current);
    return true;
};
const leave = () => {
    if (dirty() === 0)
        return "go";
    switch (yesNoCancel("変更確認")) {
    case "はい": return !lacksWhatIsNeeded() && saveEdits() ? "go" : "stay";
    case "いいえ": return "given up";
    default: return "cancelled";
    }
};
const mayLeave = () => ["go", "given up"].includes(leave());
const undoEdits = () => {
    if (table.length === 0)
        return;
    show(table.includes(form.current) ? form.current : table[table.length - 1]);
    form.cancelCaption = "元に戻す(&U)";
    enterEdit();
};
const hasInput = () => form.boxes.some(value => trim(value) !== "");
const saveOnClose = () => insert(values(trim(form.boxes[0]).includes(" ") ? 2 : 1));
const unload = () => {
    if (form.fromList && form.listChanged && main.mode === "incremental") {
        if (table.length === 0)
            tell("設定辞書「語」の辞書データベースなし");
        main.list = table.slice(placeOf(main.searched));
    }
    form = null;
};
const load = (fromList, row) => {
    form = {fromList, adding: false, boxes: ["", "", "", ""], kind: 1, save: false, undo: false, listChanged: false,
        closeHandled: false, cancelCaption: "元に戻す(&U)", current: null};
    if (row)
        show(row);
    else
        enterAdd();
};

// Each command: whether the user can give it, what it does to the model, and the user's part.
const button = number => () => click("frmMstmnt.Command" + number);
const walk = (number, step, end) => ({
    can: () => form && !form.adding,
    model: () => {
        if (!mayLeave())
            return;
        const at = step(table.indexOf(form.current));
        show(table[Math.max(0, Math.min(table.length - 1, at))]);
        if (at < 0 || at >= table.length)
            tell(end);
    },
    user: button(number),
});
const type = number => ({
    can: () => form,
    model: () => {
        const texts = number === 1 ? kWords : kTexts;
        // A box of one line joins the lines that it is given.
        const shown = value => number <= 2 ? value.replace(/[\r\n]+/g, " ") : value;
        const value = pick(texts.filter(candidate => shown(candidate) !== form.boxes[number - 1]));
        form.boxes[number - 1] = shown(value);
        form.save = form.undo = true;
        return value;
    },
    user: value => setText("frmMstmnt.Text" + number, value),
});
// The click of a double click seeks the record, with the number that was the first at the start where its
// word is the first of the table; where no record stands there or before, the list is emptied.
const opens = row => {
    if (main.mode !== "incremental")
        return true;
    const id = table.length > 0 && table[0].word === row.word ? tableFirst : row.id;
    return table.some(other => before(other, {word: row.word, id}) <= 0);
};
let wanted = null;
const commands = {
    openByMenu: {
        can: () => !form,
        model: () => load(false, table[0]),
        user: () => menu("mnuOpen"),
    },
    openByRow: {
        can: () => !form && main.list.some(opens),
        model: () => {
            const at = main.list.indexOf(pick(main.list.filter(opens)));
            if (main.mode === "incremental")
                main.searched = main.list[at].word.replace(/^ +/, "");
            // What was opened from the menu takes nothing out of the list.
            if (table.includes(main.list[at]))
                load(true, main.list[at]);
            else
                tell("削除");
            return at;
        },
        user: at => doubleClick("frmFind.List1", at),
    },
    searchIncrementally: {
        can: () => !form && table.length > 0,
        model: () => {
            main.mode = "incremental";
            main.hits = null;
            const key = pick(["a", "b", "c", "1", "ab"]);
            main.list = table.slice(placeOf(key));
            return key;
        },
        user: key => {
            menu("mnuIncSrch");
            setText("frmFind.txtFind", "");
            setText("frmFind.txtFind", key);
        },
    },
    searchByPrefix: {
        can: () => !form,
        model: () => {
            main.mode = "prefix";
            const key = pick(["a", "b", "c"]);
            main.list = table.filter(row => row.word.startsWith(key) && row.word.length > 1);
            main.hits = main.list.map(row => row.id);
            return key;
        },
        user: key => {
            menu("mnuPreSrch");
            setText("frmFind.txtFind", key);
            press("frmFind.txtFind", "Enter");
        },
    },
    typeWord: type(1), typePronunciation: type(2), typeMeaning: type(3), typeExample: type(4),
    chooseKind: {
        can: () => form,
        model: () => form.kind = random(2) + 1,
        user: kind => click("frmMstmnt.Option" + kind),
    },
    first: walk(1, () => 0), last: walk(4, () => table.length - 1),
    previous: walk(2, at => at - 1, "先頭レコード"), next: walk(3, at => at + 1, "最終レコード"),
    add: {
        can: () => form && !form.adding,
        model: () => {
            if (mayLeave())
                enterAdd();
        },
        user: button(5),
    },
    save: {
        can: () => form && form.save,
        model: () => {
            if (yesNo("保存確認") === "いいえ" || lacksWhatIsNeeded())
                return;
            if (form.adding)
                addRecord();
            else if (!saveEdits())
                return;
            form.cancelCaption = "元に戻す";
        },
        user: button(6),
    },
    undo: {can: () => form && form.undo, model: undoEdits, user: button(7)},
    erase: {
        can: () => form && !form.adding,
        model: () => {
            if (yesNo("削除確認") === "いいえ")
                return;
            table.splice(table.indexOf(form.current), 1);
            removeFromMain(form.current);
            if (table.length === 0)
                enterAdd();
            else
                show(table[table.length - 1]);
        },
        user: button(8),
    },
    close: {
        can: () => form,
        model: () => {
            let how = "go";
            if (!form.adding) {
                how = leave();
            } else if (hasInput()) {
                const answered = yesNoCancel("保存確認");
                how = answered === "キャンセル" ? "cancelled" : "go";
                if (answered === "はい") {
                    if (lacksWhatIsNeeded())
                        return;
                    saveOnClose();
                }
            }
            if (how === "cancelled")
                form.closeHandled = true;
            else if (how !== "stay")
                unload();
        },
        user: button(9),
    },
    closeByFrame: {
        can: () => form,
        model: () => {
            if (form.closeHandled)
                return unload();
            if (!form.adding && dirty() !== 0) {
                if (yesNo("変更確認") === "はい" && !lacksWhatIsNeeded())
                    saveEdits();
            } else if (form.adding && hasInput()) {
                if (yesNo("保存確認") === "はい" && !lacksWhatIsNeeded())
                    saveOnClose();
            }
            unload();
        },
        user: () => closeForm("frmMstmnt"),
    },
    search: {
        can: () => form && !form.adding,
        model: () => {
            wanted = null;
            const how = leave();
            if (how === "given up")
                undoEdits();
            else if (how !== "go")
                return;
            wanted = pick(["a", "aa", "ab", "ca", "b'c", "b'", "z", "cab", "1", " abc "]);
            asked.push(["検索", wanted]);
            const word = trim(wanted);
            // A single character that is no word finds any: none of these is ever so unless it finds nothing.
            const found = table.find(row => row.word === word) || table.find(row => row.word.startsWith(word));
            if (found && word.length === 1 && found.word !== word)
                form.anyOf = word;
            else if (found)
                show(found);
            else
                tell("該当データなし");
        },
        user: button(10),
    },
};

setCatalogue([{name: "語", path: dictionary, selected: true}]);
writeText(appFile("ListDefi.dat"), "50015050005001503000\r\n");
start();

const enabledCommands = () => [1, 2, 3, 4, 5, 6, 7, 8, 9, 10].filter(number => enabled("frmMstmnt.Command" + number));
const storedNumbers = bytes => {
    const numbers = [];
    for (let end = 520; end <= bytes.length; end += 520)
        numbers.push(Number(bytes.slice(end - 8, end)));
    return numbers;
};
const seen = () => ({
    rows: rows(dictionary).map(row => [row.Word, row.Pronunciation, row.WordPhrase, row.Description, row.Example, row.AutoID]),
    list: items("frmFind.List1"),
    store: main.hits && storedNumbers(readBytes(appFile("ListData.dat"))),
    form: isOpen("frmMstmnt") && {
        boxes: [1, 2, 3, 4].map(number => text("frmMstmnt.Text" + number)),
        kind: checked("frmMstmnt.Option1") ? 1 : 2,
        adding: state("frmMstmnt.EditState"),
        current: state("frmMstmnt.EditState") === 0 && state("CurrentAutoID"),
        commands: enabledCommands(),
        captions: [caption("frmMstmnt"), caption("frmMstmnt.Command7")],
    },
    main: enabled("frmFind"),
});
const expected = () => ({
    rows: table.map(row => [row.word, row.pronunciation, row.kind, row.description, row.example, row.id]),
    list: main.list.map(row => main.mode === "incremental" ? trim(row.word) : row.word),
    store: main.hits,
    form: form !== null && {
        boxes: form.boxes,
        kind: form.kind,
        adding: form.adding ? 1 : 0,
        current: !form.adding && form.current.id,
        commands: [1, 2, 3, 4, 5, 6, 7, 8, 9, 10].filter(number =>
            number === 6 ? form.save : number === 7 ? form.undo : number === 9 || !form.adding),
        captions: ["辞書データベース メンテナンス （語） - " + (form.adding ? "新規追加" : "編集"), form.cancelCaption],
    },
    main: form === null,
});

const names = Object.keys(commands);
const given = {};
const begun = Date.now();
let step = 0, same = true;
main.hits = null;
while (step < kSteps && same && Date.now() - begun < kMilliseconds) {
    const name = pick(names.filter(candidate => commands[candidate].can()));
    // Users close an editor and delete records less often than they do other things.
    if (["close", "closeByFrame", "erase"].includes(name) && random(3) > 0)
        continue;
    if (name === "openByMenu" && commands.openByRow.can() && random(4) > 0)
        continue;
    ++step;
    given[name] = (given[name] || 0) + 1;
    asked = [];
    let what;
    const at = JSON.stringify(expected().form);
    try {
        what = commands[name].model();
    } catch (failure) {
        if (!(failure instanceof Failure))
            throw failure;
    }
    for (const [title, word] of asked)
        title === "検索" ? answerInput(word) : answer(word);
    commands[name].user(what);
    const told = boxes().map(box => [box.title, box.answer]);
    if (form && form.anyOf) {
        const found = table.find(row => row.id === state("CurrentAutoID"));
        ok(found.word.startsWith(form.anyOf), "a single character finds a word that begins with it");
        form.anyOf = null;
        show(found);
    }
    const real = [told, seen()], model = [asked, expected()];
    same = JSON.stringify(real) === JSON.stringify(model);
    if (!same) {
        note("before it: " + at);
        check(real, model, "step " + step + ": " + name);
    }
}
ok(same, "no difference");
ok(step >= 100, "in " + step + " steps");
note(JSON.stringify(given));
if (step === kSteps)
    check(names.filter(name => !given[name]), [], "every command was given");
