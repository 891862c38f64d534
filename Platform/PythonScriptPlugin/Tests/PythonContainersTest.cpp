#include "PythonTest.h"

#include <gtest/gtest.h>

using namespace PythonTest;

TEST(PythonArray, IsAListOfOneType)
{
	EXPECT_TRUE(RunPython(TEXT("a = unreal.Array(str)\na.append('b')\na.extend(['a', 'c'])\na.insert(0, 'z')")));
	EXPECT_EQ(Evaluate(TEXT("list(a)")), TEXT("['z', 'b', 'a', 'c']"));
	EXPECT_EQ(Evaluate(TEXT("(len(a), a[0], a[-1], a[1:3], 'a' in a, a.index('a'), a.count('q'))")),
		TEXT("(4, 'z', 'c', ['b', 'a'], True, 2, 0)"));
	EXPECT_EQ(Evaluate(TEXT("type(a[1:3]).__name__")), TEXT("'Array'"));
	EXPECT_TRUE(RunPython(TEXT("a.sort()\na.reverse()\nlast = a.pop()\na.remove('z')")));
	EXPECT_EQ(Evaluate(TEXT("(last, a)")), TEXT("('a', ['c', 'b'])"));
	EXPECT_TRUE(RunPython(TEXT("a[0] = 'x'\na[1:] = ['y', 'w']\ndel a[0]\na += ['v']")));
	EXPECT_EQ(Evaluate(TEXT("a + ['u']")), TEXT("['y', 'w', 'v', 'u']"));
	EXPECT_EQ(Evaluate(TEXT("a")), TEXT("['y', 'w', 'v']"));
}

TEST(PythonArray, RefusesOtherTypesAndChangesNothing)
{
	EXPECT_TRUE(RunPython(TEXT("a = unreal.Array.cast(int, [1, 2])")));
	EXPECT_EQ(ErrorOf(TEXT("a.append('x')")), TEXT("TypeError: expected int, got str"));
	EXPECT_EQ(ErrorOf(TEXT("a[0] = 'x'")), TEXT("TypeError: expected int, got str"));
	EXPECT_EQ(ErrorOf(TEXT("a.extend([3, 'x'])")), TEXT("TypeError: expected int, got str"));
	EXPECT_EQ(ErrorOf(TEXT("a[5]")), TEXT("IndexError: Array index out of range"));
	EXPECT_EQ(ErrorOf(TEXT("a[-3]")), TEXT("IndexError: Array index out of range"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.Array(list)")), TEXT("TypeError: values of type 'list' cannot be elements"));
	EXPECT_EQ(Evaluate(TEXT("a")), TEXT("[1, 2]"));
}

TEST(PythonArray, ComparesItemByItemWithLists)
{
	EXPECT_TRUE(RunPython(TEXT("a = unreal.Array.cast(int, [1, 2])")));
	EXPECT_EQ(Evaluate(TEXT("(a == [1, 2], a == [2, 1], [1, 2] == a, a != (1, 2), a < [1, 3], a == a.copy())")),
		TEXT("(True, False, True, True, True, True)"));
}

TEST(PythonArray, ResizesWithDefaults)
{
	EXPECT_TRUE(RunPython(TEXT("a = unreal.Array.cast(unreal.PythonTestPlace, [{'x': 1}])\na.resize(2)")));
	EXPECT_EQ(Evaluate(TEXT("[p.to_tuple() for p in a]")), TEXT("[(1.0, 7, ''), (0.0, 7, '')]"));
	EXPECT_TRUE(RunPython(TEXT("a.clear()")));
	EXPECT_EQ(Evaluate(TEXT("len(a)")), TEXT("0"));
	EXPECT_EQ(ErrorOf(TEXT("a.resize(-1)")), TEXT("ValueError: the length of an Array is between 0 and 2147483647"));
}

TEST(PythonArray, ParameterTakesAnyIterableButNoText)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_names(str(i) for i in range(2))")), TEXT("[Name('0'), Name('1')]"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_names(unreal.PythonTestFunctions.echo_names(['a']))")),
		TEXT("[Name('a')]"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestFunctions.echo_names('ab')")),
		TEXT("TypeError: PythonTestFunctions.echo_names(): argument 'value' (pos 1): expected iterable of Name, got str"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestFunctions.echo_names(1/0 for i in range(2))")),
		TEXT("ZeroDivisionError: division by zero"));
}

TEST(PythonSet, IsASetInTheOrderOfAdding)
{
	EXPECT_TRUE(RunPython(TEXT("s = unreal.Set(str)\ns.add('b')\ns.add('a')\ns.add('B')\ns.update(['c'])")));
	EXPECT_EQ(Evaluate(TEXT("(len(s), 'A' in s, 5 in s)")), TEXT("(3, True, False)"));
	EXPECT_TRUE(RunPython(TEXT("s.discard('nothing')\ns.remove('c')")));
	EXPECT_EQ(ErrorOf(TEXT("s.remove('c')")), TEXT("KeyError: 'c'"));
	EXPECT_EQ(Evaluate(TEXT("[x.lower() for x in s]")), TEXT("['b', 'a']"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_set({'x'}) == {'x'}")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Set.cast(int, [1, 2]) | {3}")), TEXT("Set([1, 2, 3])"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Set.cast(int, [1, 2]) & {2, 3}")), TEXT("Set([2])"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Set.cast(int, [1, 2]).issubset([1, 2, 3])")), TEXT("True"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.Set(unreal.Text)")), TEXT("TypeError: values of type 'Text' have no hash"));
}

TEST(PythonMap, IsADictionaryInTheOrderOfAdding)
{
	EXPECT_TRUE(RunPython(TEXT("m = unreal.Map(str, int)\nm['b'] = 1\nm['a'] = 2\nm.update({'c': 3}, d=4)")));
	EXPECT_EQ(Evaluate(TEXT("(len(m), m['B'], 'A' in m, m.get('x'), m.get('x', 9), list(m), m.values())")),
		TEXT("(4, 1, True, None, 9, ['b', 'a', 'c', 'd'], [1, 2, 3, 4])"));
	EXPECT_TRUE(RunPython(TEXT("del m['b']\npopped = m.pop('c')")));
	EXPECT_EQ(
		Evaluate(TEXT("(popped, m.pop('c', None), dict(m), m == {'a': 2, 'd': 4})")), TEXT("(3, None, {'a': 2, 'd': 4}, True)"));
	EXPECT_EQ(ErrorOf(TEXT("m['nothing']")), TEXT("KeyError: 'nothing'"));
	EXPECT_EQ(ErrorOf(TEXT("m.update({'e': 1, 'f': 'x'})")), TEXT("TypeError: expected int, got str"));
	EXPECT_EQ(Evaluate(TEXT("m")), TEXT("{'a': 2, 'd': 4}"));
}

TEST(PythonMap, ParameterTakesMappings)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_map({'a': 1.5})")), TEXT("{'a': 1.5}"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestFunctions.echo_map([1])")),
		TEXT("TypeError: PythonTestFunctions.echo_map(): argument 'value' (pos 1): expected mapping of str to float, got list"));
}

TEST(PythonContainers, AreCollections)
{
	EXPECT_EQ(Evaluate(TEXT("[isinstance(c, getattr(__import__('collections').abc, n)) for c, n in ") TEXT(
				  "((unreal.Array(int), 'MutableSequence'), (unreal.Set(int), 'Set'), (unreal.Map(int, int), 'Mapping'))]")),
		TEXT("[True, True, True]"));
}

TEST(PythonContainers, AnArrayMayChangeWhileAValueForItIsLookedAt)
{
	EXPECT_TRUE(RunPython(TEXT("changing = unreal.Array(unreal.PythonTestPlace)\nchanging.append((1, 1))\n"
							   "class Changer:\n"
							   "    def __len__(self):\n        changing.clear()\n        return 2\n"
							   "    def __getitem__(self, index):\n        return 5\n")));
	EXPECT_EQ(ErrorOf(TEXT("changing[0] = Changer()")), TEXT("IndexError: Array assignment index out of range"));
	EXPECT_TRUE(RunPython(TEXT("changing.append(Changer())")));
	EXPECT_EQ(Evaluate(TEXT("[v.to_tuple()[:2] for v in changing]")), TEXT("[(5.0, 5)]"));
}
