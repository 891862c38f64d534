#include "PythonTest.h"

#include <gtest/gtest.h>

using namespace PythonTest;

TEST(PythonStruct, ConstructorTakesFieldsByPositionAndName)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestPlace().to_tuple()")), TEXT("(0.0, 7, '')"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestPlace(1, label='l').to_tuple()")), TEXT("(1.0, 7, 'l')"));
	EXPECT_EQ(Evaluate(TEXT("unreal.LinearColor(0.5, a=1).to_tuple()")), TEXT("(0.5, 0.0, 0.0, 1.0)"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestPlace(1, 2, 'l', 4)")), TEXT("TypeError: PythonTestPlace has 3 fields (4 given)"));
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
	EXPECT_EQ(ErrorOf(TEXT("v.assign([0, 'b'])")), TEXT("TypeError: Vector: property 'y': expected float, got str"));
	EXPECT_EQ(Evaluate(TEXT("v.to_tuple()")), TEXT("(9.0, 2.0, 3.0)"));
}

TEST(PythonStruct, EditorPropertiesWorkOnFields)
{
	EXPECT_TRUE(RunPython(TEXT(
		"p = unreal.PythonTestPlace()\np.set_editor_property('label', 'l')\np.set_editor_properties({'x': 2, 'floor': 3})")));
	EXPECT_EQ(Evaluate(TEXT("(p.get_editor_property('Label'), p.x, p.floor)")), TEXT("('l', 2.0, 3)"));
}

TEST(PythonStruct, CastAndRepr)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestPlace.cast({'x': 1})")),
		TEXT("<Struct 'PythonTestPlace' {x: 1.0, floor: 7, label: ''}>"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestPlace.static_struct().get_name()")), TEXT("'PythonTestPlace'"));
}
