#!/usr/bin/env bash
# Makes a zip for 64-bit Windows: the host, both variants of the module, the DLLs they need, the sample machines and a
# short README. Prints the path of the zip. scripts/windows/package.sh [--check]
#   --check   checks the version resources, unpacks the zip elsewhere and runs it under Wine in an empty prefix
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
# In a separate folder, because the simulated vendor library has the vendor's file name.
cp build/windows-simulated/bin/{ovk_module_raid_simulated,hostkit_simulated,skinkit_simulated}.dll \
   build/windows-simulated/bin/{orvik_windows,orvik_simulation,shcore_simulated,storelib}.dll "$stage/simulated"
cp "$ORVIK_QT_WINDOWS"/plugins/platforms/{qwindows,qoffscreen}.dll "$stage/platforms"
cp machines/*.json "$stage/machines"

# Copy imported DLLs from the folders below, then the DLLs that those import, until none is missing.
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
  orvik-diag --help     lists all commands and options

Run it as administrator: it needs direct access to the controllers' drivers.

To try it on a machine without a RAID controller, use a simulated machine:

  orvik-diag --machine machines\degraded.json scan
  orvik-diag --machine machines\degraded.json test
  orvik-diag --machine machines\consistency.json test --only CHECK_CONSISTENCY_TEST

Your own host needs ovk_module_raid.dll, hostkit.dll and skinkit.dll in one folder. Put the storage vendor's
storelib.dll into that folder too. The folder "simulated" holds the module built for simulated machines.
README
sed -i 's/$/\r/' "$stage/README.txt"
(cd build/package && zip -q -r "$name.zip" "$name")

if [ "${1:-}" = --check ]; then
  python3 scripts/windows/file_version.py "$version" \
    "$stage"/{orvik-diag.exe,ovk_module_raid.dll,hostkit.dll,skinkit.dll} \
    "$stage"/simulated/{ovk_module_raid_simulated,hostkit_simulated,skinkit_simulated}.dll \
    "$stage"/simulated/{orvik_windows,orvik_simulation,shcore_simulated,storelib}.dll
  . scripts/windows/wine.sh
  wine_start
  zip=$PWD/build/package/$name.zip
  elsewhere=$wine_scratch/elsewhere
  mkdir "$elsewhere"
  unzip -q "$zip" -d "$elsewhere"
  cd "$elsewhere/$name"
  # Without a library path: the zip must contain every DLL.
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
