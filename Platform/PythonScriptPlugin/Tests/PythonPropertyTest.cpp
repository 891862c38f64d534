#include "PythonTest.h"
#include "PythonTestTypes.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

using namespace PythonTest;

/** An object that is `subject` in Python and in C++. */
class PythonProperty : public testing::Test
{
protected:
	PythonProperty() { RunPython(TEXT("subject = unreal.PythonTestObject(name='Subject')")); }

	UPythonTestObject* Subject() const { return FindObject<UPythonTestObject>(GetTransientPackage(), TEXT("Subject")); }
};

TEST_F(PythonProperty, AttributesReadAndWrite)
{
	EXPECT_TRUE(RunPython(TEXT("subject.count = 8; subject.is_enabled = False; subject.title = 'T'; subject.color = "
							   "unreal.PythonTestColor.LIGHT_GREEN")));
	EXPECT_EQ(Subject()->Count, 8);
	EXPECT_FALSE(Subject()->bIsEnabled);
	EXPECT_EQ(Subject()->Title, TEXT("T"));
	EXPECT_EQ(
		Evaluate(TEXT("(subject.count, subject.is_enabled, subject.title, subject.color.name, subject.fixed, subject.other)")),
		TEXT("(8, False, 'T', 'LIGHT_GREEN', 0.5, None)"));
	EXPECT_EQ(Subject()->Edits.Num(), 0);
}

TEST_F(PythonProperty, AttributesRefuseWhatIsReadOnlyOrUnknown)
{
	EXPECT_EQ(ErrorOf(TEXT("subject.fixed = 1.0")), TEXT("AttributeError: attribute 'fixed' of 'PythonTestObject' is read-only"));
	EXPECT_EQ(
		ErrorOf(TEXT("del subject.count")), TEXT("AttributeError: attribute 'count' of 'PythonTestObject' cannot be deleted"));
	EXPECT_EQ(ErrorOf(TEXT("subject.hidden")), TEXT("AttributeError: 'PythonTestObject' object has no attribute 'hidden'"));
	EXPECT_EQ(ErrorOf(TEXT("subject.nothing = 1")), TEXT("AttributeError: 'PythonTestObject' object has no attribute 'nothing'"));
}

TEST_F(PythonProperty, WrongTypeNamesThePropertyAndChangesNothing)
{
	EXPECT_EQ(ErrorOf(TEXT("subject.count = 'x'")), TEXT("TypeError: PythonTestObject: property 'count': expected int, got str"));
	EXPECT_EQ(
		ErrorOf(TEXT("subject.lines = ['a', 5]")), TEXT("TypeError: PythonTestObject: property 'lines': expected str, got int"));
	EXPECT_EQ(Subject()->Count, 3);
	EXPECT_EQ(Subject()->Lines.Num(), 0);
}

TEST_F(PythonProperty, EditorPropertiesReachWhatIsEditableAndNotify)
{
	EXPECT_EQ(Evaluate(TEXT("subject.get_editor_property('hidden')")), TEXT("11"));
	EXPECT_EQ(Evaluate(TEXT("subject.get_editor_property('fixed')")), TEXT("0.5"));
	EXPECT_TRUE(RunPython(TEXT("subject.set_editor_property('hidden', 12)")));
	EXPECT_EQ(Subject()->Hidden, 12);
	EXPECT_EQ(Subject()->Edits, TArray<FString>({TEXT("Hidden")}));
	EXPECT_TRUE(RunPython(TEXT("subject.set_editor_property('hidden', 13, unreal.PropertyAccessChangeNotifyMode.NEVER)")));
	EXPECT_EQ(Subject()->Hidden, 13);
	EXPECT_EQ(Subject()->Edits.Num(), 1);
}

TEST_F(PythonProperty, EditorPropertiesTakePythonAndCppNames)
{
	EXPECT_EQ(Evaluate(TEXT("subject.get_editor_property('is_enabled')")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("subject.get_editor_property('bIsEnabled')")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("subject.get_editor_property(unreal.Name('BISENABLED'))")), TEXT("True"));
	EXPECT_EQ(ErrorOf(TEXT("subject.get_editor_property('b_is_enabled')")),
		TEXT("Exception: PythonTestObject: Failed to find property 'b_is_enabled' for attribute 'b_is_enabled' on "
			 "'PythonTestObject'"));
}

TEST_F(PythonProperty, ReadOnlyEditorPropertyRaises)
{
	EXPECT_EQ(ErrorOf(TEXT("subject.set_editor_property('fixed', 1.0)")),
		TEXT("Exception: PythonTestObject: Property 'fixed' on 'PythonTestObject' is read-only and cannot be set"));
}

TEST_F(PythonProperty, SeveralEditorPropertiesAreSetTogetherOrNotAtAll)
{
	EXPECT_TRUE(RunPython(TEXT("subject.set_editor_properties({'count': 1, 'title': 'x'})")));
	EXPECT_EQ(Subject()->Edits, TArray<FString>({TEXT("Count"), TEXT("Title")}));
	EXPECT_EQ(ErrorOf(TEXT("subject.set_editor_properties({'count': 2, 'title': 5})")),
		TEXT("TypeError: PythonTestObject: property 'title': expected str, got int"));
	EXPECT_EQ(Subject()->Count, 1);
	EXPECT_EQ(Subject()->Edits.Num(), 2);
}

TEST_F(PythonProperty, ContainersAndStructsAreCopies)
{
	EXPECT_TRUE(RunPython(TEXT("subject.lines = ['a']\nsubject.lines.append('b')\nsubject.place.label = 'changed'")));
	EXPECT_EQ(Subject()->Lines, TArray<FString>({TEXT("a")}));
	EXPECT_EQ(Subject()->Place.Label, TEXT(""));
	EXPECT_TRUE(
		RunPython(TEXT("place = subject.place\nplace.label = 'changed'\nsubject.place = place\nsubject.ages = {'a': 1}")));
	EXPECT_EQ(Subject()->Place.Label, TEXT("changed"));
	EXPECT_EQ(Subject()->Ages.FindRef(TEXT("a")), 1);
}

TEST_F(PythonProperty, DocumentationTellsTypeAndAccess)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestObject.title.__doc__")), TEXT("'(str): [Read-Write] Text at the top.'"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestObject.fixed.__doc__.split(']')[0]")), TEXT("'(float): [Read-Only'"));
}

TEST_F(PythonProperty, DescriptorsRefuseInstancesOfOtherTypes)
{
	EXPECT_EQ(ErrorOf(TEXT("vars(unreal.PythonTestPlace)['label'].__set__(subject, 'x')")),
		TEXT("TypeError: descriptor 'label' for 'PythonTestPlace' objects doesn't apply to a 'PythonTestObject' object"));
	EXPECT_EQ(ErrorOf(TEXT("vars(unreal.PythonTestObject)['count'].__get__(unreal.PythonTestPlace())")),
		TEXT("TypeError: descriptor 'count' for 'PythonTestObject' objects doesn't apply to a 'PythonTestPlace' object"));
	EXPECT_EQ(ErrorOf(TEXT("vars(unreal.PythonTestObject)['count'].__get__(5)")),
		TEXT("TypeError: descriptor 'count' for 'PythonTestObject' objects doesn't apply to a 'int' object"));
	EXPECT_EQ(ErrorOf(TEXT("vars(unreal.PythonTestObject)['count'].__set__(unreal.PythonTestFunctions(), 3)")),
		TEXT("TypeError: descriptor 'count' for 'PythonTestObject' objects doesn't apply to a 'PythonTestFunctions' object"));
}

TEST_F(PythonProperty, AMappingWhoseItemsAreNoPairsIsRefused)
{
	EXPECT_TRUE(RunPython(TEXT("class Odd(dict):\n    def items(self):\n        return [1, 2]\n")));
	const FString Expected = TEXT("TypeError: items() of a 'Odd' gives something other than pairs");
	EXPECT_EQ(ErrorOf(TEXT("subject.set_editor_properties(Odd())")), Expected);
	EXPECT_EQ(ErrorOf(TEXT("unreal.Text('{a}').format(Odd())")), Expected);
}
