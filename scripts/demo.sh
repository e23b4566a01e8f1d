#!/usr/bin/env bash
# Builds the quillet tool and runs it on the example project: lists the project, shows as a diff
# what two quick commands would write, then writes one into a scratch copy of the project.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)" --target quillet
quillet=build/quillet
project=examples/Invoicing
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
settings=(--settings "$scratch/settings")   # the demo keeps its settings apart from yours

echo
echo "\$ quillet list --project $project"
$quillet list --project "$project" "${settings[@]}"

echo
echo "\$ quillet run \"If Then Else\" --project $project --at basMain:12:5 --dry-run"
$quillet run "If Then Else" --project "$project" --at basMain:12:5 --dry-run "${settings[@]}"

echo
echo "\$ quillet run \"If Then ElseIf Else\" --answer 2 --project $project --at basMain:12:5 --dry-run"
$quillet run "If Then ElseIf Else" --answer 2 --project "$project" --at basMain:12:5 --dry-run "${settings[@]}"

echo
echo "\$ quillet run ErrorHandling --project $project --at basMain:12:5 --dry-run"
$quillet run ErrorHandling --project "$project" --at basMain:12:5 --dry-run "${settings[@]}"

cp -r "$project" "$scratch/"
echo
echo "\$ quillet run ForEachNext --project <copy of $project> --at basMain:12:5"
$quillet run ForEachNext --project "$scratch/Invoicing" --at basMain:12:5 "${settings[@]}"
echo "unchanged files stay byte-identical:"
for f in "$project"/*; do
    name=$(basename "$f")
    if cmp -s "$f" "$scratch/Invoicing/$name"; then echo "  same     $name"; else echo "  changed  $name"; fi
done
