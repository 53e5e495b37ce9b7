#!/usr/bin/env python3
"""Checks that Windows files carry a version resource with one version: file_version.py VERSION FILE..."""
import struct
import sys

SIGNATURE = struct.pack("<I", 0xFEEF04BD)  # starts the fixed part of a version resource


def file_version(path):
    """The file version as text, "" without a version resource."""
    with open(path, "rb") as file:
        data = file.read()
    place = data.find("VS_VERSION_INFO".encode("utf-16-le"))
    place = -1 if place < 0 else data.find(SIGNATURE, place, place + 64)
    if place < 0:
        return ""
    high, low = struct.unpack_from("<8xII", data, place)
    return f"{high >> 16}.{high & 0xFFFF}.{low >> 16}"


expected, files = sys.argv[1], sys.argv[2:]
failed = False
for path in files:
    found = file_version(path)
    if found != expected:
        print(f"{path}: file version {found or 'missing'}, expected {expected}", file=sys.stderr)
        failed = True
sys.exit(failed or not files)
