#!/usr/bin/env python3
import unittest

from check_case import CheckCase


class TestCheckFormat(CheckCase):
    check = "check_format"

    def setUp(self):
        super().setUp()
        self.write(".clang-format", "BasedOnStyle: LLVM\nIndentWidth: 4\n")

    def test_a_well_laid_out_file_passes(self):
        self.write("src/A.cpp", "int f() {\n    int a = 1;\n    return a;\n}\n")
        self.assert_passes()

    def test_a_wrong_indentation_is_found_with_its_line(self):
        for name in ("src/A.cpp", "src/A.h"):
            with self.subTest(name):
                self.write(name, "int f() {\n  int a = 1;\n    return a;\n}\n")
                self.assert_fails(f"{name}:1:")

    def test_a_tree_without_sources_is_no_success(self):
        self.assert_fails("holds no source files")


if __name__ == "__main__":
    unittest.main()
