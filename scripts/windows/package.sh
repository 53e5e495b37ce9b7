#!/usr/bin/env bash
# Makes a zip for 64-bit Windows: the host, both variants of the module, every DLL that they need, the sample machines
# and a short README. Prints the path of the zip. scripts/windows/package.sh [--check]
#   --check   unpacks the zip elsewhere and scans a sample machine with it under Wine, in an empty prefix
set -euo pipefail
cd "$(dirname "$0")/../.."

scripts/packages.sh build windows
ORVIK_QT_WINDOWS=$(scripts/windows/qt.sh)
export ORVIK_QT_WINDOWS
scripts/build.sh windows
scripts/build.sh windows-simulated

version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
name=orvik-raid-$version-windows
stage=build/package/$name
rm -rf build/package
mkdir -p "$stage"/{machines,platforms,simulated}

cp build/windows/bin/{orvik-diag.exe,ovk_module_raid.dll,hostkit.dll,skinkit.dll} "$stage"
# In a folder of their own: the stand-in for the vendor's library has the vendor's file name.
cp build/windows-simulated/bin/{ovk_module_raid_simulated,hostkit_simulated,skinkit_simulated}.dll \
   build/windows-simulated/bin/{orvik_windows,orvik_simulation,shcore_simulated,storelib}.dll "$stage/simulated"
cp "$ORVIK_QT_WINDOWS"/plugins/platforms/{qwindows,qoffscreen}.dll "$stage/platforms"
cp machines/*.json "$stage/machines"

# Every DLL that something in the folder imports and that a folder of ours has, until nothing new turns up.
folders=("$ORVIK_QT_WINDOWS/bin" "$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")"
         /usr/x86_64-w64-mingw32/lib)
added=1
while [ "$added" = 1 ]; do
  added=0
  for dll in $(find "$stage" -name '*.dll' -o -name '*.exe' | xargs -n 1 x86_64-w64-mingw32-objdump -p |
               sed -n 's/.*DLL Name: //p' | sort -u); do
    [ ! -e "$stage/$dll" ] && [ ! -e "$stage/simulated/$dll" ] || continue
    for folder in "${folders[@]}"; do
      if [ -e "$folder/$dll" ]; then cp "$folder/$dll" "$stage"; added=1; break; fi
    done
  done
done

cat > "$stage/README.txt" <<'README'
orvik-diag: RAID diagnostics

  orvik-diag scan       lists the RAID controllers of this machine with their disks
  orvik-diag test       tests them
  orvik-diag --help     tells the rest

It talks to the controllers' drivers, so run it as administrator.

To see it on a machine that has no RAID controller, give it a simulated one:

  orvik-diag --machine machines\degraded.json scan
  orvik-diag --machine machines\degraded.json test
  orvik-diag --machine machines\consistency.json test --only CHECK_CONSISTENCY_TEST

A host of your own loads ovk_module_raid.dll and finds hostkit.dll and skinkit.dll beside it. The storage vendor's
storelib.dll belongs beside hostkit.dll too. The folder "simulated" holds the same module before a simulated machine.
README
sed -i 's/$/\r/' "$stage/README.txt"
(cd build/package && zip -q -r "$name.zip" "$name")

if [ "${1:-}" = --check ]; then
  . scripts/windows/wine.sh
  wine_start
  zip=$PWD/build/package/$name.zip
  elsewhere=$wine_scratch/elsewhere
  mkdir "$elsewhere"
  unzip -q "$zip" -d "$elsewhere"
  cd "$elsewhere/$name"
  # Nothing but what is in the zip: no library path of ours.
  timeout 120 wine orvik-diag.exe --machine 'machines\mirror.json' scan --json < /dev/null > scan.json 2> /dev/null
  python3 -c 'import json; document = json.load(open("scan.json")); assert document["exitCode"] == 0 and len(document["devices"]) == 1 and len(document["devices"][0]["physicalDrives"]) == 2, document'
  code=0
  timeout 120 wine orvik-diag.exe --machine 'machines\degraded.json' test < /dev/null || code=$?
  [ "$code" = 1 ] || { echo "the degraded sample machine ended with $code instead of 1" >&2; exit 1; }
  timeout 120 wine orvik-diag.exe --machine 'machines\storelib-healthy.json' test < /dev/null
  timeout 120 wine orvik-diag.exe --machine 'machines\consistency.json' test --answer ok < /dev/null | tee answered.txt || true
  grep -q '(ok)' answered.txt || { echo "the question was not answered" >&2; exit 1; }
  timeout 120 wine orvik-diag.exe scan < /dev/null
  cd - > /dev/null
fi
printf '%s\n' "build/package/$name.zip"
