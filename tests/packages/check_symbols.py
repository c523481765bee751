#!/usr/bin/env python3
"""Checks that a program refers to a file of symbols by name and checksum: check_symbols.py PROGRAM SYMBOLS"""
import pathlib
import re
import struct
import subprocess
import sys
import zlib

program, symbols = map(pathlib.Path, sys.argv[1:])
shown = subprocess.run(['x86_64-w64-mingw32-objdump', '-s', '-j', '.gnu_debuglink', program], check=True, capture_output=True,
                       text=True).stdout
content = bytes.fromhex(''.join(re.findall(r'^ [0-9a-f]+ ((?:[0-9a-f]+ )+)', shown, re.MULTILINE)))
# The name, padded with zeros to a multiple of four bytes, and the checksum.
name = content[:content.find(0)]
sum_at = (len(name) + 4) // 4 * 4
if name.decode() != symbols.name or struct.unpack_from('<I', content, sum_at)[0] != zlib.crc32(symbols.read_bytes()):
    sys.exit(f'error: the program names {name.decode()} with another sum')
