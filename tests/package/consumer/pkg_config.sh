#!/bin/sh
# usage: pkg_config.sh shared|static PACKAGE-FOLDER OUTPUT-FOLDER COMPILER [FLAG...]
# Compiles the consumer's programs with the flags that pkg-config gives for one installed tree, and runs them.
set -eu
form=$1 output=$3
export PKG_CONFIG_LIBDIR="$2"
shift 3
mkdir -p "$output"

libraries() { # PACKAGE: what to link, and where the program finds it when it runs
  case $form in
    shared) echo "$(pkg-config --libs "$1") -Wl,-rpath,$(pkg-config --variable=libdir "$1")" ;;
    # The mathematics library belongs to the C library, which stays shared.
    static) echo "-Wl,-Bstatic $(pkg-config --static --libs "$1" | sed 's/-lm\>//') -Wl,-Bdynamic -lm" ;;
  esac
}

try() { # PROGRAM PACKAGE COMPILER [FLAG...]
  program=$1 package=$2
  shift 2
  # The answers are split into words on purpose, as on a command line.
  # shellcheck disable=SC2046
  "$@" "$(dirname "$0")/$program.c" -o "$output/$program" $(pkg-config --cflags "$package") $(libraries "$package")
  "$output/$program"
}

try transform xfm "$@"
try many xfmmany "$@"
try memory xfmcore "$@"
