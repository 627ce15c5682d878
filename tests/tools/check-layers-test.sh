#!/usr/bin/env bash
# The layer check passes a tree in order and names the line of each kind of violation.
set -euo pipefail
check=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../tools" && pwd)/check-layers.sh
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
failures=0

# A small tree in order. It holds the look-alikes that must not be taken for violations.
fresh_tree() {
    rm -rf "${tree:?}"/*
    mkdir -p "$tree"/src/{platform,document,canvas,browser,output,app,qt} "$tree"/tests/{canvas,qt}
    echo 'struct Queue; // a QString would be wrong here' >"$tree/src/platform/Types.h"
    printf '%s\n' '#include <string>' '#include <sys/stat.h>' '#include "platform/Types.h"' \
        '/* QWidget' '   QPainter */' 'const char* NAME = "QString"; // Qt::Red' \
        'int QUAD, Q1, MyQtCount;' >"$tree/src/document/Drawing.h"
    echo '#include "document/Drawing.h"' >"$tree/src/canvas/Editor.h"
    echo '#include "canvas/Editor.h"' >"$tree/src/browser/Browser.h"
    echo '#include "canvas/Editor.h"' >"$tree/src/output/Print.h"
    echo '#include "browser/Browser.h"' >"$tree/src/app/Program.h"
    printf '%s\n' '#include <QWidget>' '#include "app/Program.h"' 'QString title;' \
        >"$tree/src/qt/Window.h"
    echo '#include "canvas/Editor.h"' >"$tree/tests/canvas/EditorTest.cpp"
    echo '#include <QApplication>' >"$tree/tests/qt/WindowTest.cpp"
    echo 'ladrix_library(canvas DEPENDS ladrix_document)' >"$tree/src/canvas/CMakeLists.txt"
    echo 'ladrix_library(browser DEPENDS ladrix_canvas)' >"$tree/src/browser/CMakeLists.txt"
}

expect_pass() {
    if ! "$check" "$tree" >"$tree/out" 2>&1; then
        echo "FAILED: $1 was refused:"
        cat "$tree/out"
        failures=$((failures + 1))
    fi
}

# expect_fault FILE LINE: adds the line to the file of a tree in order.
expect_fault() {
    local place
    fresh_tree
    printf '%s\n' "$2" >>"$tree/$1"
    place=$1:$(wc -l <"$tree/$1"):
    if "$check" "$tree" >"$tree/out" 2>&1; then
        echo "FAILED: let pass in $1: $2"
        failures=$((failures + 1))
    elif ! grep -qF "$place" "$tree/out" || [[ $(wc -l <"$tree/out") -ne 1 ]]; then
        echo "FAILED: expected one fault at $place but was told:"
        cat "$tree/out"
        failures=$((failures + 1))
    fi
}

fresh_tree
expect_pass "a tree in order"

# Upward, to a sibling, and by ways round the path below src.
expect_fault src/document/Drawing.h '#include "canvas/Editor.h"'
expect_fault src/platform/Types.h '#include "document/Drawing.h"'
expect_fault src/canvas/Editor.h '  #  include <app/Program.h>'
expect_fault src/app/Program.h '#include "qt/Window.h"'
expect_fault src/output/Print.h '#include "browser/Browser.h"'
expect_fault src/document/Drawing.h '#include "../canvas/Editor.h"'
expect_fault src/canvas/Editor.h '#include "support/Fake.h"'
expect_fault src/document/Drawing.h '/* why */ int after; /* and */ QPoint p;'

# Qt below its layer, as an include and as a name.
expect_fault src/canvas/Editor.h '#include <QPainter>'
expect_fault src/canvas/Editor.h '#include <QtGui/QPainter>'
expect_fault src/app/Program.h '#include <qglobal.h>'
expect_fault src/app/Program.h 'void Show(const QString& text);'
expect_fault src/app/Program.h 'int key = Qt::Key_A; // as "typed"'
expect_fault src/browser/Browser.h 'const char* a = "//"; QIODevice* b;'
expect_fault src/output/Print.h 'int a = qRound(1.5);'
expect_fault tests/canvas/EditorTest.cpp '#include <QString>'

# Link lines, and a folder that nobody has placed.
expect_fault src/canvas/CMakeLists.txt 'ladrix_library(canvas DEPENDS ladrix_app)'
expect_fault src/canvas/CMakeLists.txt 'target_link_libraries(ladrix_canvas PUBLIC Qt6::Core)'
fresh_tree
mkdir "$tree/src/extras"
echo 'int a;' >"$tree/src/extras/Extra.h"
if "$check" "$tree" >/dev/null; then
    echo "FAILED: a folder without a place was let pass"
    failures=$((failures + 1))
fi

# A sibling that the link line names is open, in that direction alone.
fresh_tree
echo 'ladrix_library(output DEPENDS ladrix_canvas ladrix_browser)' >"$tree/src/output/CMakeLists.txt"
echo '#include "browser/Browser.h"' >>"$tree/src/output/Print.h"
expect_pass "a linked sibling"
echo '#include "output/Print.h"' >>"$tree/src/browser/Browser.h"
if "$check" "$tree" >/dev/null; then
    echo "FAILED: a sibling was included against the link line"
    failures=$((failures + 1))
fi

# Modules of one folder in a circle, through headers and sources, folders within it too.
fresh_tree
mkdir "$tree/src/canvas/view"
echo '#include "canvas/view/Zoom.h"' >"$tree/src/canvas/Keys.cpp"
echo '#include "canvas/view/View.h"' >"$tree/src/canvas/view/Zoom.h"
echo '#include "canvas/Editor.h"' >"$tree/src/canvas/view/View.h"
expect_pass "modules that use each other in one direction"
echo '#include "canvas/Keys.h"' >"$tree/src/canvas/view/View.cpp"
if "$check" "$tree" >"$tree/out" || ! grep -q 'circle of modules: .*canvas/view/View' "$tree/out"; then
    echo "FAILED: a circle of modules was let pass"
    failures=$((failures + 1))
fi

# Nothing to look at is no success.
rm -rf "${tree:?}"/*
mkdir "$tree/src"
if "$check" "$tree" >/dev/null; then
    echo "FAILED: a tree without sources was let pass"
    failures=$((failures + 1))
fi

[[ $failures -eq 0 ]]
