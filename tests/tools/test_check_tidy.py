#!/usr/bin/env python3
import json
import os
import subprocess
import unittest

from check_case import CheckCase, TOOLS

GOOD = "int twice(int number)\n{\n    return 2 * number;\n}\n"
BAD = "int *none()\n{\n    return 0;\n}\n"


class TestCheckTidy(CheckCase):
    check = "check_tidy"

    def setUp(self):
        super().setUp()
        self.write(".clang-tidy", "Checks: '-*,modernize-use-nullptr'\n")
        self.write("CMakePresets.json", json.dumps({"version": 6, "configurePresets": [{
            "name": "tidy", "generator": "Ninja", "binaryDir": "${sourceDir}/build/tidy",
            "cacheVariables": {"CMAKE_EXPORT_COMPILE_COMMANDS": "ON"}}]}))
        self.sources = []

    def add(self, name, text):
        self.write(name, text)
        self.sources.append(name)
        self.write("CMakeLists.txt", "cmake_minimum_required(VERSION 3.25)\n"
                   "project(Tree LANGUAGES CXX)\n"
                   f"add_library(tree {' '.join(self.sources)})\n"
                   "target_include_directories(tree PRIVATE ${PROJECT_SOURCE_DIR})\n")

    def assert_says(self, message):
        result = self.run_check()
        self.assertIn(message, result.stdout, result.stderr)

    def test_good_sources_pass_and_are_not_checked_again(self):
        self.add("src/A.cpp", GOOD)
        self.assert_passes()
        self.assert_says("1 files, 0 of them changed")

    def test_a_finding_fails_with_its_line_every_time(self):
        self.add("src/A.cpp", GOOD)
        self.add("src/B.cpp", BAD)
        self.assert_fails("src/B.cpp:3:12: error: use nullptr")
        self.assert_fails("src/B.cpp:3:12: error: use nullptr")
        self.assert_says("2 files, 1 of them changed, 1 with complaints")

    def test_a_finding_in_a_header_fails_every_time(self):
        self.write("src/A.h", "inline " + BAD)
        self.add("src/A.cpp", '#include "src/A.h"\n' + GOOD)
        self.assert_fails("src/A.h:3:12: error: use nullptr")
        self.assert_fails("src/A.h:3:12: error: use nullptr")

    def test_a_changed_header_has_the_files_checked_that_include_it(self):
        self.write("src/A.h", "#pragma once\n")
        self.add("src/A.cpp", '#include "src/A.h"\n' + GOOD)
        self.add("src/B.cpp", GOOD)
        self.assert_passes()
        self.write("src/A.h", "#pragma once\nint twice(int number);\n")
        self.assert_says("2 files, 1 of them changed, 0 with complaints")

    def test_a_changed_configuration_has_all_files_checked(self):
        self.add("src/A.cpp", GOOD)
        self.assert_passes()
        self.write(".clang-tidy", "Checks: '-*,modernize-use-trailing-return-type'\n")
        self.assert_fails("src/A.cpp:1:5: error: use a trailing return type")

    def test_files_whose_local_names_clash_are_checked_apart(self):
        local = "namespace {\nint local()\n{\n    return 1;\n}\n} // namespace\n"
        self.add("src/A.cpp", local + "int a()\n{\n    return local();\n}\n")
        self.add("src/B.cpp", local + "int *b()\n{\n    return local() ? nullptr : 0;\n}\n")
        self.add("src/C.cpp", "int main()\n{\n    return 0;\n}\n")
        self.add("src/D.cpp", "int main()\n{\n    return 0;\n}\n")
        self.assert_fails("src/B.cpp:9:32: error: use nullptr")
        self.assert_says("4 files, 1 of them changed, 1 with complaints")

    def test_a_file_that_does_not_compile_fails(self):
        self.add("src/A.cpp", "no code\n")
        self.assert_fails("src/A.cpp:1:1: error: unknown type name 'no'")

    def test_a_source_that_no_target_compiles_fails(self):
        self.add("src/A.cpp", GOOD)
        self.write("src/B.cpp", GOOD)
        self.assert_fails("src/B.cpp:1:1: error: is compiled by no target")

    def test_nothing_to_check_is_no_success(self):
        self.add("src/A.cpp", GOOD)
        result = subprocess.run([os.path.join(TOOLS, self.check), "--root", self.root,
                                 os.path.join(self.root, "src/None.cpp")],
                                capture_output=True, text=True, check=False)
        self.assertEqual(result.returncode, 1)
        self.assertIn("nothing to check", result.stderr)


if __name__ == "__main__":
    unittest.main()
