"""What the tests of the static checks share: a tree of files, and a check run over it."""

import os
import subprocess
import tempfile
import unittest

TOOLS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools")


class CheckCase(unittest.TestCase):
    """Each test has an empty tree of its own."""

    check = ""  # set by the subclass

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = folder.name

    def write(self, name, text):
        path = os.path.join(self.root, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)

    def run_check(self, *arguments):
        return subprocess.run([os.path.join(TOOLS, self.check), "--root", self.root, *arguments],
                              capture_output=True, text=True, check=False)

    def assert_passes(self, *arguments):
        result = self.run_check(*arguments)
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)

    def assert_fails(self, message, *arguments):
        result = self.run_check(*arguments)
        self.assertIn(message, result.stdout + result.stderr)
        self.assertEqual(result.returncode, 1, result.stdout + result.stderr)
