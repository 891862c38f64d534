"""Calls everything that the module `unreal` shows, with arguments that nobody should pass: run_calls.py PROGRESS CALLS SEED [die]

PROGRESS is a file that names each call before it is made, so that it tells of the one that ended the editor, and at the end what was
found. The same SEED gives the same calls. They are made between frames, so that garbage is collected meanwhile.
With `die` one more call ends the editor.
"""

import copy
import ctypes
import inspect
import itertools
import operator
import pathlib
import pickle
import random
import sys

import unreal

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).parent))

import values
from progress import Progress
from tools import AKAS, describe, write_tool

CALLS_PER_FRAME = 200

#: These end the editor, which is what they are for.
LEFT_OUT = {"SystemLibrary.quit_editor"}

#: Types for the elements of containers.
ELEMENTS = [int, float, bool, str, unreal.Name, unreal.Text, unreal.Vector, unreal.Object, unreal.PythonLogOutputType]


class Call:
    """
    A function with a name and how many arguments it takes. `make` gives the function and what it works on; `names` are those of its
    parameters, where they are known.
    """

    def __init__(self, name, make, parameters, weight=1, names=()):
        self.name = name
        self.make = make
        self.least, self.most = parameters
        self.weight = weight
        self.names = names

    def choose_count(self, dice):
        """Mostly a number of arguments that the function takes."""
        return dice.randint(self.least, self.most) if dice.random() < 0.9 else dice.randint(0, self.most + 1)


def parameters_of(function):
    """The least and the greatest number of arguments that a function takes, as far as it tells."""
    try:
        parameters = inspect.signature(function).parameters.values()
    except (TypeError, ValueError):
        return 0, 3
    needed = [parameter for parameter in parameters if parameter.default is inspect.Parameter.empty]
    return min(len(needed), 6), min(len(parameters), 6)


def names_of(function):
    try:
        return list(inspect.signature(function).parameters)
    except (TypeError, ValueError):
        return []


def make_container(kind, index):
    return lambda: kind(*(ELEMENTS[(index + offset) % len(ELEMENTS)] for offset in range(2 if kind is unreal.Map else 1)))


def fill(container):
    """An instance with something in it, if that can be had."""
    for method in ("append", "add"):
        for value in (1, 2.5, "x", unreal.Vector()):
            try:
                getattr(container, method)(value)
            except (AttributeError, TypeError, ValueError):
                continue
    return container


def instance_makers(kind):
    """Functions that make instances of a type."""
    if issubclass(kind, (unreal.Array, unreal.Set, unreal.Map)):
        return [lambda make=make_container(kind, index): fill(make()) for index in range(len(ELEMENTS)) if can(make_container(kind, index))]
    if issubclass(kind, unreal.EnumBase):
        return [lambda entry=entry: entry for entry in vars(kind).values() if isinstance(entry, kind)][:1]
    if issubclass(kind, unreal._ObjectBase):
        makers = [kind, lambda: unreal.get_default_object(kind)]
        if kind is unreal.VelmoraData:
            makers.append(lambda: unreal.PythonBPLib.get_velmora_data("Victim.json"))
        if kind in (unreal.Class, unreal.Struct, unreal.Field, unreal.Object):
            makers.append(unreal.VelmoraData.static_class)
        return [make for make in makers if can(make)]
    makers = [kind, lambda: kind("text"), lambda: kind(1.0), lambda: kind(unreal.VelmoraData)]
    return [make for make in makers if can(make)][:2]


def can(make):
    try:
        return make() is not None
    except (AttributeError, TypeError, ValueError, RuntimeError):
        return False


#: What Python's own syntax and library do with a value, beside calling its methods.
OPERATIONS = {
    "str": str, "repr": repr, "bool": bool, "hash": hash, "len": len, "list": list, "int": int, "float": float, "dir": dir,
    "copy": copy.copy, "deepcopy": copy.deepcopy, "pickle": pickle.dumps, "doc": inspect.getdoc,
    "reversed": lambda value: list(reversed(value)),
    "eq": operator.eq, "lt": operator.lt, "ge": operator.ge, "add": operator.add, "iadd": operator.iadd, "sub": operator.sub,
    "mul": operator.mul, "and": operator.and_, "xor": operator.xor, "contains": operator.contains, "getitem": operator.getitem,
    "setitem": operator.setitem, "delitem": operator.delitem, "isinstance": lambda value, kind: isinstance(value, kind),
    "format": format, "getattr": getattr, "setattr": setattr, "call": lambda value, *arguments: value(*arguments),
    "set class": lambda value, kind: setattr(value, "__class__", kind),
    "set class as object": lambda value, kind: vars(object)["__class__"].__set__(value, kind),
    "enter": lambda value: value.__enter__(), "exit": lambda value, *arguments: value.__exit__(*arguments),
    "init again": lambda value, *arguments: value.__init__(*arguments),
    "star": lambda value, arguments: value(*arguments), "keywords": lambda value, keywords: value(**keywords),
}  # fmt: skip


def operations(kind, makers):
    for name, operation in OPERATIONS.items():
        least, most = parameters_of(operation)
        parameters = max(least - 1, 0), max(most - 1, 0)
        for index, make in enumerate(makers[:3]):
            yield Call(f"{name} of {kind.__name__} {index}", lambda operation=operation, make=make: bind(operation, make()), parameters)
        yield Call(f"{name} of the type {kind.__name__}", lambda operation=operation: bind(operation, kind), parameters)


def bind(operation, instance):
    return lambda *arguments: operation(instance, *arguments), instance


def members(kind, makers):
    """The attributes that a type itself has, from its instances, from itself and, as descriptors, on anything."""
    for name, member in list(vars(kind).items()):
        full = f"{kind.__name__}.{name}"
        if full in LEFT_OUT:
            continue
        least, most = parameters_of(getattr(kind, name))
        names = names_of(getattr(kind, name))
        # What the engine reflects lets more happen than what the module has of its own.
        weight = 150 if type(member).__name__ in ("_Function", "_Method") else 10
        if callable(getattr(kind, name)):
            yield Call(f"{full} of the type", lambda name=name: (getattr(kind, name), kind), (least, most), weight, names)
        for index, make in enumerate(makers):
            if callable(getattr(kind, name)) or hasattr(type(member), "__get__"):
                own = names[1:] if names[:1] == ["self"] else names
                yield Call(f"{full} of {index}", lambda name=name, make=make: get(make(), name), (max(least - 1, 0), most), weight, own)
                yield Call(f"set {full} of {index}", lambda name=name, make=make: set_of(make(), name), (1, 1))
        for method in ("__get__", "__set__", "__delete__", "__call__"):
            if hasattr(member, method):
                yield Call(f"{full}.{method}", lambda member=member, method=method: (getattr(member, method), None), (1, 2))
        yield Call(f"set {full} of the type", lambda name=name: (lambda value: setattr(kind, name, value), kind), (1, 1))


def get(instance, name):
    def call(*arguments):
        member = getattr(instance, name)
        return member(*arguments) if callable(member) else member

    return call, instance


def set_of(instance, name):
    return lambda value: setattr(instance, name, value), instance


def editor_properties(kind, makers):
    for make in makers:
        for name in [name for name in dir(kind) if not name.startswith("__")] + ["", "bFoo"]:
            yield Call(f"set_editor_property of {kind.__name__} {name}", lambda make=make, name=name: set_editor(make(), name), (1, 2))


def set_editor(instance, name):
    return lambda *arguments: instance.set_editor_property(name, *arguments), instance


def types():
    """All types of the module, those that it does not show by name too."""
    shown = [value for value in vars(unreal).values() if inspect.isclass(value)]
    hidden = [type(member) for kind in shown for member in vars(kind).values() if type(member).__module__ == "unreal"]
    streams = [type(sys.stdout)]
    return sorted({kind for kind in shown + hidden + streams if kind.__module__ == "unreal"}, key=lambda kind: kind.__name__)


def targets():
    for name, function in sorted(vars(unreal).items()):
        if callable(function) and not inspect.isclass(function):
            yield Call(name, lambda function=function: (function, None), parameters_of(function), 50)
    for kind in types():
        makers = instance_makers(kind)
        yield Call(f"{kind.__name__}()", lambda kind=kind: (kind, None), (0, 4), 20)
        yield Call(f"class of {kind.__name__}", lambda kind=kind: (lambda *a: type("Derived", (kind, *a), {})(), None), (0, 2))
        yield from members(kind, makers)
        yield from operations(kind, makers)
        if issubclass(kind, (unreal._ObjectBase, unreal.StructBase)):
            yield from editor_properties(kind, makers[:1])


def fitting(folder, tool):
    """Values that get a call further, by the name of a parameter; under "" those that suit many."""
    widgets = [f"#{aka}" for aka in AKAS] + ["SButton", "STextBlock", ""]
    texts = {
        "tab": ["Victim", tool], "type": widgets, "text": ["", "Go", "text"], "aka_name": AKAS, "tools_path": [tool, "Victim.json"],
        "tools_json_path": [tool], "chord": ["Enter", "Ctrl+A", "Tab"], "path": [str(folder / "picture.png")],
        "image_file_path": [str(folder / "picture.png")], "visibility_str": ["Visible", "Hidden"], "name": ["get_name", "x", "Python"],
        "": ["x", "6 * 7", "Status"],
    }  # fmt: skip
    known = {name: [(value, lambda value=value: value) for value in entries] for name, entries in texts.items()}
    known["index"] = known["line_index"] = [("0", lambda: 0)]
    known["color"] = [("colour", lambda: unreal.LinearColor(1, 0, 0, 1))]
    known["override_window_size"] = [("size", lambda: unreal.Vector2D(200, 100))]
    known[""] += [
        ("1", lambda: 1), ("2", lambda: 2), ("0.5", lambda: 0.5), ("False", lambda: False), ("list", lambda: [1, 2]),
        ("object", unreal.VelmoraData), ("class", lambda: unreal.VelmoraData), ("name", lambda: unreal.Name("Title")),
        ("package", lambda: unreal.find_object(None, "/Engine/Transient")),
    ]  # fmt: skip
    return known


def choose_arguments(dice, call, hostile, known):
    """Each argument is one that fits, as far as such are known, or any."""
    arguments = []
    for index in range(call.choose_count(dice)):
        name = call.names[index] if index < len(call.names) else ""
        arguments.append(dice.choice(known.get(name, known[""]) if dice.random() < 0.6 else hostile))
    return arguments


def plan(folder, tool, count, seed):
    """(call, arguments, keywords), the arguments as names and makers: each target with each value alone, then mixtures."""
    dice = random.Random(seed)
    calls = list(targets())
    hostile = list(values.HOSTILE.items())
    known = fitting(folder, tool)
    made = 0
    order = [(call, value) for value in hostile for call in calls]
    dice.shuffle(order)
    for call, value in order[: count // 2]:
        yield call, [value] * max(call.least, min(call.most, 1)), {}
        made += 1
    weights = list(itertools.accumulate(call.weight for call in calls))
    while made < count:
        call = dice.choices(calls, cum_weights=weights)[0]
        arguments = choose_arguments(dice, call, hostile, known)
        names = [*call.names, "name", "type", "outer", "no such", "\ud800"]
        keywords = {dice.choice(names): dice.choice(hostile)} if dice.random() < 0.1 else {}
        yield call, arguments, keywords
        made += 1


class Runner:
    def __init__(self, progress_file, tool, calls):
        self.tool = tool
        self.progress = Progress(progress_file)
        self.calls = calls
        self.made = 0
        self.errors = {}
        self.findings = []
        self.calling = False
        # Calls end the callbacks whose handles they guess; this one's is beyond their numbers.
        for _ in range(10):
            unreal.unregister_slate_post_tick_callback(unreal.register_slate_post_tick_callback(print))
        self.handle = unreal.register_slate_post_tick_callback(self.tick)

    def tick(self, delta):
        # A call may let frames pass.
        if self.calling:
            return
        self.calling = True
        # A call may have closed it.
        unreal.VelmoraData.launch_velmora_tool(self.tool)
        try:
            for _ in range(CALLS_PER_FRAME):
                entry = self.next_call()
                if entry is None:
                    self.end()
                    return
                self.make(*entry)
        finally:
            self.calling = False

    def next_call(self):
        try:
            return next(self.calls, None)
        except Exception as error:  # noqa: BLE001: a plan that breaks off is no end
            self.findings.append(f"the plan: {error!r}")
            return None

    def make(self, call, arguments, keywords):
        names = ", ".join([name for name, _ in arguments] + [f"{key!r}={name}" for key, (name, _) in keywords.items()])
        self.progress.name(f"{self.made} {call.name}({names})")
        self.made += 1
        try:
            function, values.target = call.make()
            result = function(*[make() for _, make in arguments], **{key: make() for key, (_, make) in keywords.items()})
            self.look_at(result)
            self.count("none")
        except SystemError as error:
            # Python says so when a function of ours breaks its rules.
            self.findings.append(f"{call.name}({names}): {error!r}")
        except BaseException as error:  # noqa: BLE001: any exception is an answer
            self.count(type(error).__name__)
        finally:
            values.target = None

    def look_at(self, result):
        """Uses what a call gave, as a script would."""
        repr(result)
        if isinstance(result, int) and not isinstance(result, bool):
            unreal.unregister_slate_post_tick_callback(result) if result != self.handle else None
            unreal.unregister_slate_pre_tick_callback(result)

    def count(self, what):
        self.errors[what] = self.errors.get(what, 0) + 1

    def end(self):
        unreal.unregister_slate_post_tick_callback(self.handle)
        self.progress.finish(made=self.made, errors=self.errors, findings=self.findings)
        unreal.SystemLibrary.quit_editor()


def main(progress_file, count, seed, last=""):
    tool = write_tool("Victim", describe(lambda event: "pass"))
    unreal.VelmoraData.launch_velmora_tool(tool)
    calls = plan(pathlib.Path.cwd(), tool, int(count), int(seed))
    if last:
        deadly = Call("string_at", lambda: (ctypes.string_at, None), (1, 1))
        calls = itertools.chain(calls, [(deadly, [("zero", lambda: 0)], {})])
    unreal.EditorPythonScripting.set_keep_python_script_alive(True)
    Runner(progress_file, tool, calls)


main(*sys.argv[1:])
