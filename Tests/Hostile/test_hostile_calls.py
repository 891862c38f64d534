"""Nothing that a script calls ends the editor, whatever it passes."""

import os
import re

CALLS = 100_000

#: `./kestrix soak`: enough calls for each value to have been passed to everything.
CALLS_OF_SOAK = 1_200_000

SEED = 20221112


def test_calls_with_wrong_arguments_end_in_results_and_exceptions(victim):
    count = CALLS_OF_SOAK if os.environ.get("KESTRIX_SOAK") else CALLS
    outcome = victim.start("run_calls.py", count, SEED)
    outcome.check(count)
    # That calls are made is no proof that they got anywhere.
    assert outcome.result["errors"]["none"] > count / 10


def test_the_call_that_ends_the_editor_is_named(victim):
    outcome = victim.start("run_calls.py", 2000, SEED, "die")
    assert outcome.status < 0
    assert re.fullmatch(r"\d+ string_at\(zero\)", outcome.last)
