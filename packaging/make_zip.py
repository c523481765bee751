"""Packs a folder: make_zip.py FOLDER ZIP. The zip holds the folder itself; the same files give the same bytes."""
import pathlib
import sys
import zipfile

# All entries have the same fixed time.
MOMENT = (2026, 1, 1, 0, 0, 0)
UNIX = 3  # the "made by" system of a zip entry, for Unix file modes

folder, target = map(pathlib.Path, sys.argv[1:])
with zipfile.ZipFile(target, 'w') as package:
    for path in sorted(folder.rglob('*')):
        if path.is_file():
            entry = zipfile.ZipInfo(path.relative_to(folder.parent).as_posix(), MOMENT)
            entry.create_system = UNIX
            entry.external_attr = (0o755 if path.read_bytes()[:2] == b'#!' else 0o644) << 16
            package.writestr(entry, path.read_bytes(), zipfile.ZIP_DEFLATED, 9)
