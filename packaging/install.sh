#!/usr/bin/env bash
# Installs what is missing of packages.txt. Asks nothing, and does nothing at all when everything is there.
set -euo pipefail
list="$(dirname "$(readlink -f "$0")")/packages.txt"

mapfile -t wanted < <(sed -e 's/#.*//' -e 's/[[:space:]]//g' -e '/^$/d' "$list")
installed="$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null | sed -n 's/^installed //p' || true)"
missing=()
for package in "${wanted[@]}"; do
    grep -qxF -- "$package" <<<"$installed" || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "Missing packages, and neither root nor sudo to install them: ${missing[*]}" >&2
        exit 1
    fi
    root=(sudo)
fi
echo "Installing ${missing[*]}"
apt=("${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Dpkg::Use-Pty=0)
"${apt[@]}" update
"${apt[@]}" install -y --no-install-recommends "${missing[@]}"
