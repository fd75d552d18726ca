#!/usr/bin/env python3
"""The layer check finds each kind of fault in a small tree of sources."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
import check_layers

LISTS = "quor_library(base)\nquor_library(forms LINKS base)\nquor_library(widgets LINKS base)\nquor_library(qt LINKS forms)\n"


class LayerCheck(unittest.TestCase):
    def faults(self, **includes):
        """The faults of a tree with these files; `forms__form` is forms/form.h."""
        with tempfile.TemporaryDirectory() as folder:
            source = Path(folder)
            (source / "CMakeLists.txt").write_text(LISTS)
            for name, text in includes.items():
                path = source / (name.replace("__", "/") + ".h")
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text)
            return check_layers.check(source)

    def expect(self, words, **includes):
        faults = self.faults(**includes)
        self.assertEqual([words in fault for fault in faults], [True], faults)

    def test_what_is_allowed_passes(self):
        self.assertEqual(self.faults(base__a="#include <vector>\n#include <cstdint>", forms__b='#include "base/a.h"',
                                     qt__c='#include "forms/b.h"\n#include <QWidget>'), [])

    def test_upward(self):
        self.expect("base (floor 0) includes forms/b.h (floor 2)", base__a='#include "forms/b.h"', forms__b="")

    def test_not_linked(self):
        self.expect("does not link widgets", forms__b='#include "widgets/c.h"', widgets__c="")

    def test_rooms_in_a_loop(self):
        faults = self.faults(forms__b='#include "widgets/c.h"', forms__d="", widgets__c='#include "forms/d.h"')
        self.assertTrue(any("folders that include each other" in fault for fault in faults), faults)

    def test_files_in_a_loop(self):
        self.expect("base/a.h -> base/b.h -> base/a.h", base__a='#include "base/b.h"', base__b='#include "base/a.h"')

    def test_foreign_headers(self):
        self.expect("<QWidget> may be included in qt", forms__b="#include <QWidget>")
        self.expect("<nlohmann/json.hpp> may be included in json, servers, apps only", qt__b="#include <nlohmann/json.hpp>")
        self.expect("<boost/any.hpp> is no header", base__a="#include <boost/any.hpp>")

    def test_unknown_places(self):
        self.expect("attic is on no floor", attic__a='#include "base/b.h"', base__b="")
        self.expect("is no file of src/", base__a='#include "b.h"')


if __name__ == "__main__":
    unittest.main()
