#!/usr/bin/env bash
# bench.sh [NAME...]: builds the benches and runs them, or those named, on a virtual display of
# their own. A line marked OVER is past its limit; the status tells only whether all have run.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

need "${build_packages[@]}" "${test_packages[@]}"
configure release
names=("$@")
[[ $# -gt 0 ]] ||
    names=(RedrawBench FarBench RecordBench FileBench PointerBench EditBench UserSymbolBench SearchBench
        PrintBench
        StartBench)
build release "${names[@]/#/bench_}"
status=0
for name in "${names[@]}"; do
    "$root/tools/with-display.sh" --no-window-manager "$root/build/release/bench/$name" || status=1
done
exit $status
