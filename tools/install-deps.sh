#!/usr/bin/env bash
# Installs the Debian packages that building, testing, benchmarking and fuzzing need,
# only those that are missing (with their recommendations: clang needs its runtime
# libraries for the fuzzers). python3 runs the tests' document generator. Quiet and
# quick when everything is there already.
set -euo pipefail

packages=(build-essential cmake ninja-build pkg-config libexpat1-dev libpcre2-dev zlib1g-dev
          libgtest-dev libgmock-dev libbenchmark-dev clang python3)

missing=()
for package in "${packages[@]}"; do
    if ! dpkg -s "$package" 2>/dev/null | grep -q '^Status: install ok installed'; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=()
if [ "$(id -u)" -ne 0 ]; then
    sudo=(sudo)
fi
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq "${missing[@]}"
