#!/bin/sh
# usage: processor_folder.sh PROGRAM INSTALLED PLACE XFM CORE
# Copies the installed core to PLACE, and the installed xfm alone to the loader's folder for x86-64-v3 below it, and
# has PROGRAM load that copy.
set -eu
program=$1 installed=$2 place=$3 xfm=$4 core=$5
folder=$place/glibc-hwcaps/x86-64-v3
mkdir -p "$folder"
cp "$installed/$core" "$place"
cp "$installed/$xfm" "$folder"
unset LD_LIBRARY_PATH
"$program" "$folder/$xfm"
