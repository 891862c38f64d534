"""The part of the editor's Python that is written in Python. Runs once, before any script, as the module `_unreal_bootstrap`."""

import importlib
import importlib.machinery
import inspect
import linecache
import os
import sys
import traceback
import types
import warnings
from collections.abc import ItemsView, KeysView, MutableMapping, MutableSequence, MutableSet, ValuesView


class LiteralName(str):
    """File name of the text of one command.

    All of them show as "<string>", yet no two are equal, and each knows its own source. Code objects hold their file name,
    so a source lives exactly as long as anything that was compiled from it.
    """

    __slots__ = ("source",)

    def __new__(cls, source):
        name = super().__new__(cls, "<string>")
        name.source = source
        return name

    __hash__ = object.__hash__

    def __eq__(self, other):
        return self is other if isinstance(other, LiteralName) else str.__eq__(self, other)

    def __ne__(self, other):
        return not self == other


def _literals_of(error, seen):
    """The names of all commands that the tracebacks of an exception, its causes and its parts run through."""
    if error is None or id(error) in seen:
        return
    seen.add(id(error))
    for frame, _ in traceback.walk_tb(error.__traceback__):
        if isinstance(frame.f_code.co_filename, LiteralName):
            yield frame.f_code.co_filename
    for related in (error.__cause__, error.__context__, *getattr(error, "exceptions", ())):
        yield from _literals_of(related, seen)


def describe_error(error):
    """What Python prints for an uncaught exception, as a list of lines, with the source lines of commands."""
    literals = list(_literals_of(error, set()))
    for name in literals:
        # As in a file each line has its end, the last one too: the marks under a line are placed by its length with it.
        lines = [line + "\n" for line in name.source.splitlines()]
        linecache.cache[name] = (len(name.source), None, lines, name)
    try:
        return "".join(traceback.format_exception(error)).splitlines()
    finally:
        for name in literals:
            linecache.cache.pop(name, None)


def find_script(name):
    """Full name of a script file: in the working folder or, unless the name is absolute, on the search path; else None."""
    for folder in ("", *(() if os.path.isabs(name) else sys.path)):
        candidate = os.path.abspath(os.path.join(folder, name))
        if os.path.isfile(candidate):
            return candidate
    return None


class AppearedFolders:
    """The finder that is asked last: looks again when a folder was missing at the first look and exists by now.

    The import system keeps in mind that a search folder does not exist. A new project gets its Python folder only while the
    editor starts.
    """

    @staticmethod
    def find_spec(name, path=None, target=None):
        known = sys.path_importer_cache
        folders = sys.path if path is None else path
        if not any(known.get(folder, folder) is None and os.path.isdir(folder) for folder in folders):
            return None
        importlib.invalidate_caches()
        return importlib.machinery.PathFinder.find_spec(name, path, target)


def redirect_warning(message, category, filename, lineno, file=None, line=None):
    """Takes the place of warnings.showwarning."""
    import unreal

    unreal.log_warning(f"{filename}:{lineno}: {category.__name__}: {message}")


def register_collections(unreal):
    """Lets isinstance() know what kind of collections the containers of the module are."""
    MutableSequence.register(unreal.Array)
    MutableSet.register(unreal.Set)
    MutableMapping.register(unreal.Map)


class _MapView:
    """What the views of a map have like those of dict, beyond those of collections.abc."""

    __slots__ = ()

    @property
    def mapping(self):
        return types.MappingProxyType(self._mapping)

    def __repr__(self):
        return f"{type(self).__name__}({list(self)!r})"


class MapKeys(_MapView, KeysView):
    __slots__ = ()

    def __reversed__(self):
        return reversed(self._mapping)


class MapValues(_MapView, ValuesView):
    __slots__ = ()

    def __reversed__(self):
        return (self._mapping[key] for key in reversed(self._mapping))


class MapItems(_MapView, ItemsView):
    __slots__ = ()

    def __reversed__(self):
        return ((key, self._mapping[key]) for key in reversed(self._mapping))


def reversed_items(array):
    """The items of an array from last to first, as reversed() gives those of a list that may change meanwhile."""
    place = len(array)
    while 0 < place <= len(array):
        place -= 1
        yield array[place]


def _describe_callable(name, function, indent, decorator=""):
    try:
        signature = str(inspect.signature(function))
    except (TypeError, ValueError):
        signature = "(*args: Any, **kwargs: Any)"
    documentation = inspect.getdoc(function) or ""
    return f'{decorator}{indent}def {name}{signature}:\n{indent}    """{documentation}"""\n{indent}    ...\n\n'


def _describe_constructor(built_in):
    """What a call of the type takes, as its documentation says."""
    try:
        parameters = inspect.signature(built_in).parameters.values()
    except (TypeError, ValueError):
        return ""
    listed = "".join(f", {parameter.name}" + ("" if parameter.default is parameter.empty else "=...") for parameter in parameters)
    return f"    def __init__(self{listed}) -> None:\n        ...\n\n"


# What every type has, and how an instance is made.
_UNSHOWN = {"__class__", "__doc__", "__hash__", "__init__", "__module__", "__new__"}


def _describe_type(name, built_in):
    base = built_in.__base__.__name__
    head = f'class {name}{"" if base == "object" else f"({base})"}:\n    """{inspect.getdoc(built_in) or ""}"""\n\n'
    lines = [head, _describe_constructor(built_in)]
    for member, value in list(vars(built_in).items()):
        if member in _UNSHOWN:
            continue
        if isinstance(value, types.ClassMethodDescriptorType):
            bound = getattr(built_in, member)
            text = _describe_callable(member, bound, "    ", "    @classmethod\n")
            lines.append(text.replace(f"def {member}(", f"def {member}(cls, ", 1).replace("(cls, )", "(cls)", 1))
        elif isinstance(value, staticmethod):
            lines.append(_describe_callable(member, getattr(built_in, member), "    ", "    @staticmethod\n"))
        elif inspect.isroutine(value):
            lines.append(_describe_callable(member, value, "    "))
        elif inspect.isgetsetdescriptor(value) and not member.startswith("__"):
            lines.append(f"    @property\n    def {member}(self) -> Any:\n        ...\n\n")
    return "".join(lines) + ("" if any(lines[1:]) else "    ...\n\n") + "\n"


def describe_built_ins(unreal):
    """Stub of the functions and types of the module that no class of the engine reflects."""
    bases = (unreal._ObjectBase, unreal.StructBase, unreal.EnumBase)
    functions = []
    classes = []
    for name, value in list(vars(unreal).items()):
        if inspect.isbuiltin(value):
            functions.append(_describe_callable(name, value, "") + "\n")
        elif inspect.isclass(value) and (value in bases or not issubclass(value, bases)):
            classes.append(_describe_type(name, value))
    return "".join(functions + classes)


sys.meta_path.append(AppearedFolders)
warnings.showwarning = redirect_warning
warnings.simplefilter("default", DeprecationWarning)
