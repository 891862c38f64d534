"""What the commands of a test's tool call: it keeps what ran, and with which values."""

runs = []


def run(*values):
    """Records one run, as the value itself where there is just one."""
    runs.append(values[0] if len(values) == 1 else values)
