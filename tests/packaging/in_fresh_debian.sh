#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs as root inside the fresh Debian of fresh_debian.sh, with the packages in /mnt.
set -euo pipefail
export LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive

fail() {
    echo "FAILED: $*"
    exit 1
}

check() {
    local what=$1
    shift
    "$@" || fail "$what"
    echo "ok: $what"
}

as_user() {
    su -s /bin/bash - forecaster -c "$*"
}

# Everything below a folder with its content, but for the time of access.
fingerprint() {
    find "$@" -printf '%y %m %u %p %l\n' | sort
    find "$@" -type f -print0 | sort -z | xargs -0 sha256sum
}

# What the package needs, and nothing that it merely recommends.
apt-get install -q -y --no-install-recommends --download-only /mnt/nubivane.deb || {
    echo "NO NETWORK: the dependencies cannot be fetched"
    exit 1
}
check "installs" apt-get install -q -y --no-install-recommends /mnt/nubivane.deb
useradd -m forecaster
own=/home/forecaster/.local/share/Nubivane
fingerprint /usr >/tmp/usr

cat >/tmp/work <<'END'
set -e
cp /usr/share/doc/nubivane/examples/europe.nvp? .
nubivane-cli --version
nubivane-cli page europe.nvpf >made
nubivane-cli still europe.nvpf 1 day.tif
nubivane-cli still europe.nvpf 2 day.png
nubivane-cli anigif europe.nvpf 1 day.gif
nubivane-cli film europe.nvpf film.mp4
nubivane-cli avi europe.nvpf 1 day.avi
nubivane-cli print europe.nvpf 1 day.pdf
END
chmod 644 /tmp/work
check "an ordinary user makes a page, pictures, videos and a print" as_user bash /tmp/work
for file in Forecast.htm Forecast.js Web/Forecast1.jpg Web/Forecast5.jpg Symbols/set-1/sun.gif; do
    check "$file is the user's" test "$(stat -c %U "$own/$file")" = forecaster
done
for file in day.tif day.png day.gif film.mp4 day.avi day.pdf; do
    check "$file" test -s "/home/forecaster/$file"
done
check "the page's symbols are there" bash -c '
    cd "$0" && grep -oE "Symbols/[^\"]+" Forecast.htm | sort -u >/tmp/symbols
    test -s /tmp/symbols && while read -r file; do test -s "$file" || exit 1; done </tmp/symbols' "$own"

# The editor, on a screen that is not there, up to where it has opened the project.
cat >/tmp/edit <<'END'
QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$HOME Nubivane europe.nvpf >editor.log 2>&1 &
for i in $(seq 300); do
    grep -qs europe.nvpf .config/Nubivane/settings.ini && opened=1 && break
    kill -0 $! 2>/dev/null || break
    sleep 0.1
done
kill $! 2>/dev/null
cat editor.log
[ "$opened" ]
END
chmod 644 /tmp/edit
check "an ordinary user opens a project in the editor" as_user bash /tmp/edit

# Root does not work in the installed folder either.
check "root makes a page" nubivane-cli page /usr/share/doc/nubivane/examples/italy.nvpf
check "it is root's own" test -s /root/.local/share/Nubivane/Forecast.htm
fingerprint /usr | check "nothing under /usr has changed" diff /tmp/usr -

# The user's own work, through an upgrade and a removal.
as_user "mkdir $own/Symbols/mine && cp $own/Symbols/set-1/sun.gif $own/Symbols/mine/my-sun.gif"
as_user "cp $own/Maps/italy.jpg $own/Maps/france.jpg && rm $own/Maps/world.jpg"
fingerprint /home/forecaster | sed '/Nubivane\/Help/d' >/tmp/home
check "upgrades" dpkg -i /mnt/later.deb
fingerprint /home/forecaster | sed '/Nubivane\/Help/d' |
    check "an upgrade leaves the user's files alone" diff /tmp/home -
check "the newer version runs" as_user nubivane-cli show europe.nvpf '>' shown
check "its new map has come" test -s "$own/Maps/later.jpg"
check "its help has come" grep -qx later "$own/Help/Nubivane.chm"
check "a map thrown away stays away" test ! -e "$own/Maps/world.jpg"
check "a map changed stays so" cmp "$own/Maps/france.jpg" "$own/Maps/italy.jpg"
check "symbols of the user's own stay" test -s "$own/Symbols/mine/my-sun.gif"
fingerprint /home/forecaster >/tmp/home
check "is removed" dpkg --purge nubivane
fingerprint /home/forecaster | check "removal leaves the user's files alone" diff /tmp/home -
check "removal leaves nothing else" bash -c '
    ! find / -xdev -ipath "*nubivane*" -not -path "/home/*" -not -path "/root/*" -not -path "/mnt/*" \
        -not -path "/proc/*" -not -path "/tmp/*" -not -path "/var/cache/apt/*" | grep .'
