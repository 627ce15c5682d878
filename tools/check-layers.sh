#!/usr/bin/env bash
# check-layers.sh [ROOT]: the order of the layers, lowest first. A file of src/<folder> includes from
# its own folder and from lower lines; from its own line only what its folder's link line names.
# Qt is named in src/qt and apps alone, and in the tests and benches that drive real windows.
# Modules of one folder (a header and its source) form no circle of includes; the folders named in
# `circles` still have one.
set -euo pipefail
cd "${1:-$(dirname "${BASH_SOURCE[0]}")/..}"

layers="platform
document
symbols
canvas
help browser simulation output usersymbols
app
qt"

circles="document symbols browser usersymbols app qt"

[[ -d src ]] || { echo "check-layers: no folder src in $PWD" >&2; exit 2; }
folders=()
for folder in src tools fuzz tests; do
    [[ ! -d $folder ]] || folders+=("$folder")
done
# The build files come first: their link lines tell which siblings may be included.
{
    find src -name CMakeLists.txt | sort
    find "${folders[@]}" \( -name '*.cpp' -o -name '*.h' \) \
        -not -path 'tests/qt/*' -not -path 'tests/e2e/*' -not -path 'tests/fixtures/*' | sort
} | LAYERS=$layers CIRCLES=$circles awk '
function complain(text) {
    print path ":" line ": " text
    faults++
}

# Is `target` open to `folder`? Lower lines are; siblings only by the link line.
function allowed(folder, target) {
    return folder == target || rank[target] < rank[folder] || \
           (rank[target] == rank[folder] && (folder, target) in linked)
}

function check_link_line(folder, text,    word) {
    sub(/#.*/, "", text)
    if (folder != "qt" && text ~ /Qt6/) complain("src/" folder " must not link Qt")
    while (match(text, /ladrix_[a-z_]+/)) {
        word = substr(text, RSTART + 7, RLENGTH - 7)
        text = substr(text, RSTART + RLENGTH)
        if (!(word in rank)) continue
        linked[folder, word] = 1
        if (rank[word] > rank[folder]) complain("src/" folder " must not link " word ", which is above it")
    }
}

function check_include(folder, text,    target) {
    sub(/^[ \t]*#[ \t]*include[ \t]*/, "", text)
    if (folder != "qt" && text ~ /^[<"](Q[A-Z]|Qt|q[a-z0-9_]+\.h)/) {
        complain("Qt is for src/qt and apps: " text)
        return
    }
    if (!(folder in rank)) return
    if (text ~ /^[<"]\.\.?\//) {
        complain("include by the path below src: " text)
        return
    }
    if (text !~ /^[<"][a-z]+\//) return
    target = substr(text, 2)
    if (match(target, /\.h[">]/)) note_use(folder, substr(target, 1, RSTART - 1))
    sub(/\/.*/, "", target)
    if (target in rank) {
        if (!allowed(folder, target)) complain("src/" folder " must not include from " target)
    } else if (text ~ /^"/) {
        complain("src/" folder " must not include from " target ", which is no layer")
    }
}

# The module of this file uses another one of its folder.
function note_use(folder, used,    user) {
    user = substr(path, 5)
    sub(/\.(cpp|h)$/, "", user)
    if (user == used || index(used, folder "/") != 1) return
    uses[user] = uses[user] used " "
    modules[user] = 1
}

# Follows the uses from a module; on coming back to one that is being followed, tells the circle.
function follow(module, trail,    list, count, i) {
    state[module] = 1
    count = split(uses[module], list, " ")
    for (i = 1; i <= count; i++) {
        if (state[list[i]] == 1) {
            trail = trail " " module " "
            print "circle of modules:" substr(trail, index(trail, " " list[i] " ")) list[i]
            faults++
            return 1
        }
        if (state[list[i]] == 0 && follow(list[i], trail " " module)) return 1
    }
    state[module] = 2
    return 0
}

function check_circles(    module, folder) {
    for (module in modules) {
        folder = module
        sub(/\/.*/, "", folder)
        if (!(folder in excused) && state[module] == 0 && follow(module, "")) return
    }
}

# The line without strings and comments.
function code_of(text,    at) {
    if (in_comment) {
        if (!(at = index(text, "*/"))) return ""
        text = substr(text, at + 2)
        in_comment = 0
    }
    gsub(/\047\\?"\047/, "", text)
    gsub(/"([^"\\]|\\.)*"/, "\"\"", text)
    sub(/\/\/.*/, "", text)
    gsub(/\/\*[^*]*\*\//, " ", text)
    if (at = index(text, "/*")) {
        in_comment = 1
        text = substr(text, 1, at - 1)
    }
    return text
}

function check_source(folder, text,    code) {
    if (!in_comment && text ~ /^[ \t]*#[ \t]*include/) {
        check_include(folder, text)
        return
    }
    code = code_of(text)
    if (folder != "qt" && code ~ qt_name) complain("Qt is for src/qt and apps: " text)
}

BEGIN {
    lines = split(ENVIRON["LAYERS"], order, "\n")
    for (i = 1; i <= lines; i++) {
        count = split(order[i], names, " ")
        for (j = 1; j <= count; j++) rank[names[j]] = i
    }
    count = split(ENVIRON["CIRCLES"], names, " ")
    for (j = 1; j <= count; j++) excused[names[j]] = 1
    qt_name = "(^|[^A-Za-z0-9_])(Q[A-Z][A-Za-z0-9]*[a-z]|Qt6?::|Q_[A-Z]|QT_[A-Z]" \
              "|q(App|Debug|Info|Warning|Critical|Fatal|Round|Bound|Printable)([^A-Za-z0-9_]|$))"
}
{
    path = $0
    line = 0
    in_comment = 0
    parts = split(path, part, "/")
    folder = part[1] == "src" && parts > 2 ? part[2] : ""
    if (part[1] == "src" && parts > 2 && !(folder in rank)) {
        complain("src/" folder " has no place in the order of the layers")
        next
    }
    while ((getline text < path) > 0) {
        line++
        if (path ~ /CMakeLists\.txt$/) {
            if (folder != "") check_link_line(folder, text)
        } else {
            check_source(folder, text)
        }
    }
    close(path)
    if (path !~ /CMakeLists\.txt$/) files++
}
END {
    if (!files) {
        print "check-layers: no sources found"
        exit 2
    }
    check_circles()
    if (faults) exit 1
    print "Layers in order: " files " files."
}'
