#include "PythonTest.h"

#include <gtest/gtest.h>

using namespace PythonTest;

static FString Call(const TCHAR* Function, const TCHAR* Arguments = TEXT(""))
{
	return Evaluate(FString::Printf(TEXT("unreal.PythonTestFunctions.%s(%s)"), Function, Arguments));
}

static FString CallError(const TCHAR* Function, const TCHAR* Arguments)
{
	return ErrorOf(FString::Printf(TEXT("unreal.PythonTestFunctions.%s(%s)"), Function, Arguments));
}

TEST(PythonFunction, ResultsArePackedByReturnValueAndOuts)
{
	EXPECT_EQ(Call(TEXT("nothing")), TEXT("None"));
	EXPECT_EQ(Call(TEXT("one_out"), TEXT("4")), TEXT("8"));
	EXPECT_EQ(Call(TEXT("two_outs"), TEXT("4")), TEXT("(5, '4')"));
	EXPECT_EQ(Call(TEXT("number_and_out"), TEXT("4")), TEXT("('4', 5)"));
	EXPECT_EQ(Call(TEXT("plain_bool"), TEXT("True")), TEXT("True"));
	EXPECT_EQ(Call(TEXT("plain_bool"), TEXT("False")), TEXT("False"));
}

TEST(PythonFunction, BoolReturnWithOutsIsSwallowed)
{
	EXPECT_EQ(Call(TEXT("bool_and_bool"), TEXT("True")), TEXT("False"));
	EXPECT_EQ(Call(TEXT("bool_and_bool"), TEXT("False")), TEXT("None"));
	EXPECT_EQ(Call(TEXT("bool_and_two"), TEXT("True")), TEXT("(1, 2)"));
	EXPECT_EQ(Call(TEXT("bool_and_two"), TEXT("False")), TEXT("None"));
}

TEST(PythonFunction, ReferenceGoesInAndComesBackAndTheArgumentStays)
{
	EXPECT_TRUE(RunPython(TEXT("items = ['a']\nresult = unreal.PythonTestFunctions.by_reference(items)")));
	EXPECT_EQ(Evaluate(TEXT("(result[0], list(result[1]), items)")), TEXT("(2, ['a', 'added'], ['a'])"));
}

TEST(PythonFunction, ConstReferenceIsAnInput)
{
	EXPECT_EQ(Call(TEXT("const_reference"), TEXT("'x'")), TEXT("'x!'"));
}

TEST(PythonFunction, DefaultsAreThoseOfCpp)
{
	EXPECT_EQ(Call(TEXT("defaults")), TEXT("'5 abc None 1 1.0/2.0 5'"));
	EXPECT_EQ(Call(TEXT("defaults"), TEXT("1, flag=False")), TEXT("'1 abc None 0 1.0/2.0 5'"));
	EXPECT_EQ(
		Call(TEXT("defaults"), TEXT("point=[3, 4], color=unreal.PythonTestColor.RED, name='n'")), TEXT("'5 abc n 1 3.0/4.0 0'"));
}

TEST(PythonFunction, KeywordsAndPositionsMix)
{
	EXPECT_TRUE(RunPython(TEXT("scroller = unreal.PythonTestObject()")));
	EXPECT_EQ(Evaluate(TEXT("scroller.scroll_to('a')")), TEXT("399"));
	EXPECT_EQ(Evaluate(TEXT("scroller.scroll_to('a', 2)")), TEXT("199"));
	EXPECT_EQ(Evaluate(TEXT("scroller.scroll_to('a', offset=7)")), TEXT("407"));
	EXPECT_EQ(Evaluate(TEXT("scroller.scroll_to(**{'off' + 'set': 7, 'aka_' + 'name': 'a'})")), TEXT("407"));
}

TEST(PythonFunction, WrongArgumentsRaiseAsInPython)
{
	EXPECT_EQ(CallError(TEXT("one_out"), TEXT("")), TEXT("TypeError: one_out() missing required argument 'number' (pos 1)"));
	EXPECT_EQ(CallError(TEXT("one_out"), TEXT("1, 2")), TEXT("TypeError: one_out() takes at most 1 argument (2 given)"));
	EXPECT_EQ(CallError(TEXT("reserved"), TEXT("1, 2, 3")), TEXT("TypeError: reserved() takes at most 2 arguments (3 given)"));
	EXPECT_EQ(
		CallError(TEXT("one_out"), TEXT("value=1")), TEXT("TypeError: 'value' is an invalid keyword argument for one_out()"));
	EXPECT_EQ(CallError(TEXT("reserved"), TEXT("1, from_=1")),
		TEXT("TypeError: argument for reserved() given by name ('from_') and position (1)"));
}

TEST(PythonFunction, WrongTypeNamesClassFunctionAndParameter)
{
	EXPECT_EQ(CallError(TEXT("echo_int"), TEXT("'1'")),
		TEXT("TypeError: PythonTestFunctions.echo_int(): argument 'value' (pos 1): expected int, got str"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestObject().set_text('a', 5)")),
		TEXT("TypeError: PythonTestObject.set_text(): argument 'text' (pos 2): expected str, got int"));
	EXPECT_EQ(CallError(TEXT("echo_object"), TEXT("unreal.PythonTestFunctions.get_default_object()")),
		TEXT("TypeError: PythonTestFunctions.echo_object(): argument 'value' (pos 1): expected PythonTestObject or None, "
			 "got PythonTestFunctions"));
	EXPECT_EQ(CallError(TEXT("echo_names"), TEXT("['a', 5]")),
		TEXT("TypeError: PythonTestFunctions.echo_names(): argument 'value' (pos 1): expected Name or str, got int"));
}

TEST(PythonFunction, ReservedWordsAsParametersEndInAnUnderscore)
{
	EXPECT_EQ(Call(TEXT("reserved"), TEXT("from_=5, property_=3")), TEXT("2"));
}

TEST(PythonFunction, IntegersKeepTheirLowBits)
{
	EXPECT_EQ(Call(TEXT("echo_int"), TEXT("0xFFFFFFFF")), TEXT("-1"));
	EXPECT_EQ(Call(TEXT("echo_int"), TEXT("2**40 + 3")), TEXT("3"));
	EXPECT_EQ(Call(TEXT("echo_int"), TEXT("-2**31")), TEXT("-2147483648"));
	EXPECT_EQ(Call(TEXT("echo_byte"), TEXT("257")), TEXT("1"));
	EXPECT_EQ(Call(TEXT("echo_int64"), TEXT("2**63 - 1")), TEXT("9223372036854775807"));
	EXPECT_EQ(Call(TEXT("echo_int64"), TEXT("2**64 + 5")), TEXT("5"));
}

TEST(PythonFunction, NumbersConvert)
{
	EXPECT_EQ(Call(TEXT("echo_int"), TEXT("True")), TEXT("1"));
	EXPECT_EQ(Call(TEXT("echo_int"), TEXT("-2.9")), TEXT("-2"));
	EXPECT_EQ(Call(TEXT("echo_float"), TEXT("3")), TEXT("3.0"));
	EXPECT_EQ(Call(TEXT("echo_float"), TEXT("1e300")), TEXT("inf"));
	EXPECT_EQ(Call(TEXT("plain_bool"), TEXT("7")), TEXT("True"));
	EXPECT_EQ(CallError(TEXT("echo_int"), TEXT("float('nan')")),
		TEXT("ValueError: PythonTestFunctions.echo_int(): argument 'value' (pos 1): cannot convert float NaN to integer"));
	EXPECT_EQ(CallError(TEXT("plain_bool"), TEXT("None")),
		TEXT("TypeError: PythonTestFunctions.plain_bool(): argument 'value' (pos 1): expected bool, got NoneType"));
	EXPECT_EQ(CallError(TEXT("echo_float"), TEXT("'1.5'")),
		TEXT("TypeError: PythonTestFunctions.echo_float(): argument 'value' (pos 1): expected float, got str"));
}

TEST(PythonFunction, TextsConvert)
{
	EXPECT_EQ(Call(TEXT("echo_string"), TEXT("unreal.Name('n')")), TEXT("'n'"));
	EXPECT_EQ(Call(TEXT("echo_string"), TEXT("unreal.Text('t')")), TEXT("'t'"));
	EXPECT_EQ(Evaluate(TEXT("len(unreal.PythonTestFunctions.echo_string('a' * 100000))")), TEXT("100000"));
	EXPECT_EQ(Call(TEXT("echo_name"), TEXT("'Name_12'")), TEXT("Name('Name_12')"));
	EXPECT_EQ(Call(TEXT("echo_text"), TEXT("'text'")), TEXT("Text('text')"));
	EXPECT_EQ(Evaluate(TEXT("hex(ord(unreal.PythonTestFunctions.echo_string('\\U0001F600')))")), TEXT("'0x1f600'"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_string('\\ud800') == '\\ud800'")), TEXT("True"));
}

TEST(PythonFunction, ClassesAreTakenAsObjectOrType)
{
	EXPECT_EQ(
		Evaluate(TEXT("unreal.PythonTestFunctions.echo_class(unreal.PythonTestChild).get_name()")), TEXT("'PythonTestChild'"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_class(unreal.PythonTestChild.static_class()).get_name()")),
		TEXT("'PythonTestChild'"));
	EXPECT_EQ(Call(TEXT("echo_class"), TEXT("None")), TEXT("None"));
	EXPECT_EQ(CallError(TEXT("echo_class"), TEXT("unreal.Object")),
		TEXT("TypeError: PythonTestFunctions.echo_class(): argument 'value' (pos 1): expected class derived from "
			 "PythonTestObject, got type"));
}

TEST(PythonFunction, AliasAndDeprecatedFunctionWorkAndWarn)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_EQ(Call(TEXT("nice_name")), TEXT("12"));
	EXPECT_EQ(Log.Warnings().Num(), 0);
	EXPECT_EQ(Call(TEXT("old_name")), TEXT("12"));
	EXPECT_EQ(Call(TEXT("outdated")), TEXT("13"));
	EXPECT_EQ(Log.Warnings(),
		TArray<FString>({
			TEXT("<string>:1: DeprecationWarning: PythonTestFunctions: Function 'old_name' on "
				 "'PythonTestFunctions' is deprecated: use 'nice_name'"),
			TEXT("<string>:1: DeprecationWarning: PythonTestFunctions: Function 'outdated' on "
				 "'PythonTestFunctions' is deprecated: Use echo_int."),
		}));
	EXPECT_EQ(Evaluate(TEXT("hasattr(unreal.PythonTestFunctions, 'k2_ugly_name')")), TEXT("False"));
}

TEST(PythonFunction, DocumentationTellsSignatureArgumentsAndResult)
{
	EXPECT_TRUE(RunPython(TEXT("import inspect\nshown = unreal.PythonTestObject.get_text.__doc__.splitlines()")));
	EXPECT_EQ(Evaluate(TEXT("shown")),
		TEXT("['X.get_text(aka_name) -> Optional[str]', 'Reads a text.', '', 'Args:', '    aka_name (Union[Name, str]): "
			 "Whose text.', '', ")
			TEXT("'Returns:', '    Optional[str]: Whether there is one.', '', '    out_text (str): The text.']"));
	EXPECT_EQ(Evaluate(TEXT("str(inspect.signature(unreal.PythonTestObject.scroll_to))")),
		TEXT("'(self, /, aka_name, line_index=4, offset=-1)'"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestObject.scroll_to.__qualname__")), TEXT("'PythonTestObject.scroll_to'"));
}

TEST(PythonFunction, MethodNeedsItsObject)
{
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestObject.get_text('a')")),
		TEXT("TypeError: get_text() needs an object of type 'PythonTestObject' to be called on"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestObject.get_text(unreal.PythonTestChild(), 'a')")), TEXT("None"));
}

TEST(PythonFunction, BoundMethodIsAValue)
{
	EXPECT_TRUE(RunPython(TEXT("holder = unreal.PythonTestObject()\nsetter = holder.set_text\nsetter('k', text='v')")));
	EXPECT_EQ(Evaluate(TEXT("holder.get_text('K')")), TEXT("'v'"));
}

TEST(PythonFunction, OtherThreadsAreRefused)
{
	EXPECT_TRUE(RunPython(
		TEXT("import threading\nheard = []\ndef work():\n    try:\n        unreal.PythonTestFunctions.nothing()\n")
			TEXT("    except RuntimeError as error:\n        heard.append(str(error))\nthread = threading.Thread(target=work)\n")
				TEXT("thread.start()\nthread.join()")));
	EXPECT_EQ(Evaluate(TEXT("heard")), TEXT("[\"the functions and objects of 'unreal' can be used on the main thread only\"]"));
}

TEST(PythonFunction, CallMethodReachesFunctionsWithoutAPythonName)
{
	EXPECT_TRUE(RunPython(TEXT("functions = unreal.PythonTestFunctions.get_default_object()")));
	EXPECT_EQ(Evaluate(TEXT("hasattr(functions, 'unexposed')")), TEXT("False"));
	EXPECT_EQ(Evaluate(TEXT("functions.call_method('Unexposed', (5,))")), TEXT("105"));
	EXPECT_EQ(Evaluate(TEXT("functions.call_method('Unexposed', kwargs={'number': 6})")), TEXT("106"));
	EXPECT_EQ(ErrorOf(TEXT("functions.call_method('Nowhere')")),
		TEXT("Exception: PythonTestLibrary: Failed to find function 'Nowhere' on 'PythonTestLibrary'"));
}
