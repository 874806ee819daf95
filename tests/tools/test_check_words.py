#!/usr/bin/env python3
import os
import subprocess
import unittest

from check_case import CheckCase


class TestCheckWords(CheckCase):
    check = "check_words"

    def test_innocent_words_pass(self):
        self.write("src/A.cpp", "// a todo list, HACKSAW, see docs/work/plan.md\n")
        self.assert_passes()

    def test_markers_of_unfinished_work_are_found_with_their_line(self):
        for marker in ("TODO", "FIXME", "XXX", "HACK"):
            with self.subTest(marker):
                self.write("src/A.cpp", f"int a;\n// {marker}: later\n")
                self.assert_fails("src/A.cpp:2: a marker of unfinished work")

    def test_paths_of_one_machine_are_found(self):
        for path in ("/" + name for name in ("work/a", "home/someone/b", "root/c", "farm/d")):
            with self.subTest(path):
                self.write("run", f"cd {path}\n")
                self.assert_fails("run:1: a path of one machine")

    def test_files_that_are_no_text_are_left_out(self):
        self.write("picture.png", "\0TODO")
        self.assert_passes()

    def test_what_git_ignores_is_left_out(self):
        subprocess.run(["git", "init", "--quiet", self.root], check=True)
        self.write(".gitignore", "/generated/\n")
        self.write("generated/a.txt", "TODO\n")
        self.assert_passes()
        self.write("new.txt", "TODO\n")
        self.assert_fails("new.txt:1")

    def test_an_empty_tree_is_no_success(self):
        os.makedirs(os.path.join(self.root, "build"))
        self.assert_fails("holds no files")


if __name__ == "__main__":
    unittest.main()
