"""A tester for regular expressions.

The first half knows patterns and text and nothing of widgets; the second half is the tool of RegexTester.json.
"""

import bisect
import re

import unreal

# More matches than anybody reads make a list that takes long to show.
MATCH_LIMIT = 1000

NORMAL_COLOR = unreal.LinearColor(0.75, 0.75, 0.75, 1.0)
ERROR_COLOR = unreal.LinearColor(1.0, 0.25, 0.2, 1.0)


class PatternError(ValueError):
    """What is wrong with a pattern or a replacement, in words for the user."""


def compile_pattern(pattern, ignore_case):
    """The compiled pattern, in which ^ and $ stand for the ends of lines.

    Raises PatternError, with the place of the mistake, if it is no regular expression.
    """
    try:
        return re.compile(pattern, re.MULTILINE | (re.IGNORECASE if ignore_case else 0))
    except re.error as error:
        raise PatternError("Pattern: " + describe_error(error, pattern)) from error
    except (OverflowError, RecursionError) as error:
        raise PatternError("Pattern: {}.".format(error)) from error


def describe_error(error, source):
    """The message of a re.error, with the place in the source that it is about."""
    if error.pos is None:
        return "{}.".format(error.msg)
    rest = source[error.pos:error.pos + 12]
    return "{} at character {}{}.".format(error.msg, error.pos + 1, ", '{}'".format(rest) if rest else ", its end")


def describe_matches(pattern, text):
    """The matches of a compiled pattern, each with its place and its groups, and how many there are.

    Lines and columns count from 1. Behind MATCH_LIMIT matches the list ends with a line that says so.
    """
    line_starts = [0] + [match.end() for match in re.finditer("\n", text)]
    entries = []
    number = 0
    for number, match in enumerate(pattern.finditer(text), 1):
        if number > MATCH_LIMIT:
            continue
        line = bisect.bisect_right(line_starts, match.start())
        column = match.start() - line_starts[line - 1] + 1
        entries.append("{}. line {}, column {}: {!r}".format(number, line, column, match.group()))
        names = {index: name for name, index in pattern.groupindex.items()}
        for index, group in enumerate(match.groups(), 1):
            entries.append("      {}: {}".format(names.get(index, index), "no part of the match" if group is None else repr(group)))
    if number > MATCH_LIMIT:
        entries.append("... and {} more".format(number - MATCH_LIMIT))
    return "\n".join(entries), number


def replace_matches(pattern, replacement, text):
    """The text with all matches replaced, and how many there were.

    Raises PatternError if the replacement speaks of groups that the pattern does not have, or of unknown escapes.
    """
    try:
        return pattern.subn(replacement, text)
    except re.error as error:
        raise PatternError("Replacement: " + describe_error(error, replacement)) from error
    except IndexError as error:
        raise PatternError("Replacement: {}.".format(error)) from error


def count_of_matches(number):
    return "1 match" if number == 1 else "{} matches".format(number)


class RegexTester:
    """The running tool."""

    def __init__(self, json_path):
        self.data = unreal.PythonBPLib.get_velmora_data(json_path)
        self.seen = None
        self.watch = unreal.register_slate_post_tick_callback(self.on_tick)

    def close(self):
        """Ends the watch for changes. A tool that is closed already stays so."""
        if self.watch is not None:
            unreal.unregister_slate_post_tick_callback(self.watch)
            self.watch = None

    def inputs(self):
        # The texts come from the widgets and not with the events: as part of a command they would be Python literals, in
        # which the backslashes of a pattern have a meaning of their own.
        return self.data.get_text("Pattern"), self.data.get_text("Sample"), self.data.get_is_checked("IgnoreCase")

    def on_tick(self, delta_seconds):
        # A field that was emptied sends no event, so the tool looks for changes itself.
        if self.data.get_is_checked("WhileTyping") and self.inputs() != self.seen:
            self.find()

    def find(self):
        """Lists all matches."""
        self.run(describe_matches)

    def replace(self):
        """Shows the text with all matches replaced."""
        replacement = self.data.get_text("Replacement")
        self.run(lambda pattern, text: replace_matches(pattern, replacement, text))

    def run(self, action):
        """Shows what an action makes of the pattern and the text: the new text, and how many matches there were."""
        self.seen = self.inputs()
        pattern, text, ignore_case = self.seen
        if not pattern:
            self.show("", "No pattern yet.", NORMAL_COLOR)
            return
        try:
            result, number = action(compile_pattern(pattern, ignore_case), text)
        except PatternError as error:
            self.show("", str(error), ERROR_COLOR)
            return
        self.show(result, count_of_matches(number), NORMAL_COLOR)

    def show(self, result, status, color):
        self.data.set_text("Result", result)
        self.data.scroll_to("Result", 0)
        self.data.set_text("Status", status)
        self.data.set_color_and_opacity("Status", color)


# The tool that was opened last; the commands of the description reach it here. It stays when its tab has closed, since a
# field that loses the focus by that still commits its text.
tool = None


def open_tool(json_path):
    global tool
    close_tool()
    tool = RegexTester(json_path)
    tool.find()


def close_tool():
    if tool is not None:
        tool.close()
