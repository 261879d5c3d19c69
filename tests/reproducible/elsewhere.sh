# Sourced by the scripts beside it. Given $faketime, it makes $place, a folder that goes when they end, and a way to run
# a command elsewhere: more than a year later, under another user name with another home, locale, time zone and umask.
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
mkdir "$place/home"

as_user=() # a command that changes the user, and runs what follows
elsewhere() {
  (umask 027 && exec "${as_user[@]}" env -i PATH="$PATH" HOME="$place/home" USER=another LOGNAME=another \
    TZ=Pacific/Chatham LC_ALL=C.UTF-8 CCACHE_DISABLE=1 "$faketime" -f '+400d' "$@")
}

copy_of_source() { # source, copy
  mkdir -p "$2"
  tar -C "$1" --exclude=./build --exclude=./.git -c . | tar -C "$2" -x
}
