#!/usr/bin/env python3
"""Checks the list of what the program is made of: check_sbom.py SBOM VERSION PACKAGES FOLDER PROJECT
Its form is that of SPDX 2.3 as far as the document uses it: which fields there must be, what their values look like, and
that every name that it uses is there. Its hashes and versions are those of the files and the sources."""
import hashlib
import json
import pathlib
import re
import sys

FIELDS = {
    'document': {'spdxVersion': r'SPDX-2\.3', 'dataLicense': r'CC0-1\.0', 'SPDXID': 'SPDXRef-DOCUMENT', 'name': r'\S+',
                 'documentNamespace': r'urn:uuid:[0-9a-f]{8}-([0-9a-f]{4}-){3}[0-9a-f]{12}'},
    'package': {'SPDXID': r'SPDXRef-[A-Za-z0-9.-]+', 'name': '.+', 'versionInfo': r'\d.*', 'downloadLocation': 'NOASSERTION',
                'licenseConcluded': '.+', 'licenseDeclared': '.+', 'copyrightText': '.+',
                'supplier': 'NOASSERTION|Organization: .+', 'primaryPackagePurpose': 'APPLICATION|LIBRARY|INSTALL'},
    'file': {'SPDXID': r'SPDXRef-[A-Za-z0-9.-]+', 'fileName': r'\./\S+', 'licenseConcluded': '.+', 'copyrightText': '.+'},
    'relationship': {'spdxElementId': 'SPDXRef-.+', 'relatedSpdxElement': 'SPDXRef-.+',
                     'relationshipType': 'DESCRIBES|GENERATES|CONTAINS|STATIC_LINK'},
}
# The SPDX names of the licences that the document may contain, and of the exception.
LICENCES = {'MIT', 'IJG', 'BSD-2-Clause', 'BSD-3-Clause', 'Zlib', 'CPL-1.0', 'GPL-3.0-or-later'}
EXCEPTIONS = {'GCC-exception-3.1'}
REFERENCES = {'purl': r'pkg:deb/debian/[a-z0-9.+-]+@[\w.:~%-]+\?arch=\w+', 'cpe23Type': r'cpe:2\.3:a:[^:]+:[^:]+:[\d.]+(:\*){7}'}
LENGTHS = {'SHA1': 40, 'SHA256': 64}
wrong = []


def check(fact, text):
    if not fact:
        wrong.append(text)


def check_fields(kind, entry):
    for name, form in FIELDS[kind].items():
        value = entry.get(name)
        check(isinstance(value, str) and re.fullmatch(form, value), f'{kind} {entry.get("SPDXID", "")}: {name} is {value!r}')


def check_licence(expression, own):
    for licence in re.split(r' (?:AND|OR) ', expression):
        name, _, exception = licence.partition(' WITH ')
        check(name in LICENCES | own, f'{name} is no licence')
        check(not exception or exception in EXCEPTIONS, f'{exception} is no exception')


def check_sums(entry):
    for each in entry.get('checksums', ()):
        check(re.fullmatch(f'[0-9a-f]{{{LENGTHS[each["algorithm"]]}}}', each['checksumValue']), f'{entry["SPDXID"]}: no sum')


def sums(entry):
    return {each['algorithm']: each['checksumValue'] for each in entry.get('checksums', ())}


def check_form(document):
    check_fields('document', document)
    check(re.fullmatch(r'\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ', document['creationInfo']['created']), 'created')
    check(all(re.match('Organization: |Tool: ', each) for each in document['creationInfo']['creators']), 'creators')
    own = {each['licenseId'] for each in document['hasExtractedLicensingInfos']}
    for each in document['hasExtractedLicensingInfos']:
        check(len(each['extractedText']) > 1000, f'{each["licenseId"]} has no text')
    ids = {'SPDXRef-DOCUMENT'}
    for kind, entries in (('package', document['packages']), ('file', document['files'])):
        for entry in entries:
            check_fields(kind, entry)
            check(entry['SPDXID'] not in ids, f'{entry["SPDXID"]} twice')
            ids.add(entry['SPDXID'])
            check_sums(entry)
            for field in ('licenseConcluded', 'licenseDeclared'):
                if field in entry:
                    check_licence(entry[field], own)
            for each in entry.get('externalRefs', ()):
                check(re.fullmatch(REFERENCES[each['referenceType']], each['referenceLocator']), each['referenceLocator'])
    for entry in document['relationships']:
        check_fields('relationship', entry)
        check(entry['relationshipType'] != 'CONTAINS' or entry['spdxElementId'].startswith('SPDXRef-File-'),
              f'a package that contains what was not analysed: {entry}')
        check({entry['spdxElementId'], entry['relatedSpdxElement']} <= ids, f'a relationship of what is not there: {entry}')


def check_content(document, version, packages, folder, project):
    named = {entry['name']: entry for entry in document['packages']}
    check(set(named) == {'Brindle Tarvik', 'libjpeg-turbo', 'giflib', 'GCC-runtime', 'winpthreads', 'mingw-w64-runtime', 'NSIS'},
          f'packages: {sorted(named)}')
    check(named['Brindle Tarvik']['versionInfo'] == version, 'the version')
    rows = {tuple(row.split()) for row in (project / 'cmake/libraries.txt').read_text(encoding='utf-8').splitlines() if ' ' in row}
    for name in ('libjpeg-turbo', 'giflib'):
        row = (name, named[name]['versionInfo'], sums(named[name]).get('SHA256'))
        check(row in rows, f'{row} is not in cmake/libraries.txt')
        check((project / 'build/sources' / f'{row[0]}-{row[1]}').is_dir(), f'the build has no {row[0]} {row[1]}')
    linked = {entry['relatedSpdxElement'] for entry in document['relationships'] if entry['relationshipType'] == 'STATIC_LINK'}
    check(linked == {named[name]['SPDXID'] for name in named if name not in ('Brindle Tarvik', 'NSIS')}, f'linked: {linked}')
    files = {path.name: path for path in (folder / 'tarvik.exe', packages / f'tarvik-{version}-setup.exe',
                                          packages / f'tarvik-{version}-portable.zip')}
    check({entry['fileName'] for entry in document['files']} == {f'./{name}' for name in files}, 'the files')
    for entry in document['files']:
        data = files[entry['fileName'][2:]].read_bytes()
        check(sums(entry) == {'SHA1': hashlib.sha1(data).hexdigest(), 'SHA256': hashlib.sha256(data).hexdigest()},
              f'{entry["fileName"]} has other sums')


def main(sbom, version, packages, folder, project):
    document = json.loads(pathlib.Path(sbom).read_text(encoding='utf-8'))
    check_form(document)
    check_content(document, version, pathlib.Path(packages), pathlib.Path(folder), pathlib.Path(project))
    for each in wrong:
        print(f'error: {each}', file=sys.stderr)
    return 1 if wrong else 0


sys.exit(main(*sys.argv[1:]))
