"""Arguments that nobody should pass, each under a name by which a crash is told.

Many act when they are looked at: they raise, or change what the call is working on. `target` is that object.
"""

import math

import unreal

#: What the call under way is working on.
target = None


class Gone(Exception):
    """What hostile values raise."""


def interfere():
    """What a value does that acts on its use: change what is being worked on, call the editor, and let garbage go."""
    for method, arguments in (("clear", ()), ("append", (1,)), ("add", (1,)), ("pop", ()), ("update", ({},)), ("rename", ())):
        try:
            getattr(target, method)(*arguments)
        except Exception:  # noqa: BLE001: whatever it is, the call goes on
            pass
    unreal.find_object(None, "/Engine/Transient")
    unreal.SystemLibrary.collect_garbage()


def class_that(action, result):
    """A class whose every special method acts and then gives a result of the kind that is expected, if result says so."""

    def method(value):
        def call(self, *arguments, **keywords):
            action()
            return value

        return call

    answers = {
        "__str__": "text",
        "__repr__": "repr",
        "__index__": 1,
        "__int__": 1,
        "__float__": 1.0,
        "__bool__": True,
        "__hash__": 1,
        "__eq__": True,
        "__lt__": False,
        "__len__": 3,
        "__contains__": True,
        "__getitem__": 1,
        "__call__": None,
        "__fspath__": "path",
        "keys": ["x", "y"],
        "items": [("x", 1), ("y", 2)],
        "values": [1, 2],
    }
    members = {name: method(value if result else object()) for name, value in answers.items()}
    members["__iter__"] = lambda self: (action(), iter([1, 2, 3]))[1] if result else 5
    return type("Hostile", (), members)


def fail():
    raise Gone


def stop():
    raise KeyboardInterrupt


def leave():
    raise SystemExit(3)


Raising = class_that(fail, True)
Interfering = class_that(interfere, True)
Lying = class_that(lambda: None, False)
Stopping = class_that(stop, True)
Leaving = class_that(leave, True)


def failing_generator():
    yield 1
    raise Gone


def interfering_generator():
    for number in range(5):
        interfere()
        yield number


def nested(depth):
    result = []
    for _ in range(depth):
        result = [result]
    return result


def list_of_itself():
    result = [1]
    result.append(result)
    return result


def dict_of_itself():
    result = {"x": 1}
    result["y"] = result
    return result


def dead_object():
    result = unreal.VelmoraData()
    unreal.purge_object_references(result)
    return result


class FloatOfNothing(float):
    def __float__(self):
        return "no number"


class StrOfItsOwn(str):
    def __str__(self):
        interfere()
        return "changed"

    def __eq__(self, other):
        interfere()
        return True

    __hash__ = str.__hash__


class DictOfItsOwn(dict):
    def items(self):
        interfere()
        return [1, (2,), "ab"]

    def keys(self):
        return [Raising()]


class MappingWithoutPairs:
    def keys(self):
        return ["x"]

    def items(self):
        return [1]

    def __getitem__(self, key):
        raise KeyError(key)


class SequenceWithoutEnd:
    def __len__(self):
        return 2**62

    def __getitem__(self, index):
        raise IndexError(index)


class SequenceThatShrinks:
    def __init__(self):
        self.length = 4

    def __len__(self):
        return self.length

    def __getitem__(self, index):
        self.length = 0
        if index > 2:
            raise IndexError(index)
        return 1


class ScriptedObject(unreal.VelmoraData):
    pass


class ScriptedStruct(unreal.Vector):
    def __init__(self, *arguments):
        pass


#: A name and a function that makes the value anew, as some change when they are used.
HOSTILE = {
    "None": lambda: None,
    "True": lambda: True,
    "zero": lambda: 0,
    "minus one": lambda: -1,
    "2**31": lambda: 2**31,
    "-2**63": lambda: -(2**63),
    "10**1000": lambda: 10**1000,
    "nan": lambda: math.nan,
    "inf": lambda: math.inf,
    "-1e308": lambda: -1e308,
    "float of nothing": lambda: FloatOfNothing(1.5),
    "complex": lambda: 1j,
    "empty str": lambda: "",
    "long str": lambda: "long" * 5000,
    "surrogate": lambda: "\ud800 \udfff",
    "str with a null": lambda: "a\0b",
    "null": lambda: "\0",
    "line breaks": lambda: "a\nb\r\u2028c",
    "braces": lambda: "{0} {x} {",
    "None as str": lambda: "None",
    "outside of the plane": lambda: "\U0001f600" * 3,
    "str of its own": lambda: StrOfItsOwn("x"),
    "bytes": lambda: b"bytes\0",
    "bytearray": lambda: bytearray(b"x"),
    "tuple": lambda: (1, "2", None),
    "empty list": lambda: [],
    "list of all kinds": lambda: [None, 1, "x", 2.5, object()],
    "list of itself": list_of_itself,
    "nested list": lambda: nested(500),
    "dict": lambda: {"x": 1, 2: None},
    "dict of itself": dict_of_itself,
    "dict of its own": lambda: DictOfItsOwn(x=1),
    "mapping without pairs": MappingWithoutPairs,
    "sequence without end": SequenceWithoutEnd,
    "sequence that shrinks": SequenceThatShrinks,
    "set": lambda: {1, "x"},
    "range": lambda: range(1000),
    "slice": lambda: slice(None, None, -1),
    "generator that raises": failing_generator,
    "generator that interferes": interfering_generator,
    "object": object,
    "class": lambda: int,
    "engine class": lambda: unreal.VelmoraData,
    "class object": lambda: unreal.VelmoraData.static_class(),
    "default class": lambda: unreal.get_default_object(unreal.Class),
    "scripted class": lambda: ScriptedObject,
    "scripted object": ScriptedObject,
    "scripted struct": ScriptedStruct,
    "engine object": unreal.VelmoraData,
    "dead object": dead_object,
    "struct": lambda: unreal.Vector(1, 2, 3),
    "enum entry": lambda: unreal.PythonLogOutputType.ERROR,
    "name": lambda: unreal.Name("name_12"),
    "text": lambda: unreal.Text("{x}"),
    "array": lambda: unreal.Array(int),
    "map": lambda: unreal.Map(str, int),
    "function": lambda: len,
    "function that raises": lambda: lambda *arguments: fail(),
    "function that interferes": lambda: lambda *arguments: interfere(),
    "module": lambda: unreal,
    "type": lambda: type,
    "raises": Raising,
    "interferes": Interfering,
    "lies": Lying,
    "interrupts": Stopping,
    "leaves": Leaving,
}
