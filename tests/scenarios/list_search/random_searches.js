// List searches on made-up dictionaries, against a plain matcher of this file that shares nothing with the program.
let seed = 20;
const below = count => {
    seed = (Math.imul(seed, 1103515245) + 12345) & 0x7fffffff;
    return Math.floor(seed / 0x80000000 * count);
};
const oneOf = list => list[below(list.length)];

// One form for each character: small, narrow, katakana; a half-width pair is one.
const narrow = "ｦｧｨｩｪｫｬｭｮｯｰｱｲｳｴｵｶｷｸｹｺｻｼｽｾｿﾀﾁﾂﾃﾄﾅﾆﾇﾈﾉﾊﾋﾌﾍﾎﾏﾐﾑﾒﾓﾔﾕﾖﾗﾘﾙﾚﾛﾜﾝ｡｢｣､･ﾞﾟ";
const wide = "ヲァィゥェォャュョッーアイウエオカキクケコサシスセソタチツテトナニヌネノハヒフヘホマミムメモヤユヨラリルレロワン。「」、・゛゜";
const pairs = {"ｶﾞ": "ガ", "ｳﾞ": "ヴ", "ﾊﾞ": "バ", "ﾊﾟ": "パ"};
const formOf = character => {
    let code = character.codePointAt(0);
    if (code === 0x3000)
        return " ";
    if (code >= 0xff01 && code <= 0xff5e)
        code -= 0xfee0;
    if (code >= 0x3041 && code <= 0x3096)
        code += 0x60;
    const at = narrow.indexOf(character);
    return at < 0 ? String.fromCodePoint(code).toLowerCase() : wide[at];
};
// [form, character] of each.
const take = text => {
    const characters = [...text], taken = [];
    for (let i = 0; i < characters.length; ++i) {
        const pair = pairs[characters[i] + (characters[i + 1] || "")];
        taken.push([pair || formOf(characters[i]), characters[i]]);
        i += pair ? 1 : 0;
    }
    return taken;
};
const fold = text => take(text).map(([form]) => form);

const alphabet = [..."abcABａＢkあかがカガｶﾊパば犬猫亜'\"[]%_-!^ 　01１éÉß😀ーｰっッｯヴウ％＿’＇［］,:;*?&<゛・んゐ", "ｶﾞ", "ﾊﾟ", "ｳﾞ", "ﾞ", "ﾟ"];
const common = [..."aAbかガｶ犬'%_ 　1１-[]", "ｶﾞ"];
const text = (characters, most) => Array.from({length: 1 + below(most)}, () => oneOf(characters)).join("");
const field = () => [null, "", text(common, 6), text(common, 6), text(alphabet, 12), text(alphabet, 12)][below(6)];

// The order of single characters is the program's own; that of texts follows.
const singles = tempDir() + "/singles.mdb";
makeDictionary(singles, Array.from(new Set(alphabet.map(one => fold(one)[0]))).map(one => [one, null, 1, null, null]));
const order = rows(singles).map(row => row.Word), weight = one => order.indexOf(one);
check(order.length, new Set(order).size, "no two characters are the same");
const compare = (left, right) => {
    for (let i = 0; i < Math.min(left.length, right.length); ++i)
        if (left[i] !== right[i])
            return weight(left[i]) - weight(right[i]);
    return left.length - right.length;
};

// A pattern as steps: a run, or a test of one character; null for one that is none.
const compile = pattern => {
    const steps = [];
    for (const part of pattern.match(/%|_|\[[^\]]*\]?|[^%_[]+/g) || []) {
        if (part === "%" || part === "_") {
            steps.push(part === "%" ? null : () => true);
        } else if (part[0] !== "[") {
            fold(part).forEach(form => steps.push(one => one === form));
        } else {
            const negated = /^\[[!^]/.test(part), members = take(part.slice(negated ? 2 : 1, -1)), ranges = [];
            if (!part.endsWith("]") || members.length === 0)
                return null;
            for (let i = 0; i < members.length; ++i) {
                const isRange = i + 2 < members.length && members[i + 1][1] === "-";
                ranges.push([weight(members[i][0]), weight(members[isRange ? i + 2 : i][0])]);
                i += isRange ? 2 : 0;
            }
            if (ranges.some(([first, last]) => first > last))
                return null;
            steps.push(one => ranges.some(([first, last]) => first <= weight(one) && weight(one) <= last) !== negated);
        }
    }
    return steps;
};
const matches = (steps, value) => {
    if (value === null)
        return false;
    const characters = fold(value);
    let places = steps.map((_, i) => i === 0).concat(steps.length === 0);
    const skip = () => steps.forEach((step, i) => { places[i + 1] = places[i + 1] || places[i] && step === null; });
    skip();
    for (const one of characters) {
        const next = places.map(() => false);
        steps.forEach((step, i) => {
            if (places[i])
                next[step === null ? i : i + 1] = next[step === null ? i : i + 1] || step === null || step(one);
        });
        places = next;
        skip();
    }
    return places[steps.length];
};

const literal = typed => typed.replace(/%/g, "[%]").replace(/_/g, "[_]");
const isBlank = typed => /^[ 　]*$/.test(typed);
const modes = [null, ["mnuPreSrch", word => word + "%_%"], ["mnuMidSrch", word => "%_%" + word + "%_%"],
    ["mnuPostSrch", word => "%_%" + word], ["mnuTxtInMeaning", word => "%" + word + "%"], ["mnuTxtInExample", word => "%" + word + "%"],
    ["mnuWildCard", null]];
const wildcards = ["%", "%", "_", "[ab]", "[!a]", "[^か]", "[a-c]", "[あ-ん]", "[%]", "[[]", "[a", "[ｶﾞ1]", "[c-a]"];

// A limit is told, and a page may fail to mark what it shows.
const read = () => {
    answer(read);
    return "OK";
};
answer(read);

let searches = 0, withHits = 0, invalid = 0;
const one = (dictionary, maximum, pageSize) => {
    const mode = 1 + below(6), target = below(3), column = {4: 3, 5: 4}[mode] || 0;
    let word = text(below(3) ? common : alphabet, 2);
    const source = oneOf(dictionary)[column];
    if (source && below(2)) // A piece of what is there.
        word = [...source].slice(below(2)).slice(0, 2).join("") || "a";
    if (mode === 6)
        word = Array.from({length: 1 + below(3)}, () => oneOf(wildcards) + (below(2) ? oneOf(common) : "")).join("");
    let meaning = below(3) ? "" : text(common, 1);
    const example = below(3) ? "" : text(common, 1);
    const typed = word + (meaning && oneOf(["/T:", "/t:"]) + meaning) + (example && oneOf(["/E:", "/e:"]) + example);
    const conditions = [[column, mode === 6 ? word : modes[mode][1](literal(word))]];
    if (column === 0 && !isBlank(meaning))
        conditions.push([3, "%" + literal(meaning) + "%"]);
    if (column === 0 && !isBlank(example))
        conditions.push([4, "%" + literal(example) + "%"]);
    const tests = conditions.map(([of, pattern]) => [of, compile(pattern)]);

    menu(["mnuSrchFromAll", "mnuSrchFromWord", "mnuSrchFromPhrase"][target]);
    menu(modes[mode][0]);
    setText("frmFind.txtFind", typed);
    if (below(2))
        press("frmFind.txtFind", "Enter");
    else
        mouseDown("frmFind.Picture0");
    const told = boxes();
    const what = "mode " + mode + ", target " + target + ", " + JSON.stringify(typed) + ", at most " + maximum;
    ++searches;
    if (tests.some(([, steps]) => steps === null)) {
        ++invalid;
        return check(told.map(box => box.text.slice(0, 17)), ["エラー番号 -2147217900"], what + ": no pattern");
    }
    const found = dictionary.map((row, i) => i)
        .filter(i => (target === 0 || dictionary[i][2] === target) && tests.every(([of, steps]) => matches(steps, dictionary[i][of])));
    if (column === 0)
        found.sort((a, b) => compare(fold(dictionary[a][0]), fold(dictionary[b][0])) || a - b);
    found.splice(maximum);
    withHits += found.length > 0;
    const store = readBytes(appFile("ListData.dat"));
    const stored = Array.from({length: store.length / 520}, (_, i) => Number(store.slice(i * 520 + 512, i * 520 + 520)) - 1);
    check(stored, found, what + ": the hits");
    check(status(), found.length ? found.length + "件の見出し語が見つかりました。" : "該当する見出し語は見つかりませんでした。", what + ": told");
    check(told.filter(box => box.icon === 48).length, found.length >= maximum ? 1 : 0, what + ": the limit");
    const listed = items("frmFind.List1");
    while (listed.length < found.length && state("ListLastPos") < found.length) {
        mouseDown("frmFind.Picture15");
        listed.push(...items("frmFind.List1"));
    }
    check(listed, found.map(i => dictionary[i][0]), what + ": listed, " + pageSize + " a page");
};

const path = tempDir() + "/made-up.mdb";
for (let round = 0; round < 8; ++round) {
    const dictionary = Array.from({length: 1 + below(120)}, () =>
        [below(2) ? text(common, 5) : text(alphabet, 4), null, 1 + below(2), field(), field()]);
    makeDictionary(path, dictionary);
    const maximum = oneOf([1, 3, 10, 500]), pageSize = oneOf([1, 3, 7, 50]);
    writeText(appFile("ListDefi.dat"), "05015" + String(pageSize).padStart(3, "0") + String(maximum).padStart(5, "0") + "1503000\r\n");
    setCatalogue([{name: "乱", path, selected: true}]);
    start();
    for (let i = 0; i < 60; ++i)
        one(dictionary, maximum, pageSize);
    exit();
}
ok(searches === 480 && withHits > 100 && withHits < 400 && invalid > 10, withHits + " searches with hits, " + invalid + " without a pattern");
