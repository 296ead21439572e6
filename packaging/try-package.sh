#!/usr/bin/env bash
# Tries the Debian package on a bare Debian 12 in a folder of its own; run as root, it needs debootstrap and the network.
#   packaging/try-deb.sh PACKAGE.deb FOLDER     # FOLDER is made when it is not there, and gets two pictures of the window
set -euo pipefail
deb=$(realpath "${1:?the package}")
folder=$(realpath -m "${2:?the folder for the system}")
root=$folder/root
mirror=${MIRROR:-http://deb.debian.org/debian}

[[ -e $root/usr/bin/apt-get ]] || debootstrap --variant=minbase bookworm "$root" "$mirror" >"$folder.log"
inside() {
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
        "$@" </dev/null
}
mount -t proc proc "$root/proc"
trap 'umount "$root/proc"' EXIT
cp "$deb" "$root/root/ferrowick.deb"
inside apt-get -qq update

echo "== with what it depends on alone"
inside apt-get -qq install -y --no-install-recommends /root/ferrowick.deb >"$folder/install.log"
inside sh -ec '
    cd /root
    fwk --version
    ferrowick --version
    cp /usr/share/ferrowick/samples/garden.fwk .
    fwk info garden.fwk | head -n 3
    fwk report garden.fwk -o garden.pdf
    head -c 8 garden.pdf
    echo
    ferrowick --picture garden.png garden.fwk
    test -s garden.png'

echo "== in a desktop"
inside apt-get -qq install -y --no-install-recommends xvfb xauth xdotool imagemagick libglib2.0-bin libgtk-3-bin \
    xdg-utils shared-mime-info desktop-file-utils dbus-x11 >>"$folder/install.log"
inside xvfb-run -a -s "-screen 0 1280x800x24" \
    dbus-run-session env XDG_CURRENT_DESKTOP=GNOME sh -ec '
    cd /root
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
    gtk-launch ferrowick
    shot Ferrowick desktop.png
    xdg-open /root/garden.fwk
    shot garden opened.png'
cp "$root/root/desktop.png" "$root/root/opened.png" "$folder"

echo "== removed again"
inside apt-get -qq purge -y ferrowick >>"$folder/install.log"
inside sh -c 'find / -xdev -path /proc -prune -o -path /var -prune -o -path /root -prune -o -iname "*ferrowick*" -print'
