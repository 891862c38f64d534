"""The file by which an editor tells how far it is, also one that dies: a record of fixed size, then what was found as JSON."""

import json
import os

#: Bytes that name what is under way.
RECORD = 1024

THE_END = "the end"


class Progress:
    def __init__(self, file):
        self.file = os.open(file, os.O_RDWR | os.O_CREAT)

    def name(self, what):
        """Says what comes next, before it is done."""
        os.pwrite(self.file, what.encode("utf-8", "replace")[:RECORD].ljust(RECORD), 0)

    def finish(self, **result):
        self.name(THE_END)
        os.pwrite(self.file, json.dumps(result).encode(), RECORD)


def read(file):
    """What was under way, and the result; an empty one if the end was not reached."""
    content = file.read_bytes() if file.exists() else b""
    return content[:RECORD].decode("utf-8", "replace").strip(), json.loads(content[RECORD:] or "{}")
