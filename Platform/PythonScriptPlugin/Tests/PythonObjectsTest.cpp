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
