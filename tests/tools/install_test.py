#!/usr/bin/env python3
"""Installs a build into an empty folder and holds what lies there to its promises.

Usage: install_test.py BUILD-FOLDER"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

SOURCES = Path(__file__).resolve().parents[2]
ID = "org.tessaro.Tessaro"


class InstallTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.prefix = Path(folder.name)
        subprocess.run(["cmake", "--install", BUILD, "--prefix", self.prefix], check=True, capture_output=True)
        self.share = self.prefix / "share"

    def batch(self, *arguments):
        program = self.prefix / "bin/tessaro-batch"
        environment = {**os.environ, "HOME": str(self.prefix)}
        run = subprocess.run([program, *arguments], capture_output=True, text=True, env=environment)
        self.assertEqual(run.returncode, 0, run.stderr)
        return run.stdout

    def test_programs_use_what_was_installed_with_them(self):
        profiles = self.share / "tessaro/Profile"
        for group in profiles.iterdir():
            if group.name != "Script":
                shutil.rmtree(group)
        wanted = {f"Script/{package.stem}" for package in (profiles / "Script").iterdir()}
        self.assertEqual(wanted, set(self.batch("--list-profiles").splitlines()))
        # The helper makes a photo of a drawing.
        drawing = next((self.share / "tessaro/Stickers").glob("*.svg"))
        self.batch("--text", "Marked", "--output", self.prefix, drawing)

    def test_the_desktop_finds_all_that_is_promised(self):
        entry = (self.share / f"applications/{ID}.desktop").read_text()
        told = dict(re.findall(r"^(Exec|Icon)=(.+)$", entry, re.M))
        about = xml.parse(self.share / f"metainfo/{ID}.metainfo.xml").getroot()
        promised = [f"bin/{told['Exec']}", f"share/icons/hicolor/scalable/apps/{told['Icon']}.svg"]
        promised += [f"bin/{binary.text}" for binary in about.iter("binary")]
        promised += [f"share/applications/{about.find('launchable').text}", f"share/mime/packages/{ID}.xml"]
        self.assertEqual([], [path for path in promised if not (self.prefix / path).is_file()])
        version = re.search(r"project\(Tessaro VERSION (\S+)", (SOURCES / "CMakeLists.txt").read_text())[1]
        self.assertEqual(version, about.find("releases/release").get("version"))


if __name__ == "__main__":
    BUILD = sys.argv.pop(1)
    unittest.main()
