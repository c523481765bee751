"""Writes the manifests of packaging/manifests.txt for finished packages:
make_manifests.py VERSION SETUP ZIP FOLDER [PAGE DOWNLOADS]
The last two are addresses. Without them the manifests keep @PAGE@ and @DOWNLOADS@, which no package manager accepts."""
import hashlib
import pathlib
import re
import sys

TEMPLATE = pathlib.Path(__file__).with_name('manifests.txt')
BEGINNING = re.compile(r'^>>> (\S+)\n', re.MULTILINE)
ADDRESS = re.compile(r'https://[\w-]+(?:\.[\w-]+)+(?::\d+)?(?:/[\w.~%+-]+)*')


def sha256(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def values(version, setup, zip_file, addresses):
    for address in addresses:
        if not ADDRESS.fullmatch(address):
            sys.exit(f'error: {address} is no address that begins with https:// and has no / at its end')
    known = {'VERSION': version, 'SETUP': setup.name, 'SETUP_SHA256': sha256(setup), 'ZIP': zip_file.name,
             'ZIP_SHA256': sha256(zip_file), 'SETUP_SHA256_CAPITALS': sha256(setup).upper()}
    return known | dict(zip(('PAGE', 'DOWNLOADS'), addresses or ('@PAGE@', '@DOWNLOADS@')))


def main(version, setup, zip_file, folder, *addresses):
    known = values(version, pathlib.Path(setup), pathlib.Path(zip_file), addresses)
    _, *parts = BEGINNING.split(TEMPLATE.read_text(encoding='utf-8'))
    for name, text in zip(parts[::2], parts[1::2]):
        path = pathlib.Path(folder, name)
        path.parent.mkdir(parents=True, exist_ok=True)
        text = re.sub(r'@([A-Z][A-Z0-9_]+)@', lambda found: known[found.group(1)], text.strip('\n') + '\n')
        path.write_bytes(text.encode())


main(*sys.argv[1:])
