#!/usr/bin/env python3
"""Checks the manifests of finished packages: check_manifests.py FOLDER VERSION PACKAGES PAGE DOWNLOADS
Their names, versions, addresses and hashes, and that each key and value is one that the published schemas allow: those of
winget's manifests 1.6.0, of scoop's manifests, and of NuGet's package descriptions, which chocolatey uses. Only the parts of
them that the manifests use are here. A key that is not here is refused."""
import hashlib
import json
import pathlib
import re
import sys
import xml.etree.ElementTree as xml


def text(shortest, longest):
    """What a text of so many characters matches."""
    return r'[^\n]{%d,%d}' % (shortest, longest)


NUMBER_16 = r'(?:0|[1-9]\d{0,3}|[1-5]\d{4}|6[0-4]\d{3}|65[0-4]\d{2}|655[0-2]\d|6553[0-5])'
NAME_PART = r'[^.\s\\/:*?"<>|]{1,32}'
LOCALE = r'[A-Za-z]{2,3}(?:-[A-Za-z]{1,8})*'
ADDRESS = r'https?://.{1,2040}'
SHA256 = r'[A-Fa-f0-9]{64}'

# For each kind of winget manifest, its keys and what their values match. An optional key begins with "?". A value of a list
# matches the pattern in a list.
EVERY_WINGET = {'PackageIdentifier': rf'(?=.{{1,128}}$){NAME_PART}(?:\.{NAME_PART}){{1,7}}',
                'PackageVersion': r'[^\\/:*?"<>|]{1,128}', 'ManifestType': r'\w+',
                'ManifestVersion': rf'{NUMBER_16}(?:\.{NUMBER_16}){{2}}'}
WINGET = {
    'version': {'DefaultLocale': LOCALE},
    'installer': {'Installers': [{'Architecture': 'x86|x64|arm|arm64|neutral', 'InstallerUrl': ADDRESS, 'InstallerSha256': SHA256}],
                  '?Platform': [r'Windows\.(?:Desktop|Universal)'], '?MinimumOSVersion': rf'{NUMBER_16}(?:\.{NUMBER_16}){{0,3}}',
                  '?InstallerType': 'msix|msi|appx|exe|zip|inno|nullsoft|wix|burn|pwa|portable', '?Scope': 'user|machine',
                  '?InstallModes': ['interactive|silent|silentWithProgress'], '?UpgradeBehavior': 'install|uninstallPrevious',
                  '?ElevationRequirement': 'elevationRequired|elevationProhibited|elevatesSelf', '?ProductCode': text(1, 255)},
    'defaultLocale': {'PackageLocale': LOCALE, 'Publisher': text(2, 256), 'PackageName': text(2, 256), 'License': text(3, 512),
                      'ShortDescription': text(3, 256), '?PackageUrl': ADDRESS, '?Copyright': text(3, 512), '?Tags': [text(1, 40)]},
    'locale': {'PackageLocale': LOCALE, '?ShortDescription': text(3, 256)},
}
LONGEST_LISTS = {'Platform': 2, 'InstallModes': 3, 'Tags': 16, 'Installers': 1024}
SCOOP = {'version': r'[\w.+-]+', '?description': '.*', '?homepage': ADDRESS, '?license': r'[\w.+-]+',
         '?architecture': {'?64bit': {'?url': r'https?://[^$]+', '?hash': SHA256}}, '?extract_dir': '.*', '?pre_install': '.*',
         '?bin': '.*', '?persist': '.*', '?shortcuts': [['.*']]}
NUSPEC = '{http://schemas.microsoft.com/packaging/2015/06/nuspec.xsd}'
NUSPEC_METADATA = {'id': r'[\w.-]{1,100}', 'version': r'\d+(?:\.\d+){1,3}', 'authors': '.+', 'description': '.+', '?title': '.+',
                   '?projectUrl': ADDRESS, '?requireLicenseAcceptance': 'true|false', '?summary': '.+', '?copyright': '.+', '?tags': '.+'}

wrong = []


def check(fact, told):
    if not fact:
        wrong.append(told)


def check_form(value, form, where):
    """Whether a value has a form: a pattern for a text, a list of one form, or keys with their forms."""
    if isinstance(form, dict):
        keys = {key.lstrip('?') for key in form}
        check(isinstance(value, dict) and {key for key in form if key[0] != '?'} <= set(value) <= keys, f'{where}: {value}')
        for key, its_form in form.items():
            if isinstance(value, dict) and key.lstrip('?') in value:
                check_form(value[key.lstrip('?')], its_form, f'{where}, {key.lstrip("?")}')
    elif isinstance(form, list):
        check(isinstance(value, list) and len(value) > 0 and len(value) == len({str(each) for each in value}), f'{where}: {value}')
        for each in value if isinstance(value, list) else []:
            check_form(each, form[0], where)
    else:
        check(isinstance(value, str) and re.fullmatch(form, value), f'{where}: {value}')


def read_yaml(written):
    """The part of YAML that is used here: keys with a text, or with a list of texts or of keys with texts."""
    found = {}
    for line in written.splitlines():
        check(not re.search(r'[:-] (?:[-+]?\d+(?:\.\d*)?|true|false|yes|no|on|off|null|~)$', line, re.IGNORECASE), f'no text: {line}')
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
        kinds.append(manifest['ManifestType'])
        check_form(manifest, EVERY_WINGET | WINGET[manifest['ManifestType']], path.name)
        for key, longest in LONGEST_LISTS.items():
            check(len(manifest.get(key, [])) <= longest, f'{path.name} has too many {key}')
        check(path.name.startswith(manifest['PackageIdentifier'] + '.'), f'{path.name} has another identifier')
        check(manifest['PackageVersion'] == version, f'{path.name} has another version')
        if manifest['ManifestType'] == 'installer':
            check(manifest['Installers'] == [{'Architecture': 'x64', 'InstallerUrl': url, 'InstallerSha256': sha256.upper()}],
                  f'{path.name}: {manifest["Installers"]}')
            check(manifest['InstallerType'] == 'nullsoft' and manifest['Scope'] == 'machine', path.name)
        check(manifest.get('PackageUrl', page) == page, f'{path.name} has another page')
    check(sorted(kinds) == ['defaultLocale', 'installer', 'locale', 'locale', 'version'], f'kinds: {kinds}')


def check_scoop(path, version, url, sha256, page):
    manifest = json.loads(path.read_text(encoding='utf-8'))
    check_form(manifest, SCOOP, path.name)
    check(all(2 <= len(shortcut) <= 4 for shortcut in manifest['shortcuts']), f'{path.name}: {manifest["shortcuts"]}')
    check((manifest['version'], manifest['homepage'], manifest['license']) == (version, page, 'MIT'), path.name)
    check(manifest['architecture'] == {'64bit': {'url': url, 'hash': sha256}}, f'{path.name}: {manifest["architecture"]}')
    check(manifest['extract_dir'] == f'tarvik-{version}', 'the folder in the zip')
    check(manifest['persist'] == 'tarvik.dat' and manifest['persist'] in manifest['pre_install'], 'the settings')


def check_chocolatey(folder, version, url, sha256, page):
    package = xml.parse(folder / 'brindle-tarvik.nuspec').getroot()
    metadata = package.find(NUSPEC + 'metadata')
    data = {each.tag.removeprefix(NUSPEC): each.text for each in metadata}
    check([each.tag for each in package] == [NUSPEC + 'metadata', NUSPEC + 'files'], 'nuspec: its two parts')
    check(len(data) == len(metadata), 'nuspec: a part of the metadata is there twice')
    check_form(data, NUSPEC_METADATA, 'nuspec')
    for file in package.find(NUSPEC + 'files'):
        check(file.tag == NUSPEC + 'file' and {'src'} <= set(file.attrib) <= {'src', 'target', 'exclude'}, f'nuspec: {file.attrib}')
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
