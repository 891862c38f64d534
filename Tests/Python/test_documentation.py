"""The examples of the documentation work, and its tables hold every function and every key."""

import pathlib
import re
import runpy

import pytest
import unreal

from toolbench import PYTHON_FOLDER, Driver

ROOT = pathlib.Path(__file__).resolve().parents[2]
DOCS = ROOT / "Docs"
EXPECTED = ROOT / "Tests" / "Cpp" / "Velmora" / "Expected"


def code_blocks(page, language):
    return re.findall(rf"^```{language}\n(.*?)^```", (DOCS / page).read_text(encoding="utf-8"), re.MULTILINE | re.DOTALL)


def sections(page):
    """The text of a page by the words of its headings."""
    parts = re.split(r"^## (.*)\n", (DOCS / page).read_text(encoding="utf-8"), flags=re.MULTILINE)
    return {word: text for heading, text in zip(parts[1::2], parts[2::2]) for word in heading.split()}


def functions_of(type_):
    own = set(dir(type_)) - set(dir(unreal.Object))
    return sorted(name for name in own if not name.startswith("_"))


@pytest.fixture
def greeter():
    """The tool of the worked example, from the page that shows it."""
    folder = PYTHON_FOLDER / "Greeter"
    folder.mkdir(exist_ok=True)
    (folder / "Greeter.json").write_text(code_blocks("WritingTools.md", "json")[0], encoding="utf-8")
    (folder / "greeter.py").write_text(code_blocks("WritingTools.md", "python")[0], encoding="utf-8")
    yield
    unreal.VelmoraData.request_close("Greeter/Greeter.json")
    Driver.wait()


def test_worked_example_passes_the_example_of_a_test(greeter, tmp_path, log):
    script = tmp_path / "test_greeter.py"
    script.write_text(code_blocks("Testing.md", "python")[0], encoding="utf-8")
    runpy.run_path(str(script))
    assert log.warnings("Velmora") == [] and log.errors("PythonKX") == []


def test_readme_shows_the_worked_example():
    readme = (ROOT / "README.md").read_text(encoding="utf-8")
    for language in ("json", "python"):
        assert code_blocks("WritingTools.md", language)[0] in readme


@pytest.mark.parametrize(
    ("type_", "page"),
    [(unreal.PythonBPLib, "Scripting.md"), (unreal.VelmoraData, "Scripting.md"), (unreal.EditorDriver, "Testing.md")],
    ids=lambda value: getattr(value, "__name__", value),
)
def test_every_function_is_documented(type_, page):
    text = (DOCS / page).read_text(encoding="utf-8")
    functions = functions_of(type_)
    assert functions
    assert [name for name in functions if f"`{name}(" not in text] == []


def test_every_key_of_a_widget_stands_in_its_section():
    pages = sections("WritingTools.md")
    compound = (EXPECTED / "CompoundWidgetTypes.txt").read_text(encoding="utf-8").split()
    missing = []
    checked = 0
    for row in (EXPECTED / "Decorations.txt").read_text(encoding="utf-8").splitlines():
        key, *_, widgets = row.split(" | ")
        for widget in widgets.replace("(any)", "widget").replace("(compound)", ", ".join(compound)).split(", "):
            if widget in pages:
                checked += 1
                missing += [] if f"`{key}`" in pages[widget] else [f"{key} of {widget}"]
    assert checked > 40
    assert missing == []


def anchors(page):
    """The names under which the headings of a page can be linked to."""
    headings = re.findall(r"^#+ (.*)$", page.read_text(encoding="utf-8"), re.MULTILINE)
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}


@pytest.mark.parametrize("page", [ROOT / "README.md", *sorted(DOCS.glob("*.md"))], ids=lambda page: page.stem)
def test_links_lead_somewhere(page):
    broken = []
    for target in re.findall(r"\]\(([^)\s]+)\)", page.read_text(encoding="utf-8")):
        name, _, anchor = target.partition("#")
        file = page.parent / name if name else page
        if not file.exists() or anchor and anchor not in anchors(file):
            broken.append(target)
    assert broken == []
