#!/usr/bin/env python3
"""Checks the manifests of finished packages: check_manifests.py FOLDER VERSION PACKAGES PAGE DOWNLOADS
Their form is what winget, scoop and chocolatey publish, as far as the manifests use it."""
import hashlib
import json
import pathlib
import re
import sys
import xml.etree.ElementTree as xml

NUSPEC = '{http://schemas.microsoft.com/packaging/2015/06/nuspec.xsd}'
EVERY_WINGET = {'PackageIdentifier', 'PackageVersion', 'ManifestType', 'ManifestVersion'}
# The required fields of each kind of winget manifest, and the optional ones that are used here.
WINGET = {
    'version': ({'DefaultLocale'}, set()),
    'installer': ({'Installers'}, {'Platform', 'MinimumOSVersion', 'InstallerType', 'Scope', 'InstallModes', 'UpgradeBehavior',
                                   'ElevationRequirement', 'ProductCode'}),
    'defaultLocale': ({'PackageLocale', 'Publisher', 'PackageName', 'License', 'ShortDescription'},
                      {'PackageUrl', 'Copyright', 'Tags'}),
    'locale': ({'PackageLocale'}, {'ShortDescription'}),
}
wrong = []


def check(fact, text):
    if not fact:
        wrong.append(text)


def read_yaml(text):
    """The part of YAML that is used here: keys with a text, or with a list of texts or of keys with texts."""
    found = {}
    for line in text.splitlines():
        if item := re.fullmatch(r'- (?:(\w+): )?(.+)', line):
            last = found[list(found)[-1]]
            last.append({item[1]: item[2]} if item[1] else item[2])
        elif item := re.fullmatch(r'  (\w+): (.+)', line):
            found[list(found)[-1]][-1][item[1]] = item[2]
        elif item := re.fullmatch(r'(\w+):(?: (.+))?', line):
            found[item[1]] = item[2] if item[2] else []
        else:
            check(False, f'no YAML as it is used here: {line}')
    return found


def check_winget(folder, version, url, sha256, page):
    kinds = []
    for path in sorted(folder.iterdir()):
        manifest = read_yaml(path.read_text(encoding='utf-8'))
        must, may = WINGET[manifest['ManifestType']]
        kinds.append(manifest['ManifestType'])
        check(EVERY_WINGET | must <= set(manifest) <= EVERY_WINGET | must | may, f'{path.name}: {sorted(manifest)}')
        check(path.name.startswith(manifest['PackageIdentifier'] + '.'), f'{path.name} has another identifier')
        check(re.fullmatch(r'[^.\s]{1,32}(\.[^.\s]{1,32}){1,7}', manifest['PackageIdentifier']), 'the identifier')
        check(manifest['PackageVersion'] == version, f'{path.name} has another version')
        if manifest['ManifestType'] == 'installer':
            check(manifest['Installers'] == [{'Architecture': 'x64', 'InstallerUrl': url, 'InstallerSha256': sha256.upper()}],
                  f'{path.name}: {manifest["Installers"]}')
            check(manifest['InstallerType'] == 'nullsoft' and manifest['Scope'] == 'machine', path.name)
        check(manifest.get('PackageUrl', page) == page, f'{path.name} has another page')
    check(sorted(kinds) == ['defaultLocale', 'installer', 'locale', 'locale', 'version'], f'kinds: {kinds}')


def check_scoop(path, version, url, sha256, page):
    manifest = json.loads(path.read_text(encoding='utf-8'))
    check((manifest['version'], manifest['homepage'], manifest['license']) == (version, page, 'MIT'), path.name)
    check(manifest['architecture'] == {'64bit': {'url': url, 'hash': sha256}}, f'{path.name}: {manifest["architecture"]}')
    check(manifest['extract_dir'] == f'tarvik-{version}', 'the folder in the zip')
    check(manifest['persist'] == 'tarvik.dat' and manifest['persist'] in manifest['pre_install'], 'the settings')


def check_chocolatey(folder, version, url, sha256, page):
    package = xml.parse(folder / 'brindle-tarvik.nuspec').getroot()
    data = {each.tag.removeprefix(NUSPEC): each.text for each in package.find(NUSPEC + 'metadata')}
    check({'id', 'version', 'title', 'authors', 'summary', 'description', 'tags'} <= set(data), f'nuspec: {sorted(data)}')
    check((data['id'], data['version'], data['projectUrl']) == ('brindle-tarvik', version, page), f'nuspec: {data}')
    script = (folder / 'tools/chocolateyinstall.ps1').read_text(encoding='utf-8')
    values = dict(re.findall(r"^  (\w+) += '(.*)'$", script, re.MULTILINE))
    check((values['packageName'], values['url64bit'], values['checksum64'], values['checksumType64']) ==
          (data['id'], url, sha256, 'sha256'), f'chocolateyinstall.ps1: {values}')


def main(folder, version, packages, page, downloads):
    folder, packages = pathlib.Path(folder), pathlib.Path(packages)
    setup, zip_file = (packages / f'tarvik-{version}-{rest}' for rest in ('setup.exe', 'portable.zip'))
    sums = {path: hashlib.sha256(path.read_bytes()).hexdigest() for path in (setup, zip_file)}
    check_winget(folder / 'winget', version, f'{downloads}/{setup.name}', sums[setup], page)
    check_scoop(folder / 'scoop/brindle-tarvik.json', version, f'{downloads}/{zip_file.name}', sums[zip_file], page)
    check_chocolatey(folder / 'chocolatey', version, f'{downloads}/{setup.name}', sums[setup], page)
    for path in folder.rglob('*'):
        check(path.is_dir() or not re.search(r'@[A-Z_]+@', path.read_text(encoding='utf-8')), f'{path.name} has a gap')
    for each in wrong:
        print(f'error: {each}', file=sys.stderr)
    return 1 if wrong else 0


sys.exit(main(*sys.argv[1:]))
