#!/usr/bin/env python3
import unittest

from check_case import CheckCase

EDITORS = "src/FieldEditors/"


class TestCheckLayers(CheckCase):
    check = "check_layers"

    def setUp(self):
        super().setUp()
        for name in ("scenegraph/SoA.h", "src/TvkEditor.h", "src/TvkDefaults.h",
                     EDITORS + "DvFrame.h", EDITORS + "SFWidgets/DvSFA.h",
                     EDITORS + "MFWidgets/DvMFA.h", EDITORS + "TvkEditorDock.h",
                     "src/Console/TvkConsole.h", "src/PerfCounter/TvkCounter.h",
                     "src/ProfileSelector/TvkSelector.h", "host/lib/HostShell.h",
                     "host/app/AppWindow.h", "tests/support/Rig.h", "benchmarks/support/Bench.h"):
            self.write(name, "#pragma once\n")

    def include(self, name, included):
        brackets = '"{}"' if "/" in included and not included.startswith("Inventor") else "<{}>"
        self.write(name, "// first line\n#include " + brackets.format(included) + "\n")

    def assert_allowed(self, name, *includes):
        for included in includes:
            with self.subTest(f"{name} may include {included}"):
                self.include(name, included)
                self.assert_passes()

    def assert_forbidden(self, name, *includes):
        for included in includes:
            with self.subTest(f"{name} must not include {included}"):
                self.include(name, included)
                self.assert_fails(f"{name}:2: includes {included}: ")
        self.write(name, "")

    def test_each_layer_may_know_those_below(self):
        self.assert_allowed("src/TvkEditor.cpp", "TvkEditor.h", "scenegraph/SoA.h", "QWidget")
        self.assert_allowed(EDITORS + "SFWidgets/DvSFA.cpp", "FieldEditors/SFWidgets/DvSFA.h",
                            "FieldEditors/DvFrame.h", "TvkEditor.h", "scenegraph/SoA.h")
        self.assert_allowed("src/TvkDefaults.cpp", "FieldEditors/MFWidgets/DvMFA.h",
                            "Console/TvkConsole.h", "FieldEditors/TvkEditorDock.h")
        self.assert_allowed("host/app/AppWindow.cpp", "lib/HostShell.h", "TvkEditor.h")
        self.assert_allowed("examples/smallest_host.cpp", "lib/HostShell.h")

    def test_tests_and_benchmarks_may_know_everything(self):
        self.assert_allowed("tests/src/tst_A.cpp", "host/app/AppWindow.h", "qwt_plot.h",
                            "src/Console/TvkConsole.h")
        self.assert_allowed("benchmarks/bench_a.cpp", "tests/support/Rig.h", "QDomDocument")

    def test_nobody_else_knows_tests_and_benchmarks(self):
        self.assert_forbidden("host/lib/HostShell.cpp", "tests/support/Rig.h",
                              "benchmarks/support/Bench.h")

    def test_no_layer_knows_those_above(self):
        self.assert_forbidden("scenegraph/SoA.cpp", "src/TvkEditor.h")
        self.assert_forbidden("src/TvkEditor.cpp", "FieldEditors/DvFrame.h", "TvkDefaults.h")
        self.assert_forbidden(EDITORS + "DvFrame.cpp", "FieldEditors/SFWidgets/DvSFA.h",
                              "FieldEditors/TvkEditorDock.h")
        self.assert_forbidden("host/lib/HostShell.cpp", "app/AppWindow.h")

    def test_siblings_do_not_know_each_other(self):
        self.assert_forbidden(EDITORS + "SFWidgets/DvSFA.cpp", "FieldEditors/MFWidgets/DvMFA.h",
                              "Console/TvkConsole.h")
        self.assert_forbidden(EDITORS + "MFWidgets/DvMFA.cpp", "FieldEditors/SFWidgets/DvSFA.h")
        self.assert_forbidden("src/Console/TvkConsole.cpp", "PerfCounter/TvkCounter.h",
                              "FieldEditors/DvFrame.h")
        self.assert_forbidden("src/ProfileSelector/TvkSelector.cpp", "Console/TvkConsole.h")

    def test_docks_know_no_field_editor(self):
        self.assert_allowed(EDITORS + "TvkNodeEditor.cpp", "FieldEditors/TvkEditorDock.h",
                            "TvkEditor.h")
        self.assert_forbidden(EDITORS + "TvkEditorDock.cpp", "FieldEditors/DvFrame.h",
                              "FieldEditors/SFWidgets/DvSFA.h")

    def test_the_host_loads_the_plug_in_and_never_includes_it(self):
        for name in ("host/lib/HostShell.cpp", "host/app/AppWindow.cpp", "examples/a.cpp"):
            self.assert_forbidden(name, "FieldEditors/DvFrame.h", "TvkDefaults.h",
                                  "Console/TvkConsole.h", "PerfCounter/TvkCounter.h")

    def test_foreign_headers_are_for_their_layers_only(self):
        self.assert_allowed("src/PerfCounter/TvkCounter.cpp", "qwt_plot.h", "QDomDocument")
        self.assert_allowed("host/app/AppWindow.cpp", "Inventor/Qt/SoQt.h")
        self.assert_allowed("examples/a.cpp", "Inventor/Qt/SoQt.h")
        self.assert_forbidden("scenegraph/SoA.cpp", "QString", "Qt", "qglobal.h", "QtCore/QString")
        self.assert_forbidden("src/Console/TvkConsole.cpp", "qwt_plot.h", "QDomDocument",
                              "QtXml/QDomDocument", "Inventor/Qt/SoQt.h")
        self.assert_forbidden("host/lib/HostShell.cpp", "QDomElement", "Inventor/Qt/SoQt.h")

    def test_a_file_outside_all_layers_is_found(self):
        self.write("src/Elsewhere/A.cpp", "")
        self.assert_fails("src/Elsewhere/A.cpp:1: belongs to no layer")

    def test_a_quoted_include_of_no_file_is_found(self):
        self.include("src/TvkEditor.cpp", "FieldEditors/DvGone.h")
        self.assert_fails("src/TvkEditor.cpp:2: includes FieldEditors/DvGone.h: there is no such")

    def test_what_the_build_makes_may_be_included(self):
        self.assert_allowed("tests/src/tst_A.cpp", "tests/src/tst_A.moc")
        self.assert_allowed("src/TvkEditor.cpp", "TavrikExtenderAPIExport.h")

    def test_a_circle_of_headers_is_found(self):
        self.write("src/TvkA.h", '#include "TvkB.h"\n')
        self.write("src/TvkB.h", '#include "TvkC.h"\n')
        self.write("src/TvkC.h", "#include <TvkA.h>\n")
        self.assert_fails("headers include each other: "
                          "src/TvkA.h -> src/TvkB.h -> src/TvkC.h -> src/TvkA.h")

    def test_a_known_exception_passes(self):
        self.include("src/TvkEditor.cpp", "TvkDefaults.h")
        self.assert_passes("--exception", "src/TvkEditor.cpp -> TvkDefaults.h")

    def test_a_known_exception_that_is_no_longer_needed_fails(self):
        self.assert_fails("no longer needed", "--exception", "src/TvkEditor.cpp -> TvkDefaults.h")

    def test_a_tree_without_sources_is_no_success(self):
        self.root = self.root + "/docs"
        self.write("page.md", "")
        self.assert_fails("holds no source files")


if __name__ == "__main__":
    unittest.main()
