#!/bin/sh
# usage: needs.sh READELF FILE [LIBRARY...]
# Passes if the file needs no shared libraries but those of the C library and these, by their names before ".so".
set -eu
readelf=$1 file=$2
shift 2
status=0
for library in $("$readelf" -dW "$file" | sed -n 's/.*(NEEDED).*\[\(.*\)\.so.*\]/\1/p'); do
  case " libc libm ld-linux-x86-64 $* " in
    *" $library "*) ;;
    *) echo "$file needs $library" && status=1 ;;
  esac
done
exit $status
