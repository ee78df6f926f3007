# SPDX-License-Identifier: MIT
"""A small made-up repository in a temporary folder, for the tests of the checks."""
import os
import subprocess
import tempfile


class MadeTree:
    """Files by path and text, known to git; gone with the object."""

    def __init__(self, files):
        self._folder = tempfile.TemporaryDirectory()
        self.root = self._folder.name
        for path, text in files.items():
            full = os.path.join(self.root, path)
            os.makedirs(os.path.dirname(full), exist_ok=True)
            with open(full, "w", encoding="utf-8") as file:
                file.write(text)
        # A hook's variables would lead git back to the repository that the hook runs for.
        environment = {name: value for name, value in os.environ.items() if not name.startswith("GIT_")}
        for command in (["git", "init", "-q"], ["git", "add", "-A"]):
            subprocess.run(command, cwd=self.root, env=environment, check=True)

    def close(self):
        self._folder.cleanup()
