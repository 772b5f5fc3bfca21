#!/usr/bin/env bash
# Installs what is missing of packages.txt for the given needs: install-packages.sh run [test] [ci]
set -euo pipefail
cd "$(dirname "$0")/.."

wanted=$(awk -v needs=" $* " '$1 !~ /^#/ && NF > 2 && index(needs, " " $2 " ") { print $1 }' packages.txt)
# shellcheck disable=SC2086
present=$(dpkg-query -W -f='${db:Status-Abbrev}${Package}\n' $wanted 2>/dev/null | awk '/^ii/ { print $2 }' || true)
missing=$(comm -23 <(sort <<<"$wanted") <(sort -u <<<"$present"))
[ -n "$missing" ] || exit 0

if [ "$(id -u)" = 0 ]; then as_root=(env)
elif command -v sudo >/dev/null; then as_root=(sudo)
else
    echo "These packages are missing, and installing them needs root or sudo:" $missing >&2
    exit 1
fi
echo "Installing:" $missing >&2
"${as_root[@]}" apt-get update -qq >&2
# shellcheck disable=SC2086
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >&2
