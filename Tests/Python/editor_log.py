"""Reads what the editor writes to its log."""

import re

import unreal

LINE = re.compile(r"\[[\d.]{10}-[\d.:]{12}\]\[(?P<frame>[ \d]{3})\](?P<category>\w+): (?:(?P<verbosity>Error|Warning|Display|Fatal): )?(?P<text>.*)")


class EditorLog:
    """The part of a log file that was written since this object was made."""

    def __init__(self, file):
        self.file = file
        unreal.log_flush()
        self.start = file.stat().st_size

    def lines(self, category, verbosity=""):
        """The texts of a category's lines, of one verbosity only if that is given ("Log" is one)."""
        return [text for found, level, text in self.entries() if found == category and verbosity in ("", level)]

    def errors(self, category):
        return self.lines(category, "Error")

    def warnings(self, category):
        return self.lines(category, "Warning")

    def frame_of(self, text):
        """In which frame the editor wrote that text; the log counts them up to 999 and then from 0 again."""
        matches = filter(None, map(LINE.fullmatch, self.read().splitlines()))
        return next(int(match["frame"]) for match in matches if match["text"] == text)

    def read(self):
        unreal.log_flush()
        with self.file.open("rb") as file:
            file.seek(self.start)
            return file.read().decode("utf-8")

    def entries(self):
        """(category, verbosity, text) of each line."""
        result = []
        for line in self.read().splitlines():
            match = LINE.fullmatch(line)
            if match:
                result.append((match["category"], match["verbosity"] or "Log", match["text"]))
            elif result:
                category, verbosity, start = result[-1]
                result[-1] = (category, verbosity, start + "\n" + line)
        return result
