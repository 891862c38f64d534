#include "PythonTest.h"

#include <gtest/gtest.h>

using namespace PythonTest;

TEST(PythonStruct, ConstructorTakesFieldsByPositionAndName)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestPlace().to_tuple()")), TEXT("(0.0, 7, '')"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestPlace(1, label='l').to_tuple()")), TEXT("(1.0, 7, 'l')"));
	EXPECT_EQ(Evaluate(TEXT("unreal.LinearColor(0.5, a=1).to_tuple()")), TEXT("(0.5, 0.0, 0.0, 1.0)"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestPlace(1, 2, 'l', 4)")),
		TEXT("TypeError: PythonTestPlace() takes at most 3 arguments (4 given)"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestPlace(label=1)")),
		TEXT("TypeError: PythonTestPlace: property 'label': expected str, got int"));
}

TEST(PythonStruct, ParametersTakeStructMappingOrSequence)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_place({'label': 'm'}).to_tuple()")), TEXT("(0.0, 7, 'm')"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_place([3]).to_tuple()")), TEXT("(3.0, 7, '')"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_place(unreal.PythonTestPlace(4)).x")), TEXT("4.0"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestFunctions.echo_place('text')")),
		TEXT("TypeError: PythonTestFunctions.echo_place(): argument 'value' (pos 1): expected PythonTestPlace, mapping or "
			 "sequence, got str"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestFunctions.echo_place(unreal.Vector())")),
		TEXT("TypeError: PythonTestFunctions.echo_place(): argument 'value' (pos 1): expected PythonTestPlace, mapping or "
			 "sequence, got Vector"));
}

TEST(PythonStruct, MappingsOfScriptsMayGiveAnything)
{
	EXPECT_TRUE(
		RunPython(TEXT("class Odd(dict):\n    def items(self): return [1, 'x']\n    def keys(self): return ['floor', 'x']")));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_place(Odd(floor=3, x=2)).to_tuple()")), TEXT("(2.0, 3, '')"));
	EXPECT_TRUE(RunPython(TEXT("class Lost:\n    def keys(self): return [1]\n    def __getitem__(self, key): return key")));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestPlace.cast(Lost())")),
		TEXT("TypeError: expected Name or str as name of a property, got int"));
}

TEST(PythonStruct, SequencesOfScriptsMayHaveNoEnd)
{
	EXPECT_TRUE(RunPython(TEXT("class Endless:\n    def __len__(self): return 2\n    def __getitem__(self, index): return 5")));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestPlace.cast(Endless()).to_tuple()")), TEXT("(5.0, 5, '')"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Rotator.cast(Endless()).to_tuple()")), TEXT("(5.0, 5.0, 0.0)"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.Rotator.cast([1, 2, 3, 4])")), TEXT("TypeError: Rotator has 3 fields (4 given)"));
}

TEST(PythonStruct, ValuesCompareByContent)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.Vector2D(1, 2) == unreal.Vector2D(1, 2)")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Vector2D(1, 2) != unreal.Vector2D(1, 3)")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Vector2D() == unreal.Vector()")), TEXT("False"));
	EXPECT_EQ(ErrorOf(TEXT("hash(unreal.Vector())")), TEXT("TypeError: unhashable type: 'Vector'"));
}

TEST(PythonStruct, CopyIsIndependentAndAssignTakesOver)
{
	EXPECT_TRUE(RunPython(TEXT("v = unreal.Vector(1, 2, 3)\nw = v.copy()\nw.x = 9")));
	EXPECT_EQ(Evaluate(TEXT("(v.x, w.x)")), TEXT("(1.0, 9.0)"));
	EXPECT_TRUE(RunPython(TEXT("v.assign(w)")));
	EXPECT_EQ(Evaluate(TEXT("v.to_tuple()")), TEXT("(9.0, 2.0, 3.0)"));
	EXPECT_EQ(ErrorOf(TEXT("v.assign([0, 'b'])")), TEXT("TypeError: Vector(): argument 'y' (pos 2): expected float, got str"));
	EXPECT_EQ(Evaluate(TEXT("v.to_tuple()")), TEXT("(9.0, 2.0, 3.0)"));
}

TEST(PythonStruct, EditorPropertiesWorkOnFields)
{
	EXPECT_TRUE(RunPython(TEXT(
		"p = unreal.PythonTestPlace()\np.set_editor_property('label', 'l')\np.set_editor_properties({'x': 2, 'floor': 3})")));
	EXPECT_EQ(Evaluate(TEXT("(p.get_editor_property('Label'), p.x, p.floor)")), TEXT("('l', 2.0, 3)"));
}

TEST(PythonStruct, ConstructorRefusesKeywordsAsCPythonDoes)
{
	EXPECT_EQ(
		ErrorOf(TEXT("unreal.Vector(1, x=3)")), TEXT("TypeError: argument for Vector() given by name ('x') and position (1)"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.Vector(q=1)")), TEXT("TypeError: 'q' is an invalid keyword argument for Vector()"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.Vector(1, 2, 3, 4)")), TEXT("TypeError: Vector() takes at most 3 arguments (4 given)"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.LinearColor(1, r=3)")),
		TEXT("TypeError: argument for LinearColor() given by name ('r') and position (1)"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.LinearColor(q=1)")), TEXT("TypeError: 'q' is an invalid keyword argument for LinearColor()"));
}

TEST(PythonStruct, RotatorIsRollPitchYaw)
{
	EXPECT_TRUE(RunPython(TEXT("r = unreal.Rotator(1, 2, 3)")));
	EXPECT_EQ(Evaluate(TEXT("(r.roll, r.pitch, r.yaw)")), TEXT("(1.0, 2.0, 3.0)"));
	EXPECT_EQ(Evaluate(TEXT("r.to_tuple()")), TEXT("(1.0, 2.0, 3.0)"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Rotator(yaw=5).to_tuple()")), TEXT("(0.0, 0.0, 5.0)"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Rotator.cast([7, 8]).to_tuple()")), TEXT("(7.0, 8.0, 0.0)"));
	EXPECT_TRUE(RunPython(TEXT("r.assign([9])")));
	EXPECT_EQ(Evaluate(TEXT("r.to_tuple()")), TEXT("(9.0, 2.0, 3.0)"));
	EXPECT_TRUE(RunPython(TEXT("r.assign({'Pitch': 4})")));
	EXPECT_EQ(Evaluate(TEXT("r.to_tuple()")), TEXT("(9.0, 4.0, 3.0)"));
}

TEST(PythonStruct, StructsOfNumbersBeginWithZeros)
{
	EXPECT_EQ(Evaluate(TEXT("[t().to_tuple() for t in (unreal.Vector, unreal.Vector2D, unreal.Rotator, unreal.IntPoint)]")),
		TEXT("[(0.0, 0.0, 0.0), (0.0, 0.0), (0.0, 0.0, 0.0), (0, 0)]"));
	EXPECT_EQ(Evaluate(TEXT("(unreal.LinearColor().to_tuple(), unreal.Color().to_tuple(), unreal.Guid().to_tuple())")),
		TEXT("((0.0, 0.0, 0.0, 0.0), (0, 0, 0, 0), (0, 0, 0, 0))"));
}

TEST(PythonStruct, DatesAndTimespansAreMadeOfTheirParts)
{
	EXPECT_TRUE(RunPython(TEXT("d = unreal.DateTime(2021, 12, 31, second=58)\nt = unreal.Timespan(1, milliseconds=5)")));
	EXPECT_EQ(Evaluate(TEXT("(d.to_tuple(), t.to_tuple())")), TEXT("((2021, 12, 31, 0, 0, 58, 0), (1, 0, 0, 0, 5))"));
	EXPECT_EQ(Evaluate(TEXT("unreal.DateTime.cast({'year': 2020}).to_tuple()[:3]")), TEXT("(2020, 1, 1)"));
	EXPECT_EQ(Evaluate(TEXT("unreal.DateTime().to_tuple()[:3]")), TEXT("(1, 1, 1)"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.DateTime(2021, 2, 30)")),
		TEXT("RuntimeError: expected a date in the years 1 to 9999 and a time of day, found 2021-2-30 0:0:0.0"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.DateTime.cast({'year': 2020, 'era': 1})")),
		TEXT("TypeError: 'era' is an invalid keyword argument for DateTime()"));
}

TEST(PythonStruct, StructsWithoutVisibleFieldsShowTheirText)
{
	EXPECT_TRUE(RunPython(TEXT("d = unreal.DateTime(2021, 12, 31, 23, 59, 58)\nt = unreal.Timespan(hours=2)")));
	EXPECT_EQ(Evaluate(TEXT("(str(d), str(t))")), TEXT("('2021.12.31-23.59.58', '+02:00:00.000')"));
	EXPECT_EQ(Evaluate(TEXT("str(unreal.Guid(1, 2, 3, 0xABCDEF01))")), TEXT("'000000010000000200000003ABCDEF01'"));
	EXPECT_TRUE(Evaluate(TEXT("d")).EndsWith(TEXT(") {2021.12.31-23.59.58}>")));
	EXPECT_TRUE(Evaluate(TEXT("unreal.Guid(1, 2, 3, 4)")).StartsWith(TEXT("<Struct 'Guid' (0x0000")));
}

TEST(PythonStruct, GuidHasItsNumbersAsEditorProperties)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.Guid(1, 2, 3, 4).get_editor_property('c')")), TEXT("3"));
	EXPECT_EQ(Evaluate(TEXT("hasattr(unreal.Guid, 'a')")), TEXT("False"));
	EXPECT_EQ(Evaluate(TEXT("bool(unreal.Guid()), bool(unreal.GuidLibrary.new_guid())")), TEXT("(False, True)"));
	EXPECT_EQ(Evaluate(TEXT("unreal.GuidLibrary.parse_string_to_guid('{00000001-0000-0002-0000-000300000004}')[0] == ")
					  TEXT("unreal.Guid(1, 2, 3, 4)")),
		TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("unreal.GuidLibrary.parse_string_to_guid('none')[1]")), TEXT("False"));
}

TEST(PythonStruct, CastAndRepr)
{
	EXPECT_TRUE(RunPython(TEXT("start, fields = repr(unreal.PythonTestPlace(1, 2, 'l\"m')).split('{')")));
	EXPECT_EQ(Evaluate(TEXT("__import__('re').sub('0x[0-9A-F]{16}', 'ADDRESS', start)")),
		TEXT("\"<Struct 'PythonTestPlace' (ADDRESS) \""));
	EXPECT_EQ(Evaluate(TEXT("fields")), TEXT("'x: 1.000000, floor: 2, label: \"l\\\\\"m\"}>'"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestPlace.static_struct().get_name()")), TEXT("'PythonTestPlace'"));
}
