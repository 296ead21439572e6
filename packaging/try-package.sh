#!/usr/bin/env bash
# Tries the Debian package on a bare Debian 12 in a folder of its own; run as root, it needs debootstrap and the network.
#   packaging/try-package.sh PACKAGE.deb FOLDER [--desktop]
# FOLDER is made when it is not there. What the package depends on is installed first, so that the list of all files
# before and after tells what the package itself leaves behind: nothing. With --desktop the package is then tried in a
# desktop on a display of its own, and two pictures of the window are put into FOLDER.
set -euo pipefail
deb=$(realpath "${1:?the package}")
folder=$(realpath -m "${2:?the folder for the system}")
desktop=${3-}
root=$folder/root
mirror=${MIRROR:-http://deb.debian.org/debian}

mkdir -p "$folder"
[[ -e $root/usr/bin/apt-get ]] || debootstrap --variant=minbase bookworm "$root" "$mirror" >"$folder/debootstrap.log"
inside() {
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
        "$@" </dev/null
}
mount -t proc proc "$root/proc"
trap 'umount "$root/proc"' EXIT
cp "$deb" "$root/root/ferrowick.deb"
inside apt-get -qq update

# Every file and folder, but for what the package manager keeps of all that it does.
files() {
    inside find / -xdev \( -path /proc -o -path /sys -o -path /dev -o -path /var/log -o -path /var/cache \
        -o -path /var/lib/dpkg -o -path /var/lib/apt \) -prune -o -print | sort
}

echo "== installed on what it depends on alone"
inside apt-get -qq satisfy -y --no-install-recommends "$(dpkg-deb -f "$deb" Depends), man-db" >"$folder/install.log" 2>&1
inside mandb -q # as its own updates leave it
files >"$folder/before"
inside apt-get -qq install -y --no-install-recommends /root/ferrowick.deb >>"$folder/install.log" 2>&1
inside sh -ec '
    mkdir /root/tried
    cd /root/tried
    fwk --version
    ferrowick --version
    cp /usr/share/ferrowick/samples/garden.fwk .
    fwk info garden.fwk | head -n 3
    fwk report garden.fwk -o garden.pdf
    head -c 8 garden.pdf
    echo
    fwk thumbnail garden.fwk -o thumbnail.png
    ferrowick --picture garden.png garden.fwk
    test -s garden.png -a -s thumbnail.png
    for page in fwk ferrowick; do man "$page" | grep -q "^NAME"; done
    echo "pictures and manuals are there"
    rm -r /root/tried'
inside apt-get -qq purge -y ferrowick >>"$folder/install.log" 2>&1
files >"$folder/after"
diff "$folder/before" "$folder/after" || { echo "The package leaves this behind, or takes it away." >&2; exit 1; }
echo "removed, and nothing is left of it among $(wc -l <"$folder/after") files"
[[ $desktop == --desktop ]] || exit 0

echo "== in a desktop"
inside apt-get -qq install -y --no-install-recommends /root/ferrowick.deb xvfb xauth xdotool imagemagick libglib2.0-bin \
    libgtk-3-bin xdg-utils shared-mime-info desktop-file-utils dbus-x11 >>"$folder/install.log" 2>&1
inside xvfb-run -a -s "-screen 0 1280x800x24" \
    dbus-run-session env XDG_CURRENT_DESKTOP=GNOME sh -ec '
    cd /root
    cp /usr/share/ferrowick/samples/garden.fwk .
    xdg-mime query filetype garden.fwk
    cp garden.fwk nameless
    xdg-mime query filetype nameless
    xdg-mime query default application/x-ferrowick
    rm nameless
    shot() { # NAME OF THE WINDOW, PICTURE
        # A window that was killed has stored no settings: each start is a first one. It goes with the key down.
        timeout 20 xdotool search --sync --onlyvisible --name Disclaimer windowfocus key Return 2>/dev/null || true
        timeout 20 xdotool search --sync --onlyvisible --name "$1" >/dev/null
        sleep 2
        import -window root "$2"
        xdotool search --onlyvisible --name "$1" windowkill
        sleep 1
    }
    gtk-launch org.ferrowick.ferrowick
    shot Ferrowick desktop.png
    xdg-open /root/garden.fwk
    shot garden opened.png
    grep -c garden.fwk .local/share/recently-used.xbel'
cp "$root/root/desktop.png" "$root/root/opened.png" "$folder"
inside apt-get -qq purge -y ferrowick >>"$folder/install.log" 2>&1
inside sh -c 'find / -xdev -path /proc -prune -o -path /var -prune -o -path /root -prune -o -iname "*ferrowick*" -print'
