#include "PythonTest.h"
#include "PythonTestTypes.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

using namespace PythonTest;

TEST(PythonObjects, SameObjectGivesTheSameWrapperWhileOneLives)
{
	EXPECT_TRUE(
		RunPython(TEXT("thing = unreal.PythonTestObject(name='Same')\nagain = unreal.PythonTestFunctions.echo_object(thing)")));
	EXPECT_EQ(Evaluate(TEXT("thing is again")), TEXT("True"));
}

TEST(PythonObjects, ConstructorTakesOuterAndName)
{
	EXPECT_TRUE(
		RunPython(TEXT("outer = unreal.PythonTestObject(name='TheOuter')\ninner = unreal.PythonTestObject(outer, 'TheInner')")));
	EXPECT_EQ(Evaluate(TEXT("inner.get_path_name()")), TEXT("'/Engine/Transient.TheOuter:TheInner'"));
	EXPECT_EQ(Evaluate(TEXT("inner.get_outer() is outer")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("inner.get_outermost().get_name()")), TEXT("'/Engine/Transient'"));
	EXPECT_EQ(Evaluate(TEXT("inner.get_typed_outer(unreal.PythonTestObject) is outer")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("inner.get_full_name()")), TEXT("'PythonTestObject /Engine/Transient.TheOuter:TheInner'"));
	EXPECT_EQ(Evaluate(TEXT("inner.get_fname() == 'theinner'")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("inner.get_world()")), TEXT("None"));
}

TEST(PythonObjects, ReprShowsPathAddressAndClass)
{
	EXPECT_TRUE(RunPython(TEXT("import re\nshown = repr(unreal.PythonTestObject(name='Shown'))")));
	EXPECT_EQ(Evaluate(TEXT("bool(re.fullmatch(r\"<Object '/Engine/Transient\\.Shown' \\(0x[0-9a-fA-F]+\\) Class "
							"'PythonTestObject'>\", shown))")),
		TEXT("True"));
}

TEST(PythonObjects, WrongConstructionRaises)
{
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestAbstract()")), TEXT("TypeError: the class 'PythonTestAbstract' is abstract"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestObject(5)")), TEXT("TypeError: expected Object or None as outer, got int"));
	EXPECT_TRUE(RunPython(TEXT("taken = unreal.PythonTestObject(name='Taken')")));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestChild(name='Taken')")),
		TEXT("ValueError: '/Engine/Transient.Taken' is an object of another class, PythonTestObject"));
}

TEST(PythonObjects, WrapperKeepsItsObjectThroughACollection)
{
	EXPECT_TRUE(RunPython(TEXT("kept = unreal.PythonTestObject(name='Kept')\nunreal.PythonTestObject(name='Dropped')")));
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(Evaluate(TEXT("kept.get_name()")), TEXT("'Kept'"));
	EXPECT_EQ(FindObject<UPythonTestObject>(GetTransientPackage(), TEXT("Dropped")), nullptr);
}

TEST(PythonObjects, StructsAndContainersKeepTheirObjects)
{
	EXPECT_TRUE(RunPython(TEXT("held = unreal.PythonTestFunctions.echo_objects([unreal.PythonTestObject(name='Held')])")));
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(Evaluate(TEXT("held[0].get_name()")), TEXT("'Held'"));
}

TEST(PythonObjects, DestroyedObjectLeavesItsWrapperUnusable)
{
	EXPECT_TRUE(RunPython(TEXT("doomed = unreal.PythonTestObject(name='Doomed')\ndoomed.destroy_yourself()")));
	const FString Expected = TEXT("ReferenceError: the object of this 'PythonTestObject' was destroyed");
	EXPECT_EQ(ErrorOf(TEXT("doomed.get_name()")), Expected);
	EXPECT_EQ(ErrorOf(TEXT("doomed.set_text('a', 'b')")), Expected);
	EXPECT_EQ(ErrorOf(TEXT("doomed.count = 1")), Expected);
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestFunctions.echo_object(doomed)")), Expected);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(ErrorOf(TEXT("doomed.count")), Expected);
	EXPECT_EQ(Evaluate(TEXT("repr(doomed)")), TEXT("\"<Destroyed object of type 'PythonTestObject'>\""));
}

TEST(PythonObjects, NewObjectInThePlaceOfAnOldOneHasAWrapperOfItsOwn)
{
	EXPECT_TRUE(RunPython(TEXT("first = unreal.PythonTestObject(name='Place')\nsecond = unreal.PythonTestObject(name='Place')")));
	EXPECT_EQ(Evaluate(TEXT("second.get_name()")), TEXT("'Place'"));
	EXPECT_EQ(Evaluate(TEXT("first is second")), TEXT("False"));
	EXPECT_EQ(ErrorOf(TEXT("first.get_name()")), TEXT("ReferenceError: the object of this 'PythonTestObject' was destroyed"));
	EXPECT_TRUE(RunPython(TEXT("del first")));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_object(second) is second")), TEXT("True"));
}

TEST(PythonObjects, CollectionWaitsForTheEndOfTheCommand)
{
	EXPECT_TRUE(RunPython(TEXT("unreal.PythonTestObject(name='Waits')\nunreal.PythonTestFunctions.collect_garbage()\n")
			TEXT("still_there = unreal.find_object(None, '/Engine/Transient.Waits') is not None")));
	EXPECT_EQ(Evaluate(TEXT("still_there")), TEXT("True"));
}

TEST(PythonObjects, PurgedObjectCanBeCollected)
{
	EXPECT_TRUE(RunPython(TEXT("purged = unreal.PythonTestObject(name='Purged')\nunreal.purge_object_references(purged)")));
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(FindObject<UPythonTestObject>(GetTransientPackage(), TEXT("Purged")), nullptr);
}

TEST(PythonObjects, CastsCheckTheClass)
{
	EXPECT_TRUE(RunPython(TEXT("child = unreal.PythonTestChild()\nparent = unreal.PythonTestObject()")));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestObject.cast(child) is child")), TEXT("True"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestChild.cast(parent)")),
		TEXT("TypeError: Cannot cast type 'PythonTestObject' to 'PythonTestChild'"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestChild.cast(5)")), TEXT("TypeError: expected PythonTestChild, got int"));
	EXPECT_EQ(Evaluate(TEXT("isinstance(child, unreal.PythonTestObject) and isinstance(child, unreal.Object)")), TEXT("True"));
}

TEST(PythonObjects, ClassesAreObjects)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestChild.static_class().get_path_name()")),
		TEXT("'/Script/PythonScriptPluginTests.PythonTestChild'"));
	EXPECT_EQ(Evaluate(TEXT("type(unreal.PythonTestChild.static_class()).__name__")), TEXT("'Class'"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestChild().get_class() is unreal.PythonTestChild.static_class()")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("unreal.get_default_object(unreal.PythonTestChild).get_name()")), TEXT("'Default__PythonTestChild'"));
	EXPECT_EQ(Evaluate(TEXT("unreal.get_type_from_class(unreal.PythonTestChild.static_class()) is unreal.PythonTestChild")),
		TEXT("True"));
}

TEST(PythonObjects, RenameMovesAndRefusesATakenName)
{
	EXPECT_TRUE(
		RunPython(TEXT("movable = unreal.PythonTestObject(name='Movable')\nother = unreal.PythonTestObject(name='OtherOne')")));
	EXPECT_EQ(Evaluate(TEXT("movable.rename('Moved', other)")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("movable.get_path_name()")), TEXT("'/Engine/Transient.OtherOne:Moved'"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestObject().rename('OtherOne')")),
		TEXT("ValueError: the name is taken by '/Engine/Transient.OtherOne'"));
}

TEST(PythonObjects, FindNewAndLoadObject)
{
	EXPECT_TRUE(RunPython(TEXT("made = unreal.new_object(unreal.PythonTestChild, name='Made')")));
	EXPECT_EQ(Evaluate(TEXT("unreal.find_object(None, '/Engine/Transient.Made') is made")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("unreal.find_object(made.get_outer(), 'Made', unreal.PythonTestObject) is made")), TEXT("True"));
	const FLogCapture Log;
	EXPECT_EQ(Evaluate(TEXT("unreal.find_object(None, '/Engine/Transient.Nowhere')")), TEXT("None"));
	EXPECT_EQ(Log.Warnings(), TArray<FString>({TEXT("Object '/Engine/Transient.Nowhere' was not found")}));
	EXPECT_EQ(Evaluate(TEXT("unreal.load_object(None, '/Engine/Transient.Nowhere')")), TEXT("None"));
	EXPECT_EQ(Log.Warnings().Num(), 2);
}

TEST(PythonObjects, IteratorsWalkObjectsAndClasses)
{
	EXPECT_TRUE(RunPython(TEXT("walked = unreal.PythonTestChild(name='Walked')")));
	EXPECT_EQ(Evaluate(TEXT("walked in list(unreal.ObjectIterator(unreal.PythonTestObject))")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("sorted(c.get_name() for c in unreal.ClassIterator(unreal.PythonTestObject))")),
		TEXT("['PythonTestChild', 'PythonTestObject']"));
}

TEST(PythonObjects, PythonClassesMayDerive)
{
	EXPECT_TRUE(RunPython(TEXT("class Tool(unreal.PythonTestObject):\n    def twice(self):\n        return self.count * 2\ntool "
							   "= Tool(name='ToolObject')")));
	EXPECT_EQ(Evaluate(TEXT("tool.twice()")), TEXT("6"));
	EXPECT_TRUE(RunPython(TEXT("del tool, Tool\nimport gc\n_ = gc.collect()")));
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(FindObject<UPythonTestObject>(GetTransientPackage(), TEXT("ToolObject")), nullptr);
}

TEST(PythonObjects, RenameToNothingMakesANewName)
{
	EXPECT_TRUE(
		RunPython(TEXT("first = unreal.PythonTestObject(name='First')\nsecond = unreal.PythonTestObject(name='Second')")));
	EXPECT_EQ(Evaluate(TEXT("(first.rename(''), second.rename(''), second.rename(None), first.rename('None'))")),
		TEXT("(True, True, True, True)"));
	EXPECT_EQ(Evaluate(TEXT("first.get_name().startswith('PythonTestObject_') and first.get_name() != second.get_name()")),
		TEXT("True"));
}

TEST(PythonObjects, NamesWithANullCharacterAreRefused)
{
	const FString Expected = TEXT("ValueError: embedded null character in a name");
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestObject().rename('\\0')")), Expected);
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestObject(name='a\\0b')")), Expected);
	EXPECT_EQ(ErrorOf(TEXT("unreal.new_object(unreal.PythonTestObject, None, '\\0')")), Expected);
}

TEST(PythonObjects, RenameIntoItselfIsRefusedWithAnErrorLine)
{
	EXPECT_TRUE(RunPython(TEXT("outside = unreal.PythonTestObject(name='Outside')\ninside = unreal.PythonTestObject(outside)")));
	const FLogCapture Log(TEXT("LogObj"));
	EXPECT_EQ(Evaluate(TEXT("(outside.rename(outer=outside), outside.rename('X', inside))")), TEXT("(False, False)"));
	EXPECT_EQ(Log.Errors().Num(), 2);
	EXPECT_EQ(Evaluate(TEXT("outside.get_path_name()")), TEXT("'/Engine/Transient.Outside'"));
}

TEST(PythonObjects, TypesAreMadeByReflectionAlone)
{
	EXPECT_EQ(ErrorOf(TEXT("unreal.Class()")), TEXT("TypeError: objects of the class 'Class' are made by reflection alone"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.new_object(unreal.ScriptStruct.static_class())")),
		TEXT("TypeError: objects of the class 'ScriptStruct' are made by reflection alone"));
	EXPECT_EQ(ErrorOf(TEXT("type('Mine', (unreal.Class,), {})()")),
		TEXT("TypeError: objects of the class 'Class' are made by reflection alone"));
}

TEST(PythonObjects, TheDefaultObjectOfAKindOfClassesIsNoClass)
{
	EXPECT_TRUE(RunPython(TEXT("default_class = unreal.get_default_object(unreal.Class)")));
	EXPECT_EQ(ErrorOf(TEXT("unreal.new_object(default_class)")), TEXT("TypeError: expected Class or type, got Class"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.get_default_object(default_class)")), TEXT("TypeError: expected Class or type, got Class"));
}

TEST(PythonObjects, TypesOfScriptsHaveNoClass)
{
	EXPECT_TRUE(RunPython(TEXT("Mine = type('Mine', (unreal.PythonTestObject,), {})")));
	const FString Expected = TEXT("TypeError: the type 'Mine', made by a script, has no class of the engine");
	EXPECT_EQ(ErrorOf(TEXT("unreal.new_object(Mine)")), Expected);
	EXPECT_EQ(ErrorOf(TEXT("unreal.get_default_object(Mine)")), Expected);
	EXPECT_EQ(ErrorOf(TEXT("Mine.get_default_object()")), Expected);
}

TEST(PythonObjects, DefaultObjectsAreNotReplaced)
{
	EXPECT_EQ(ErrorOf(TEXT("default = unreal.get_default_object(unreal.PythonTestObject)\n"
						   "unreal.PythonTestObject(default.get_outer(), default.get_name())")),
		TEXT("ValueError: '/Script/PythonScriptPluginTests.Default__PythonTestObject' is a default object"));
}

TEST(PythonObjects, TheClassOfAnInstanceCannotBeChanged)
{
	EXPECT_TRUE(RunPython(TEXT("First = type('First', (unreal.PythonTestObject,), {})\n"
							   "Second = type('Second', (unreal.PythonTestAbstract,), {})\n"
							   "instance = First()")));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestObject().__class__ = unreal.PythonTestChild")),
		TEXT("TypeError: the class of a 'PythonTestObject' cannot be changed"));
	EXPECT_EQ(ErrorOf(TEXT("instance.__class__ = Second")), TEXT("TypeError: the class of a 'First' cannot be changed"));
	EXPECT_EQ(Evaluate(TEXT("instance.__class__ is First")), TEXT("True"));
}

TEST(PythonObjects, MethodsAndPropertiesCheckTheObjectBehindAnInstance)
{
	// Python takes such an instance for one of both types.
	EXPECT_TRUE(RunPython(TEXT("Both = type('Both', (unreal.PythonTestFunctions, unreal.PythonTestObject), {})\nboth = Both()")));
	EXPECT_EQ(ErrorOf(TEXT("both.count")),
		TEXT("TypeError: descriptor 'count' for 'PythonTestObject' objects doesn't apply to a 'Both' object"));
	EXPECT_EQ(ErrorOf(TEXT("both.set_text('a', 'b')")),
		TEXT("TypeError: set_text() needs an object of type 'PythonTestObject' to be called on"));
}

TEST(PythonObjects, EngineTypesCannotBeChanged)
{
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestObject.count = 1")),
		TEXT("TypeError: cannot set 'count' attribute of immutable type 'PythonTestObject'"));
	EXPECT_EQ(ErrorOf(TEXT("del unreal.Object.get_name")),
		TEXT("TypeError: cannot set 'get_name' attribute of immutable type 'Object'"));
	EXPECT_EQ(
		ErrorOf(TEXT("unreal.Array.append = len")), TEXT("TypeError: cannot set 'append' attribute of immutable type 'Array'"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestColor.RED = 1")),
		TEXT("TypeError: cannot set 'RED' attribute of immutable type 'PythonTestColor'"));
}
