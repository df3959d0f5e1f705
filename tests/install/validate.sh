#!/usr/bin/env bash
# Runs a validator on a desktop file; fails on its exit status and on any error or warning it
# prints, skips (77) where the validator is not installed.
#   validate.sh TOOL ARGS...
tool=$1
command -v "$tool" > /dev/null || { echo "$tool is not installed: skipped"; exit 77; }
output=$("$@" 2>&1)
status=$?
echo "$output"
[ "$status" -eq 0 ] && ! grep -qE '^[EW]:|: (error|warning):' <<< "$output"
