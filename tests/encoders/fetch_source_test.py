#!/usr/bin/env python3
"""Tests scripts/fetch-source against a package server of its own: a folder with packages made here.

    fetch_source_test.py FETCH_SOURCE
"""

import hashlib
import os
import subprocess
import sys
import tarfile
import tempfile
import unittest
from pathlib import Path


class FetchSource(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.root = Path(self.folder.name)
        self.server = self.root / "server"
        self.server.mkdir()
        self.target = self.root / "sources" / "toy-1.2"
        (self.root / "etc" / "sources.list.d").mkdir(parents=True)
        (self.root / "etc" / "preferences.d").mkdir()
        (self.root / "apt.conf").write_text(f'Dir::Etc "{self.root}/etc/";\n')
        self.offer("1.2", "1:1.2-1")
        self.use_list()

    def offer(self, upstream, version):
        """Puts a revision of the package on the server; its patch writes the version into the file "patched"."""
        tree = self.root / "make" / f"toy-{upstream}"
        (tree / "debian" / "source").mkdir(parents=True)
        (tree / "debian" / "patches").mkdir()
        archive = tree.parent / f"toy_{upstream}.orig.tar.gz"
        if not (self.server / archive.name).exists():
            (tree / "plain").write_text("as it came\n")
            with tarfile.open(archive, "w:gz") as tar:
                tar.add(tree / "plain", f"toy-{upstream}/plain")
        else:
            archive.write_bytes((self.server / archive.name).read_bytes())
            (tree / "plain").write_text("as it came\n")
        (tree / "debian" / "source" / "format").write_text("3.0 (quilt)\n")
        (tree / "debian" / "changelog").write_text(
            f"toy ({version}) unstable; urgency=low\n\n  * New.\n\n"
            " -- Somebody <somebody@example.org>  Mon, 01 Jan 2024 00:00:00 +0000\n")
        (tree / "debian" / "control").write_text(
            "Source: toy\nMaintainer: Somebody <somebody@example.org>\n\nPackage: toy\nArchitecture: any\n")
        (tree / "debian" / "patches" / "series").write_text("patch\n")
        (tree / "debian" / "patches" / "patch").write_text(
            f"--- /dev/null\n+++ b/patched\n@@ -0,0 +1 @@\n+{version}\n")
        subprocess.run(["dpkg-source", "-b", tree.name], cwd=tree.parent, check=True, capture_output=True)
        for file in tree.parent.glob("toy_*"):
            file.rename(self.server / file.name)
        subprocess.run(["rm", "-r", tree.parent], check=True)
        self.index()

    def index(self):
        found = subprocess.run(["dpkg-scansources", "."], cwd=self.server, check=True, capture_output=True).stdout
        (self.server / "Sources").write_bytes(found)

    def withdraw(self, revision):
        for file in self.server.glob(f"toy_*-{revision}.*"):
            file.unlink()
        self.index()

    def use_list(self):
        (self.root / "etc" / "sources.list").write_text(
            "# deb cdrom:[Disc]/ bookworm main\n"
            "deb cdrom:[Disc]/ bookworm main\n"
            f"deb [trusted=yes] file:{self.server} ./\n")

    def use_deb822(self):
        (self.root / "etc" / "sources.list").unlink()
        (self.root / "etc" / "sources.list.d" / "toy.sources").write_text(
            f"Types: deb\nURIs: file:{self.server}\nSuites: ./\nTrusted: yes\n")

    def sha256(self, upstream="1.2"):
        return hashlib.sha256((self.server / f"toy_{upstream}.orig.tar.gz").read_bytes()).hexdigest()

    def fetch(self, upstream="1.2", sha256=None):
        return subprocess.run([FETCH_SOURCE, "toy", upstream, sha256 or self.sha256(upstream), self.target],
                              env={**os.environ, "APT_CONFIG": str(self.root / "apt.conf")},
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)

    def expect_fetched(self, version):
        result = self.fetch()
        self.assertEqual(result.returncode, 0, result.stdout)
        self.assertEqual((self.target / "plain").read_text(), "as it came\n")
        self.assertEqual((self.target / "patched").read_text(), version + "\n")
        self.assertEqual(list(self.target.parent.glob(".unpack*")), [])

    def expect_refused(self, result, *words):
        self.assertNotEqual(result.returncode, 0)
        for word in words:
            self.assertIn(word, result.stdout)
        self.assertFalse(self.target.exists())
        self.assertEqual(list(self.target.parent.glob(".unpack*")), [])

    def test_unpacks_the_source_with_its_patches(self):
        self.expect_fetched("1:1.2-1")

    def test_reads_sources_in_the_newer_form_too(self):
        self.use_deb822()
        self.expect_fetched("1:1.2-1")

    def test_takes_the_newest_revision_of_the_upstream_version(self):
        self.offer("1.2", "1:1.2-1+deb12u1")
        self.offer("1.2.1", "1:1.2.1-1")
        self.expect_fetched("1:1.2-1+deb12u1")

    def test_takes_the_revision_that_replaced_the_one_its_lists_name(self):
        self.expect_fetched("1:1.2-1")
        subprocess.run(["rm", "-r", self.target], check=True)
        self.offer("1.2", "1:1.2-2")
        self.withdraw("1")
        self.expect_fetched("1:1.2-2")

    def test_keeps_what_was_fetched_before(self):
        self.expect_fetched("1:1.2-1")
        sha256 = self.sha256()
        subprocess.run(["rm", "-r", self.server], check=True)
        result = self.fetch(sha256=sha256)
        self.assertEqual((result.returncode, result.stdout), (0, ""))

    def test_fetches_again_what_was_not_finished(self):
        self.target.mkdir(parents=True)
        (self.target / "plain").write_text("half")
        (self.target.parent / ".unpack.left").mkdir()
        self.expect_fetched("1:1.2-1")

    def test_refuses_an_archive_of_another_hash(self):
        self.expect_refused(self.fetch(sha256="0" * 64), "SHA-256", self.sha256())

    def test_says_what_there_is_where_the_version_is_not(self):
        self.expect_refused(self.fetch("1.3", "0" * 64), "no toy 1.3", "1:1.2-1")

    def test_says_so_where_the_machine_has_no_package_sources(self):
        (self.root / "etc" / "sources.list").write_text("# nothing\n")
        self.expect_refused(self.fetch(), "no package sources")


if __name__ == "__main__":
    FETCH_SOURCE = sys.argv[1]
    unittest.main(argv=sys.argv[:1], verbosity=2)
