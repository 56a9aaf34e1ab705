# SPDX-License-Identifier: GPL-3.0-or-later
"""Prints what an expression about a saved project gives, so that scripts can ask for it.

    project_value.py CLI PROJECT EXPRESSION

The expression may use `project`, the object that `CLI show PROJECT` prints, and `frames`, its
Frames. The exit code is 0 when the result is true or a number, 1 when it is false, and 3 when the
project cannot be read (yet).
"""

import json
import subprocess
import sys


def main(cli, project_file, expression):
    shown = subprocess.run([cli, "show", project_file], capture_output=True, check=False)
    if shown.returncode != 0:
        print(shown.stderr.decode("utf-8", "replace").strip(), file=sys.stderr)
        return 3
    project = json.loads(shown.stdout)
    try:
        value = eval(f"({expression})", {"project": project, "frames": project["Frames"]})
    except IndexError:  # what it asks for is not there yet
        value = False
    print(json.dumps(value) if isinstance(value, (dict, list)) else value)
    return 1 if value is False else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:4]))
