#!/usr/bin/env python3
"""Tests scripts/fetch-source against a package server of its own: a folder with packages made here.

    fetch_source_test.py FETCH_SOURCE
"""

import hashlib
import os
import shutil
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
        self.parent = self.root / "sources"
        (self.root / "etc" / "sources.list.d").mkdir(parents=True)
        (self.root / "etc" / "preferences.d").mkdir()
        (self.root / "etc" / "apt.conf.d").mkdir()
        (self.root / "apt.conf").write_text(f'Dir::Etc "{self.root}/etc/";\n')
        self.offer("1.2", "1:1.2-1")
        self.use_list()

    def offer(self, upstream, version):
        """Puts a revision of the package on the server. Its archive holds the version in the file "plain", and its patch
        adds the file "patched"."""
        tree = self.root / "make" / f"toy-{upstream}"
        (tree / "debian" / "source").mkdir(parents=True)
        (tree / "debian" / "patches").mkdir()
        archive = tree.parent / f"toy_{upstream}.orig.tar.gz"
        (tree / "plain").write_text(upstream + "\n")
        if not (self.server / archive.name).exists():
            with tarfile.open(archive, "w:gz") as tar:
                tar.add(tree / "plain", f"toy-{upstream}/plain")
        else:
            archive.write_bytes((self.server / archive.name).read_bytes())
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
        shutil.rmtree(tree.parent)
        self.index()

    def index(self):
        found = subprocess.run(["dpkg-scansources", "."], cwd=self.server, check=True, capture_output=True).stdout
        (self.server / "Sources").write_bytes(found)

    def rearrange(self):
        """Moves everything on the server to a folder of another name, as after a new point release."""
        (self.server / "moved").mkdir()
        for file in self.server.glob("toy_*"):
            file.rename(self.server / "moved" / file.name)
        self.index()

    def release(self, suite):
        """Makes everything on the server so far a release of that name."""
        lists = self.server / "dists" / suite / "main" / "source"
        lists.mkdir(parents=True)
        (self.server / "Sources").rename(lists / "Sources")

    def use_list(self, suite="./", components=""):
        (self.root / "etc" / "sources.list").write_text(
            "# deb cdrom:[Disc]/ bookworm main\n"
            "deb cdrom:[Disc]/ bookworm main\n"
            f"deb [trusted=yes] file:{self.server} {suite} {components}\n")

    def use_deb822(self, suite="./", components=""):
        (self.root / "etc" / "sources.list").unlink()
        (self.root / "etc" / "sources.list.d" / "toy.sources").write_text(
            f"Types: deb\nURIs: file:{self.server}\nSuites: {suite}\nTrusted: yes\n"
            + (f"Components: {components}\n" if components else ""))

    def sha256(self, upstream):
        file = next(self.server.rglob(f"toy_{upstream}.orig.tar.gz"))
        return hashlib.sha256(file.read_bytes()).hexdigest()

    def fetch(self, *wanted, sha256=None):
        """Fetches the first of the wanted versions that exists."""
        table = self.root / "table"
        rows = [f"toy {upstream} {sha256 or self.sha256(upstream)}\n" for upstream in wanted]
        table.write_text("# name version hash\nother 1 0\n" + "".join(rows))
        return subprocess.run([FETCH_SOURCE, "toy", table, self.parent],
                              env={**os.environ, "APT_CONFIG": str(self.root / "apt.conf")},
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)

    def expect_fetched(self, upstream, result):
        self.assertEqual(result.returncode, 0, result.stderr)
        folder = self.parent / f"toy-{upstream}"
        self.assertEqual(result.stdout, f"{folder}\n")
        self.assertEqual((folder / "plain").read_text(), upstream + "\n")
        self.assertFalse((folder / "patched").exists())
        self.assertEqual(list(self.parent.glob(".unpack*")), [])

    def expect_refused(self, result, *words):
        self.assertNotEqual(result.returncode, 0)
        self.assertEqual(result.stdout, "")
        for word in words:
            self.assertIn(word, result.stderr)
        self.assertEqual(list(self.parent.glob("toy-*")), [])
        self.assertEqual(list(self.parent.glob(".unpack*")), [])

    def test_unpacks_the_original_archive_without_patches(self):
        self.expect_fetched("1.2", self.fetch("1.2"))

    def test_reads_sources_in_the_newer_form_too(self):
        self.use_deb822()
        self.expect_fetched("1.2", self.fetch("1.2"))

    def test_needs_nothing_but_the_original_archive(self):
        for file in [*self.server.glob("*.dsc"), *self.server.glob("*.debian.tar.*")]:
            file.unlink()
        self.expect_fetched("1.2", self.fetch("1.2"))

    def test_takes_any_revision_of_the_version(self):
        self.offer("1.2", "1:1.2-1+deb12u1")
        self.offer("1.2.1", "1:1.2.1-1")
        self.expect_fetched("1.2", self.fetch("1.2"))

    def test_takes_the_first_version_of_the_table_that_is_offered(self):
        self.offer("1.3", "1:1.3-1")
        self.offer("1.4", "1:1.4-1")
        self.expect_fetched("1.3", self.fetch("1.3", "1.2"))

    def test_takes_the_next_version_if_the_first_is_missing_on_the_server(self):
        self.offer("1.3", "1:1.3-1")
        sha256 = self.sha256("1.2")
        (self.server / "toy_1.3.orig.tar.gz").rename(self.root / "toy_1.3.orig.tar.gz")
        self.expect_fetched("1.2", self.fetch("1.3", "1.2", sha256=sha256))

    def test_reads_the_lists_again_if_what_they_name_has_gone(self):
        self.expect_fetched("1.2", self.fetch("1.2"))
        shutil.rmtree(self.parent / "toy-1.2")
        self.rearrange()
        self.expect_fetched("1.2", self.fetch("1.2"))

    def test_takes_the_stable_release_if_the_machines_own_has_no_known_version(self):
        self.release("oldstable")
        self.use_list("testing", "main")
        self.expect_fetched("1.2", self.fetch("1.2"))

    def test_takes_the_stable_release_with_sources_in_the_newer_form_too(self):
        self.release("stable")
        self.use_deb822("testing", "main")
        self.expect_fetched("1.2", self.fetch("1.2"))

    def test_prefers_the_machines_own_release_to_the_stable_one(self):
        self.release("stable")
        self.offer("1.3", "1:1.3-1")
        self.release("testing")
        self.use_list("testing", "main")
        sources = self.server / "dists" / "testing" / "main" / "source" / "Sources"
        newer = [text for text in sources.read_text().split("\n\n") if "Version: 1:1.3-1" in text]
        sources.write_text("\n\n".join(newer) + "\n")
        self.expect_fetched("1.3", self.fetch("1.2", "1.3"))

    def test_keeps_what_was_fetched_before(self):
        self.expect_fetched("1.2", self.fetch("1.2"))
        sha256 = self.sha256("1.2")
        shutil.rmtree(self.server)
        result = self.fetch("1.3", "1.2", sha256=sha256)
        self.expect_fetched("1.2", result)
        self.assertEqual(result.stderr, "")

    def test_fetches_again_what_was_not_finished(self):
        (self.parent / "toy-1.2").mkdir(parents=True)
        (self.parent / "toy-1.2" / "plain").write_text("half")
        (self.parent / ".unpack.left").mkdir()
        self.expect_fetched("1.2", self.fetch("1.2"))

    def test_refuses_an_archive_of_another_hash(self):
        self.expect_refused(self.fetch("1.2", sha256="0" * 64), "SHA-256", self.sha256("1.2"))

    def test_says_what_there_is_where_no_wanted_version_is(self):
        self.expect_refused(self.fetch("1.3", "1.4", sha256="0" * 64), "toy 1.3 1.4", "1:1.2-1")

    def test_says_so_where_the_table_has_no_such_library(self):
        self.expect_refused(self.fetch(), "no version of toy")

    def test_says_so_where_the_machine_has_no_package_sources(self):
        (self.root / "etc" / "sources.list").write_text("# nothing\n")
        self.expect_refused(self.fetch("1.2"), "no package sources")


if __name__ == "__main__":
    FETCH_SOURCE = sys.argv[1]
    unittest.main(argv=sys.argv[:1], verbosity=2)
