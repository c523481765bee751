"""Writes the bill of materials of the program and its installer, as an SPDX 2.3 document:
make_sbom.py VERSION MAP LIBRARIES PROGRAM INSTALLER ZIP SBOM
MAP is the linker map of the program, LIBRARIES the file in which the build lists the sources it used of the two
libraries. All other archives in the map come from Debian packages, whose versions dpkg reports. An archive that belongs
to no known component is an error, so that none is left out."""
import datetime
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys
import uuid

ROOT = pathlib.Path(__file__).resolve().parent.parent
NOBODY_SAYS = 'NOASSERTION'
DEVELOPERS = 'Organization: The Brindle Tarvik developers'

# The libraries: name, licence declared, licence that the program uses it under, CPE vendor and product.
LIBRARIES = {
    'libjpeg-turbo': ('IJG AND BSD-3-Clause AND Zlib', 'IJG', 'libjpeg-turbo:libjpeg-turbo'),
    'giflib': ('MIT', 'MIT', 'giflib_project:giflib'),
}

# The compiler's runtime: name, the files it is linked from, licence, heading in third-party-notices.md.
RUNTIME = (
    ('GCC-runtime', r'libstdc\+\+|libgcc|libgcc_eh|libssp|libssp_nonshared|crtbegin|crtend',
     'GPL-3.0-or-later WITH GCC-exception-3.1', None),
    ('winpthreads', r'libpthread|libwinpthread', 'MIT AND BSD-3-Clause', None),
    ('mingw-w64-runtime', r'crt2u?|libmingw32|libmingwex|libmsvcrt(?:-os)?|libmoldname|libuuid|'
     r'lib(?:advapi|comctl|comdlg|gdi|kernel|ole|shell|user)32', 'LicenseRef-mingw-w64-runtime', 'The mingw-w64 runtime'),
)
OURS = re.compile(r'libtarvik_(?:rules|windows)')


def owner(path):
    """The Debian package that a file belongs to, and its version."""
    package = subprocess.run(['dpkg', '-S', path], check=True, capture_output=True, text=True).stdout.split(':')[0]
    return package, version_of(package)


def version_of(package):
    return subprocess.run(['dpkg-query', '-W', '-f', '${Version}', package], check=True, capture_output=True, text=True).stdout


def linked_files(text):
    """The files linked into the program: the archives with a member in it, and the start-up code."""
    members = text[:text.index('Discarded input sections')]
    found = set(re.findall(r'^(\S+\.a)\(', members, re.MULTILINE))
    found |= {path for path in re.findall(r'^LOAD (\S+)', text, re.MULTILINE) if re.match(r'crt\w+\.o$', os.path.basename(path))}
    # If two Debian packages offer the same file through a symbolic link, only one of them owns the file itself.
    return sorted(os.path.realpath(path) if path.startswith('/') else path for path in found)


def extracted_text(heading):
    notices = (ROOT / 'docs/third-party-notices.md').read_text(encoding='utf-8')
    section = re.search(rf'^## {re.escape(heading)}\n\n(.*?)(?=^## |\Z)', notices, re.MULTILINE | re.DOTALL)
    return section.group(1).strip()


def package(name, version, declared, **more):
    return {'SPDXID': f'SPDXRef-Package-{name.replace(" ", "-")}', 'name': name, 'versionInfo': version, 'downloadLocation': NOBODY_SAYS,
            'filesAnalyzed': False, 'licenseConcluded': declared, 'licenseDeclared': declared,
            'copyrightText': NOBODY_SAYS, 'supplier': NOBODY_SAYS} | more


def reference(category, kind, locator):
    return {'referenceCategory': category, 'referenceType': kind, 'referenceLocator': locator}


def debian_reference(name, version, architecture):
    return reference('PACKAGE-MANAGER', 'purl', f'pkg:deb/debian/{name}@{version.replace("+", "%2B")}?arch={architecture}')


def library_packages(used):
    """The libraries as their authors released them, with the hash of the archive that cmake/libraries.txt states."""
    rows = [row.split() for row in (ROOT / 'cmake/libraries.txt').read_text(encoding='utf-8').splitlines() if row[:1] not in ('', '#')]
    for name, (declared, concluded, known_as) in LIBRARIES.items():
        version = next(line[len(name) + 1:] for line in used if line.startswith(name + '-'))
        sha256 = next(row[2] for row in rows if row[:2] == [name, version])
        yield package(name, version, declared, licenseConcluded=concluded, primaryPackagePurpose='LIBRARY',
                      checksums=[{'algorithm': 'SHA256', 'checksumValue': sha256}],
                      comment='The hash is that of the archive of the original sources.',
                      externalRefs=[reference('SECURITY', 'cpe23Type', f'cpe:2.3:a:{known_as}:{version}:*:*:*:*:*:*:*')])


def component_of(path):
    stem = os.path.basename(path).removesuffix('.a').removesuffix('.o').removesuffix('.dll')
    return next((row for row in RUNTIME if re.fullmatch(row[1], stem)), None)


def runtime_packages(paths):
    found = {}
    for path in paths:
        if not (component := component_of(path)):
            sys.exit(f'error: the program contains parts of {path}, and no component is known for it')
        found.setdefault(component, []).append(path)
    for (name, _, licence, _), files in found.items():
        owners = sorted({owner(path) for path in files})
        architecture = 'all' if name != 'GCC-runtime' else 'amd64'
        yield package(name, owners[0][1], licence, primaryPackagePurpose='LIBRARY',
                      comment='Linked from ' + ', '.join(sorted({os.path.basename(path) for path in files})) + '.',
                      externalRefs=[debian_reference(*package_owner, architecture) for package_owner in owners])


def file_entry(name, path, licence):
    data = path.read_bytes()
    return {'SPDXID': f'SPDXRef-File-{name}', 'fileName': f'./{path.name}', 'fileTypes': ['BINARY'],
            'checksums': [{'algorithm': kind.upper(), 'checksumValue': hashlib.new(kind, data).hexdigest()}
                          for kind in ('sha1', 'sha256')],
            'licenseConcluded': licence, 'licenseInfoInFiles': [NOBODY_SAYS],
            'copyrightText': 'Copyright 2026 The Brindle Tarvik developers'}


def main(version, map_file, libraries, program, installer, zip_file, target):
    used = pathlib.Path(libraries).read_text(encoding='utf-8').split()
    foreign = [path for path in linked_files(pathlib.Path(map_file).read_text(encoding='utf-8', errors='replace'))
               if path.startswith('/usr/')]
    inside = [*library_packages(used), *runtime_packages(foreign)]
    tarvik = package('Brindle Tarvik', version, 'MIT', supplier=DEVELOPERS, originator=DEVELOPERS,
                     copyrightText='Copyright 2026 The Brindle Tarvik developers', primaryPackagePurpose='APPLICATION')
    nsis = package('NSIS', version_of('nsis'), 'Zlib AND BSD-2-Clause AND CPL-1.0', primaryPackagePurpose='INSTALL',
                   comment='What runs when the installer or the uninstaller is started.',
                   externalRefs=[debian_reference('nsis', version_of('nsis'), 'amd64')])
    files = [file_entry('program', pathlib.Path(program), 'MIT'), file_entry('installer', pathlib.Path(installer), 'MIT'),
             file_entry('zip', pathlib.Path(zip_file), 'MIT')]
    links = [('SPDXRef-DOCUMENT', 'DESCRIBES', entry['SPDXID']) for entry in (tarvik, *files)]
    # In SPDX a package with filesAnalyzed=false must not have CONTAINS relationships to files.
    links += [(tarvik['SPDXID'], 'GENERATES', entry['SPDXID']) for entry in files]
    links += [('SPDXRef-File-program', 'STATIC_LINK', entry['SPDXID']) for entry in inside]
    links += [('SPDXRef-File-installer', 'CONTAINS', nsis['SPDXID'])]
    texts = [{'licenseId': licence, 'name': heading, 'extractedText': extracted_text(heading)}
             for _, _, licence, heading in RUNTIME if heading]
    document = {
        'spdxVersion': 'SPDX-2.3', 'dataLicense': 'CC0-1.0', 'SPDXID': 'SPDXRef-DOCUMENT',
        'name': f'brindle-tarvik-{version}',
        'creationInfo': {'created': datetime.datetime.fromtimestamp(int(os.environ['SOURCE_DATE_EPOCH']), datetime.timezone.utc)
                         .strftime('%Y-%m-%dT%H:%M:%SZ'), 'creators': [DEVELOPERS, 'Tool: make_sbom.py']},
        'packages': [tarvik, *inside, nsis], 'files': files, 'hasExtractedLicensingInfos': texts,
        'relationships': [{'spdxElementId': one, 'relationshipType': kind, 'relatedSpdxElement': other}
                          for one, kind, other in links]}
    # The namespace must be unique for each document, so it is derived from the content.
    content = json.dumps(document, sort_keys=True)
    document['documentNamespace'] = uuid.uuid5(uuid.NAMESPACE_OID, content).urn
    pathlib.Path(target).write_text(json.dumps(document, indent=2, ensure_ascii=False) + '\n', encoding='utf-8')


main(*sys.argv[1:])
