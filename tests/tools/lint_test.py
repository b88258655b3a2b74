#!/usr/bin/env python3
"""Builds small houses with one fault each and holds tools/lint to naming that fault, its place, and nothing else."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

LINT = Path(__file__).resolve().parents[2] / "tools" / "lint"

HOUSE = {
    ".clang-format": "BasedOnStyle: LLVM\n",
    "docs/architecture.md": """# House

| folder | level | what lives there | includes |
|---|---|---|---|
| `ground` | 0 | stones | – |
| `upper` | 1 | a bed | ground |
| | | *no Qt Widgets above this line* | |
| `roof` | 2 | a window | upper |
""",
    "src/ground/Stone.h": "#pragma once\n",
    "src/ground/Stone.cpp": '#include "ground/Stone.h"\n',
    "src/upper/Bed.h": '#pragma once\n#include "ground/Stone.h"\n',
    "src/roof/Window.h": '#pragma once\n#include "upper/Bed.h"\n#include <QWidget>\n',
    "tool.sh": "#!/usr/bin/env bash\necho sound\n",
}

# What is changed in the sound house, and how each complaint begins, in any order.
FAULTS = {
    "sound": ({}, []),
    "upward include": (
        {"src/ground/Stone.cpp": '#include "ground/Stone.h"\n#include "roof/Window.h"\n'},
        [
            "src/ground/Stone.cpp:2: ground may not include roof (docs/architecture.md:5)",
            "src/ground/Stone.cpp:2: a cycle of rooms: ground includes roof at src/ground/Stone.cpp:2; ",
            "src/ground/Stone.cpp:2: a cycle of files: src/ground/Stone includes src/roof/Window at ",
        ],
    ),
    "downward include past the table": (
        {"src/roof/Window.h": '#pragma once\n#include "ground/Stone.h"\n#include "upper/Bed.h"\n'},
        ["src/roof/Window.h:2: roof may not include ground"],
    ),
    "row that no longer holds": (
        {"src/upper/Bed.h": "#pragma once\n"},
        ["docs/architecture.md:6: upper lists ground, and no file of upper includes it any more"],
    ),
    "room without a row": (
        {"src/shed/Rake.h": "#pragma once\n"},
        ["docs/architecture.md:1: src/shed holds sources and has no row"],
    ),
    "row without a room": (
        {"src/roof/Window.h": None},
        ["docs/architecture.md:8: roof has a row and src/roof holds no sources"],
    ),
    "cycle of classes within a room, through a source file": (
        {
            "src/ground/Stone.cpp": '#include "ground/Stone.h"\n\n#include "ground/Sand.h"\n',
            "src/ground/Sand.h": '#pragma once\n#include "ground/Stone.h"\n',
        },
        ["src/ground/Sand.h:2: a cycle of files: src/ground/Sand includes src/ground/Stone at src/ground/Sand.h:2; "],
    ),
    "widgets above the line": (
        {"src/upper/Bed.h": '#pragma once\n#include "ground/Stone.h"\n#include <QLabel>\n'},
        ["src/upper/Bed.h:3: <QLabel> is a widget"],
    ),
    "include by bare name": (
        {"src/ground/Stone.cpp": '#include "Stone.h"\n'},
        ['src/ground/Stone.cpp:1: "Stone.h" is no file under src/'],
    ),
    "layout": (
        {"src/ground/Stone.h": "#pragma once\nint  a;\n"},
        ["src/ground/Stone.h:2: not laid out by .clang-format"],
    ),
    "script that does not parse": (
        {"tool.sh": "#!/usr/bin/env bash\nif true\n"},
        ["tool.sh:3: syntax error"],
    ),
    "no table": (
        {"docs/architecture.md": "# House\n", "src/roof/Window.h": None, "src/upper/Bed.h": None},
        ["docs/architecture.md:1: holds no table", "docs/architecture.md:1: src/ground holds sources and has no row"],
    ),
}


def lint(house):
    with tempfile.TemporaryDirectory() as folder:
        for name, text in house.items():
            path = Path(folder, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        subprocess.run(["git", "init", "-q", folder], check=True)
        return subprocess.run([LINT, "--root", folder], capture_output=True, text=True)


class LintTest(unittest.TestCase):
    def test_faults(self):
        for name, (changes, wanted) in FAULTS.items():
            with self.subTest(name):
                house = {path: text for path, text in {**HOUSE, **changes}.items() if text is not None}
                run = lint(house)
                complaints = run.stderr.splitlines()
                self.assertEqual(run.returncode, 1 if wanted else 0, run.stderr)
                self.assertEqual(len(complaints), len(wanted), run.stderr)
                for begin in wanted:
                    self.assertTrue(any(line.startswith(begin) for line in complaints), f"{begin}\n{run.stderr}")


if __name__ == "__main__":
    sys.exit(unittest.main())
