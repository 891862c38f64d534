"""Figures as text for people."""

UNITS = {
    "time": ((1.0, "s"), (1e-3, "ms"), (1e-6, "us"), (1e-9, "ns")),
    "memory": ((2**20, "MiB"), (2**10, "KiB"), (1, "B")),
    "count": ((1, ""),),
}


def format_value(figure, kind):
    """The median in a unit that suits it, or that there is none."""
    if "missing" in figure:
        return "not installed"
    value = figure["median"]
    for scale, unit in UNITS[kind]:
        if abs(value) >= scale:
            break
    number = f"{value / scale:.0f}" if kind == "count" or abs(value / scale) >= 100 else f"{value / scale:.3g}"
    return f"{number} {unit}".strip()


def format_table(head, rows):
    """Columns as wide as their contents: the first and the fourth are words, the others figures."""
    lines = [tuple(head), *rows]
    widths = [max(len(line[column]) for line in lines) for column in range(len(head))]
    words = (0, 3)

    def format_line(line):
        cells = (
            cell.ljust(width) if column in words else cell.rjust(width) for column, (cell, width) in enumerate(zip(line, widths))
        )
        return "  ".join(cells).rstrip()

    ruler = "  ".join("-" * width for width in widths)
    return "\n".join([format_line(lines[0]), ruler, *(format_line(line) for line in lines[1:])])
