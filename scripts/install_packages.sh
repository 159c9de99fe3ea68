#!/usr/bin/env bash
# Installs the Debian packages that are named and missing: as root directly, else through sudo.
set -euo pipefail

missing=()
for package in "$@"; do
    status=$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

if ! command -v apt-get >/dev/null; then
    echo "Zarvello needs these packages, and there is no apt-get to install them: ${missing[*]}" >&2
    exit 1
fi
if [ "$(id -u)" -eq 0 ]; then
    as_root=()
elif command -v sudo >/dev/null; then
    as_root=(sudo)
else
    echo "Zarvello needs these packages: ${missing[*]}" >&2
    echo "Install them as root:  apt-get install ${missing[*]}" >&2
    exit 1
fi

echo "Installing ${missing[*]}" >&2
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -qq >&2
"${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
